#include "gui/parts_tables/modello_griglia.h"

#include <QColor>
#include <QFont>

Qt::Alignment Allineamento_Qt(Allineamento allineamento) {
    switch (allineamento) {
        case Allineamento::Centro:
            return Qt::AlignCenter;
        case Allineamento::Destra:
            return Qt::AlignRight | Qt::AlignVCenter;
        case Allineamento::Sinistra:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

Modello_Griglia::Modello_Griglia(const Griglia& griglia, Immagini_Risorsa& immagini, QObject* padre)
    : QAbstractTableModel(padre), griglia_(griglia), immagini_(immagini) {
    Ricarica();
}

void Modello_Griglia::Ricarica() {
    beginResetModel();
    righe_ = griglia_.Rows() - 1;
    colonne_ = griglia_.Cols();
    endResetModel();
}

bool Modello_Griglia::Aggiorna() {
    if (righe_ != griglia_.Rows() - 1 || colonne_ != griglia_.Cols() || righe_ < 1 || colonne_ < 1)
        return false;
    emit dataChanged(index(0, 0), index(righe_ - 1, colonne_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, colonne_ - 1);
    return true;
}

int Modello_Griglia::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : righe_;
}

int Modello_Griglia::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : colonne_;
}

// A fill lets nothing be painted, but a repaint between fill and notice must not fall over a smaller grid.
const Cella* Modello_Griglia::Cella_A(int riga, int colonna) const {
    const bool presente = riga >= 0 && colonna >= 0 && riga < griglia_.Rows() && colonna < griglia_.Cols();
    return presente ? &griglia_.At(riga, colonna) : nullptr;
}

const Cella* Modello_Griglia::Cella_Di(const QModelIndex& indice) const {
    return indice.isValid() ? Cella_A(indice.row() + 1, indice.column()) : nullptr;
}

QVariant Modello_Griglia::data(const QModelIndex& indice, int ruolo) const {
    const Cella* cella = Cella_Di(indice);
    if (!cella)
        return {};
    switch (ruolo) {
        case Qt::DisplayRole:
            return cella->Text;
        case Qt::TextAlignmentRole:
            return QVariant(Allineamento_Qt(griglia_.ColAlignment(indice.column())));
        case Qt::FontRole:
            if (cella->Bold) {
                QFont carattere;
                carattere.setBold(true);
                return carattere;
            }
            return {};
        case Qt::ForegroundRole:
            return cella->Colore >= 0 ? QVariant(QColor(static_cast<QRgb>(cella->Colore))) : QVariant();
        default:
            return {};
    }
}

QVariant Modello_Griglia::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    const Cella* cella = verso == Qt::Horizontal ? Cella_A(0, sezione) : nullptr;
    if (!cella)
        return {};
    switch (ruolo) {
        case Qt::DisplayRole:
            return cella->Text;
        case Qt::TextAlignmentRole:
            return QVariant(Allineamento_Qt(griglia_.ColAlignment(sezione)));
        default:
            return {};
    }
}

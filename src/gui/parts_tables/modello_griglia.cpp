#include "gui/parts_tables/modello_griglia.h"

#include <QColor>
#include <QFont>

namespace {
/// A colour of a cell; none for the grid's own.
QVariant Colore_Qt(int colore) {
    return colore >= 0 ? QVariant(QColor(static_cast<QRgb>(colore))) : QVariant();
}

/// A text keeps its contrast on a background of its own, whatever the desktop's colours.
QVariant Colore_Testo(const Cella& cella) {
    if (cella.Colore >= 0 || cella.Sfondo < 0)
        return Colore_Qt(cella.Colore);
    return QColor(qGray(static_cast<QRgb>(cella.Sfondo)) > 127 ? Qt::black : Qt::white);
}
}  // namespace

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
            return Colore_Testo(*cella);
        case Qt::BackgroundRole:
            return Colore_Qt(cella->Sfondo);
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

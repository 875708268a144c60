#include "gui/navigation/modello_albero.h"

#include <QFont>

#include "gui/platform/icone.h"

Modello_Albero::Modello_Albero(QObject* padre) : QAbstractItemModel(padre) {
    for (size_t i = 0; i < immagini_.size(); ++i)
        immagini_[i] = Icona_Tema(QStringLiteral("nodo_%1").arg(i + 1));
}

void Modello_Albero::Ricarica(const Albero_Visibile& albero) {
    beginResetModel();
    voci_.clear();
    radici_.clear();
    per_key_.clear();
    const auto ordine = albero.In_Ordine();
    voci_.reserve(ordine.size());
    per_key_.reserve(static_cast<qsizetype>(ordine.size()));
    for (const Nodo_Visibile* nodo : ordine) {
        const int posizione = static_cast<int>(voci_.size());
        Voce voce{nodo->Key, nodo->Text, nodo->Image, nodo->SelectedImage, nodo->Bold, false, -1, 0, {}};
        if (nodo->Parent)
            voce.Padre = per_key_.value(nodo->Parent->Key, -1);
        std::vector<int>& fratelli = voce.Padre < 0 ? radici_ : voci_[static_cast<size_t>(voce.Padre)].Figli;
        voce.Riga = static_cast<int>(fratelli.size());
        fratelli.push_back(posizione);
        per_key_.insert(voce.Key, posizione);
        voci_.push_back(std::move(voce));
    }
    selezionato_ = albero.SelectedItem() ? albero.SelectedItem()->Key : QString();
    endResetModel();
}

void Modello_Albero::Selezionato(const QString& key) {
    const QModelIndex prima = Indice(selezionato_);
    selezionato_ = key;
    for (const QModelIndex& indice : {prima, Indice(selezionato_)})
        if (indice.isValid())
            emit dataChanged(indice, indice, {Qt::DecorationRole});
}

QModelIndex Modello_Albero::Indice(int posizione) const {
    if (posizione < 0)
        return {};
    return createIndex(voci_[static_cast<size_t>(posizione)].Riga, 0, static_cast<quintptr>(posizione));
}

QModelIndex Modello_Albero::Indice(const QString& key) const {
    return Indice(per_key_.value(key, -1));
}

QString Modello_Albero::Key(const QModelIndex& indice) const {
    return indice.isValid() ? voci_[static_cast<size_t>(Posizione(indice))].Key : QString();
}

QModelIndex Modello_Albero::index(int riga, int colonna, const QModelIndex& padre) const {
    if (!hasIndex(riga, colonna, padre))
        return {};
    const std::vector<int>& figli =
        padre.isValid() ? voci_[static_cast<size_t>(Posizione(padre))].Figli : radici_;
    return createIndex(riga, colonna, static_cast<quintptr>(figli[static_cast<size_t>(riga)]));
}

QModelIndex Modello_Albero::parent(const QModelIndex& indice) const {
    return indice.isValid() ? Indice(voci_[static_cast<size_t>(Posizione(indice))].Padre) : QModelIndex();
}

int Modello_Albero::rowCount(const QModelIndex& padre) const {
    const std::vector<int>& figli =
        padre.isValid() ? voci_[static_cast<size_t>(Posizione(padre))].Figli : radici_;
    return static_cast<int>(figli.size());
}

QVariant Modello_Albero::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid())
        return {};
    const Voce& voce = voci_[static_cast<size_t>(Posizione(indice))];
    switch (ruolo) {
        case Qt::DisplayRole:
            return voce.Text;
        case Qt::DecorationRole: {
            const int numero = voce.Key == selezionato_ ? voce.SelectedImage : voce.Image;
            if (numero >= 1 && numero <= static_cast<int>(immagini_.size()))
                return immagini_[static_cast<size_t>(numero - 1)];
            return {};
        }
        case Qt::FontRole:
            if (voce.Bold) {
                QFont carattere;
                carattere.setBold(true);
                return carattere;
            }
            return {};
        default:
            return {};
    }
}

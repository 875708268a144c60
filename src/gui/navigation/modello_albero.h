#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <array>
#include <vector>

#include "core/navigation/albero_visibile.h"

/// The visible tree for the tree widget. It keeps a copy of what it shows, so that a repaint that comes while
/// core rebuilds the tree never meets a node that is gone.
class Modello_Albero : public QAbstractItemModel {
    Q_OBJECT
  public:
    explicit Modello_Albero(QObject* padre = nullptr);

    /// Takes over the whole tree, in one reset.
    void Ricarica(const Albero_Visibile& albero);
    QModelIndex Indice(const QString& key) const;
    /// Node at a position (from 0) in the order in which the tree shows them.
    QModelIndex Indice(int posizione) const;
    int Numero_Nodi() const { return static_cast<int>(voci_.size()); }
    /// Key of a node; "" for no node.
    QString Key(const QModelIndex& indice) const;
    /// The node whose picture is the one of a selected node; "" for none.
    void Selezionato(const QString& key);
    /// Whether the widget shows a node open: asking the widget itself is slow in a large tree.
    bool Aperto(int posizione) const { return voci_[static_cast<size_t>(posizione)].Aperto; }
    void Aperto(const QModelIndex& indice, bool aperto) {
        voci_[static_cast<size_t>(Posizione(indice))].Aperto = aperto;
    }

    QModelIndex index(int riga, int colonna, const QModelIndex& padre = {}) const override;
    QModelIndex parent(const QModelIndex& indice) const override;
    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return 1; }
    QVariant data(const QModelIndex& indice, int ruolo) const override;

  private:
    struct Voce {
        QString Key;
        QString Text;
        int Image = 0;
        int SelectedImage = 0;
        bool Bold = false;
        bool Aperto = false;
        int Padre = -1;
        int Riga = 0;
        std::vector<int> Figli;
    };
    int Posizione(const QModelIndex& indice) const { return static_cast<int>(indice.internalId()); }

    std::vector<Voce> voci_;
    std::vector<int> radici_;
    QHash<QString, int> per_key_;
    QString selezionato_;
    std::array<QIcon, 6> immagini_;  ///< the tree's image list
};

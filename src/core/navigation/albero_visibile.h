#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "core/navigation/collection_albero.h"

/// A node of the visible tree.
struct Nodo_Visibile {
    Nodo_Visibile(QString key, QString testo, Nodo_Visibile* padre)
        : Key(std::move(key)), Text(std::move(testo)), Parent(padre) {}

    const QString Key;
    const QString Text;
    int Image = 0;          ///< number in the tree's image list, from 1
    int SelectedImage = 0;  ///< the same while the node is selected
    bool Bold = false;
    bool Expanded = false;
    Nodo_Visibile* const Parent;  ///< nullptr at the top level
    std::vector<Nodo_Visibile*> Figli;
    int Riga = 0;  ///< position among the siblings, from 0
};

/// The content of `Tree1`: what the filters leave of the model, with its bold, open and selected nodes. The
/// tree widget shows it and hands the user's opening and selecting back.
class Albero_Visibile {
  public:
    Albero_Visibile() = default;
    Albero_Visibile(const Albero_Visibile&) = delete;
    Albero_Visibile& operator=(const Albero_Visibile&) = delete;
    // The nodes don't move with the tree.
    Albero_Visibile(Albero_Visibile&&) = default;
    Albero_Visibile& operator=(Albero_Visibile&&) = default;

    /// Removes all nodes and their captions; the title stays.
    void Clear();
    /// Adds a node as the last child of `padre` (none: at the top level).
    Nodo_Visibile& Add(Nodo_Visibile* padre, const QString& key, const QString& testo);
    qsizetype Count() const { return static_cast<qsizetype>(nodi_.size()); }
    /// nullptr when there is no such node.
    Nodo_Visibile* Nodo(const QString& key) const;
    bool Esiste_Nodo_Albero(const QString& key) const { return Nodo(key) != nullptr; }
    const std::vector<Nodo_Visibile*>& Primo_Livello() const { return radici_; }
    /// All nodes in the order in which they were added.
    const std::deque<Nodo_Visibile>& Nodi() const { return nodi_; }
    /// All nodes as the tree shows them, parents before their children.
    std::vector<const Nodo_Visibile*> In_Ordine() const;

    Nodo_Visibile* SelectedItem() const { return selezionato_; }
    /// Selects a node and opens its ancestors, so that it can be seen; nullptr for none.
    void Seleziona(Nodo_Visibile* nodo);
    bool Albero_Ha_Selezione() const { return selezionato_ != nullptr; }
    /// Opens or closes every node; the key "R" is left as it is when closing.
    void Espandi_Albero(bool espanso);
    /// Captions from the top level down, joined by "\".
    static QString FullPath(const Nodo_Visibile& nodo);

    QString Titolo;          ///< title above the tree
    QStringList Combo_Nodi;  ///< the nodes' captions, each once, in the place of its first occurrence

  private:
    std::deque<Nodo_Visibile> nodi_;
    std::vector<Nodo_Visibile*> radici_;
    // Filled when a node is first looked up by its key, so that building a large tree doesn't wait for it.
    // The views stand on the keys of the nodes, which neither move nor change.
    mutable QHash<QStringView, Nodo_Visibile*> per_key_;
    mutable size_t cercabili_ = 0;  ///< how many nodes are in `per_key_`
    Nodo_Visibile* selezionato_ = nullptr;
};

/// Replaces the content of the visible tree by what the filters leave of the model. `matricola` comes with
/// its quotes doubled; "" marks nothing. A model without records leaves nodes and title as they are. `titolo`
/// answers `Restitusci_Titolo_Albero` for a language. Fails on a node without a caption and with `Errore_DB`.
void Crea_Albero_Da_Struttura(const Class_DBOper& db, const Collection_Albero& modello, int lingua,
                              int mercato, const QString& matricola, const QString& gruppo,
                              const std::function<QString(int)>& titolo, Albero_Visibile& albero);

/// Title above the tree: the root's caption of the model, translated through `Traduzioni_Albero`.
QString Titolo_Albero(const Class_DBOper& db, int lingua);

/// The walk of the node search. `trovato` is called for a node found by its text, so that the window can
/// show it; not for the first node on which the search ends without a find.
void Cerca_Nodo_Albero(Albero_Visibile& albero, const QString& testo,
                       const std::function<void(Nodo_Visibile&)>& trovato);

/// The product's key in a hotspot string that leads to a product; "" for any other.
QString Controllo_SottoProdotto(const QString& stringa);

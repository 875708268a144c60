#pragma once

#include "core/shell/stanza.h"

/// The tree and what the user does in it.
class Controllo_Albero : public Stanza {
  public:
    using Stanza::Stanza;
    /// Selects a node as if it had been clicked; nothing when it is selected already or isn't in the visible
    /// tree.
    void Seleziona_Nodo_Albero(const QString& key);
    /// The user clicked a node of the tree.
    void Clic_Nodo(const QString& key);
    /// The user opened or closed a node.
    void Nodo_Aperto(const QString& key, bool aperto);
    /// The next node with this caption, and its sheet.
    void Cerca_Nodo_Albero(const QString& testo);
    /// Marks the nodes that fit a serial number; "" marks none.
    void Applica_Filtro_Matricola(const QString& matricola);

  private:
    void Seleziona(Nodo_Visibile& nodo);
};

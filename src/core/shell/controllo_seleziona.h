#pragma once

#include "core/cart/aggiunta.h"
#include "core/shell/stanza.h"

/// The choice between the components of one drawing object: the parts list of one reference of the product on
/// show, from which the user picks one component.
class Controllo_Seleziona : public Stanza {
  public:
    Controllo_Seleziona(Ambiente& ambiente, Schermo& schermo, QString riferimento)
        : Stanza(ambiente, schermo), riferimento_(std::move(riferimento)) {}

    Griglia& Righe() { return griglia_; }
    Tag_Griglia& Tag() { return tag_; }
    /// Loads the rows; the window's resize as well. Without a current product the grid is hidden.
    void Ricarica();
    /// A click on a cell, which stands for its row, or Enter there; true when it picked a component: then the
    /// window closes.
    bool Clic(int riga, int colonna);
    /// The component picked, if one was.
    const std::optional<Componente_Scelto>& Scelto() const { return scelto_; }

  private:
    QString riferimento_;
    Griglia griglia_;
    Tag_Griglia tag_{100};
    std::optional<Componente_Scelto> scelto_;
};

#pragma once

#include <QString>

#include "core/cart/controllo_carrello.h"
#include "core/griglia/griglia.h"
#include "core/package/class_progetto_aperto.h"
#include "core/parts_tables/clic_griglia.h"

class Controllo_Principale;

/// The choice between the components of one drawing object: the parts list of one reference of the product on
/// show, from which the user adds one component to the cart.
class Controllo_Seleziona {
  public:
    Controllo_Seleziona(Controllo_Principale& schermo, QString riferimento)
        : schermo_(schermo), riferimento_(std::move(riferimento)) {}

    Griglia& Righe() { return griglia_; }
    Tag_Griglia& Tag() { return tag_; }
    /// Loads the rows; the window's resize as well. Without a current product the grid is hidden.
    void Ricarica();
    /// A click on a cell; true when it added a component: then the window closes.
    bool Clic(int riga, int colonna);
    /// A component was added.
    bool Esito() const { return esito_; }

  private:
    Controllo_Principale& schermo_;
    QString riferimento_;
    Griglia griglia_;
    Tag_Griglia tag_{100};
    bool esito_ = false;
};

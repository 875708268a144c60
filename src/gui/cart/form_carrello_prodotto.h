#pragma once

#include "core/package/class_progetto_aperto.h"
#include "gui/cart/pannello_carrello.h"
#include "gui/platform/finestra_secondaria.h"

/// `Form_Carrello_Prodotto`: the cart of the product on show, beside the main window.
class Form_Carrello_Prodotto : public Finestra_Secondaria {
    Q_OBJECT
  public:
    Form_Carrello_Prodotto(Controllo_Carrello& carrello, const Class_Progetto_Aperto& progetto,
                           Immagini_Risorsa& immagini, QWidget* padre);
};

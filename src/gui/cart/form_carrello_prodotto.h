#pragma once

#include <QWidget>

#include "core/shell/controllo_principale.h"
#include "gui/cart/pannello_carrello.h"

/// `Form_Carrello_Prodotto`: the cart of the product on show, beside the main window. Loaded, it says so to
/// the controller, and again when it goes; its place is kept in the settings. Esc closes it.
class Form_Carrello_Prodotto : public QWidget {
    Q_OBJECT
  public:
    Form_Carrello_Prodotto(Controllo_Principale& controllo, Immagini_Risorsa& immagini, QWidget* padre);
    ~Form_Carrello_Prodotto() override;

  protected:
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Scarica();

    Controllo_Principale& controllo_;
    bool caricata_ = true;
};

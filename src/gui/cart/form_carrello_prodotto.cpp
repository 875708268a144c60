#include "gui/cart/form_carrello_prodotto.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace {
constexpr QSize MISURA_MINIMA(480, 160);  ///< in which the columns can still be read
constexpr QSize MISURA_INIZIALE(640, 260);
}  // namespace

Form_Carrello_Prodotto::Form_Carrello_Prodotto(Controllo_Carrello& carrello,
                                               const Class_Progetto_Aperto& progetto,
                                               Immagini_Risorsa& immagini, QWidget* padre)
    : Finestra_Secondaria("Form_Carrello_Prodotto", "Cart of this product", padre, Qt::Window) {
    auto* pannello = new Pannello_Carrello(
        carrello, Faccia::Prodotto, immagini,
        {"Griglia",
         "KEY_CARELLO_PARZIALE",
         {{Assenza::Vuota, "Label_Carrello_Vuoto", "Nothing of this product is in the cart."},
          {Assenza::Guasto, "Label_Carrello_Guasto",
           "The cart can't be shown: its parts can't be read from this catalogue. Nothing of "
           "it is lost."},
          {Assenza::Nascoste, "Label_Carrello_Nascosto",
           "The parts in the cart aren't sold in this market. Nothing is lost: go back to the "
           "former market to see them."}}},
        this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(pannello);
    setFocusProxy(pannello);
    connect(pannello, &Pannello_Carrello::Ridimensionato, this, [&carrello] { carrello.Ridimensionata(); });
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
            [&carrello] { carrello.Annulla(); });
    setMinimumSize(MISURA_MINIMA);
    Ricorda_Posto(progetto.Desktop().impostazioni, progetto.Numeri_, QStringLiteral("WIN_CARRELLO"),
                  Posto_Sotto_Barra(*padre, MISURA_INIZIALE));
}

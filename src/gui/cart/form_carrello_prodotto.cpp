#include "gui/cart/form_carrello_prodotto.h"

#include <QVBoxLayout>

namespace {
constexpr QSize MISURA_MINIMA(480, 160);  ///< in which the columns can still be read
constexpr QSize MISURA_INIZIALE(640, 260);
}  // namespace

Form_Carrello_Prodotto::Form_Carrello_Prodotto(Controllo_Carrello& carrello,
                                               const Class_Progetto_Aperto& progetto,
                                               Immagini_Risorsa& immagini, QWidget* padre)
    : Finestra_Secondaria("Form_Carrello_Prodotto", "Cart of this product", padre, Qt::Window) {
    auto* pannello =
        new Pannello_Carrello(carrello, Faccia::Prodotto, immagini,
                              {"Griglia", "Label_Carrello_Vuoto", "Nothing of this product is in the cart.",
                               "KEY_CARELLO_PARZIALE"},
                              this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(pannello);
    setFocusProxy(pannello);
    connect(pannello, &Pannello_Carrello::Ridimensionato, this, [&carrello] { carrello.Ridimensionata(); });
    setMinimumSize(MISURA_MINIMA);
    Ricorda_Posto(progetto.Desktop().impostazioni, progetto.Numeri_, QStringLiteral("WIN_CARRELLO"),
                  Posto_Sotto_Barra(*padre, MISURA_INIZIALE));
}

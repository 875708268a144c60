#include "gui/cart/form_carrello_prodotto.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <utility>

#include "gui/cart/geometria_qt.h"
#include "gui/platform/icone.h"

namespace {
const QString SEZIONE = QStringLiteral("WIN_CARRELLO");
constexpr Geometria_Finestra PREDEFINITA{0, 0, 2000, 4800};
}  // namespace

Form_Carrello_Prodotto::Form_Carrello_Prodotto(Controllo_Principale& controllo, Immagini_Risorsa& immagini,
                                               QWidget* padre)
    : QWidget(padre, Qt::Window), controllo_(controllo) {
    setObjectName(QStringLiteral("Form_Carrello_Prodotto"));
    setWindowTitle(QStringLiteral("Cart of this product"));
    setWindowIcon(Icona_Tema(QStringLiteral("logo")));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* pannello =
        new Pannello_Carrello(controllo_.Carrello(), Faccia::Prodotto, immagini,
                              {"Griglia", "Label_Carrello_Vuoto", "Nothing of this product is in the cart.",
                               "KEY_CARELLO_PARZIALE"},
                              this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(pannello);
    setFocusProxy(pannello);
    connect(pannello, &Pannello_Carrello::Ridimensionato, this,
            [this] { controllo_.Carrello().Ridimensionata(); });

    Class_Progetto_Aperto& progetto = controllo_.Progetto();
    Applica_Geometria(
        *this, Leggi_Geometria(progetto.Desktop().impostazioni, progetto.Numeri_, SEZIONE, PREDEFINITA));
    controllo_.Carrello_Caricato(true);
}

Form_Carrello_Prodotto::~Form_Carrello_Prodotto() {
    Scarica();
}

void Form_Carrello_Prodotto::closeEvent(QCloseEvent* evento) {
    Scarica();
    evento->accept();
}

void Form_Carrello_Prodotto::Scarica() {
    if (!std::exchange(caricata_, false))
        return;
    Class_Progetto_Aperto& progetto = controllo_.Progetto();
    Scrivi_Geometria(progetto.Desktop().impostazioni, progetto.Numeri_, SEZIONE, Geometria_Di(*this));
    controllo_.Carrello_Caricato(false);
}

void Form_Carrello_Prodotto::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(evento);
}

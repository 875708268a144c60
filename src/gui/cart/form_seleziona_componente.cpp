#include "gui/cart/form_seleziona_componente.h"

#include <QVBoxLayout>

#include "gui/cart/geometria_qt.h"
#include "gui/platform/spazio_vuoto.h"

namespace {
const QString SEZIONE = QStringLiteral("WIN_AGGIUNGI");
constexpr Geometria_Finestra PREDEFINITA{0, 0, 1500, 4800};
}  // namespace

Form_Seleziona_componente::Form_Seleziona_componente(Controllo_Principale& controllo,
                                                     Controllo_Seleziona& scelta, Immagini_Risorsa& immagini,
                                                     QWidget* padre)
    : QDialog(padre), controllo_(controllo), scelta_(scelta) {
    setObjectName(QStringLiteral("Form_Seleziona_componente"));
    griglia_ = new Vista_Griglia(scelta_.Righe(), scelta_.Tag(), immagini, this);
    griglia_->setObjectName(QStringLiteral("Griglia"));
    vuoto_ = Spazio_Vuoto(Etichetta("Label_Nessun_Componente", "There is no component to choose from.", this),
                          QStringLiteral("nodo_5"), this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(griglia_);
    colonna->addWidget(vuoto_);
    connect(griglia_, &Vista_Griglia::Ridimensionata, this, [this] { scelta_.Ricarica(); });
    connect(griglia_, &Vista_Griglia::Ricaricata, this, &Form_Seleziona_componente::Mostra_Righe);
    connect(griglia_, &Vista_Griglia::Clic_Cella, this, &Form_Seleziona_componente::Clic);
    const Class_Progetto_Aperto& progetto = controllo_.Progetto();
    Applica_Geometria(
        *this, Leggi_Geometria(progetto.Desktop().impostazioni, progetto.Numeri_, SEZIONE, PREDEFINITA));
}

void Form_Seleziona_componente::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    // Whatever the text catalogue says.
    setWindowTitle(QStringLiteral("Aggiungi al carello"));
    scelta_.Ricarica();
    if (const QWidget* finestra = parentWidget())
        move(finestra->frameGeometry().center() - rect().center());
    griglia_->setFocus();
}

void Form_Seleziona_componente::Mostra_Righe() {
    griglia_->setVisible(scelta_.Righe().Visible);
    vuoto_->setVisible(!scelta_.Righe().Visible);
}

void Form_Seleziona_componente::Clic(int riga, int colonna) {
    if (scelta_.Clic(riga, colonna))
        accept();
}

void Form_Seleziona_componente::done(int esito) {
    const Class_Progetto_Aperto& progetto = controllo_.Progetto();
    Scrivi_Geometria(progetto.Desktop().impostazioni, progetto.Numeri_, SEZIONE, Geometria_Di(*this));
    QDialog::done(esito);
}

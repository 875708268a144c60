#include "gui/parts_tables/form_seleziona_componente.h"

#include <QVBoxLayout>

namespace {
constexpr QSize MISURA_MINIMA(480, 120);  ///< in which the columns can still be read
constexpr QSize MISURA_INIZIALE(640, 220);
}  // namespace

Form_Seleziona_componente::Form_Seleziona_componente(Controllo_Seleziona& scelta,
                                                     const Class_Progetto_Aperto& progetto,
                                                     Immagini_Risorsa& immagini, QWidget* padre)
    : Finestra_Secondaria("Form_Seleziona_componente", "", padre), scelta_(scelta) {
    griglia_ = new Vista_Griglia(scelta_.Righe(), scelta_.Tag(), immagini, this);
    griglia_->setObjectName(QStringLiteral("Griglia"));
    vuoto_ = new Spazio_Assenza(
        {{Assenza::Vuota, "Label_Nessun_Componente", "There is no component to choose from."},
         {Assenza::Troppe_Righe, "Label_Distinta_Lunga",
          "This list has more rows than can be shown. Ask the catalogue's publisher to split it."},
         {Assenza::Guasto, "Label_Distinta_Guasta",
          "The parts can't be read from this catalogue. Open it again, or ask its publisher for a sound "
          "copy."}},
        QStringLiteral("nodo_5"), this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(griglia_);
    colonna->addWidget(vuoto_);
    connect(griglia_, &Vista_Griglia::Ridimensionata, this, [this] { scelta_.Ricarica(); });
    connect(griglia_, &Vista_Griglia::Ricaricata, this, &Form_Seleziona_componente::Mostra_Righe);
    connect(griglia_, &Vista_Griglia::Clic_Cella, this, [this](int riga, int col) {
        if (scelta_.Clic(riga, col))
            accept();
    });
    setMinimumSize(MISURA_MINIMA);
    Ricorda_Posto(progetto.Desktop().impostazioni, progetto.Numeri_, QStringLiteral("WIN_AGGIUNGI"),
                  Posto_Sotto_Barra(*padre, MISURA_INIZIALE));
}

void Form_Seleziona_componente::showEvent(QShowEvent* evento) {
    Finestra_Secondaria::showEvent(evento);
    // Whatever the text catalogue says.
    setWindowTitle(QStringLiteral("Aggiungi al carello"));
    scelta_.Ricarica();
    if (const QWidget* finestra = parentWidget())
        Porta_A(*this, finestra->frameGeometry().center() - rect().center());
    griglia_->setCurrentIndex(griglia_->model()->index(0, 0));
    griglia_->setFocus();
}

void Form_Seleziona_componente::Mostra_Righe() {
    griglia_->setVisible(scelta_.Righe().Visible);
    vuoto_->Mostra(scelta_.Righe());
}

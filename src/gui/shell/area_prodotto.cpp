#include "gui/shell/area_prodotto.h"

#include <QEvent>
#include <QVBoxLayout>

#include "core/base/testo.h"
#include "core/base/twips.h"
#include "gui/platform/spazio_vuoto.h"

namespace {

/// A frame named as the screens know it.
QFrame* Frame(const char* nome, QWidget* padre) {
    auto* frame = new QFrame(padre);
    frame->setObjectName(QLatin1String(nome));
    return frame;
}

QVBoxLayout* Colonna(QWidget* frame) {
    auto* colonna = new QVBoxLayout(frame);
    colonna->setContentsMargins(0, 0, 0, 0);
    return colonna;
}

}  // namespace

Area_Prodotto::Area_Prodotto(Schermo_Principale& schermo, Immagini_Risorsa& immagini, Lavagna_Widget& lavagna,
                             QWidget* padre)
    : QFrame(padre), schermo_(schermo) {
    setObjectName(QStringLiteral("Frame_Destra"));
    percorso_ = Etichetta("Label_Percorso_Nodo", "", this);
    percorso_->setWordWrap(true);
    percorso_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont carattere = percorso_->font();
    carattere.setBold(true);
    percorso_->setFont(carattere);

    // The content stands off its neighbours by 120 twips.
    auto* colonna = new QVBoxLayout(this);
    const int margine = Pixel_Da_Twips(120);
    colonna->setContentsMargins(margine / 2, margine, margine, margine);
    colonna->addWidget(percorso_);
    scheda_ = new Pagina_Scheda(this);
    pagine_ = new QStackedLayout;
    colonna->addLayout(pagine_, 1);
    for (QWidget* pagina :
         {static_cast<QWidget*>(scheda_), Crea_Prodotto(immagini, lavagna), Crea_Ordine(immagini)})
        pagine_->addWidget(pagina);
    connect(scheda_, &Pagina_Scheda::Consulta_Esploso, this,
            [this] { schermo_.Prodotto.Consulta_Esploso(); });
    connect(scheda_, &Pagina_Scheda::Clic_Allegato, this,
            [this](const QString& percorso) { schermo_.Prodotto.Apri_Allegato(percorso); });
    connect(scheda_, &Pagina_Scheda::Clic_Foto, this,
            [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); });
}

QWidget* Area_Prodotto::Crea_Prodotto(Immagini_Risorsa& immagini, Lavagna_Widget& lavagna) {
    const int minimo = Pixel_Da_Twips(MINIMO_SPLITTER);
    prodotto_ = Frame("Frame_Prodotto", this);
    divisore_ = new QSplitter(Qt::Vertical, prodotto_);
    divisore_->setObjectName(QStringLiteral("imgSplitter_V"));
    divisore_->setOpaqueResize(false);
    divisore_->setChildrenCollapsible(false);
    Colonna(prodotto_)->addWidget(divisore_);

    disegno_ = Frame("Frame_Disegno", divisore_);
    disegno_->setMinimumHeight(minimo);
    disegno_->hide();
    nessun_disegno_ = Etichetta("Label_Nessun_Disegno", "This product has no drawing.", disegno_);
    auto* colonna_disegno = Colonna(disegno_);
    colonna_disegno->addWidget(&lavagna, 1);
    colonna_disegno->addWidget(Spazio_Vuoto(nessun_disegno_, QStringLiteral("KEY_DISEGNO"), disegno_), 1);

    distinta_ = Frame("Frame_distinta", divisore_);
    distinta_->setMinimumSize(minimo, minimo);
    // The drawing takes what the window grows by.
    divisore_->setStretchFactor(0, 1);
    divisore_->setStretchFactor(1, 0);
    divisore_->installEventFilter(this);
    griglia_ = new Vista_Griglia(schermo_.Prodotto.Griglia_Distinta(), schermo_.Prodotto.Tag_Distinta(),
                                 immagini, distinta_);
    griglia_->setObjectName(QStringLiteral("Griglia_Distinta"));
    griglia_->hide();
    nessun_componente_ = new Spazio_Assenza(
        {{Assenza::Vuota, "Label_Nessun_Componente", "This product has no parts."},
         {Assenza::Troppe_Righe, "Label_Distinta_Lunga",
          "This list has more rows than can be shown. Ask the catalogue's publisher to split it."},
         {Assenza::Guasto, "Label_Distinta_Guasta",
          "The parts can't be read from this catalogue. Open it again, or ask its publisher for a sound "
          "copy."}},
        QStringLiteral("nodo_5"), distinta_);
    auto* colonna = Colonna(distinta_);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(nessun_componente_, 1);

    connect(griglia_, &Vista_Griglia::Ridimensionata, this,
            [this] { schermo_.Prodotto.Griglia_Ridimensionata(); });
    connect(griglia_, &Vista_Griglia::Clic_Cella, this,
            [this](int riga, int col) { schermo_.Prodotto.Clic_Distinta(riga, col); });
    connect(divisore_, &QSplitter::splitterMoved, this, [this] {
        altezza_distinta_ = divisore_->sizes().at(1);
        emit Splitter_V_Spostato(Twips_Da_Pixel(altezza_distinta_));
    });
    return prodotto_;
}

QWidget* Area_Prodotto::Crea_Ordine(Immagini_Risorsa& immagini) {
    frame_ordine_ = Frame("Frame_Evadi_ordine", this);
    ordine_ = new Pannello_Carrello(
        schermo_.Ordine.Carrello(), Faccia::Ordine, immagini,
        {"Griglia_Evadi",
         "KEY_EVADI_ORDINE",
         {{Assenza::Vuota, "Label_Ordine_Vuoto",
           "The order is empty. Add parts from a parts list or a drawing."},
          {Assenza::Guasto, "Label_Ordine_Guasto",
           "The order can't be shown: its parts can't be read from this catalogue. Nothing of it is lost."},
          {Assenza::Nascoste, "Label_Ordine_Nascosto",
           "No part of the order is sold in this market. Nothing of it is lost: go back to the former market "
           "to "
           "see it."}}},
        frame_ordine_);
    Colonna(frame_ordine_)->addWidget(ordine_);
    connect(ordine_, &Pannello_Carrello::Ridimensionato, this,
            [this] { schermo_.Ordine.Ordine_Ridimensionato(); });
    return frame_ordine_;
}

/// The order is of all products.
void Area_Prodotto::Mostra_Percorso(bool ordine) {
    const Nodo_Visibile* nodo = schermo_.Progetto().Tree1.Nodo(schermo_.Prodotto_Corrente());
    percorso_->setText(nodo ? Albero_Visibile::FullPath(*nodo).replace(u'\\', QStringLiteral("  ›  "))
                            : QString());
    percorso_->setVisible(nodo != nullptr && !ordine);
}

void Area_Prodotto::Mostra(const Stato_Finestra& stato, int altezza_interna) {
    Mostra_Percorso(stato.Frame_Evadi_ordine);
    pagine_->setCurrentWidget(stato.Frame_Evadi_ordine ? frame_ordine_
                              : stato.Frame_Prodotto   ? prodotto_
                                                       : static_cast<QWidget*>(scheda_));
    griglia_->setVisible(stato.Griglia_Distinta);
    nessun_componente_->Mostra(schermo_.Prodotto.Griglia_Distinta());
    nessun_componente_->setVisible(!stato.Griglia_Distinta && E_Prodotto(schermo_.Prodotto_Corrente()));
    scheda_->Mostra(stato);
    nessun_disegno_->parentWidget()->setVisible(stato.Label_Nessun_Disegno);
    disegno_->setVisible(stato.Divisione_V != SOLO_DISTINTA);
    // A product with neither is told so in both halves.
    distinta_->setVisible(stato.Divisione_V != SOLO_DISEGNO || stato.Label_Nessun_Disegno);
    const bool divisa = stato.Divisione_V >= 0;
    const int altezza = divisa ? Pixel_Da_Twips(altezza_interna - stato.Divisione_V) : 0;
    if (altezza == altezza_distinta_)
        return;
    altezza_distinta_ = altezza;
    Dividi();
}

/// The parts list keeps its height, the drawing takes the rest.
void Area_Prodotto::Dividi() {
    if (altezza_distinta_ > 0)
        divisore_->setSizes(
            {divisore_->height() - divisore_->handleWidth() - altezza_distinta_, altezza_distinta_});
}

bool Area_Prodotto::eventFilter(QObject* oggetto, QEvent* evento) {
    const bool altra_misura = oggetto == divisore_ && evento->type() == QEvent::Resize;
    const bool esito = QFrame::eventFilter(oggetto, evento);
    if (altra_misura)
        QMetaObject::invokeMethod(this, &Area_Prodotto::Dividi, Qt::QueuedConnection);
    return esito;
}

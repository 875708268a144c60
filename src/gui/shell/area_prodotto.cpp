#include "gui/shell/area_prodotto.h"

#include <QVBoxLayout>

#include "core/base/testo.h"
#include "core/base/twips.h"
#include "gui/shell/immagine_adattata.h"

namespace {

constexpr int SOLO_DISTINTA = -1;  ///< the split that leaves no room to a drawing

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

/// A text in the middle of an empty space, under a faint picture.
QWidget* Spazio_Vuoto(QLabel* testo, const QString& immagine, QWidget* padre) {
    auto* spazio = new QWidget(padre);
    auto* colonna = Colonna(spazio);
    auto* figura = new Immagine_Adattata(spazio);
    figura->Predefinita(immagine);
    figura->setFixedSize(64, 64);
    testo->setAlignment(Qt::AlignCenter);
    testo->setWordWrap(true);
    testo->setForegroundRole(QPalette::PlaceholderText);
    colonna->addStretch(2);
    colonna->addWidget(figura, 0, Qt::AlignHCenter);
    colonna->addSpacing(8);
    colonna->addWidget(testo);
    colonna->addStretch(3);
    return spazio;
}

QLabel* Etichetta(const char* nome, const char* testo, QWidget* padre) {
    auto* etichetta = new QLabel(QLatin1String(testo), padre);
    etichetta->setObjectName(QLatin1String(nome));
    etichetta->setTextFormat(Qt::PlainText);
    return etichetta;
}

}  // namespace

Area_Prodotto::Area_Prodotto(Controllo_Principale& controllo, Immagini_Risorsa& immagini, QWidget* padre)
    : QFrame(padre), controllo_(controllo) {
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
    colonna->addWidget(Crea_Prodotto(immagini), 1);
    colonna->addWidget(Crea_Scheda(), 1);
}

QWidget* Area_Prodotto::Crea_Prodotto(Immagini_Risorsa& immagini) {
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

    QFrame* distinta = Frame("Frame_distinta", divisore_);
    distinta->setMinimumSize(minimo, minimo);
    griglia_ =
        new Vista_Griglia(controllo_.Griglia_Distinta(), controllo_.Tag_Distinta(), immagini, distinta);
    griglia_->setObjectName(QStringLiteral("Griglia_Distinta"));
    griglia_->hide();
    nessun_componente_ = Etichetta("Label_Nessun_Componente", "This product has no parts.", distinta);
    auto* colonna = Colonna(distinta);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(Spazio_Vuoto(nessun_componente_, QStringLiteral("nodo_5"), distinta), 1);

    connect(griglia_, &Vista_Griglia::Ridimensionata, this, [this] { controllo_.Griglia_Ridimensionata(); });
    connect(griglia_, &Vista_Griglia::Clic_Cella, this, [this] { controllo_.Clic_Distinta(); });
    connect(divisore_, &QSplitter::splitterMoved, this,
            [this](int posizione) { controllo_.Splitter_V_Spostato(Twips_Da_Pixel(posizione)); });
    return prodotto_;
}

QWidget* Area_Prodotto::Crea_Scheda() {
    scheda_ = Frame("Frame_scheda_Prodotto", this);
    QLabel* testo =
        Etichetta("Label_Help_Albero", "Choose a group or a product in the tree on the left.", scheda_);
    aiuto_ = Spazio_Vuoto(testo, QStringLiteral("albero"), scheda_);
    consulta_ = new Etichetta_Link(QStringLiteral("Label_Consulta_Esploso"),
                                   QStringLiteral("Show the drawing and the parts list"),
                                   QStringLiteral("KEY_DISEGNO"), scheda_);
    connect(consulta_, &Etichetta_Link::Attivata, this,
            [this] { controllo_.Visualizza_Disegno_Esploso(controllo_.Progetto().Key_Prodotto_Corrente); });
    auto* colonna = Colonna(scheda_);
    colonna->addWidget(consulta_, 0, Qt::AlignLeft | Qt::AlignTop);
    colonna->addWidget(aiuto_, 1);
    return scheda_;
}

void Area_Prodotto::Mostra_Percorso() {
    const Class_Progetto_Aperto& progetto = controllo_.Progetto();
    const Nodo_Visibile* nodo = progetto.Tree1.Nodo(progetto.Key_Prodotto_Corrente);
    percorso_->setText(nodo ? Albero_Visibile::FullPath(*nodo).replace(u'\\', QStringLiteral("  ›  "))
                            : QString());
    percorso_->setVisible(nodo != nullptr);
}

void Area_Prodotto::Mostra(const Stato_Finestra& stato) {
    Mostra_Percorso();
    const bool prodotto = E_Prodotto(controllo_.Progetto().Key_Prodotto_Corrente);
    prodotto_->setVisible(stato.Frame_Prodotto);
    griglia_->setVisible(stato.Griglia_Distinta);
    nessun_componente_->parentWidget()->setVisible(!stato.Griglia_Distinta && prodotto);
    scheda_->setVisible(stato.Frame_scheda_Prodotto);
    aiuto_->setVisible(stato.Label_Help_Albero);
    consulta_->setVisible(!stato.Label_Help_Albero && prodotto);

    disegno_->setVisible(stato.Divisione_V != SOLO_DISTINTA);
    if (stato.Divisione_V > 0 && stato.Divisione_V != divisione_) {
        const int altezza = Pixel_Da_Twips(stato.Divisione_V);
        divisore_->setSizes({altezza, std::max(0, divisore_->height() - altezza)});
    }
    divisione_ = stato.Divisione_V;
}

#include "gui/shell/pagina_scheda.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/base/twips.h"
#include "gui/platform/spazio_vuoto.h"

namespace {

constexpr int COLONNA_TITOLI = 0, COLONNA_TESTI = 1, COLONNA_ALLEGATI = 2;
constexpr int LARGHEZZA_TITOLI = 170;  ///< pixels; longer titles wrap
constexpr int LARGHEZZA_TESTI = 600;   ///< pixels; longer lines are hard to read
constexpr int PRIMA_RIGA_VOCI = 3;     ///< below name, code and description
constexpr int LATO_ALLEGATO = 16, LATO_DISEGNO = 28;

/// Texts of a catalogue come in any length: they wrap, and what is one endless word doesn't widen the page.
QLabel* A_Capo(QLabel* etichetta) {
    etichetta->setWordWrap(true);
    QSizePolicy misura(QSizePolicy::Ignored, QSizePolicy::Preferred);
    misura.setHeightForWidth(true);
    etichetta->setSizePolicy(misura);
    etichetta->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return etichetta;
}

QLabel* Titolo(QLabel* etichetta) {
    QFont carattere = etichetta->font();
    carattere.setBold(true);
    etichetta->setFont(carattere);
    return A_Capo(etichetta);
}

QLabel* Testo(QLabel* etichetta) {
    etichetta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return A_Capo(etichetta);
}

}  // namespace

Pagina_Scheda::Pagina_Scheda(QWidget* padre) : QFrame(padre) {
    setObjectName(QStringLiteral("Frame_scheda_Prodotto"));
    aiuto_ = Spazio_Vuoto(
        Etichetta("Label_Help_Albero", "Choose a group or a product in the tree on the left.", this),
        QStringLiteral("albero"), this);
    scorrimento_ = new QScrollArea(this);
    scorrimento_->setObjectName(QStringLiteral("Scorrimento_Scheda"));
    scorrimento_->setFrameShape(QFrame::NoFrame);
    scorrimento_->setWidgetResizable(true);
    scorrimento_->setFocusPolicy(Qt::StrongFocus);  // the arrows scroll
    scorrimento_->setWidget(Crea_Dettaglio());
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(aiuto_, 1);
    colonna->addWidget(scorrimento_, 1);
}

QWidget* Pagina_Scheda::Crea_Dettaglio() {
    dettaglio_ = new QFrame;
    dettaglio_->setObjectName(QStringLiteral("Frame_Scheda_Prodotto_Dett"));
    disegno_ = new Immagine_Attiva(QStringLiteral("Image_Link_Disegno"), dettaglio_);
    disegno_->Icona(QStringLiteral("KEY_DISEGNO"), LATO_DISEGNO);
    disegno_->setFocusPolicy(Qt::NoFocus);  // the link beside it does the same
    consulta_ = new Etichetta_Link(QStringLiteral("Label_Consulta_Esploso"),
                                   QStringLiteral("Show the drawing and the parts list"), {}, dettaglio_);
    for (Collegamento* link : {static_cast<Collegamento*>(disegno_), static_cast<Collegamento*>(consulta_)})
        connect(link, &Collegamento::clicked, this, &Pagina_Scheda::Consulta_Esploso);
    auto* link = new QHBoxLayout;
    link->setSpacing(0);
    link->addWidget(disegno_);
    link->addWidget(consulta_);
    link->addStretch(1);

    auto* tabella = new QWidget(dettaglio_);
    tabella->setMaximumWidth(LARGHEZZA_TITOLI + LARGHEZZA_TESTI);
    dati_ = new QGridLayout(tabella);
    dati_->setContentsMargins(0, 0, 0, 0);
    dati_->setHorizontalSpacing(Pixel_Da_Twips(PASSO_DIDASCALIA_SCHEDA));
    dati_->setVerticalSpacing(Pixel_Da_Twips(PASSO_SCHEDA));
    dati_->setColumnMinimumWidth(COLONNA_TITOLI, LARGHEZZA_TITOLI);
    dati_->setColumnStretch(COLONNA_TESTI, 1);
    nome_ = Aggiungi_Dato("Label_Nome_Prodotto", "Name", "Label_Nome_prodotto_Dato");
    codice_ = Aggiungi_Dato("Label_codice_Prodotto", "Code", "Label_codice_Prodotto_dato");
    descrizione_ =
        Aggiungi_Dato("Label_Descrizione_Prodotto", "Description", "Label_Descrizione_Prodotto_Dato");
    Riga_Numero(0);

    auto* foto = new QHBoxLayout;
    foto->setSpacing(Pixel_Da_Twips(PASSO_DIDASCALIA_SCHEDA));
    for (Immagine_Attiva** immagine : {&foto_1_, &foto_2_}) {
        // Each keeps its place, also when it stands alone.
        auto* posto = new QWidget(dettaglio_);
        posto->setFixedWidth(Pixel_Da_Twips(LARGHEZZA_FOTO_SCHEDA));
        const QString nome = immagine == &foto_1_ ? QStringLiteral("Image_scheda_Foto_1")
                                                  : QStringLiteral("Image_scheda_Foto_2");
        *immagine = new Immagine_Attiva(nome, posto);
        auto* colonna = new QVBoxLayout(posto);
        colonna->setContentsMargins(0, 0, 0, 0);
        colonna->addWidget(*immagine, 0, Qt::AlignLeft | Qt::AlignTop);
        foto->addWidget(posto, 0, Qt::AlignTop);
        connect(*immagine, &Collegamento::clicked, this,
                [this, immagine] { emit Clic_Foto((*immagine)->Tag()); });
    }
    foto->addStretch(1);

    auto* colonna = new QVBoxLayout(dettaglio_);
    colonna->setContentsMargins(0, 0, 0, Pixel_Da_Twips(PASSO_SCHEDA));
    colonna->setSpacing(Pixel_Da_Twips(PASSO_DIDASCALIA_SCHEDA));
    colonna->addLayout(link);
    auto* riga = new QHBoxLayout;
    riga->addWidget(tabella, 1);
    riga->addStretch(0);
    colonna->addLayout(riga);
    colonna->addLayout(foto);
    colonna->addStretch(1);
    return dettaglio_;
}

QLabel* Pagina_Scheda::Aggiungi_Dato(const char* nome, const char* testo, const char* nome_dato) {
    const int riga = dati_->count() / 2;
    QLabel* dato = Testo(Etichetta(nome_dato, "", dettaglio_));
    dati_->addWidget(Titolo(Etichetta(nome, testo, dettaglio_)), riga, COLONNA_TITOLI);
    dati_->addWidget(dato, riga, COLONNA_TESTI, 1, 2);
    return dato;
}

Pagina_Scheda::Riga& Pagina_Scheda::Riga_Numero(size_t i) {
    while (righe_.size() <= i) {
        const int numero = static_cast<int>(righe_.size());
        const auto nome = [numero](const char* base) {
            return QStringLiteral("%1(%2)").arg(QLatin1String(base)).arg(numero).toLatin1();
        };
        Riga riga{Titolo(Etichetta(nome("Label_Titolo_scheda").constData(), "", dettaglio_)),
                  Testo(Etichetta(nome("Label_Oggetto_Scheda").constData(), "", dettaglio_)),
                  new Immagine_Attiva(QLatin1String(nome("Image_scheda")), dettaglio_)};
        connect(riga.allegato, &Collegamento::clicked, this,
                [this, allegato = riga.allegato] { emit Clic_Allegato(allegato->Tag()); });
        dati_->addWidget(riga.titolo, PRIMA_RIGA_VOCI + numero, COLONNA_TITOLI);
        dati_->addWidget(riga.oggetto, PRIMA_RIGA_VOCI + numero, COLONNA_TESTI);
        dati_->addWidget(riga.allegato, PRIMA_RIGA_VOCI + numero, COLONNA_ALLEGATI, Qt::AlignTop);
        righe_.push_back(riga);
    }
    return righe_[i];
}

void Pagina_Scheda::Mostra(const Stato_Finestra& stato) {
    aiuto_->setVisible(stato.Label_Help_Albero);
    scorrimento_->setVisible(!stato.Label_Help_Albero);
    dettaglio_->setVisible(stato.Frame_Scheda_Prodotto_Dett);
}

void Pagina_Scheda::Mostra_Scheda(const Scheda_Prodotto& scheda) {
    disegno_->setVisible(scheda.Link_Disegno);
    consulta_->setVisible(scheda.Link_Disegno);
    nome_->setText(scheda.Nome);
    codice_->setText(scheda.Codice);
    descrizione_->setText(scheda.Descrizione);
    for (size_t i = 0; i < scheda.Righe.size(); ++i) {
        const Riga_Scheda& voce = scheda.Righe[i];
        Riga& riga = Riga_Numero(i);
        riga.titolo->setText(voce.Titolo);
        riga.oggetto->setText(voce.Descrizione);
        riga.allegato->Icona(QStringLiteral("allegato"), LATO_ALLEGATO, voce.Allegato);
        riga.allegato->setToolTip(QFileInfo(voce.Allegato).fileName());
        riga.allegato->setAccessibleName(voce.Titolo.isEmpty() ? voce.Descrizione : voce.Titolo);
    }
    for (size_t i = 0; i < righe_.size(); ++i) {
        const bool presente = i < scheda.Righe.size();
        righe_[i].titolo->setVisible(presente);
        righe_[i].oggetto->setVisible(presente);
        righe_[i].allegato->setVisible(presente && !scheda.Righe[i].Allegato.isEmpty());
    }
    Mostra_Foto(*foto_1_, scheda.Foto_1);
    Mostra_Foto(*foto_2_, scheda.Foto_2);
    scorrimento_->verticalScrollBar()->setValue(0);
}

void Pagina_Scheda::Mostra_Foto(Immagine_Attiva& immagine, const std::optional<Foto_Scheda>& foto) {
    if (foto)
        immagine.Foto(foto->Percorso,
                      QSize(Pixel_Da_Twips(foto->Misura.width()), Pixel_Da_Twips(foto->Misura.height())));
    immagine.setVisible(foto.has_value());
}

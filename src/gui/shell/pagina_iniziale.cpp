#include "gui/shell/pagina_iniziale.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "core/shell/comandi.h"
#include "gui/platform/icone.h"
#include "gui/platform/spazio_vuoto.h"

namespace {

QFont Carattere(const QFont& base, double scala, bool grassetto) {
    QFont carattere = base;
    carattere.setPointSizeF(base.pointSizeF() * scala);
    carattere.setBold(grassetto);
    return carattere;
}

}  // namespace

Pagina_Iniziale::Pagina_Iniziale(QWidget* padre) : QFrame(padre) {
    setObjectName(QStringLiteral("Frame_Intro"));
    immagine_intro_ = new QFrame(this);
    immagine_intro_->setObjectName(QStringLiteral("Frame_Immagine_Intro"));
    auto* disposizione = new QVBoxLayout(this);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->addWidget(immagine_intro_);

    immagine_ = new Immagine_Adattata(immagine_intro_);
    immagine_->setObjectName(QStringLiteral("Image_Home"));
    immagine_->Predefinita(QStringLiteral("home"));
    immagine_->setMinimumSize(160, 90);
    immagine_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* riga = new QHBoxLayout(immagine_intro_);
    riga->setContentsMargins(48, 32, 48, 32);
    riga->setSpacing(40);
    riga->addWidget(Crea_Testi());
    auto* destra = new QVBoxLayout;
    destra->setSpacing(16);
    destra->addWidget(immagine_, 1);
    destra->addWidget(Crea_Piede());
    riga->addLayout(destra, 1);
}

QWidget* Pagina_Iniziale::Crea_Piede() {
    auto* piede = new QFrame(immagine_intro_);
    Etichetta_Link* immagine = Aggiungi_Link("Image_consulta_Catalogo", "", KEY_DISEGNO, "consulta");
    immagine->setFocusPolicy(Qt::NoFocus);  // the label beside it does the same
    Etichetta_Link* label = Aggiungi_Link("Label_Consulta_Cat", "Browse the catalogue", KEY_DISEGNO, "");
    consulta_cat_ = {immagine, label};
    imagecombo_lingua_ = new QComboBox(piede);
    imagecombo_lingua_->setObjectName(QStringLiteral("ImageCombo_lingua"));
    label_scelta_lingua_ = Etichetta("Label_scelta_Lingua", "Language", piede);
    label_scelta_lingua_->setBuddy(imagecombo_lingua_);
    connect(imagecombo_lingua_, &QComboBox::textActivated, this, &Pagina_Iniziale::Lingua);

    auto* riga = new QHBoxLayout(piede);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addStretch(1);
    riga->addWidget(immagine);
    riga->addWidget(label);
    riga->addWidget(label_scelta_lingua_);
    riga->addWidget(imagecombo_lingua_);
    return piede;
}

void Pagina_Iniziale::Carica_Lingue_Home(const Elenco_Lingue& lingue,
                                         const Form_Lingua_Mercato::Bandiera& bandiera) {
    Riempi_Lingue(*imagecombo_lingua_, lingue, bandiera);
}

QWidget* Pagina_Iniziale::Crea_Testi() {
    auto* colonna = new QFrame(immagine_intro_);
    colonna->setMinimumWidth(300);
    colonna->setMaximumWidth(440);
    colonna->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    logo_ = new Immagine_Adattata(colonna);
    logo_->setObjectName(QStringLiteral("Image_Logo"));
    logo_->Predefinita(QStringLiteral("logo"));
    logo_->setFixedSize(64, 64);
    QLabel* titolo = Etichetta("Label_Titolo_Programma", "", colonna);
    titolo->setText(TITOLO_PROGRAMMA);
    titolo->setFont(Carattere(font(), 1.9, true));
    titolo->setMinimumWidth(titolo->sizeHint().width());
    QLabel* inizio = Etichetta("Label_Start", "Getting started", colonna);
    inizio->setFont(Carattere(font(), 1.2, true));

    auto* righe = new QVBoxLayout(colonna);
    righe->setContentsMargins(0, 0, 0, 0);
    righe->setSpacing(2);
    righe->addStretch(2);
    auto* testata = new QHBoxLayout;
    testata->setSpacing(14);
    testata->addWidget(logo_);
    testata->addWidget(titolo, 1);
    righe->addLayout(testata);
    righe->addSpacing(28);
    righe->addWidget(inizio);
    righe->addSpacing(6);
    apri_ = Aggiungi_Link("Label_Apri_catalogo", "Open a catalogue…", KEY_OPEN);
    consulta_ = Aggiungi_Link("Label_consulta_catalogo", "Browse the catalogue", KEY_DISEGNO, "consulta");
    ordine_ = Aggiungi_Link("Label_Ordine_Catalogo", "Go to the order", KEY_EVADI_ORDINE);
    aggiornamenti_ = Aggiungi_Link("Label_Aggiornamenti", "Check for updates", {}, "aggiornamenti");
    Etichetta_Link* guida = Aggiungi_Link("Label_Help", "User's guide", KEY_HELP);
    utente_ = Aggiungi_Link("Label_Utente", "Log in", KEY_LUCCHETTO);
    lingua_ = Aggiungi_Link("Label_Lingua", "Change the language", KEY_LINGUA);
    mercato_ = Aggiungi_Link("Label_Mercato", "Change the market", KEY_LINGUA, "mercato");
    for (Etichetta_Link* link :
         {apri_, consulta_, ordine_, utente_, lingua_, mercato_, aggiornamenti_, guida})
        righe->addWidget(link, 0, Qt::AlignLeft);
    righe->addSpacing(24);
    righe->addWidget(Crea_Dati());
    righe->addStretch(3);
    return colonna;
}

Etichetta_Link* Pagina_Iniziale::Aggiungi_Link(const char* nome, const char* testo, const QString& key,
                                               const char* icona) {
    auto* link =
        new Etichetta_Link(QLatin1String(nome), QString::fromUtf8(testo),
                           QLatin1String(icona ? icona : Cerca_Comando(key)->Icona), immagine_intro_);
    connect(link, &Etichetta_Link::clicked, this, [this, key] {
        if (key.isEmpty())
            emit Aggiornamenti();
        else
            emit Link(key);
    });
    return link;
}

QWidget* Pagina_Iniziale::Crea_Dati() {
    struct Riga {
        const char* Nome;
        const char* Testo;
        const char* Nome_Valore;
    };
    constexpr std::array<Riga, 4> RIGHE{{
        {"Label_Info_Titolo", "Title", "Label_Info_titolo_dato"},
        {"Label_Info_Autore", "Author", "Label_Info_Autore_dato"},
        {"Label_Info_Societa", "Company", "Label_Info_societa_Dato"},
        {"Label_Info_Release", "Version", "Label_Info_Release_Dato"},
    }};
    auto* dati = new QFrame(immagine_intro_);
    auto* griglia = new QGridLayout(dati);
    griglia->setContentsMargins(0, 0, 0, 0);
    griglia->setHorizontalSpacing(14);
    griglia->setVerticalSpacing(4);
    griglia->setColumnStretch(1, 1);

    QLabel* titolo = Etichetta("Label_Info", "About this catalogue", dati);
    titolo->setFont(Carattere(font(), 1.2, true));
    auto* icona = new Immagine_Adattata(dati);
    icona->setObjectName(QStringLiteral("Image4"));
    icona->Predefinita(QStringLiteral("informazioni"));
    icona->setFixedSize(20, 20);
    auto* testata = new QHBoxLayout;
    testata->setSpacing(8);
    testata->addWidget(icona);
    testata->addWidget(titolo, 1);
    griglia->addLayout(testata, 0, 0, 1, 2);
    griglia->setRowMinimumHeight(0, 30);
    etichette_ = {titolo, icona};

    int n = 1;
    for (const Riga& riga : RIGHE) {
        QLabel* etichetta = Etichetta(riga.Nome, riga.Testo, dati);
        etichetta->setForegroundRole(QPalette::PlaceholderText);
        QLabel* valore = Etichetta(riga.Nome_Valore, "", dati);
        valore->setWordWrap(true);
        valore->setTextInteractionFlags(Qt::TextSelectableByMouse);
        griglia->addWidget(etichetta, n, 0, Qt::AlignTop);
        griglia->addWidget(valore, n, 1, Qt::AlignTop);
        valori_.append(valore);
        etichette_.append({etichetta, valore});
        ++n;
    }
    return dati;
}

QWidget& Pagina_Iniziale::Primo_Link() const {
    return consulta_->isVisible() ? *consulta_ : *apri_;
}

void Pagina_Iniziale::Mostra(const Stato_Finestra& stato) {
    immagine_intro_->setVisible(stato.Frame_Immagine_Intro);
    consulta_->setVisible(stato.Etichette_Catalogo);
    ordine_->setVisible(stato.Etichette_Catalogo);
    utente_->setVisible(stato.Label_Utente);
    lingua_->setVisible(stato.Label_Lingua_Mercato);
    mercato_->setVisible(stato.Label_Lingua_Mercato);
    for (QWidget* link : std::as_const(consulta_cat_))
        link->setVisible(stato.Label_Consulta_Cat);
    label_scelta_lingua_->setVisible(stato.ImageCombo_lingua);
    imagecombo_lingua_->setVisible(stato.ImageCombo_lingua);
    aggiornamenti_->setVisible(stato.Label_Aggiornamenti);
    setEnabled(stato.Abilitata);
}

void Pagina_Iniziale::Carica_Dati_Home(Class_Progetto_Aperto& progetto) {
    Propieta_Progetto propieta;
    const bool letti = progetto.Anteprima_Propieta_Progetto_Aperto(propieta);
    const QStringList testi{propieta.Titolo, propieta.Autore, propieta.Societa, propieta.Versione};
    for (qsizetype i = 0; i < valori_.size(); ++i)
        valori_[i]->setText(testi[i]);
    for (QLabel* etichetta : std::as_const(etichette_))
        etichetta->setVisible(letti);
    logo_->Carica(letti ? progetto.Restituisci_Immagine_Logo() : QString());
    immagine_->Carica(letti ? progetto.Restituisci_Immagine_Home() : QString());
}

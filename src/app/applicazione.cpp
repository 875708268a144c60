#include "app/applicazione.h"

#include <QDir>
#include <QFile>

#include "core/base/percorsi.h"
#include "core/base/testo.h"
#include "core/package/risorse.h"
#include "core/shell/avvio.h"
#include "gui/localisation/finestra_qt.h"

Applicazione::Applicazione(Programma_Qt& programma, Class_Progetto_Aperto::Porte porte, Opzioni opzioni)
    : porte_(porte), opzioni_(std::move(opzioni)), progetto_(porte) {
    // Later, since the event may be one in which no window can be shown.
    QObject::connect(
        &programma, &Programma_Qt::Eccezione, &ascolto_,
        [this](const QString& testo) { porte_.messaggi.Mostra(testo, Icona::Critica); },
        Qt::QueuedConnection);
}

Applicazione::~Applicazione() {
    // Whichever way the program ends, the window's unload has run.
    if (finestra_)
        finestra_->Termina();
}

bool Applicazione::Avvia() {
    if (!Prepara_Riga_Comando(opzioni_.Argomenti, riga_comando_))
        return false;
    riga_comando_ = Con_Pacchetto_Assoluto(riga_comando_, QDir::currentPath());
    cartella_installazione_ =
        opzioni_.Cartella_Installazione.isEmpty()
            ? Restituisci_Cartella_Installazione(opzioni_.Cartella_Programma, porte_.impostazioni)
            : Cartella_Con_Barra(opzioni_.Cartella_Installazione);
    const Versione_Programma versione = Versione();
    avvio_ = std::make_unique<Form_Mini_Avvio>(
        porte_.sistema, QStringLiteral("%1.%2").arg(versione.Maggiore).arg(versione.Minore));
    Finestra_Qt testi(*avvio_);
    Carica_Testi_Finestra(progetto_, cartella_installazione_, testi);
    Carica_Immagine_Intro();
    QObject::connect(avvio_.get(), &Form_Mini_Avvio::Pronto, avvio_.get(), [this] { Mostra_Finestra(); });
    avvio_->show();
    return true;
}

void Applicazione::Carica_Immagine_Intro() {
    if (riga_comando_.isEmpty())
        return;
    QString immagine;
    // A package that can't be read costs the picture, nothing more: its opening will tell the user.
    if (!progetto_.Anteprima_Immagine_Intro(Estrai_Token(riga_comando_, 1, u"|"), immagine, true))
        return;
    avvio_->Carica_Immagini_Form(immagine);
    porte_.sistema.Esegui_Eventi();
    QFile::remove(immagine);
}

void Applicazione::Mostra_Finestra() {
    finestra_ = std::make_unique<Form_Main>(progetto_, cartella_installazione_);
    // While a catalogue of the command line opens, only the splash is on the screen.
    QObject::connect(&finestra_->Barra_Avanzamento(), &Indicatore_Avanzamento::Avanzato, avvio_.get(),
                     &Form_Mini_Avvio::Avanza);
    finestra_->Schermo().Apertura.Avvia(riga_comando_);
    porte_.sistema.Esegui_Eventi();
    finestra_->show();
    avvio_->hide();
    avvio_.release()->deleteLater();  // its own timer is still at work
}

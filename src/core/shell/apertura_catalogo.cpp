// Opening and rebuilding what a catalogue shows, with all screen consequences, and the window's load,
// activation and unload.

#include <QElapsedTimer>

#include "core/base/percorsi.h"
#include "core/base/testo.h"
#include "core/shell/avvio.h"
#include "core/shell/controllo_principale.h"

namespace {

/// Events run at most this often: the window stays alive and the work isn't slowed down.
constexpr qint64 MS_TRA_EVENTI = 20;
constexpr int GIRI_ALLA_CHIUSURA = 5;

}  // namespace

/// Long work: the hourglass, a locked window that lives on, and no command that gets in between. Work that is
/// part of other work leaves lock and hourglass to that.
class Controllo_Principale::Lavoro : public Avanzamento {
  public:
    explicit Lavoro(Controllo_Principale& controllo) : controllo_(controllo), parte_(controllo.occupato_) {
        timer_.start();
        if (parte_)
            return;
        controllo_.occupato_ = true;
        controllo_.stato_.Attesa = true;
        controllo_.progetto_.DB.Imposta_Respiro([this] { Respira(); });
        controllo_.Abilita_Finestra(false);
    }
    ~Lavoro() override {
        if (parte_)
            return;
        controllo_.progetto_.DB.Imposta_Respiro({});
        controllo_.occupato_ = false;
        controllo_.stato_.Attesa = false;
        controllo_.Abilita_Finestra(true);
        if (controllo_.ridimensionata_)
            controllo_.Griglia_Ridimensionata();
    }

    void Avanza(qint64 fatto, qint64 totale) override {
        if (timer_.elapsed() < MS_TRA_EVENTI && fatto != totale)
            return;
        if (controllo_.vista_ && totale > 0)
            controllo_.vista_->Barra_Avanzamento().Avanza(fatto, totale);
        Respira();
    }
    /// Between two steps: lets the window live if the last ones took a while.
    void Respira() {
        if (timer_.elapsed() < MS_TRA_EVENTI)
            return;
        controllo_.porte_.sistema.Esegui_Eventi();
        timer_.start();
    }

  private:
    Controllo_Principale& controllo_;
    const bool parte_;
    QElapsedTimer timer_;
};

void Controllo_Principale::Apri_Progetto() {
    if (occupato_ || !vista_)
        return;
    const QString percorso = vista_->Scegli_Pacchetto();
    if (!percorso.isEmpty())
        Apri_Catalogo(percorso);
}

void Controllo_Principale::Apri_Catalogo(const QString& percorso) {
    if (occupato_)
        return;
    if (Tipo_File(percorso) != 2) {
        Aggiorna_Toolbar();
        return;
    }
    Lavoro lavoro(*this);
    if (progetto_.Progetto_Aperto) {
        progetto_.Elimina_Progetto_Aperto();
        Aggiorna_Toolbar();
    }
    if (!Apri_E_Mostra(percorso, lavoro)) {
        progetto_.Key_Prodotto_Corrente.clear();  // it belonged to the catalogue that was open before
        if (vista_)
            vista_->Carica_Testi_Finestra();
        Mostra_Intro();
    }
    Aggiorna_Toolbar();
}

bool Controllo_Principale::Apri_E_Mostra(const QString& percorso, Avanzamento& avanzamento) {
    if (progetto_.Apri_Progetto_TZF(percorso, &avanzamento) != 1 || !progetto_.Progetto_Aperto)
        return false;
    Verifica_Accesso(false);
    if (!Ricarica_O_Segnala()) {
        // No catalogue is better than half of one.
        progetto_.Elimina_Progetto_Aperto();
        return false;
    }
    Aggiungi_Recente(porte_.impostazioni, percorso);
    if (vista_ && System("IMPOSTAZIONE_FINESTRA_MASSIMATA") == u"SI")
        vista_->Massimizza();
    if (System("IMPOSTAZIONE_ESPANDI_ALBERO") == u"SI") {
        progetto_.Tree1.Espandi_Albero(true);
        if (vista_)
            vista_->Albero_Aggiornato();
    }
    Dividi_Come_Vuole_Il_Catalogo();
    Comando(QStringLiteral("KEY_HOME"));
    if (vista_)
        vista_->Carica_Testi_Finestra();
    return true;
}

void Controllo_Principale::Dividi_Come_Vuole_Il_Catalogo() {
    if (!vista_)
        return;
    stato_.Posizione_Splitter_V =
        Divisione_Iniziale(System("IMPOSTAZIONE_ALTEZZA_DISTINTA_MINIMA"), vista_->Altezza_Interna());
    if (stato_.Divisione_V >= 0)
        stato_.Divisione_V = stato_.Posizione_Splitter_V;
    Mostra();
}

void Controllo_Principale::Ricarica_Vista_Catalogo() {
    Lavoro lavoro(*this);
    if (vista_)
        vista_->Carica_Testi_Finestra();
    progetto_.Carica_Albero();
    lavoro.Respira();
    progetto_.Crea_Albero_Da_Struttura({});
    lavoro.Respira();
    progetto_.Ricarica_Necessaria = false;
    progetto_.Traduzioni.Carica_Testi_Codificati(progetto_.Lingua);
    progetto_.Key_Prodotto_Corrente.clear();
    if (disegno_)
        disegno_->Imposta_Lampeggio();
    if (vista_) {
        vista_->Carica_Dati_Home();
        vista_->Albero_Ricostruito();
    }
    Carica_Lingue_Home();
    Ricarica_Carrello();  // what it shows is of the old language and market
}

/// A tree that can't be shown, such as one with a node without a caption, is told to the user.
bool Controllo_Principale::Ricarica_O_Segnala() {
    try {
        Ricarica_Vista_Catalogo();
        return true;
    } catch (const std::exception& errore) {
        porte_.messaggi.Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
        return false;
    }
}

void Controllo_Principale::Applica_Filtro_Matricola() {
    if (occupato_ || !vista_)
        return;
    QString errore;
    {
        Lavoro lavoro(*this);
        try {
            progetto_.Crea_Albero_Da_Struttura(Con_Apici_Raddoppiati(vista_->Text_Matricola()));
        } catch (const std::exception& e) {
            errore = QString::fromUtf8(e.what());
        }
        lavoro.Respira();
        vista_->Albero_Ricostruito();
    }
    if (!errore.isEmpty())
        porte_.messaggi.Mostra(errore, Icona::Critica);
    Seleziona_Prodotto({});
}

// --- the window's life
// -----------------------------------------------------------------------------------------

void Controllo_Principale::Avvia(const QString& riga_comando) {
    riga_comando_ = riga_comando;
    if (vista_)
        vista_->Carica_Testi_Finestra();
    if (!riga_comando_.isEmpty())
        Apri_Catalogo(Estrai_Token(riga_comando_, 1, u"|"));
    if (!progetto_.Progetto_Aperto) {
        Mostra_Intro();
        Aggiorna_Toolbar();
    }
}

void Controllo_Principale::Prima_Attivazione() {
    // What the package says of the split is what the catalogue opened from it says; one that can't be opened
    // says nothing.
    if (!riga_comando_.isEmpty())
        Dividi_Come_Vuole_Il_Catalogo();
    riga_comando_.clear();
}

bool Controllo_Principale::Chiudi() {
    if (occupato_ || progetto_.Stampa_In_Corso)
        return false;
    Scarica_Carrello();
    progetto_.Elimina_Progetto_Aperto();
    for (int i = 0; i < GIRI_ALLA_CHIUSURA; ++i)
        porte_.sistema.Esegui_Eventi();
    // Kept: the first activation empties the command line, so its document opens only if there never was one.
    if (!riga_comando_.trimmed().isEmpty()) {
        const QString documento = Estrai_Token(riga_comando_, 2, u"|");
        if (documento != FINE_TOKEN && !documento.trimmed().isEmpty())
            porte_.sistema.Apri_Con_Predefinito(documento);
    }
    return true;
}

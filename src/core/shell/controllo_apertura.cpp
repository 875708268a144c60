#include "core/shell/controllo_apertura.h"

#include "core/base/percorsi.h"
#include "core/base/testo.h"
#include "core/shell/avvio.h"

namespace {
constexpr int GIRI_ALLA_CHIUSURA = 5;
}

void Controllo_Apertura::Apri_Progetto() {
    if (const QString percorso = ambiente_.Vista.Scegli_Pacchetto(); !percorso.isEmpty())
        Apri_Catalogo(percorso);
}

void Controllo_Apertura::Apri_Catalogo(const QString& percorso) {
    if (ambiente_.Occupato)
        return;
    if (Tipo_File(percorso) != 2) {
        schermo_.Aggiorna_Toolbar();
        return;
    }
    if (!Lascia_Carrello())
        return;
    const Gesto gesto(ambiente_);
    Lavoro lavoro(ambiente_);
    if (progetto_.Progetto_Aperto) {
        Chiudi_Catalogo();
        schermo_.Aggiorna_Toolbar();
    }
    if (!Apri_E_Mostra(percorso, lavoro)) {
        ambiente_.Vista.Carica_Testi();
        schermo_.Mostra_Intro();
    }
    schermo_.Aggiorna_Toolbar();
}

/// The cart goes with its catalogue: with lines in it the user says whether.
bool Controllo_Apertura::Lascia_Carrello() {
    const auto& prodotti = progetto_.Prodotti_Selezionati;
    for (const Class_Prodotti_Selezionati& prodotto : prodotti)
        if (prodotto.Collection_Elenco_Selezionati().Count() > 0)
            return ambiente_.Messaggi_().Chiedi(
                progetto_.Traduzioni
                    .Item(QStringLiteral(
                        "LASCIA_CARRELLO/The cart isn't empty, and closing the catalogue empties it. Go on?"))
                    .Testo);
    return true;
}

/// Closes the catalogue; nothing of it stays on show.
void Controllo_Apertura::Chiudi_Catalogo() {
    progetto_.Elimina_Progetto_Aperto();
    progetto_.Key_Prodotto_Corrente.clear();
    ambiente_.Vista.Albero_Ricostruito();
}

bool Controllo_Apertura::Apri_E_Mostra(const QString& percorso, Avanzamento& avanzamento) {
    const Filtri prima = progetto_.Filtri_Correnti();
    if (progetto_.Apri_Progetto_TZF(percorso, &avanzamento) != 1 || !progetto_.Progetto_Aperto)
        return false;
    schermo_.Verifica_Accesso(false);
    if (!Ricarica_O_Segnala()) {
        // No catalogue is better than half of one; the language that is kept stays the one of before.
        Chiudi_Catalogo();
        progetto_.Imposta_Filtri(prima);
        return false;
    }
    Aggiungi_Recente(progetto_.Desktop().impostazioni, percorso);
    if (ambiente_.System("IMPOSTAZIONE_FINESTRA_MASSIMATA") == u"SI")
        ambiente_.Vista.Massimizza();
    if (ambiente_.System("IMPOSTAZIONE_ESPANDI_ALBERO") == u"SI") {
        progetto_.Tree1.Espandi_Albero(true);
        ambiente_.Vista.Albero_Aggiornato();
    }
    Dividi_Come_Vuole_Il_Catalogo();
    // Also where the catalogue starts on a node: from the home page alone it would follow no page.
    ambiente_.Bottone(KEY_DISEGNO).Enabled = true;
    schermo_.Esegui_Comando(KEY_HOME);
    ambiente_.Vista.Carica_Testi();
    return true;
}

void Controllo_Apertura::Dividi_Come_Vuole_Il_Catalogo() {
    const int altezza = ambiente_.Vista.Altezza_Interna();
    // What the user once chose comes before what the catalogue wants.
    const int scelta = progetto_.Desktop()
                           .impostazioni.Leggi(NOME_APPLICAZIONE, WIN_PRINCIPALE, ALTEZZA_DISTINTA, {})
                           .toInt();
    ambiente_.Stato.Sposta_Splitter_V(
        scelta > 0 ? Limita_Splitter_V(altezza - scelta, altezza)
                   : Divisione_Iniziale(ambiente_.System("IMPOSTAZIONE_ALTEZZA_DISTINTA_MINIMA"), altezza));
    ambiente_.Mostra();
}

void Controllo_Apertura::Ricarica_Vista_Catalogo() {
    Lavoro lavoro(ambiente_);
    progetto_.Ricarica([&lavoro] { lavoro.Respira(); });
    // The window follows only now that nothing can fail any more.
    ambiente_.Vista.Carica_Testi();
    ambiente_.Vista.Albero_Ricostruito();
    ambiente_.Avvisa(&Stanza::Catalogo_Ricaricato);
    ambiente_.Avvisa(&Stanza::Prodotto_Cambiato);
}

bool Controllo_Apertura::Ricarica_O_Segnala() {
    try {
        Ricarica_Vista_Catalogo();
        return true;
    } catch (const std::exception& errore) {
        ambiente_.Messaggi_().Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
        return false;
    }
}

void Controllo_Apertura::Cambia_Lingua() {
    if (!progetto_.Progetto_Aperto)
        return;
    ambiente_.Finestre.Mostra_Lingua_Mercato();
    if (!progetto_.Ricarica_Necessaria)
        return;
    if (Ricarica_O_Segnala())
        schermo_.Mostra_Intro();
}

// --- the window's life ----------------------------------------------------------------------------

void Controllo_Apertura::Avvia(const QString& riga_comando) {
    riga_comando_ = riga_comando;
    ambiente_.Vista.Carica_Testi();
    if (!riga_comando_.isEmpty())
        Apri_Catalogo(Estrai_Token(riga_comando_, 1, u"|"));
    if (!progetto_.Progetto_Aperto) {
        schermo_.Mostra_Intro();
        schermo_.Aggiorna_Toolbar();
    }
}

void Controllo_Apertura::Prima_Attivazione() {
    // What the package says of the split is what the catalogue opened from it says; one that can't be opened
    // says nothing.
    if (!riga_comando_.isEmpty())
        Dividi_Come_Vuole_Il_Catalogo();
    riga_comando_.clear();
}

bool Controllo_Apertura::Chiudi(bool senza_domande) {
    if (ambiente_.Occupato || progetto_.Stampa_In_Corso || !(senza_domande || Lascia_Carrello()))
        return false;
    progetto_.Elimina_Progetto_Aperto();
    schermo_.Aggiorna_Toolbar();
    for (int i = 0; i < GIRI_ALLA_CHIUSURA; ++i)
        ambiente_.Sistema_().Esegui_Eventi();
    // Kept: the first activation empties the command line, so its document opens only if there never was one.
    if (!riga_comando_.trimmed().isEmpty()) {
        const QString documento = Estrai_Token(riga_comando_, 2, u"|");
        if (documento != FINE_TOKEN && !documento.trimmed().isEmpty())
            ambiente_.Sistema_().Apri_Con_Predefinito(documento);
    }
    return true;
}

#include "core/shell/controllo_prodotto.h"

#include "core/base/testo.h"
#include "core/parts_tables/clic_griglia.h"
#include "core/parts_tables/distinta.h"
#include "core/parts_tables/evidenza.h"

namespace {

constexpr bool CON_AGGIUNGI = true;
constexpr int COLONNA_RIFERIMENTO = 0;
constexpr int COLONNE_FISSE = 2;  ///< reference, and the column that adds to the cart

}  // namespace

Controllo_Prodotto::Controllo_Prodotto(Ambiente& ambiente, Schermo& schermo, Lavagna& lavagna)
    : Stanza(ambiente, schermo),
      disegno_({lavagna, progetto_.DB, progetto_, ambiente.Sistema_(), schermo, progetto_.Tree1,
                progetto_.Prodotti_Selezionati}) {}

void Controllo_Prodotto::Consulta_Catalogo(bool forza) {
    if (!progetto_.Progetto_Aperto)
        return;
    const bool accesso = schermo_.Verifica_Accesso(forza);
    const bool ricaricato = !accesso || !progetto_.Ricarica_Necessaria || schermo_.Ricarica_Catalogo();
    // A reload that failed took a new user back.
    if (!progetto_.Autentificazione_Corretta()) {
        schermo_.Mostra_Intro();
        return;
    }
    if (!ricaricato)
        return;
    Carica_Scheda({});
    ambiente_.Stato.Mostra_In_Main(&Stato_Finestra::Frame_scheda_Prodotto);
    ambiente_.Mostra();
}

void Controllo_Prodotto::Mostra_Nodo(const QString& key) {
    if (key.isEmpty())
        Consulta_Catalogo(false);
    else if (ambiente_.Bottone(KEY_DISEGNO).Pressed)
        Visualizza_Disegno_Esploso(key);
    else
        Seleziona_Prodotto(key);
}

// --- sheet ----------------------------------------------------------------------------------------

void Controllo_Prodotto::Seleziona_Prodotto(const QString& key) {
    if (!Accesso_O_Intro())
        return;
    progetto_.Key_Prodotto_Corrente = key;
    ambiente_.Bottone(KEY_EMAIL).Enabled = false;
    Carica_Scheda(key);
    ambiente_.Avvisa(&Stanza::Prodotto_Cambiato);
    schermo_.Aggiorna_Toolbar();
}

void Controllo_Prodotto::Carica_Scheda(const QString& key) {
    const Scheda_Prodotto scheda =
        ::Carica_Scheda({progetto_.DB, progetto_.Albero, progetto_, progetto_.Lingua,
                         [this](const QString& file) { return ambiente_.Vista.Misura_Foto(file); }},
                        key);
    ambiente_.Vista.Mostra_Scheda(scheda);
    Stato_Finestra& stato = ambiente_.Stato;
    stato.Label_Help_Albero = scheda.Label_Help_Albero;
    stato.Frame_Scheda_Prodotto_Dett = !scheda.Label_Help_Albero;
    if (key.isEmpty())
        return;
    stato.Frame_scheda_Prodotto = true;
    stato.Frame_Evadi_ordine = false;
    stato.Frame_Prodotto = false;
    disegno_.Togli_Tavola();
}

void Controllo_Prodotto::Apri_Allegato(const QString& percorso) {
    if (!ambiente_.Occupato && !percorso.isEmpty())
        ambiente_.Sistema_().Apri_Con_Predefinito(percorso);
}

void Controllo_Prodotto::Consulta_Esploso() {
    if (!ambiente_.Occupato)
        Visualizza_Disegno_Esploso(progetto_.Key_Prodotto_Corrente);
}

// --- drawing and parts list -----------------------------------------------------------------------

void Controllo_Prodotto::Visualizza_Disegno_Esploso(const QString& key) {
    if (!Accesso_O_Intro())
        return;
    disegno_.Nascondi();
    if (!E_Prodotto(key)) {
        Nascondi_Vista_Prodotto();
        Seleziona_Prodotto(key);
        return;
    }
    progetto_.Key_Prodotto_Corrente = key;  // the node on show, whichever page shows it
    ambiente_.Stato.Label_Nessun_Disegno = false;
    ambiente_.Avvisa(&Stanza::Prodotto_Cambiato);
    ambiente_.Bottone(KEY_EVADI_ORDINE).Pressed = false;
    ambiente_.Stato.Mostra_In_Main(&Stato_Finestra::Frame_Prodotto);
    ambiente_.Mostra();
    Riempi_Distinta(key, true);  // first: a product without parts leaves the drawing the whole height
    Mostra_Disegno(key);
    schermo_.Aggiorna_Toolbar();
}

void Controllo_Prodotto::Nascondi_Vista_Prodotto() {
    griglia_.Visible = false;
    ambiente_.Stato.Griglia_Distinta = false;
    prodotto_in_distinta_.clear();
}

void Controllo_Prodotto::Mostra_Disegno(const QString& prodotto) {
    const QString key_sql = Con_Apici_Raddoppiati(prodotto);
    Stato_Finestra& stato = ambiente_.Stato;
    if (!progetto_.DB.Restituisci_Esistenza_Tavola_Prodotto(key_sql)) {
        stato.Divisione_V = SOLO_DISTINTA;
    } else {
        // A list that can't be shown says so in its half.
        const bool con_distinta = griglia_.Visible || griglia_.Motivo != Assenza::Vuota;
        stato.Divisione_V = con_distinta ? stato.Posizione_Splitter_V : SOLO_DISEGNO;
        ambiente_.Mostra();
        // Another product may come up while events run: then this one's page is no more.
        if (!disegno_.Carica_Tavola(prodotto))
            return;
        stato.Label_Nessun_Disegno = Trim(progetto_.DB.Restituisci_NomeTavola_Prodotto(key_sql)).isEmpty();
    }
    Ricolora_Selezionati(progetto_.Prodotti_Selezionati, prodotto, disegno_);
}

void Controllo_Prodotto::Riempi_Distinta(const QString& prodotto, bool ricarica_righe) {
    prodotto_in_distinta_ = prodotto;
    Visualizza_Griglia_Distinta_Prodotto(Contesto_Lista(), prodotto, {}, ricarica_righe, griglia_, tag_,
                                         CON_AGGIUNGI);
    colonna_codice_ = Colonna_Codice_Distinta(progetto_.DB, schermo_.Filtri_Correnti(), COLONNE_FISSE);
    ambiente_.Stato.Griglia_Distinta = griglia_.Visible;
}

void Controllo_Prodotto::Griglia_Ridimensionata() {
    if (ambiente_.Occupato) {
        ambiente_.Dopo_Il_Lavoro = [this] { Griglia_Ridimensionata(); };
        return;
    }
    if (prodotto_in_distinta_.isEmpty() || !griglia_.Visible || !progetto_.Progetto_Aperto)
        return;
    Riempi_Distinta(prodotto_in_distinta_, false);
    ambiente_.Mostra();
}

void Controllo_Prodotto::Clic_Distinta(int riga, int colonna) {
    if (ambiente_.Occupato)
        return;
    Esegui_Azione(Clic_Griglia(tag_, riga, colonna), Contesto_Lista(),
                  {.Mostra_Immagine = [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); },
                   .Evidenzia =
                       [this](const Azione_Cella& a) {
                           disegno_.Evidenzia_Componente_Grafico(a.Prodotto, a.Codice, a.Riferimento);
                       },
                   .Aggiungi =
                       [this](const Azione_Cella& a) {
                           Segna_Riga(griglia_, a.Riga);
                           schermo_.Aggiungi_Al_Carrello(a.Prodotto, a.Codice, a.Riferimento);
                       }});
    disegno_.Segna_Evidenziazione_Transitoria();
}

void Controllo_Prodotto::Evidenzia_In_Distinta(const QString& key) {
    // A hotspot bears a code or, as most do, a reference.
    const bool codice = Ha_Riga(griglia_, colonna_codice_, key);
    Evidenzia_Componente_in_distinta(griglia_,
                                     codice || key.isEmpty() ? colonna_codice_ : COLONNA_RIFERIMENTO, key);
}

void Controllo_Prodotto::Altezza_Distinta_Scelta(int altezza) {
    progetto_.Desktop().impostazioni.Scrivi(NOME_APPLICAZIONE, WIN_PRINCIPALE, ALTEZZA_DISTINTA,
                                            QString::number(altezza));
    Splitter_V_Spostato(ambiente_.Vista.Altezza_Interna() - altezza);
}

void Controllo_Prodotto::Splitter_V_Spostato(int posizione) {
    ambiente_.Stato.Sposta_Splitter_V(Limita_Splitter_V(posizione, ambiente_.Vista.Altezza_Interna()));
    ambiente_.Mostra();
}

// The page of a product: its sheet, or its drawing and parts list, and what the user does on them.

#include "core/base/testo.h"
#include "core/parts_tables/clic_griglia.h"
#include "core/parts_tables/evidenza.h"
#include "core/shell/controllo_principale.h"

namespace {

constexpr bool CON_AGGIUNGI = true;
constexpr int COLONNE_FISSE = 2;  ///< reference, and the column that adds to the cart

}  // namespace

void Controllo_Principale::Nascondi_Vista_Prodotto() {
    if (vista_)
        vista_->Tavola().Visibile(false);
    griglia_distinta_.Visible = false;
    stato_.Griglia_Distinta = false;
    prodotto_in_distinta_.clear();
    Mostra();
}

void Controllo_Principale::Pulisci_Barra_Stato() {
    Scrivi_Pannello({});
}

/// Runs whenever the mouse enters or leaves a hotspot: the rest of the window isn't touched.
void Controllo_Principale::Scrivi_Pannello(const QString& testo) {
    if (stato_.Pannello == testo)
        return;
    stato_.Pannello = testo;
    if (vista_)
        vista_->Mostra_Pannello(testo);
}

// --- sheet
// ----------------------------------------------------------------------------------------------------------

void Controllo_Principale::Carica_Scheda(const QString& key) {
    const Scheda_Prodotto scheda = ::Carica_Scheda(
        {progetto_.DB, progetto_.Albero, progetto_, progetto_.Lingua,
         [this](const QString& file) { return vista_ ? vista_->Misura_Foto(file) : std::nullopt; }},
        key);
    if (vista_)
        vista_->Mostra_Scheda(scheda);
    stato_.Label_Help_Albero = scheda.Label_Help_Albero;
    stato_.Frame_Scheda_Prodotto_Dett = !scheda.Label_Help_Albero;
    if (key.isEmpty())
        return;
    stato_.Frame_scheda_Prodotto = true;
    stato_.Frame_Evadi_ordine = false;
    stato_.Frame_Prodotto = false;
    if (disegno_)
        disegno_->Togli_Tavola();
}

void Controllo_Principale::Seleziona_Prodotto(const QString& key) {
    progetto_.Key_Prodotto_Corrente = key;
    Bottone(QStringLiteral("KEY_EMAIL")).Enabled = false;
    Carica_Scheda(key);
    Ricarica_Carrello();
    Aggiorna_Toolbar();
}

void Controllo_Principale::Apri_Allegato(const QString& percorso) {
    if (!occupato_ && !percorso.isEmpty())
        porte_.sistema.Apri_Con_Predefinito(percorso);
}

void Controllo_Principale::Mostra_Immagine(const QString& percorso) {
    if (!occupato_ && vista_ && !percorso.isEmpty())
        vista_->Mostra_Immagine(percorso);
}

void Controllo_Principale::Consulta_Esploso() {
    if (!occupato_)
        Visualizza_Disegno_Esploso(progetto_.Key_Prodotto_Corrente);
}

// --- drawing and parts list
// ------------------------------------------------------------------------------------------------

void Controllo_Principale::Visualizza_Disegno_Esploso(const QString& key) {
    if (vista_)
        vista_->Tavola().Visibile(false);
    if (!E_Prodotto(key)) {
        Nascondi_Vista_Prodotto();
        Seleziona_Prodotto(key);
    } else {
        progetto_.Key_Prodotto_Corrente = key;  // the node on show, whichever page shows it
        stato_.Label_Nessun_Disegno = false;
        Ricarica_Carrello();
        Mostra_Ordine();
        Riempi_Distinta(key, true);  // first: a product without parts leaves the drawing the whole height
        Mostra_Disegno(key);
    }
    Aggiorna_Toolbar();
}

void Controllo_Principale::Mostra_Disegno(const QString& prodotto) {
    const QString key_sql = Con_Apici_Raddoppiati(prodotto);
    if (!progetto_.DB.Restituisci_Esistenza_Tavola_Prodotto(key_sql)) {
        stato_.Divisione_V = SOLO_DISTINTA;
    } else {
        stato_.Divisione_V = griglia_distinta_.Visible ? stato_.Posizione_Splitter_V : SOLO_DISEGNO;
        Mostra();
        // Another product may come up while events run: then this one's page is no more.
        if (disegno_ && !disegno_->Carica_Tavola(prodotto))
            return;
        stato_.Label_Nessun_Disegno = Trim(progetto_.DB.Restituisci_NomeTavola_Prodotto(key_sql)).isEmpty();
    }
    Carrello().Ricolora_Selezionati(prodotto);
}

Contesto_Griglia Controllo_Principale::Contesto_Distinta_Corrente() {
    return progetto_.Griglie([this] { return Verifica_Accesso(false); }, [this] { Mostra_Intro(); });
}

void Controllo_Principale::Riempi_Distinta(const QString& prodotto, bool ricarica_righe) {
    prodotto_in_distinta_ = prodotto;
    Visualizza_Griglia_Distinta_Prodotto(Contesto_Distinta_Corrente(), prodotto, {}, ricarica_righe,
                                         griglia_distinta_, tag_distinta_, CON_AGGIUNGI);
    colonna_codice_ = Colonna_Codice_Distinta(progetto_.DB, progetto_.Filtri_Correnti(), COLONNE_FISSE);
    stato_.Griglia_Distinta = griglia_distinta_.Visible;
}

void Controllo_Principale::Griglia_Ridimensionata() {
    ridimensionata_ = occupato_;
    if (occupato_ || prodotto_in_distinta_.isEmpty() || !griglia_distinta_.Visible ||
        !progetto_.Progetto_Aperto)
        return;
    Riempi_Distinta(prodotto_in_distinta_, false);
    Mostra();
}

void Controllo_Principale::Clic_Distinta(int riga, int colonna) {
    if (occupato_)
        return;
    Esegui_Azione(Clic_Griglia(tag_distinta_, riga, colonna), Contesto_Distinta_Corrente(),
                  {.Mostra_Immagine = [this](const QString& percorso) { Mostra_Immagine(percorso); },
                   .Evidenzia =
                       [this](const Azione_Cella& a) {
                           if (disegno_)
                               disegno_->Evidenzia_Componente_Grafico(a.Prodotto, a.Codice, a.Riferimento);
                       },
                   .Aggiungi =
                       [this](const Azione_Cella& a) {
                           Carrello().Aggiungi_Componente_Carrello_Evidenzia_Tavola(a.Prodotto, a.Codice,
                                                                                    a.Riferimento);
                       }});
    if (disegno_)
        disegno_->Segna_Evidenziazione_Transitoria();
}

void Controllo_Principale::Splitter_V_Spostato(int posizione) {
    if (!vista_)
        return;
    stato_.Posizione_Splitter_V = Limita_Splitter_V(posizione, vista_->Altezza_Interna());
    if (stato_.Divisione_V >= 0)
        stato_.Divisione_V = stato_.Posizione_Splitter_V;
    Mostra();
}

// --- what the drawing asks of its page
// -----------------------------------------------------------------------------------------

QString Controllo_Principale::Padre_Nodo_Selezionato() const {
    const Nodo_Visibile* nodo = progetto_.Tree1.SelectedItem();
    return nodo && nodo->Parent ? nodo->Parent->Key : QString();
}

void Controllo_Principale::Evidenzia_In_Distinta(const QString& key) {
    Evidenzia_Componente_in_distinta(griglia_distinta_, colonna_codice_, key);
}

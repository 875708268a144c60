#include "core/shell/controllo_principale.h"

#include "core/base/testo.h"
#include "core/package/risorse.h"
#include "core/parts_tables/clic_griglia.h"
#include "core/shell/avvio.h"

namespace {

const QString KEY_DISEGNO = QStringLiteral("KEY_DISEGNO");

/// There is no cart yet: a column that adds to nothing would only mislead.
constexpr bool CON_AGGIUNGI = false;

/// `Divisione_V` when the grid takes the whole height: no drawing is shown.
constexpr int SOLO_DISTINTA = -1;

}  // namespace

Controllo_Principale::Controllo_Principale(Class_Progetto_Aperto& progetto,
                                           Class_Progetto_Aperto::Porte porte, QString cartella_installazione)
    : progetto_(progetto), porte_(porte), cartella_installazione_(std::move(cartella_installazione)) {}

QString Controllo_Principale::System(const char* key) const {
    return progetto_.DB.System_Leggi_Key(QLatin1String(key));
}

void Controllo_Principale::Mostra() {
    if (vista_)
        vista_->Mostra(stato_);
}

// --- commands
// ------------------------------------------------------------------------------------------------

void Controllo_Principale::Clic_Bottone(const QString& key) {
    if (occupato_ || !Comandi_Presenti().contains(key) || !Bottone(key).Enabled)
        return;
    if (E_Due_Stati(key))
        Bottone(key).Pressed = !Bottone(key).Pressed;
    Comando(key);
}

void Controllo_Principale::Esegui_Comando(const QString& key) {
    if (!occupato_)
        Comando(key);
}

void Controllo_Principale::Comando(const QString& key) {
    if (key == u"KEY_HOME")
        Comando_Home();
    else if (key == u"KEY_OPEN")
        Apri_Progetto();
    else if (key == KEY_DISEGNO)
        Comando_Disegno();
    else if (key == u"KEY_HELP")
        Visualizza_Help();
    Aggiorna_Toolbar();
}

void Controllo_Principale::Comando_Home() {
    if (System("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI") == u"SI")
        Bottone(KEY_DISEGNO).Pressed = true;
    const QString nodo = System("IMPOSTAZIONE_NODO_HOMEPAGE");
    if (nodo != u"R") {
        Seleziona_Nodo(nodo);
    } else if (!progetto_.Key_Prodotto_Corrente.isEmpty()) {
        progetto_.Key_Prodotto_Corrente.clear();
        progetto_.Tree1.Seleziona(nullptr);
        if (vista_)
            vista_->Albero_Aggiornato();
    }
    if (System("IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE") == u"SI")
        Comando(KEY_DISEGNO);
    else
        Mostra_Intro();
}

void Controllo_Principale::Comando_Disegno() {
    Consulta_Catalogo(false);
    const QString corrente = progetto_.Key_Prodotto_Corrente;
    if (corrente.isEmpty())
        return;
    if (Bottone(KEY_DISEGNO).Pressed)
        Visualizza_Disegno_Esploso(corrente);
    else
        Seleziona_Prodotto(corrente);
}

void Controllo_Principale::Visualizza_Help() {
    QString chiave;
    const auto leggi = [&](const Class_DBOper& db) {
        chiave = db.Restituisci_Key_Lingua_Mercato(progetto_.Lingua.toInt());
    };
    if (progetto_.Progetto_Aperto)
        leggi(progetto_.DB);
    else
        Con_Dati_Risorsa(progetto_, cartella_installazione_, leggi);
    porte_.sistema.Apri_Con_Predefinito(Percorso_Help(Cartella_Help(cartella_installazione_), chiave));
}

void Controllo_Principale::Visualizza_Aggiornamenti() {
    const QString base = Base_Aggiornamenti(porte_.impostazioni);
    const Versione_Programma v = Versione();
    if (!base.isEmpty())
        porte_.sistema.Apri_Con_Predefinito(
            Indirizzo_Aggiornamenti(base, v.Maggiore, v.Minore, v.Revisione, progetto_.Lingua.toInt()));
}

// --- screens
// -------------------------------------------------------------------------------------------------

void Controllo_Principale::Mostra_Intro() {
    stato_.Frame_Intro = true;
    stato_.Frame_Immagine_Intro = true;
    stato_.Frame_Main = false;
    stato_.Frame_Prodotto = false;
    stato_.Frame_scheda_Prodotto = false;
    stato_.Frame_Scheda_Prodotto_Dett = false;
    stato_.Frame_Evadi_ordine = false;
    stato_.Frame_Preferiti = false;
    if (vista_)
        vista_->Carica_Dati_Home();
    Mostra();
}

void Controllo_Principale::Consulta_Catalogo(bool forza) {
    if (!progetto_.Progetto_Aperto)
        return;
    if (!Verifica_Accesso(forza) || (progetto_.Ricarica_Necessaria && !Ricarica_O_Segnala())) {
        Mostra_Intro();
        return;
    }
    Carica_Scheda({});
    stato_.Frame_Intro = false;
    stato_.Frame_Main = true;
    stato_.Frame_Prodotto = false;
    stato_.Frame_scheda_Prodotto = true;
    stato_.Frame_Evadi_ordine = false;
    stato_.Frame_Preferiti = false;
    Mostra();
}

void Controllo_Principale::Mostra_Ordine() {
    Bottone(QStringLiteral("KEY_EVADI_ORDINE")).Pressed = false;
    stato_.Frame_Intro = false;
    stato_.Frame_Main = true;
    stato_.Frame_Prodotto = true;
    stato_.Frame_scheda_Prodotto = false;
    stato_.Frame_Evadi_ordine = false;
    stato_.Frame_Preferiti = false;
    Mostra();
}

void Controllo_Principale::Abilita_Finestra(bool abilita) {
    stato_.Abilitata = abilita;
    Mostra();
}

void Controllo_Principale::Nascondi_Vista_Prodotto() {
    griglia_distinta_.Visible = false;
    stato_.Griglia_Distinta = false;
    prodotto_in_distinta_.clear();
    Mostra();
}

void Controllo_Principale::Pulisci_Barra_Stato() {
    stato_.Pannello.clear();
    Mostra();
}

bool Controllo_Principale::Verifica_Accesso(bool) {
    // There is no log-in window yet: a catalogue that asks for one can't be consulted.
    return progetto_.Autentificazione_Corretta();
}

/// The sheet itself isn't built yet; what shows in its place, and which frames, is decided here.
void Controllo_Principale::Carica_Scheda(const QString& key) {
    stato_.Frame_Scheda_Prodotto_Dett = false;
    stato_.Label_Help_Albero = key.isEmpty();
    if (key.isEmpty())
        return;
    stato_.Frame_scheda_Prodotto = true;
    stato_.Frame_Evadi_ordine = false;
    stato_.Frame_Prodotto = false;
}

void Controllo_Principale::Seleziona_Prodotto(const QString& key) {
    progetto_.Key_Prodotto_Corrente = key;
    Bottone(QStringLiteral("KEY_EMAIL")).Enabled = false;
    Carica_Scheda(key);
    Aggiorna_Toolbar();
}

void Controllo_Principale::Visualizza_Disegno_Esploso(const QString& key) {
    if (!E_Prodotto(key)) {
        Nascondi_Vista_Prodotto();
        Seleziona_Prodotto(key);
    } else {
        progetto_.Key_Prodotto_Corrente = key;  // the node on show, whichever page shows it
        Mostra_Ordine();
        Riempi_Distinta(key, true);
        stato_.Divisione_V = SOLO_DISTINTA;
    }
    Aggiorna_Toolbar();
}

void Controllo_Principale::Riempi_Distinta(const QString& prodotto, bool ricarica_righe) {
    prodotto_in_distinta_ = prodotto;
    const Contesto_Distinta contesto{progetto_.DB,
                                     progetto_.Traduzioni,
                                     progetto_.Numeri_,
                                     progetto_.Filtri_Correnti(),
                                     [this] { return Verifica_Accesso(false); },
                                     [this] { Mostra_Intro(); }};
    Visualizza_Griglia_Distinta_Prodotto(contesto, prodotto, {}, ricarica_righe, griglia_distinta_,
                                         tag_distinta_, CON_AGGIUNGI);
    stato_.Griglia_Distinta = griglia_distinta_.Visible;
    if (vista_)
        vista_->Griglia_Riempita();
}

void Controllo_Principale::Griglia_Ridimensionata() {
    ridimensionata_ = occupato_;
    if (occupato_ || prodotto_in_distinta_.isEmpty() || !griglia_distinta_.Visible ||
        !progetto_.Progetto_Aperto)
        return;
    Riempi_Distinta(prodotto_in_distinta_, false);
    Mostra();
}

/// Documents open in their own application. What the other cells ask for (picture window, cart, drawing) isn't
/// built yet.
void Controllo_Principale::Clic_Distinta() {
    if (occupato_)
        return;
    const Azione_Cella azione = Clic_Griglia(griglia_distinta_, tag_distinta_);
    if (azione.Tipo == Azione_Cella::Genere::Document)
        porte_.sistema.Apri_Con_Predefinito(progetto_.Scompatta_File_Compattato(azione.Voce));
}

void Controllo_Principale::Splitter_V_Spostato(int posizione) {
    if (!vista_)
        return;
    stato_.Posizione_Splitter_V = Limita_Splitter_V(posizione, vista_->Altezza_Interna());
    Mostra();
}

// --- tree
// ----------------------------------------------------------------------------------------------------

void Controllo_Principale::Seleziona_Nodo_Albero(const QString& key) {
    if (!occupato_)
        Seleziona_Nodo(key);
}

void Controllo_Principale::Seleziona_Nodo(const QString& key) {
    Nodo_Visibile* nodo = progetto_.Tree1.Nodo(key);
    if (!nodo || nodo == progetto_.Tree1.SelectedItem())
        return;
    progetto_.Tree1.Seleziona(nodo);
    Al_Clic_Nodo();
}

void Controllo_Principale::Clic_Nodo(const QString& key) {
    Nodo_Visibile* nodo = progetto_.Tree1.Nodo(key);
    if (occupato_ || !nodo)
        return;
    progetto_.Tree1.Seleziona(nodo);
    Al_Clic_Nodo();
}

void Controllo_Principale::Al_Clic_Nodo() {
    Nodo_Visibile& nodo = *progetto_.Tree1.SelectedItem();
    if (System("IMPOSTAZIONE_ESPANDI_NODO_ALBERO") == u"SI")
        nodo.Expanded = true;
    if (vista_)
        vista_->Albero_Aggiornato();
    if (Bottone(KEY_DISEGNO).Pressed)
        Visualizza_Disegno_Esploso(nodo.Key);
    else
        Seleziona_Prodotto(nodo.Key);
}

void Controllo_Principale::Nodo_Aperto(const QString& key, bool aperto) {
    Nodo_Visibile* nodo = progetto_.Tree1.Nodo(key);
    if (!occupato_ && nodo)
        nodo->Expanded = aperto;
}

void Controllo_Principale::Cerca_Nodo_Albero(const QString& testo) {
    if (occupato_)
        return;
    ::Cerca_Nodo_Albero(progetto_.Tree1, testo,
                        [this](Nodo_Visibile& nodo) { Seleziona_Prodotto(nodo.Key); });
    if (vista_)
        vista_->Albero_Aggiornato();
}

void Controllo_Principale::Applica_Filtro_Matricola() {
    if (occupato_ || !vista_)
        return;
    try {
        progetto_.Crea_Albero_Da_Struttura(Con_Apici_Raddoppiati(vista_->Text_Matricola()));
    } catch (const std::exception& errore) {
        porte_.messaggi.Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
    }
    vista_->Albero_Ricostruito();
    Seleziona_Prodotto({});
}

#include "core/shell/controllo_principale.h"

#include "core/base/testo.h"
#include "core/package/risorse.h"
#include "core/shell/avvio.h"

Controllo_Principale::Controllo_Principale(Class_Progetto_Aperto& progetto,
                                           Class_Progetto_Aperto::Porte porte, QString cartella_installazione)
    : progetto_(progetto),
      porte_(porte),
      cartella_installazione_(std::move(cartella_installazione)),
      accesso_(progetto_, cartella_installazione_) {}

Controllo_Principale::~Controllo_Principale() = default;

void Controllo_Principale::Collega(Vista_Principale& vista) {
    vista_ = &vista;
    disegno_ = std::make_unique<Controllo_Disegno>(
        Controllo_Disegno::Vicini{vista.Tavola(), progetto_.DB, progetto_, porte_.sistema, *this, *this});
    carrello_.Collega(vista.Tavola(), *disegno_);
}

void Controllo_Principale::Scollega() {
    carrello_.Scollega();
    disegno_.reset();
    vista_ = nullptr;
}

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
    else if (key == u"KEY_LUCCHETTO")
        Consulta_Catalogo(true);
    else if (key == u"KEY_LINGUA")
        Comando_Lingua();
    else if (key == KEY_CARELLO_PARZIALE)
        Comando_Carrello();
    else if (key == KEY_EVADI_ORDINE)
        Comando_Ordine();
    else if (key == u"KEY_HELP")
        Visualizza_Help();
    else if (disegno_)
        disegno_->Comando_Zoom(key, Bottone(QStringLiteral("KEY_ZOOM_WIN")).Pressed);
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
        Ricarica_Carrello();
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

void Controllo_Principale::Comando_Lingua() {
    if (!progetto_.Progetto_Aperto || !vista_)
        return;
    vista_->Mostra_Lingua_Mercato();
    if (!progetto_.Ricarica_Necessaria)
        return;
    Ricarica_O_Segnala();
    Mostra_Intro();
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
    Carica_Lingue_Home();
    Mostra();
}

void Controllo_Principale::Carica_Lingue_Home() {
    stato_.Label_Consulta_Cat = progetto_.Progetto_Aperto;
    if (progetto_.Progetto_Aperto) {
        stato_.ImageCombo_lingua = false;
    } else if (const auto lingue = accesso_.Lingue_Home(); lingue && vista_) {
        stato_.ImageCombo_lingua = true;
        vista_->Carica_Lingue_Home(*lingue);
    }
}

void Controllo_Principale::Scegli_Lingua_Home(const QString& descrizione) {
    if (!occupato_ && !progetto_.Progetto_Aperto && accesso_.Scegli_Lingua_Home(descrizione) && vista_)
        vista_->Carica_Testi_Finestra();
}

void Controllo_Principale::Consulta_Catalogo(bool forza) {
    if (!progetto_.Progetto_Aperto)
        return;
    if (!Verifica_Accesso(forza) || (progetto_.Ricarica_Necessaria && !Ricarica_O_Segnala())) {
        Mostra_Intro();
        return;
    }
    Carica_Scheda({});
    stato_.Mostra_In_Main(&Stato_Finestra::Frame_scheda_Prodotto);
    Mostra();
}

void Controllo_Principale::Mostra_Ordine() {
    Bottone(KEY_EVADI_ORDINE).Pressed = false;
    stato_.Mostra_In_Main(&Stato_Finestra::Frame_Prodotto);
    Mostra();
}

void Controllo_Principale::Abilita_Finestra(bool abilita) {
    stato_.Abilitata = abilita;
    Mostra();
}

bool Controllo_Principale::Verifica_Accesso(bool forza) {
    return accesso_.Verifica_Accesso(forza, vista_);
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

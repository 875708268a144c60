#include "core/shell/controllo_ordine.h"

#include "core/shell/controllo_seleziona.h"

Controllo_Ordine::Controllo_Ordine(Ambiente& ambiente, Schermo& schermo, Controllo_Disegno& disegno)
    : Stanza(ambiente, schermo),
      disegno_(disegno),
      carrello_({schermo, ambiente.Messaggi_(), disegno, progetto_.Finestra_Carrello_Aperta,
                 [this] {
                     return progetto_.Carrello([this] { return schermo_.Verifica_Accesso(false); },
                                               [this] { schermo_.Mostra_Intro(); });
                 },
                 [this](const QString& riferimento) { return Scegli_Componente(riferimento); }}) {
    disegno.Collega_Carrello(
        [this](const QString& chiave, const QString& prodotto, const QString& riferimento) {
            return carrello_.Aggiungi_Da_Tavola(chiave, prodotto, riferimento);
        });
}

void Controllo_Ordine::Comando_Carrello() {
    if (!ambiente_.Bottone(KEY_CARELLO_PARZIALE).Pressed) {
        ambiente_.Finestre.Chiudi_Finestra(KEY_CARELLO_PARZIALE);
        return;
    }
    if (!Accesso_O_Intro()) {
        ambiente_.Bottone(KEY_CARELLO_PARZIALE).Pressed = false;
        return;
    }
    ambiente_.Finestre.Mostra_Finestra(KEY_CARELLO_PARZIALE);
    carrello_.Ricarica();
}

void Controllo_Ordine::Prodotto_Cambiato() {
    if (progetto_.Finestra_Carrello_Aperta)
        carrello_.Ricarica();
}

void Controllo_Ordine::Annulla() {
    if (!ambiente_.Occupato && progetto_.Progetto_Aperto)
        carrello_.Annulla();
}

void Controllo_Ordine::Comando_Ordine() {
    if (ambiente_.Bottone(KEY_EVADI_ORDINE).Pressed)
        Visualizza_Evasione_Ordine();
    else
        schermo_.Mostra_Nodo(schermo_.Prodotto_Corrente());
}

void Controllo_Ordine::Visualizza_Evasione_Ordine() {
    if (progetto_.Progetto_Aperto && Accesso_O_Intro()) {
        disegno_.Togli_Tavola();
        carrello_.Aggiorna_Griglia_Evadi();
        ambiente_.Stato.Mostra_In_Main(&Stato_Finestra::Frame_Evadi_ordine);
    }
    schermo_.Aggiorna_Toolbar();
}

void Controllo_Ordine::Ordine_Ridimensionato() {
    if (!ambiente_.Occupato && progetto_.Progetto_Aperto &&
        schermo_.Restitusci_Zona_catalogo() == ZONA_ORDINE)
        carrello_.Aggiorna_Griglia_Evadi();
}

std::optional<Componente_Scelto> Controllo_Ordine::Scegli_Componente(const QString& riferimento) {
    Controllo_Seleziona scelta(ambiente_, schermo_, riferimento);
    progetto_.Finestra_Aggiungi_Aperta = true;
    ambiente_.Finestre.Mostra_Seleziona_Componente(scelta);
    progetto_.Finestra_Aggiungi_Aperta = false;
    return scelta.Scelto();
}

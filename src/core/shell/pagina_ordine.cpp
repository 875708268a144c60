// The cart window and the order screen as the main screen commands them.

#include "core/shell/controllo_principale.h"
#include "core/shell/controllo_seleziona.h"

void Controllo_Principale::Comando_Carrello() {
    if (!Bottone(KEY_CARELLO_PARZIALE).Pressed) {
        Scarica_Carrello();
    } else if (vista_) {
        vista_->Mostra_Finestra_Carrello();
        Carrello().Ricarica();
    }
}

void Controllo_Principale::Comando_Ordine() {
    const QString corrente = progetto_.Key_Prodotto_Corrente;
    if (Bottone(KEY_EVADI_ORDINE).Pressed)
        Visualizza_Evasione_Ordine();
    else if (corrente.isEmpty())
        Consulta_Catalogo(false);
    else if (Bottone(KEY_DISEGNO).Pressed)
        Visualizza_Disegno_Esploso(corrente);
    else
        Seleziona_Prodotto(corrente);
}

void Controllo_Principale::Visualizza_Evasione_Ordine() {
    if (progetto_.Progetto_Aperto) {
        if (disegno_)
            disegno_->Togli_Tavola();
        Carrello().Aggiorna_Griglia_Evadi();
        if (!progetto_.Autentificazione_Corretta()) {
            Mostra_Intro();
        } else {
            stato_.Mostra_In_Main(&Stato_Finestra::Frame_Evadi_ordine);
        }
    }
    Aggiorna_Toolbar();
}

void Controllo_Principale::Ordine_Ridimensionato() {
    if (!occupato_ && progetto_.Progetto_Aperto && Restitusci_Zona_catalogo() == ZONA_ORDINE)
        Carrello().Aggiorna_Griglia_Evadi();
}

void Controllo_Principale::Ricarica_Carrello() {
    if (progetto_.Finestra_Carrello_Aperta)
        Carrello().Ricarica();
}

void Controllo_Principale::Scarica_Carrello() {
    if (progetto_.Finestra_Carrello_Aperta && vista_)
        vista_->Chiudi_Finestra_Carrello();
}

void Controllo_Principale::Carrello_Caricato(bool caricato) {
    progetto_.Finestra_Carrello_Aperta = caricato;
    if (caricato)
        return;
    Bottone(KEY_CARELLO_PARZIALE).Pressed = false;
    Mostra();
}

bool Controllo_Principale::Mostra_Seleziona_Componente(const QString& riferimento) {
    if (!vista_)
        return false;
    Controllo_Seleziona scelta(*this, riferimento);
    progetto_.Finestra_Aggiungi_Aperta = true;
    vista_->Mostra_Seleziona_Componente(scelta);
    progetto_.Finestra_Aggiungi_Aperta = false;
    if (scelta.Esito() && Restitusci_Zona_catalogo() == ZONA_ORDINE)
        Visualizza_Evasione_Ordine();
    return scelta.Esito();
}

#include "core/shell/carrello_principale.h"

#include "core/shell/controllo_principale.h"

void Carrello_Principale::Collega(Lavagna& lavagna, Controllo_Disegno& disegno) {
    lavagna_ = &lavagna;
    disegno_ = &disegno;
    disegno.Collega_Carrello(this);
}

void Carrello_Principale::Scollega() {
    lavagna_ = nullptr;
    disegno_ = nullptr;
}

// --- what the cart asks
// ------------------------------------------------------------------------------------------

Contesto_Carrello Carrello_Principale::Contesto() {
    return schermo_.Progetto().Carrello([this] { return schermo_.Verifica_Accesso(false); },
                                        [this] { schermo_.Mostra_Intro(); });
}

Messaggi& Carrello_Principale::Desktop() {
    return schermo_.Progetto().Desktop().messaggi;
}

QString Carrello_Principale::Prodotto_Corrente() const {
    return schermo_.Progetto().Key_Prodotto_Corrente;
}

qint16 Carrello_Principale::Restitusci_Zona_catalogo() const {
    return schermo_.Restitusci_Zona_catalogo();
}

bool Carrello_Principale::Carrello_Aperto() const {
    return schermo_.Progetto().Finestra_Carrello_Aperta;
}

void Carrello_Principale::Visualizza_Evasione_Ordine() {
    schermo_.Visualizza_Evasione_Ordine();
}

void Carrello_Principale::Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                                       const QString& riferimento) {
    if (disegno_)
        disegno_->Evidenzia_Componente_Grafico(prodotto, codice, riferimento);
}

void Carrello_Principale::Mostra_Riga_Altrove(const Class_Elenco& riga) {
    schermo_.Evidenzia_In_Distinta(riga.Codice);
}

bool Carrello_Principale::Mostra_Seleziona_Componente(const QString&, const QString&,
                                                      const QString& riferimento) {
    return schermo_.Mostra_Seleziona_Componente(riferimento);
}

void Carrello_Principale::Mostra_Immagine(const QString& percorso) {
    schermo_.Mostra_Immagine(percorso);
}

// --- the drawing, as the cart paints on it
// -----------------------------------------------------------------------

void Carrello_Principale::Colora(const QString& nome, quint32 colore) {
    if (!lavagna_)
        return;
    lavagna_->Segna_HotSpot(nome);
    lavagna_->Colora_HotSpot(nome, colore);
}

void Carrello_Principale::Decolora(const QString& nome) {
    if (disegno_)
        disegno_->Decolora_componente_in_tavola_grafica(nome);
}

qint16 Carrello_Principale::Stato(const QString& nome) const {
    return lavagna_ ? lavagna_->Stato_HotSpot(nome) : qint16{1};
}

// --- what the drawing asks
// ---------------------------------------------------------------------------------------

bool Carrello_Principale::Esiste_Prodotto(const QString& prodotto) const {
    return schermo_.Progetto().Prodotti_Selezionati.Esiste(prodotto);
}

bool Carrello_Principale::Esiste_Riga(const QString& prodotto, const QString& riferimento,
                                      const QString& codice) const {
    return Cerca_Riga(schermo_.Progetto().Prodotti_Selezionati, prodotto,
                      Chiave_Elenco(riferimento, codice)) != nullptr;
}

bool Carrello_Principale::Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                                             const QString& riferimento) {
    const bool esito = controllo_.Aggiungi_Da_Tavola(chiave, prodotto, riferimento);
    if (esito)
        Colora(chiave, BLU);
    return esito;
}

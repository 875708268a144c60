#include "core/cart/controllo_carrello.h"

#include "core/cart/modifica.h"

Aggiunta_Carrello Controllo_Carrello::Aggiunta() const {
    const Contesto_Carrello contesto = vicini_.Contesto();
    // The context's members are references to what outlives it.
    // cppcheck-suppress returnDanglingLifetime
    return {contesto.DB, contesto.Numeri_, contesto.Filtri_, contesto.Selezionati};
}

void Controllo_Carrello::Con_Messaggio(const std::function<void()>& lavoro) {
    try {
        lavoro();
    } catch (const std::exception& errore) {
        vicini_.messaggi.Mostra(QString::fromUtf8(errore.what()), Icona::Critica);
    }
}

// --- adding ------------------------------------------------------------------------------------------------

/// The faces that are up follow.
void Controllo_Carrello::Mostra_Aggiunta() {
    if (vicini_.aperto)
        Ricarica();
    if (schermo_.Restitusci_Zona_catalogo() == ZONA_ORDINE)
        schermo_.Visualizza_Evasione_Ordine();
}

void Controllo_Carrello::Aggiungi_Componente_Carrello_Evidenzia_Tavola(const QString& prodotto,
                                                                       const QString& codice,
                                                                       const QString& riferimento) {
    Aggiungi([&] {
        Aggiunta().Aggiungi_Componente_Carrello_Evidenzia_Tavola(vicini_.tavola, prodotto, codice,
                                                                 riferimento);
    });
}

bool Controllo_Carrello::Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                                            const QString& riferimento) {
    bool esito = false;
    Aggiungi([&] { esito = Aggiunta().Aggiungi_Da_Tavola(chiave, prodotto, riferimento, vicini_.Scegli); });
    return esito;
}

void Controllo_Carrello::Aggiungi(const std::function<void()>& lavoro) {
    Con_Messaggio([&] {
        const Collection_Prodotti_Sele& selezionati = vicini_.Contesto().Selezionati;
        if (const auto* cambio = cronologia_.Esegui(selezionati, lavoro))
            Scrivi_Nel_Carrello(cambio->Prodotto, cambio->Riga);
        Mostra_Aggiunta();
    });
}

/// The status bar tells how many of a part are in the cart now.
void Controllo_Carrello::Scrivi_Nel_Carrello(const QString& prodotto, const Class_Elenco& riga) {
    const Contesto_Carrello contesto = vicini_.Contesto();
    const Class_Elenco* ora = Cerca_Riga(contesto.Selezionati, prodotto, riga.Key);
    schermo_.Scrivi_Pannello((riga.Codice == NESSUN_CODICE ? riga.Riferimento : riga.Codice) +
                             QStringLiteral(": ") + contesto.Numeri_.Testo(ora ? ora->Quantita : 0) + u' ' +
                             contesto.Traduzioni.Item(QStringLiteral("NEL_CARRELLO/in the cart")).Testo);
}

void Controllo_Carrello::Annulla() {
    const auto cambio = cronologia_.Prendi();
    if (!cambio)
        return;
    Nascondi_Caselle(Faccia::Prodotto);
    Nascondi_Caselle(Faccia::Ordine);
    const Collection_Prodotti_Sele& selezionati = vicini_.Contesto().Selezionati;
    const bool in_mostra = cambio->Prodotto == schermo_.Prodotto_Corrente();
    if (!cambio->Nuova) {
        Ripristina(selezionati, *cambio);
        if (in_mostra)
            Ricolora_Selezionati(selezionati, cambio->Prodotto, vicini_.tavola);
    } else if (in_mostra) {
        ::Elimina_Riga(selezionati, cambio->Prodotto, cambio->Riga.Key, vicini_.tavola);
    } else {
        ::Elimina_Riga(selezionati, cambio->Prodotto, cambio->Riga.Key);
    }
    Mostra_Aggiunta();
    Scrivi_Nel_Carrello(cambio->Prodotto, cambio->Riga);
}

// --- fills -------------------------------------------------------------------------------------------------

void Controllo_Carrello::Riempi(Faccia faccia, const QString& chiave, bool ricarica_righe) {
    Nascondi(faccia, Casella::Note);
    Faccia_Carrello& f = Di(faccia);
    f.Colonne =
        Visualizza_Griglia_Carello_Prodotto(vicini_.Contesto(), chiave, ricarica_righe, f.Griglia_, f.Tag);
}

void Controllo_Carrello::Ricarica() {
    Riempi(Faccia::Prodotto, schermo_.Prodotto_Corrente(), true);
}

void Controllo_Carrello::Ridimensionata() {
    Nascondi_Caselle(Faccia::Prodotto);
    if (!schermo_.Prodotto_Corrente().isEmpty()) {
        Riempi(Faccia::Prodotto, schermo_.Prodotto_Corrente(), false);
        return;
    }
    carrello_.Griglia_.Nascondi();
}

void Controllo_Carrello::Aggiorna_Griglia_Evadi() {
    Riempi(Faccia::Ordine, TUTTI_I_PRODOTTI, true);
}

// --- clicks ------------------------------------------------------------------------------------------------

Puntatore Controllo_Carrello::Puntatore_Su(Faccia faccia, int riga, int colonna) const {
    return Puntatore_Carrello(Di(faccia).Griglia_, Di(faccia).Tag, faccia, riga, colonna);
}

Azione_Cella Controllo_Carrello::Azione(Faccia faccia, int riga, int colonna) const {
    return Clic_Carrello(Di(faccia).Griglia_, Di(faccia).Tag, faccia, riga, colonna);
}

void Controllo_Carrello::Aziona_Cella(Faccia faccia, int riga, int colonna) {
    Nascondi_Caselle(faccia);
    Esegui(faccia, Azione(faccia, riga, colonna));
}

void Controllo_Carrello::Tasto_Cella(Faccia faccia, int riga, int colonna) {
    Nascondi_Caselle(faccia);
    Azione_Cella azione = Azione(faccia, riga, colonna);
    for (int c = 0; azione.Tipo == Azione_Cella::Genere::Elimina && c < Di(faccia).Griglia_.Cols(); ++c)
        if (const Azione_Cella altra = Azione(faccia, riga, c); altra.Tipo == Azione_Cella::Genere::Qta)
            azione = altra;
    if (azione.Tipo != Azione_Cella::Genere::Elimina)
        Esegui(faccia, azione);
}

void Controllo_Carrello::Elimina_Riga(Faccia faccia, int riga) {
    Nascondi_Caselle(faccia);
    if (const Azione_Cella azione = Azione(faccia, riga, 0); azione.Tipo == Azione_Cella::Genere::Elimina)
        Esegui(faccia, azione);
}

bool Controllo_Carrello::Prossima_Cella(Faccia faccia, bool avanti, int& riga, int& colonna) const {
    const int colonne = Di(faccia).Griglia_.Cols(), fine = Di(faccia).Griglia_.Rows() * colonne;
    const int passo = avanti ? 1 : -1;
    for (int i = riga * colonne + colonna + passo; i >= colonne && i < fine; i += passo) {
        const auto tipo = Azione(faccia, i / colonne, i % colonne).Tipo;
        if (tipo == Azione_Cella::Genere::Qta || tipo == Azione_Cella::Genere::Note) {
            riga = i / colonne;
            colonna = i % colonne;
            return true;
        }
    }
    return false;
}

void Controllo_Carrello::Esegui(Faccia faccia, const Azione_Cella& azione) {
    Esegui_Azione(azione, vicini_.Contesto(),
                  {.Mostra_Immagine = [this](const QString& percorso) { schermo_.Mostra_Immagine(percorso); },
                   .Evidenzia =
                       [this](const Azione_Cella& a) {
                           schermo_.Evidenzia_Componente_Grafico(schermo_.Prodotto_Corrente(), a.Codice,
                                                                 a.Riferimento);
                       },
                   .Elimina = [=, this](const Azione_Cella& a) { Elimina(faccia, a); },
                   .Modifica = [=, this](const Azione_Cella& a) { Modifica(faccia, a); }});
}

void Controllo_Carrello::Elimina(Faccia faccia, const Azione_Cella& azione) {
    Collection_Prodotti_Sele& selezionati = vicini_.Contesto().Selezionati;
    if (faccia == Faccia::Ordine) {
        if (!cronologia_.Esegui(selezionati,
                                [&] { ::Elimina_Riga(selezionati, azione.Prodotto, azione.Chiave); }))
            return;
        Aggiorna_Griglia_Evadi();
        if (vicini_.aperto)
            Ricarica();
        return;
    }
    if (!cronologia_.Esegui(selezionati, [&] {
            ::Elimina_Riga(selezionati, schermo_.Prodotto_Corrente(), azione.Chiave, vicini_.tavola);
        }))
        return;
    Ricarica();
    if (schermo_.Restitusci_Zona_catalogo() == ZONA_ORDINE)
        schermo_.Visualizza_Evasione_Ordine();
}

// --- editing -----------------------------------------------------------------------------------------------

void Controllo_Carrello::Modifica(Faccia faccia, const Azione_Cella& azione) {
    Faccia_Carrello& f = Di(faccia);
    const Casella casella = azione.Tipo == Azione_Cella::Genere::Qta ? Casella::Qta : Casella::Note;
    const QString prodotto = faccia == Faccia::Ordine ? azione.Prodotto : schermo_.Prodotto_Corrente();
    const QString testo = f.Griglia_.TextMatrix(azione.Riga, azione.Colonna);
    f.Di(casella) = {prodotto, azione.Chiave, testo, azione.Riga, azione.Colonna, true};
    if (const Class_Elenco* riga = Cerca_Riga(vicini_.Contesto().Selezionati, prodotto, azione.Chiave)) {
        f.Di(casella).Nota_Prima = riga->Nota;
        f.Di(casella).Quantita_Prima = riga->Quantita;
    }
    if (f.Vista)
        f.Vista->Mostra_Casella(casella, azione.Riga, azione.Colonna, testo);
    if (faccia == Faccia::Prodotto)
        Evidenzia_Riga_Carrello(azione.Chiave);
}

void Controllo_Carrello::Evidenzia_Riga_Carrello(const QString& chiave) {
    const Class_Elenco* riga =
        Cerca_Riga(vicini_.Contesto().Selezionati, schermo_.Prodotto_Corrente(), chiave);
    if (riga == nullptr)
        return;
    Ricolora_Selezionati(vicini_.Contesto().Selezionati, schermo_.Prodotto_Corrente(), vicini_.tavola);
    vicini_.tavola.Colora(riga->Chiave_Grafica, VERDE);
    schermo_.Evidenzia_In_Distinta(riga->Codice);
}

void Controllo_Carrello::Testo_Cambiato(Faccia faccia, Casella casella, const QString& testo) {
    Di(faccia).Di(casella).Testo = testo;
    if (casella == Casella::Qta)
        Quantita_Cambiata(faccia, testo);
    else
        Nota_Cambiata(faccia, testo);
}

void Controllo_Carrello::Quantita_Cambiata(Faccia faccia, const QString& testo) {
    Faccia_Carrello& f = Di(faccia);
    Con_Messaggio([&] {
        const Aggiunta_Carrello carrello = Aggiunta();
        if (Modifica_Quantita(carrello, f.Qta.Prodotto, f.Qta.Chiave, testo))
            Mostra_Quantita(faccia, carrello);
        const Class_Elenco* riga = Cerca_Riga(carrello.Selezionati, f.Qta.Prodotto, f.Qta.Chiave);
        if (riga && f.Vista)
            f.Vista->Spiega_Casella(Casella::Qta,
                                    carrello.Numeri_.Numero_Semplice(testo) == riga->Quantita
                                        ? QString()
                                        : QStringLiteral("= ") + carrello.Numeri_.Testo(riga->Quantita));
    });
}

/// The line that is edited has another quantity: both its face and, later, the other one follow.
void Controllo_Carrello::Mostra_Quantita(Faccia faccia, const Aggiunta_Carrello& carrello) {
    Faccia_Carrello& f = Di(faccia);
    const float quantita = Cerca_Riga(carrello.Selezionati, f.Qta.Prodotto, f.Qta.Chiave)->Quantita;
    f.Griglia_.TextMatrix(f.Qta.riga, f.Qta.colonna, carrello.Numeri_.Testo(quantita));
    const int prima = f.Vista ? f.Vista->TopRow() : 1;
    f.In_Riempimento = true;
    if (faccia == Faccia::Ordine)
        Aggiorna_Griglia_Evadi();
    else
        Ricarica();
    if (f.Vista)
        f.Vista->TopRow(prima);
    f.In_Riempimento = false;
    f.Modificato = true;
}

void Controllo_Carrello::Annulla_Casella(Faccia faccia, Casella casella) {
    const auto& stato = Di(faccia).Di(casella);
    if (!stato.Visibile)
        return;
    if (casella == Casella::Note)
        return Nota_Cambiata(faccia, stato.Nota_Prima);
    Con_Messaggio([&] {
        const Aggiunta_Carrello carrello = Aggiunta();
        Class_Elenco* riga = Cerca_Riga(carrello.Selezionati, stato.Prodotto, stato.Chiave);
        if (riga == nullptr || riga->Quantita == stato.Quantita_Prima)
            return;
        riga->Quantita = stato.Quantita_Prima;
        Mostra_Quantita(faccia, carrello);
    });
}

void Controllo_Carrello::Nota_Cambiata(Faccia faccia, const QString& testo) {
    Faccia_Carrello& f = Di(faccia);
    Con_Messaggio([&] {
        if (!Modifica_Nota(vicini_.Contesto().Selezionati, f.Note.Prodotto, f.Note.Chiave, testo))
            return;
        f.Griglia_.TextMatrix(f.Note.riga, f.Note.colonna, testo);
        f.Modificato = true;
        f.Griglia_.Segnala_Cambio();
    });
}

void Controllo_Carrello::Text_Nota_Ordine_Cambiato() {
    Nota_Cambiata(Faccia::Ordine, ordine_.Note.Testo);
}

void Controllo_Carrello::Scorsa(Faccia faccia) {
    if (!Di(faccia).In_Riempimento)
        Nascondi_Caselle(faccia);
}

void Controllo_Carrello::Fuoco_Perso(Faccia faccia, Casella casella) {
    Faccia_Carrello& f = Di(faccia);
    if (f.Modificato && faccia == Faccia::Ordine && vicini_.aperto) {
        f.Modificato = false;
        Ricarica();
    } else if (f.Modificato && faccia == Faccia::Prodotto &&
               schermo_.Restitusci_Zona_catalogo() == ZONA_ORDINE) {
        f.Modificato = false;
        schermo_.Visualizza_Evasione_Ordine();
    }
    Nascondi(faccia, casella);
}

void Controllo_Carrello::Nascondi(Faccia faccia, Casella casella) {
    Faccia_Carrello& f = Di(faccia);
    f.Di(casella).Visibile = false;
    if (f.Vista)
        f.Vista->Nascondi_Casella(casella);
}

void Controllo_Carrello::Nascondi_Caselle(Faccia faccia) {
    Nascondi(faccia, Casella::Note);
    Nascondi(faccia, Casella::Qta);
}

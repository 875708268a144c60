#include "core/drawing/controllo_disegno.h"

#include "core/base/testo.h"
#include "core/drawing/hotspot.h"

namespace {

constexpr qint16 UNA_VOLTA = 1;  ///< count of every canvas command

void Modo_Mouse(Lavagna& lavagna, bool zoom_win_premuto) {
    lavagna.Esegui(zoom_win_premuto ? QStringLiteral("ZOOM_WINDOWS") : QStringLiteral("SELEZIONA"),
                   UNA_VOLTA);
}

void Ferma_Pagina(Lavagna& lavagna) {
    lavagna.Imposta_Opzione(QStringLiteral("LAVAGNA_FISSA"), true);
}

}  // namespace

Controllo_Disegno::Controllo_Disegno(Vicini vicini) : vicini_(vicini), lavagna_(vicini.lavagna) {
    Lavagna::Eventi& evento = lavagna_.Evento;
    evento.Click_Su_HotSpot = [this](const QString& nome, const QString& stringa) {
        return Click_HotSpot(nome, stringa);
    };
    // Handled, whatever comes of it.
    evento.Doppio_Click_Su_HotSpot = [this](const QString& nome, const QString& stringa) {
        Click_HotSpot(nome, stringa);
        return true;
    };
    evento.Mouse_Su_HotSpot = [this](qint16 stato, const QString& nome, const QString& stringa) {
        Mouse_Su_HotSpot(stato, nome, stringa);
    };
    evento.Suggerimento = [this](const QString& stringa) {
        const QString link = Risolvi_HotSpot(stringa);
        return link.isEmpty() ? Key_Da_Nodo(stringa) : Nome_Prodotto(link);
    };
    evento.Mouse_Fuori = [this](qint16, qint16, double, double) { Spegni_Transitoria(); };
}

// --- the page
// ----------------------------------------------------------------------------------------------------

bool Controllo_Disegno::Carica_Tavola(const QString& key) {
    const unsigned turno = ++turno_;
    vicini_.sistema.Esegui_Eventi();
    if (turno != turno_)
        return false;
    const QString tavola = Trim(vicini_.DB.Restituisci_NomeTavola_Prodotto(Con_Apici_Raddoppiati(key)));
    if (tavola.isEmpty()) {
        lavagna_.Visibile(false);
        return true;
    }
    lavagna_.Svuota();
    lavagna_.Carica_Layout(vicini_.file.Scompatta_File_Compattato(tavola), 0);
    // The border of a selected object takes the colour of its filling.
    if (const QVariant riempimento = lavagna_.Leggi_Opzione(QStringLiteral("PICKBACKCOLOR"));
        riempimento.isValid())
        lavagna_.Imposta_Opzione(QStringLiteral("PICKBORDERCOLOR"), riempimento);
    Ferma_Pagina(lavagna_);
    Modo_Mouse(lavagna_, false);
    vicini_.sistema.Esegui_Eventi();
    if (turno != turno_)
        return false;
    lavagna_.Ridisegna(true);
    lavagna_.Visibile(true);
    return true;
}

void Controllo_Disegno::Togli_Tavola() {
    ++turno_;
    lavagna_.Svuota();
    lavagna_.Visibile(false);
}

void Controllo_Disegno::Zoom_Pagina(bool a_finestra) {
    lavagna_.Esegui(QStringLiteral("ZOOM_PAGINA"), UNA_VOLTA);
    Modo_Mouse(lavagna_, a_finestra);
}

void Controllo_Disegno::Zoom_Finestra(bool a_finestra) {
    Modo_Mouse(lavagna_, a_finestra);
    Ferma_Pagina(lavagna_);
}

void Controllo_Disegno::Zoom(const QString& comando) {
    lavagna_.Esegui(comando, UNA_VOLTA);
    Ferma_Pagina(lavagna_);
}

void Controllo_Disegno::Imposta_Lampeggio() {
    const QString valore = vicini_.DB.System_Leggi_Key(QStringLiteral("LAMPEGGIO_COMPONENTI"));
    const bool lampeggia = valore.isEmpty() || valore == u"SI";
    lavagna_.Imposta_Opzione(QStringLiteral("LAMPEGGIA"),
                             lampeggia ? QStringLiteral("SI") : QStringLiteral("NO"));
}

// --- highlights
// --------------------------------------------------------------------------------------------------

void Controllo_Disegno::Evidenzia_Componente_Grafico(const QString&, const QString& codice,
                                                     const QString& riferimento) {
    lavagna_.Azzera_Evidenziazione({});
    // Kept: the cart is asked for the product on show, whatever product the row names.
    const QString corrente = vicini_.schermo.Prodotto_Corrente();
    bool fisso = true;
    if (vicini_.selezionati.Esiste(corrente))
        // What is in the cart is lit for the moment only, so that its blue comes back.
        fisso = !Cerca_Riga(vicini_.selezionati, corrente, Chiave_Elenco(riferimento, codice)) &&
                lavagna_.Stato_HotSpot(riferimento) == 1;
    Evidenzia_componente_in_tavola_grafica(riferimento == u"-" ? codice : riferimento, fisso);
}

void Controllo_Disegno::Evidenzia_componente_in_tavola_grafica(const QString& key, bool fisso) {
    for (const QString& nome : Nomi_Sulla_Tavola(key)) {
        if (fisso)
            lavagna_.Colora_HotSpot(nome, VERDE);
        else
            lavagna_.Evidenzia_HotSpot(nome, VERDE);
    }
    transitoria_ = true;
}

void Controllo_Disegno::Decolora_componente_in_tavola_grafica(const QString& key) {
    for (const QString& nome : Nomi_Sulla_Tavola(key)) {
        if (lavagna_.Stato_HotSpot(nome) == 0)
            lavagna_.Togli_Segno_HotSpot(nome);
        lavagna_.Decolora_HotSpot(nome);
    }
}

void Controllo_Disegno::Colora(const QString& nome, Colore colore) {
    lavagna_.Segna_HotSpot(nome);
    lavagna_.Colora_HotSpot(nome, colore);
}

void Controllo_Disegno::Spegni_Transitoria() {
    if (transitoria_)
        lavagna_.Azzera_Evidenziazione({});
    transitoria_ = false;
}

// --- hotspots
// ----------------------------------------------------------------------------------------------------

QString Controllo_Disegno::Risolvi_HotSpot(const QString& stringa) const {
    const Nodo_Visibile* nodo = vicini_.albero.SelectedItem();
    return ::Risolvi_HotSpot(vicini_.DB, stringa,
                             {vicini_.schermo.Prodotto_Corrente(), vicini_.schermo.Filtri_Correnti().Mercato,
                              nodo && nodo->Parent ? nodo->Parent->Key : QString()});
}

bool Controllo_Disegno::Click_HotSpot(const QString&, const QString& stringa) {
    if (Trim(stringa).isEmpty())
        return false;
    const QString link = Risolvi_HotSpot(stringa);
    bool fatto = true;
    // A link to what the filters hide stands for a component.
    if (link.isEmpty() || !vicini_.albero.Esiste_Nodo_Albero(link))
        fatto = Usa_Componente(stringa);
    else
        Segui_Link(link);
    lavagna_.Azzera_Evidenziazione({});
    return fatto;
}

void Controllo_Disegno::Segui_Link(const QString& key) {
    lavagna_.Ferma_Azione();
    vicini_.schermo.Seleziona_Nodo_Albero(key);
    vicini_.schermo.Visualizza_Disegno_Esploso(key);
    vicini_.schermo.Aggiorna_Toolbar();
}

bool Controllo_Disegno::Usa_Componente(const QString& stringa) {
    const bool fatto =
        aggiungi_ && aggiungi_(stringa, vicini_.schermo.Prodotto_Corrente(), Key_Da_Nodo(stringa));
    if (fatto)
        Colora(stringa, BLU);
    return fatto;
}

QString Controllo_Disegno::Nome_Prodotto(const QString& key) const {
    const QString key_sql = Con_Apici_Raddoppiati(key);
    const QString nome =
        vicini_.DB.Restituisci_Traduzione_Prodotto(key_sql, vicini_.schermo.Filtri_Correnti().Lingua);
    // A product without a name in this language comes back as it was asked.
    return nome == key_sql ? key : nome;
}

void Controllo_Disegno::Mouse_Su_HotSpot(qint16 stato, const QString& nome, const QString& stringa) {
    Schermo& schermo = vicini_.schermo;
    if (Trim(nome).isEmpty()) {
        schermo.Pulisci_Barra_Stato();
        return;
    }
    if (stato != 0) {
        schermo.Pulisci_Barra_Stato();
        Spegni_Transitoria();
        return;
    }
    Evidenzia_componente_in_tavola_grafica(stringa, false);
    if (const QString link = Risolvi_HotSpot(stringa); !link.isEmpty()) {
        schermo.Scrivi_Pannello(QStringLiteral("Link a : ") + Nome_Prodotto(link));
        return;
    }
    schermo.Pulisci_Barra_Stato();
    schermo.Evidenzia_In_Distinta(Key_Da_Nodo(stringa));
}

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
        return Click_Su_HotSpot(nome, stringa);
    };
    evento.Doppio_Click_Su_HotSpot = [this](const QString& nome, const QString& stringa) {
        return Doppio_Click_Su_HotSpot(nome, stringa);
    };
    evento.Mouse_Su_HotSpot = [this](qint16 stato, const QString& nome, const QString& stringa) {
        Mouse_Su_HotSpot(stato, nome, stringa);
    };
    evento.Mouse_Fuori = [this](qint16, qint16, double, double) { Mouse_Fuori(); };
}

Controllo_Disegno::~Controllo_Disegno() {
    lavagna_.Evento = {};
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

void Controllo_Disegno::Comando_Zoom(const QString& key, bool zoom_win_premuto) {
    if (key == u"KEY_ZOOM_ALL") {
        lavagna_.Esegui(QStringLiteral("ZOOM_PAGINA"), UNA_VOLTA);
        Modo_Mouse(lavagna_, zoom_win_premuto);
        return;
    }
    if (key == u"KEY_ZOOM_WIN")
        Modo_Mouse(lavagna_, zoom_win_premuto);
    else if (key == u"KEY_ZOOM_PIU")
        lavagna_.Esegui(QStringLiteral("ZOOM_PIU"), UNA_VOLTA);
    else if (key == u"KEY_ZOOM_MENO")
        lavagna_.Esegui(QStringLiteral("ZOOM_MENO"), UNA_VOLTA);
    else
        return;
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
    const QString corrente = vicini_.pagina.Prodotto_Corrente();
    bool fisso = true;
    if (carrello_ && carrello_->Esiste_Prodotto(corrente))
        // What is in the cart is lit for the moment only, so that its blue comes back.
        fisso = !carrello_->Esiste_Riga(corrente, riferimento, codice) &&
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

void Controllo_Disegno::Spegni_Transitoria() {
    if (transitoria_)
        lavagna_.Azzera_Evidenziazione({});
    transitoria_ = false;
}

// --- hotspots
// ----------------------------------------------------------------------------------------------------

QString Controllo_Disegno::Risolvi_HotSpot(const QString& stringa) const {
    const Pagina_Disegno& pagina = vicini_.pagina;
    return ::Risolvi_HotSpot(
        vicini_.DB, stringa,
        {pagina.Prodotto_Corrente(), pagina.Filtri_Correnti().Mercato, pagina.Padre_Nodo_Selezionato()});
}

bool Controllo_Disegno::Click_HotSpot(const QString&, const QString& stringa) {
    if (Trim(stringa).isEmpty())
        return false;
    const QString link = Risolvi_HotSpot(stringa);
    bool fatto = true;
    // A link to what the filters hide stands for a component.
    if (link.isEmpty() || !vicini_.pagina.Esiste_Nodo_Albero(link))
        fatto = Usa_Componente(stringa);
    else
        Segui_Link(link);
    lavagna_.Azzera_Evidenziazione({});
    return fatto;
}

void Controllo_Disegno::Segui_Link(const QString& key) {
    lavagna_.Ferma_Azione();
    vicini_.finestra.Seleziona_Nodo_Albero(key);
    vicini_.finestra.Visualizza_Disegno_Esploso(key);
    vicini_.finestra.Aggiorna_Toolbar();
}

bool Controllo_Disegno::Usa_Componente(const QString& stringa) {
    const QString valore = Key_Da_Nodo(stringa);
    if (carrello_)
        return carrello_->Aggiungi_Da_Tavola(stringa, vicini_.pagina.Prodotto_Corrente(), valore);
    vicini_.pagina.Evidenzia_In_Distinta(valore);
    return false;
}

QString Controllo_Disegno::Nome_Prodotto(const QString& key) const {
    const QString key_sql = Con_Apici_Raddoppiati(key);
    const QString nome =
        vicini_.DB.Restituisci_Traduzione_Prodotto(key_sql, vicini_.pagina.Filtri_Correnti().Lingua);
    // A product without a name in this language comes back as it was asked.
    return nome == key_sql ? key : nome;
}

// --- events of the canvas
// ----------------------------------------------------------------------------------------

void Controllo_Disegno::Mouse_Su_HotSpot(qint16 stato, const QString& nome, const QString& stringa) {
    Finestra_Principale& finestra = vicini_.finestra;
    if (Trim(nome).isEmpty()) {
        finestra.Pulisci_Barra_Stato();
        return;
    }
    if (stato != 0) {
        finestra.Pulisci_Barra_Stato();
        Spegni_Transitoria();
        return;
    }
    Evidenzia_componente_in_tavola_grafica(stringa, false);
    const QString link = Risolvi_HotSpot(stringa);
    if (!link.isEmpty()) {
        const QString testo = QStringLiteral("Link a : ") + Nome_Prodotto(link);
        vicini_.pagina.Scrivi_Pannello(testo);
        if (dettaglio_) {
            dettaglio_->Mostra_Riferimento(stringa);
            dettaglio_->Scrivi_Banda(testo);
        }
        return;
    }
    finestra.Pulisci_Barra_Stato();
    const QString valore = Key_Da_Nodo(stringa);
    if (dettaglio_)
        dettaglio_->Mostra_Riferimento(valore);
    vicini_.pagina.Evidenzia_In_Distinta(valore);
}

void Controllo_Disegno::Mouse_Fuori() {
    Spegni_Transitoria();
}

bool Controllo_Disegno::Click_Su_HotSpot(const QString& nome, const QString& stringa) {
    return Click_HotSpot(nome, stringa);
}

bool Controllo_Disegno::Doppio_Click_Su_HotSpot(const QString& nome, const QString& stringa) {
    Click_HotSpot(nome, stringa);
    return true;
}

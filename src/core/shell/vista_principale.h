#pragma once

#include <QString>

#include "core/base/porte.h"
#include "core/drawing/lavagna.h"
#include "core/localisation/scelta_lingua.h"
#include "core/navigation/scheda.h"
#include "core/shell/stato_finestra.h"

class Controllo_Seleziona;

/// What the controller of the main screen asks of the window that shows it.
class Vista_Principale {
  public:
    virtual ~Vista_Principale() = default;
    /// Shows frames, labels, buttons and pointer as they stand in the state.
    virtual void Mostra(const Stato_Finestra& stato) = 0;
    /// The visible tree, its title or the list of captions were rebuilt.
    virtual void Albero_Ricostruito() = 0;
    /// Selection or open nodes of the tree changed by program; makes the selected node visible.
    virtual void Albero_Aggiornato() = 0;
    /// The help line of the status bar, and nothing else, changed.
    virtual void Mostra_Pannello(const QString& testo) = 0;
    /// Takes over the content of the product sheet.
    virtual void Mostra_Scheda(const Scheda_Prodotto& scheda) = 0;
    /// Shows a picture file in `Form_visualizza_Immagine`, beside the main window.
    virtual void Mostra_Immagine(const QString& percorso) = 0;
    /// Shows `Form_Carrello_Prodotto`, not modal; loads it when it isn't up.
    virtual void Mostra_Finestra_Carrello() = 0;
    /// Unloads it, if it is up.
    virtual void Chiudi_Finestra_Carrello() = 0;
    /// The choice between several components, a modal window; back when it is closed.
    virtual void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) = 0;
    /// The canvas of the product view; it is there as long as the window.
    virtual Lavagna& Tavola() = 0;
    /// Size of a picture file in pixels; none when it can't be shown.
    virtual std::optional<QSizeF> Misura_Foto(const QString& percorso) const = 0;
    /// Applies the text catalogue to the window.
    virtual void Carica_Testi_Finestra() = 0;
    /// Data and pictures of the home page.
    virtual void Carica_Dati_Home() = 0;
    /// The languages of the home page, offered while no catalogue is open.
    virtual void Carica_Lingue_Home(const Elenco_Lingue& lingue) = 0;
    /// The log-in, a modal dialog; back when it is closed.
    virtual void Mostra_Autentificazione() = 0;
    /// The choice of language and market, a modal dialog; back when it is closed.
    virtual void Mostra_Lingua_Mercato() = 0;
    virtual void Massimizza() = 0;
    /// Inner height less toolbar and status bar, in twips.
    virtual int Altezza_Interna() const = 0;
    /// File dialog for a package; "" when cancelled.
    virtual QString Scegli_Pacchetto() = 0;
    /// Text of the serial-number field.
    virtual QString Text_Matricola() const = 0;
    /// Progress of long work, shown in the status bar.
    virtual Avanzamento& Barra_Avanzamento() = 0;
};

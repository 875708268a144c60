#pragma once

#include <QSizeF>
#include <QString>
#include <optional>

#include "core/base/porte.h"
#include "core/drawing/lavagna.h"
#include "core/localisation/scelta_lingua.h"
#include "core/navigation/scheda.h"
#include "core/shell/stato_finestra.h"

class Controllo_Seleziona;

/// What the rooms ask of the main window.
class Vista_Principale {
  public:
    virtual ~Vista_Principale() = default;
    /// Shows frames, labels, buttons and pointer as they stand in the state.
    virtual void Mostra(const Stato_Finestra& stato) = 0;
    /// The help line of the status bar, and nothing else, changed.
    virtual void Mostra_Pannello(const QString& testo) = 0;
    /// The visible tree, its title or the list of captions were rebuilt.
    virtual void Albero_Ricostruito() = 0;
    /// Selection or open nodes of the tree changed by program; makes the selected node visible.
    virtual void Albero_Aggiornato() = 0;
    /// Takes over the content of the product sheet.
    virtual void Mostra_Scheda(const Scheda_Prodotto& scheda) = 0;
    /// Data and pictures of the home page; the languages that it offers, none while a catalogue is open.
    virtual void Carica_Home(const std::optional<Elenco_Lingue>& lingue) = 0;
    /// Applies the text catalogue to all windows that are up.
    virtual void Carica_Testi() = 0;
    virtual void Massimizza() = 0;
    /// Inner height less toolbar and status bar, in twips.
    virtual int Altezza_Interna() const = 0;
    /// Size of a picture file in pixels; none when it can't be shown.
    virtual std::optional<QSizeF> Misura_Foto(const QString& percorso) const = 0;
    /// File dialog for a package; "" when cancelled.
    virtual QString Scegli_Pacchetto() = 0;
    /// Progress of long work, shown in the status bar.
    virtual Avanzamento& Barra_Avanzamento() = 0;
};

/// What the rooms ask of the windows beside and over the main one.
class Vista_Finestre {
  public:
    virtual ~Vista_Finestre() = default;
    /// Shows the window of a command (`Comando`), not modal; loads it when it isn't up.
    virtual void Mostra_Finestra(const QString& key) = 0;
    /// Unloads it, if it is up.
    virtual void Chiudi_Finestra(const QString& key) = 0;
    /// Shows a picture file in `Form_visualizza_Immagine`.
    virtual void Mostra_Immagine(const QString& percorso) = 0;

    // Modal dialogs; back when they are closed.

    virtual void Mostra_Autentificazione() = 0;
    virtual void Mostra_Lingua_Mercato() = 0;
    /// The choice between several components.
    virtual void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) = 0;
};

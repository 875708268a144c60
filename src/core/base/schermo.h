#pragma once

#include <QString>

#include "core/base/filtri.h"

/// The main screen as its rooms, the drawing, the cart and the windows beside it see it: what is on show, and
/// what they may ask to be shown. Tests use a fake.
class Schermo {
  public:
    virtual ~Schermo() = default;

    // --- what is on show ---------------------------------------------------------------------------
    virtual Filtri Filtri_Correnti() const = 0;
    /// Key of the tree's node on show, "" for none.
    virtual QString Prodotto_Corrente() const = 0;
    /// The screen that is up: 1 home, 2 product with drawing, 3 order, 4 favourites, 5 sheet.
    virtual qint16 Restitusci_Zona_catalogo() const = 0;

    // --- pages -------------------------------------------------------------------------------------
    virtual void Mostra_Intro() = 0;
    /// Goes from the home page into the catalogue; `forza` asks for a log-in even when one has been made.
    virtual void Consulta_Catalogo(bool forza) = 0;
    /// Selects a node as if it had been clicked; nothing when it is selected already or isn't in the visible
    /// tree.
    virtual void Seleziona_Nodo_Albero(const QString& key) = 0;
    /// Makes `key` the current product and shows its sheet; "" for no current product.
    virtual void Seleziona_Prodotto(const QString& key) = 0;
    /// Shows the node with its parts list and drawing; a group with its sheet.
    virtual void Visualizza_Disegno_Esploso(const QString& key) = 0;
    /// Shows the node by its drawing or its sheet, as the button `KEY_DISEGNO` has it; "" for none.
    virtual void Mostra_Nodo(const QString& key) = 0;
    virtual void Visualizza_Evasione_Ordine() = 0;
    /// The log-in gate; true when the catalogue may be read.
    virtual bool Verifica_Accesso(bool forza) = 0;
    /// Rebuilds all that hangs on user, language or market. False on a tree that can't be shown, which is
    /// told to the user.
    virtual bool Ricarica_Catalogo() = 0;

    // --- on the page -------------------------------------------------------------------------------
    /// Marks the rows of a component in the parts list: those with this code or, when there is none, this
    /// reference.
    virtual void Evidenzia_In_Distinta(const QString& key) = 0;
    /// Lights the component of a row on the drawing.
    virtual void Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                              const QString& riferimento) = 0;
    /// Adds the component of a row to the cart, and paints it on the drawing.
    virtual void Aggiungi_Al_Carrello(const QString& prodotto, const QString& codice,
                                      const QString& riferimento) = 0;
    /// Shows a picture file in a window of its own; nothing for "".
    virtual void Mostra_Immagine(const QString& percorso) = 0;
    /// Writes the help line of the status bar.
    virtual void Scrivi_Pannello(const QString& testo) = 0;
    void Pulisci_Barra_Stato() { Scrivi_Pannello({}); }

    // --- commands ----------------------------------------------------------------------------------
    /// Runs a command by its key. A two-state button stands in its new state already.
    virtual void Esegui_Comando(const QString& key) = 0;
    virtual void Aggiorna_Toolbar() = 0;
};

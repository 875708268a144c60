#pragma once

#include <QString>

/// What the subsystems ask of the main window. The controller of the main screen implements it; tests use a
/// fake.
class Finestra_Principale {
  public:
    virtual ~Finestra_Principale() = default;
    /// The screen that is up: 1 home, 2 product with drawing, 3 order, 4 favourites, 5 sheet.
    virtual qint16 Restitusci_Zona_catalogo() const = 0;
    /// Selects a node as if it had been clicked; nothing when it is selected already or isn't in the visible
    /// tree.
    virtual void Seleziona_Nodo_Albero(const QString& key) = 0;
    /// Makes `key` the current product and refreshes what hangs on it; "" for no current product.
    virtual void Seleziona_Prodotto(const QString& key) = 0;
    /// Shows the node with its parts list and drawing.
    virtual void Visualizza_Disegno_Esploso(const QString& key) = 0;
    /// The log-in gate; true when the catalogue may be read.
    virtual bool Verifica_Accesso(bool forza) = 0;
    virtual void Mostra_Intro() = 0;
    virtual void Aggiorna_Toolbar() = 0;
    /// Blanks the help line of the status bar.
    virtual void Pulisci_Barra_Stato() = 0;
};

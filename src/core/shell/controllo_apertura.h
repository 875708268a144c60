#pragma once

#include "core/shell/lavoro.h"

/// Opening and rebuilding what a catalogue shows, with all screen consequences, and the window's load,
/// activation and unload.
class Controllo_Apertura : public Stanza {
  public:
    using Stanza::Stanza;
    /// The window's load: opens the catalogue of the command line, else shows the empty state.
    void Avvia(const QString& riga_comando);
    /// The window's first activation: the vertical split by the catalogue of the command line. Forgets the
    /// command line.
    void Prima_Attivazione();
    /// The window's unload: false when it has to stay, for work or for the cart (of which `senza_domande`
    /// doesn't ask); else the catalogue is closed, and the document of a command line that was never
    /// activated is opened.
    bool Chiudi(bool senza_domande = false);
    /// Lets the user choose a package, and opens it.
    void Apri_Progetto();
    /// Opens a catalogue with all its screen consequences. Anything that isn't a `.TZF` file is ignored. A
    /// cart with lines, which would be lost, stays if the user wants it to.
    void Apri_Catalogo(const QString& percorso);
    /// Rebuilds all that hangs on user, language or market. Fails on a tree that can't be shown; then
    /// everything stays as it was.
    void Ricarica_Vista_Catalogo();
    /// The same; a failure is told to the user and answered false.
    bool Ricarica_O_Segnala();
    /// Lets the user choose language and market; after a change, the home page of the new ones.
    void Cambia_Lingua();

  private:
    bool Lascia_Carrello();
    bool Apri_E_Mostra(const QString& percorso, Avanzamento& avanzamento);
    void Chiudi_Catalogo();
    void Dividi_Come_Vuole_Il_Catalogo();

    QString riga_comando_;
};

#pragma once

#include "core/shell/stanza.h"

/// Commands and toolbar: runs what buttons, keys and links ask for, and keeps the state of all buttons.
class Controllo_Comandi : public Stanza {
  public:
    using Stanza::Stanza;
    /// A click on a toolbar button: flips a two-state button, then runs its command. Nothing when it is
    /// disabled or has no command.
    void Clic_Bottone(const QString& key);
    /// A click on a link: runs a command with its button as it stands.
    void Clic_Link(const QString& key);
    /// `schermo` is what the commands work on.
    void Esegui_Comando(const QString& key, Schermo_Principale& schermo);
    /// Works out the states of all buttons and links, by the zone and by what the catalogue offers.
    void Aggiorna_Toolbar();
    /// The window of a command was loaded, or unloaded in whichever way: its button follows.
    void Finestra_Caricata(const QString& key, bool caricata);

  private:
    bool Abilitato(const Comando& comando, bool prima);
    bool Impaginazione_Presente(const QString& tipo);
    void Applica_Esclusioni();
    void Chiudi_Finestre();
};

#pragma once

#include "core/shell/controllo_accesso.h"

/// The home page.
class Controllo_Home : public Stanza {
  public:
    Controllo_Home(Ambiente& ambiente, Schermo& schermo, Controllo_Accesso& accesso)
        : Stanza(ambiente, schermo), accesso_(accesso) {}
    void Mostra_Intro();
    /// `KEY_HOME`: the home page, or the node that the catalogue has in its place.
    void Comando_Home();
    /// The user chose a language on the home page.
    void Scegli_Lingua_Home(const QString& descrizione);
    /// Opens the guide in the language of the moment.
    void Visualizza_Help();
    /// Opens the updates page in the browser.
    void Visualizza_Aggiornamenti();

    void Catalogo_Ricaricato() override { Carica_Home(); }

  private:
    void Carica_Home();

    Controllo_Accesso& accesso_;
};

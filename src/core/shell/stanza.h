#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/base/schermo.h"
#include "core/package/class_progetto_aperto.h"
#include "core/parts_tables/riempimento.h"
#include "core/shell/comandi.h"
#include "core/shell/vista_principale.h"

class Stanza;

/// What the rooms share.
struct Ambiente {
    Class_Progetto_Aperto& Progetto;
    QString Cartella_Installazione;  ///< where the resource package is, with trailing separator
    Vista_Principale& Vista;
    Vista_Finestre& Finestre;
    Stato_Finestra Stato = {};
    bool Occupato = false;           ///< long work is under way: what the user does meanwhile is ignored
    int Gesti = 0;                   ///< what the user asked for and is under way (`Gesto`)
    bool Accesso_Rifiutato = false;  ///< the log-in was refused since the outermost of them began
    std::function<void()> Dopo_Il_Lavoro = {};  ///< what was put off until then
    std::vector<Stanza*> Stanze = {};

    void Mostra() { Vista.Mostra(Stato); }
    /// Locks the window, or unlocks it.
    void Abilita_Finestra(bool abilita);
    Stato_Bottone& Bottone(const QString& key) { return Stato.Bottoni[key]; }
    Messaggi& Messaggi_() const { return Progetto.Desktop().messaggi; }
    Sistema& Sistema_() const { return Progetto.Desktop().sistema; }
    QString System(const char* key) const { return Progetto.DB.System_Leggi_Key(QLatin1String(key)); }
    /// Tells all rooms of an event.
    void Avvisa(void (Stanza::*evento)());
};

/// Something that the user asked for, as long as it runs. A refusal of the log-in lasts as long as the
/// outermost one, so that nobody is asked twice by one click.
class Gesto {
  public:
    explicit Gesto(Ambiente& ambiente) : ambiente_(ambiente) { ++ambiente_.Gesti; }
    ~Gesto() {
        if (--ambiente_.Gesti == 0)
            ambiente_.Accesso_Rifiutato = false;
    }
    Gesto(const Gesto&) = delete;
    Gesto& operator=(const Gesto&) = delete;

  private:
    Ambiente& ambiente_;
};

/// A room: what stands behind a page of the main screen, or behind a window beside it. What the user does
/// there comes in here; of the rest of the screen it knows `Schermo` only.
class Stanza {
  public:
    Stanza(Ambiente& ambiente, Schermo& schermo);
    virtual ~Stanza();
    Stanza(const Stanza&) = delete;
    Stanza& operator=(const Stanza&) = delete;

    /// Another product is on show, or none, or the same one in another language.
    virtual void Prodotto_Cambiato() {}
    /// A catalogue was opened, or stands in another language or market.
    virtual void Catalogo_Ricaricato() {}

  protected:
    /// Before a page shows anything of the catalogue: the log-in gate, and the home page when it refuses.
    bool Accesso_O_Intro();
    /// What a fill of a parts list, and a click on it, work on, with the filters of the moment.
    Contesto_Griglia Contesto_Lista() const;

    Ambiente& ambiente_;
    Class_Progetto_Aperto& progetto_;
    Schermo& schermo_;
};

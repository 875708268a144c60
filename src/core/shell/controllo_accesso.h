#pragma once

#include <optional>

#include "core/shell/stanza.h"

/// Who reads the catalogue, in which language and for which market: what stands behind the log-in, the dialog
/// of language and market, and the home page's list of languages. A change sets `Ricarica_Necessaria`.
class Controllo_Accesso : public Stanza {
  public:
    using Stanza::Stanza;
    /// The log-in gate: asks for a log-in where the catalogue wants one and nobody is logged in, or when
    /// `forza` is set; a new user then chooses language and market. True when the catalogue may be read. A
    /// refusal holds until what the user asked for has ended: nobody is asked again meanwhile.
    bool Verifica_Accesso(bool forza);

    /// Login of the current user.
    const QString& Utente() const { return ambiente_.Progetto.Utente; }
    /// A log-in; true when it is done and the dialog closes. A wrong one is told to the user.
    bool Accedi(const QString& account, const QString& password);

    /// What the dialog of language and market offers. Limits that can't be read are told to the user.
    Scelta_Lingua_Mercato Carica_Lingua_Mercato();
    /// Takes over what was chosen there.
    void Scegli_Lingua_Mercato(const QString& descrizione_lingua, const QString& descrizione_mercato);

    /// Languages of the home page while no catalogue is open; none when the resource package can't be read.
    std::optional<Elenco_Lingue> Lingue_Home() const;
    /// Takes over a language of the home page; false when the resource package can't be read.
    bool Scegli_Lingua_Home(const QString& descrizione);

  private:
    void Segnala(const char* chiave, Icona icona);
};

#pragma once

#include <QString>
#include <vector>

#include "core/base/filtri.h"
#include "core/catalogue_db/class_dboper.h"

/// Languages or markets from which the user chooses one.
struct Elenco_Lingue {
    std::vector<Voce_Lingua> Voci;
    int Corrente = -1;      ///< position of the chosen one, from 0; -1 for none
    bool Abilitato = true;  ///< the user may choose another one
};

/// What the user may choose in an open catalogue, by SYSTEM's `UNIFICA_NAVIGAZIONE_VIEWER`.
enum class Modo_Scelta {
    Lingua,          ///< the language; the market follows it
    Mercato,         ///< the market; the language follows it
    Lingua_Mercato,  ///< both, independent of one another
    Nessuna          ///< any other value: both are fixed by the catalogue
};
Modo_Scelta Leggi_Modo_Scelta(const Class_DBOper& db);

/// The two lists of the dialog.
struct Scelta_Lingua_Mercato {
    Elenco_Lingue Lingue;
    Elenco_Lingue Mercati;
    bool Limiti_Letti = true;  ///< false: the user's limits couldn't be read, and nothing is limited
};
/// The lists for a user, with the current language and market chosen (or the first of each list, when they
/// aren't offered).
Scelta_Lingua_Mercato Prepara_Scelta(const Class_DBOper& db, const Filtri& filtri);

/// Takes over what was chosen, by the descriptions ("" for nothing chosen): sets `Lingua` and `Mercato` of
/// `filtri`. True when one of them has changed.
bool Accetta_Scelta(const Class_DBOper& db, const QString& descrizione_lingua,
                    const QString& descrizione_mercato, Filtri& filtri);

/// The languages of the home page: the first five of all, the one of this number chosen.
Elenco_Lingue Prepara_Lingue_Home(const Class_DBOper& db, const QString& lingua);

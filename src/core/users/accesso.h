#pragma once

#include <QString>

#include "core/base/filtri.h"
#include "core/catalogue_db/class_dboper.h"

/// Who may read a catalogue.
enum class Modo_Accesso {
    Libera,   ///< anybody; a log-in is optional and gives the user's groups
    Singola,  ///< a log-in is needed: the shared account of SYSTEM, or any of `Anagrafico`
    Utente,   ///< a log-in is needed: the accounts of `Anagrafico` only
    Altro     ///< a value that isn't known: a log-in is needed, and none is answered
};
Modo_Accesso Leggi_Modo_Accesso(const Class_DBOper& db);

/// The catalogue asks for no log-in, or somebody (`utente`) is logged in.
bool Autentificazione_Corretta(const Class_DBOper& db, const QString& utente);

enum class Esito_Accesso {
    Riuscito,  ///< user and groups are those of the account
    Fallito,   ///< nobody is logged in any more
    Ignorato   ///< nothing has happened
};
/// A log-in with an account and a password: sets `Utente` and `Gruppo` of `filtri` by its outcome. The
/// password is compared, never kept.
Esito_Accesso Accedi(const Class_DBOper& db, const QString& account, const QString& password, Filtri& filtri);

#pragma once

#include <utility>

#include "core/catalogue_db/engine/database.h"

/// The error trap of the lookups: whatever fails in the engine, the answer built so far stands, and nobody is
/// told. `lavoro` gets the answer by reference, at first with its default.
template <class Risposta, class Lavoro>
Risposta Con_Trappola(Risposta risposta, Lavoro&& lavoro) {
    try {
        std::forward<Lavoro>(lavoro)(risposta);
    } catch (const Errore_DB&) {
    }
    return risposta;
}

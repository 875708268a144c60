#pragma once

#include "core/catalogue_db/engine/database.h"

/// Makes those indexes of an open, writable catalogue database that are missing and whose table and column
/// exist. They are only speed: a failure leaves the rest out.
///
/// Each index is on one column and each lookup reads whole rows: rows with the same key then come in the
/// table's own order, just as from a scan, so an index changes no answer.
void Crea_Indici(const Database& database);

#pragma once

#include <QString>
#include <vector>

#include "core/catalogue_db/engine/database.h"

/// A column by which rows of a catalogue are looked up.
struct Indice_Catalogo {
    QString Tabella;
    QString Colonna;
};

/// The columns worth an index. Each index is on one column and each lookup reads whole rows: rows with the
/// same key then come in the table's own order, just as from a scan, so an index changes no answer.
const std::vector<Indice_Catalogo>& Indici_Catalogo();

/// Makes those indexes of an open, writable catalogue database that are missing and whose table and column
/// exist. They are only speed: a failure leaves the rest out.
void Crea_Indici(const Database& database);

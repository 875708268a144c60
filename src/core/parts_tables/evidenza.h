#pragma once

#include <QString>

#include "core/base/filtri.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/griglia/griglia.h"

/// Column of the main parts list that holds the codes: the primary column after `colonne_fisse` fixed ones
/// (the reference, and the one that adds to the cart when the list has it). Columns that the model shows and
/// the list leaves out count as well: kept.
int Colonna_Codice_Distinta(const Class_DBOper& db, const Filtri& filtri, int colonne_fisse);

/// Sets the bold of one row and clears that of all others. Nothing is scrolled.
void Segna_Riga(Griglia& griglia, int riga);

/// Whether a row has `key` in `colonna`; a column that the grid doesn't have holds nothing.
bool Ha_Riga(const Griglia& griglia, int colonna, const QString& key);

/// Sets the bold of every row whose cell in `colonna` is `key`, clears that of all others, and has those
/// found brought into view, the last one last (`Griglia::Evidenziata`). A column that the grid doesn't have
/// matches nothing. The rows keep their content.
void Evidenzia_Componente_in_distinta(Griglia& griglia, int colonna, const QString& key);

#pragma once

#include <QJsonObject>
#include <vector>

#include "core/griglia/colonne_griglia.h"

/// A filled grid for programs: whether it shows anything, its columns, and the cells and tags of its rows.
QJsonObject gridJson(const Griglia& grid, const Tag_Griglia& tags,
                     const std::vector<Colonna_Griglia>& columns);
/// Prints a filled grid as a table.
void printGrid(const Griglia& grid, const Tag_Griglia& tags);

#pragma once

#include "core/catalogue_db/schema.h"

/// Reads a type that a source folder gives a column, such as "TEXT" or "TEXT COLLATE BINARY". Fails with
/// `ToolError` on anything that isn't a type.
Definizione_Colonna parseColumn(const QString& column, const QString& type);
/// What `parseColumn` reads.
QString typeText(const Definizione_Colonna& column);
/// Texts that are numbers become numbers in it.
bool isNumeric(const Definizione_Colonna& column);

#pragma once

#include "tzf/package/database_reader.h"
#include "tzf/package/source_folder.h"

/// The entries of files that no table of the catalogue names and that aren't kept on purpose: drafts, notes,
/// what a program leaves behind. None when the source has no catalogue's database (`database` is its path).
QStringList unnamedFiles(const SourceFolder& source, const QString& database);

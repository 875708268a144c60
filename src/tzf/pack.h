#pragma once

#include <QString>
#include <functional>

#include "tzf/import/completion.h"
#include "tzf/source_folder.h"

/// Makes a package from a source folder. Fails with `ToolError`, a faulty table file with `SourceError`; then
/// an existing package stays as it was.
void packFolder(const QString& folder, const QString& package);

/// Makes one of the databases of a source folder as a file, and answers the tables that went into it.
CatalogueTables buildDatabase(const SourceFolder& source, const SourceDatabase& database,
                              const QString& path);

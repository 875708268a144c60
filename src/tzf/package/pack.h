#pragma once

#include <QString>
#include <functional>

#include "tzf/package/source_folder.h"
#include "tzf/tables/completion.h"

/// What a package was made of.
struct PackReport {
    QStringList languages;  ///< names of those that are offered
    qint64 nodes = 0, products = 0, parts = 0, rows = 0;
    qsizetype files = 0;         ///< besides the databases
    QStringList left_out;        ///< files that no table names
    QStringList doubts;          ///< about the sheets that were read
    bool has_catalogue = false;  ///< else only files and other databases are in it
};

/// Makes a package from a source folder. Fails with `ToolError`, a faulty table file with `SourceError`; then
/// an existing package stays as it was.
PackReport packFolder(const QString& folder, const QString& package);

/// Makes one of the databases of a source folder as a file, and answers the tables that went into it.
CatalogueTables buildDatabase(const SourceFolder& source, const SourceDatabase& database,
                              const QString& path);

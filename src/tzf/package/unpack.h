#pragma once

#include <QString>
#include <QStringList>

/// Makes a source folder from a package, from which packing gives the same tables and files again. Nothing is
/// written outside the folder. A folder that holds something is refused unless `force`: then files of the
/// same names are replaced and others stay. Fails with `ToolError`. Answers what couldn't be kept, one
/// sentence each.
QStringList unpackPackage(const QString& package, const QString& folder, bool force);

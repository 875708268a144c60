#pragma once

#include <QStringList>

/// Writes a small catalogue to begin with into a folder: a machine with one assembly, its drawing and two
/// parts. `languages` are keys of the languages that are offered, the first is the one to start with. The
/// folder is made; one that holds something is refused. Answers the files. Fails with `ToolError`.
QStringList writeSkeleton(const QString& folder, const QStringList& languages);

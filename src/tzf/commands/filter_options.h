#pragma once

#include <QCommandLineOption>

#include "core/package/class_progetto_aperto.h"
#include "tzf/commands/command.h"

/// Options for language, market and groups.
QList<QCommandLineOption> filterOptions();
/// Language, market and groups from the options, the catalogue's own without them, and the texts that hang on
/// the language. Fails with `ToolError` for a number that the catalogue doesn't have.
void applyFilters(const CommandLine& line, Class_Progetto_Aperto& project);

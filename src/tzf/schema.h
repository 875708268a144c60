#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A column that the viewer knows.
struct KnownColumn {
    QString name;
    bool needed = true;  ///< the viewer reads it; without it something doesn't show
    int family = 0;      ///< language number of a column such as `Traduzione_3`, 0 for other columns
};

/// A table that the viewer knows.
struct KnownTable {
    QString name;
    bool needed = true;  ///< without it the catalogue can't be walked
    std::vector<KnownColumn> columns;
};

/// Highest number of a language or market.
inline constexpr int HIGHEST_LANGUAGE = 11;

/// All tables of a catalogue, with the columns that the viewer knows.
const std::vector<KnownTable>& knownTables();
/// nullptr for a table that the viewer doesn't know; names without regard to case.
const KnownTable* knownTable(const QString& name);
/// The names of a table's columns, in order.
QStringList columnsOf(const QString& table);

/// Declared type of a column when a source folder says nothing else: `INTEGER`, `REAL` or `TEXT`.
QString builtInType(const QString& table, const QString& column);
/// The collation that goes with a declared type when nothing else is said: texts compare without regard to
/// case.
QString builtInCollation(const QString& type);

#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "tzf/tables/csv.h"

using TableRow = std::vector<CsvField>;

/// A field with that text; NULL for "".
CsvField fieldOf(const QString& text);

/// The rows of a table on their way into a database, wherever they come from.
class RowSource {
  public:
    virtual ~RowSource() = default;
    virtual const std::vector<QString>& columns() const = 0;
    /// The next row; false behind the last one.
    virtual bool next(TableRow& row) = 0;
    /// Fails with a `ToolError` that names where the last row stands.
    [[noreturn]] virtual void fail(const QString& message) const = 0;

    /// Position of a column, without regard to case; -1 when there is none.
    int position(const QString& column) const;
};

/// A table that the tool has made, with the place that each row comes from.
struct MadeTable {
    std::vector<QString> columns;
    std::vector<TableRow> rows;
    QStringList places;  ///< "parts.xlsx (Items) row 7"; may be shorter than the rows

    /// Adds a row by column; columns that aren't there yet are made.
    void add(const std::vector<std::pair<QString, QString>>& fields, const QString& place = {});
};
using MadeTables = QMap<QString, MadeTable>;

std::unique_ptr<RowSource> rowsOfCsv(const QString& path);
/// The table must stay while it is read.
std::unique_ptr<RowSource> rowsOf(const MadeTable& table);

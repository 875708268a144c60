#pragma once

#include <vector>

#include "core/catalogue_db/engine/database.h"

/// A table of an open database, read row by row in the order in which the rows stand. Fails with `ToolError`.
class TableReader {
  public:
    explicit TableReader(Recordset rows) : rows_(std::move(rows)) {}

    bool next();
    /// Number of the current row, from 1.
    qint64 row() const { return row_; }
    /// Position of a column, without regard to case; -1 when there is none.
    int position(const QString& column) const { return rows_.Posizione(column); }

    /// NULL for a column that isn't there (-1).
    Valore value(int column) const { return column < 0 ? Valore() : rows_.Campo(column); }
    QString text(int column) const { return value(column).Testo(); }
    QString text(const QString& column) const { return text(position(column)); }

  private:
    Recordset rows_;
    qint64 row_ = 0;
};

/// A database of a package, opened for reading as the viewer opens it (so it holds tables and plain indexes
/// and nothing else), and read value by value as it is stored. All operations fail with `ToolError`.
class DatabaseReader {
  public:
    /// The file is ours: one of another engine is turned into one of ours.
    explicit DatabaseReader(const QString& path);

    /// The tables without that of the password, by name.
    const QStringList& tables() const { return tables_; }
    bool hasTable(const QString& table) const { return tables_.contains(table, Qt::CaseInsensitive); }
    /// The columns as they are declared.
    std::vector<Definizione_Colonna> columns(const QString& table) const;
    TableReader read(const QString& table) const;
    /// 0 for a table that isn't there.
    qint64 rows(const QString& table) const;
    /// Whether a password protects the database.
    bool isProtected() const { return protected_; }

  private:
    Database database_;
    QStringList tables_;
    bool protected_ = false;
};

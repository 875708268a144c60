#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "tzf/database_writer.h"
#include "tzf/sql_value.h"

struct sqlite3;
struct sqlite3_stmt;

/// A table of an open database, read row by row in the order in which the rows stand.
class TableReader {
  public:
    bool next();
    /// Number of the current row, from 1.
    qint64 row() const { return row_; }
    int count() const { return static_cast<int>(columns_.size()); }
    const QStringList& columns() const { return columns_; }
    /// Position of a column, without regard to case; -1 when there is none.
    int position(const QString& column) const;

    SqlValue value(int column) const;
    /// The value as text; "" for NULL and for a column that isn't there (-1).
    QString text(int column) const;
    QString text(const QString& column) const { return text(position(column)); }
    bool isNull(int column) const;
    qint64 integer(int column) const;

  private:
    friend class DatabaseReader;
    TableReader(std::shared_ptr<sqlite3> connection, const QString& sql);

    std::shared_ptr<sqlite3> connection_;
    std::shared_ptr<sqlite3_stmt> statement_;
    QStringList columns_;
    QHash<QString, int> positions_;
    qint64 row_ = 0;
};

/// A database of a package, opened for reading as the viewer opens it (so it holds tables and plain indexes
/// and nothing else), and read value by value as it is stored. All operations fail with `ToolError`.
class DatabaseReader {
  public:
    explicit DatabaseReader(const QString& path);

    /// The tables without that of the password, by name.
    const QStringList& tables() const { return tables_; }
    bool hasTable(const QString& table) const;
    /// The columns as they are declared.
    std::vector<ColumnDeclaration> columns(const QString& table) const;
    TableReader read(const QString& table) const;
    qint64 rows(const QString& table) const;

    /// Whether a password protects the database.
    bool isProtected() const { return protected_; }

  private:
    std::shared_ptr<sqlite3> connection_;
    QStringList tables_, without_rowid_;
    bool protected_ = false;
};

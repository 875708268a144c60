#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <span>
#include <vector>

#include "tzf/sql_value.h"

struct sqlite3;
struct sqlite3_stmt;

/// A column as it is declared.
struct ColumnDeclaration {
    QString name;
    QString type;       ///< may be ""
    QString collation;  ///< `NOCASE`, `BINARY`, ...

    /// The column of a table that a catalogue declares without further ado.
    static ColumnDeclaration builtIn(const QString& table, const QString& column);
    /// Reads a type that a source folder gives, such as "TEXT" or "TEXT COLLATE BINARY". Fails with
    /// `ToolError` on anything that isn't a type.
    static ColumnDeclaration parse(const QString& column, const QString& type);
    /// What `parse` reads.
    QString typeText() const;
    /// Texts that are numbers become numbers in it.
    bool isNumeric() const;
};

/// The rows of one table on their way into a database.
class TableWriter {
  public:
    TableWriter(std::shared_ptr<sqlite3> connection, const QString& table, size_t columns);
    /// Adds a row, with one value for each column. Fails with `ToolError`.
    void add(std::span<const SqlValue> row);

  private:
    std::shared_ptr<sqlite3> connection_;
    std::shared_ptr<sqlite3_stmt> statement_;
    size_t columns_;
};

/// Makes a database of a catalogue from scratch: compact, with the catalogues' password and the indexes that
/// the viewer's questions want. The same content gives the same tables in the same order. All operations fail
/// with `ToolError`.
class DatabaseWriter {
  public:
    /// An existing file is replaced.
    explicit DatabaseWriter(const QString& path);

    TableWriter table(const QString& name, const std::vector<ColumnDeclaration>& columns);
    /// Adds indexes and password, and closes the file. Without it the file is unfinished.
    void finish();
    /// Runs a statement of one's own, for tests that want something odd.
    void run(const QString& sql);

  private:
    std::shared_ptr<sqlite3> connection_;
    QStringList indexes_;  ///< made at the end, when they cost least
};

/// The name in double quotes, for use in a statement.
QString quotedName(const QString& name);

#include "tzf/database_reader.h"

#include <sqlite3.h>

#include <QFile>

#include "core/catalogue_db/engine/database.h"
#include "core/catalogue_db/engine/protezione.h"
#include "tzf/tool_error.h"

namespace {

[[noreturn]] void fail(sqlite3* connection) {
    throw ToolError(
        QStringLiteral("the database can't be read: %1").arg(QString::fromUtf8(sqlite3_errmsg(connection))));
}

}  // namespace

TableReader::TableReader(std::shared_ptr<sqlite3> connection, const QString& sql)
    : connection_(std::move(connection)) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection_.get(), sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        fail(connection_.get());
    statement_.reset(statement, sqlite3_finalize);
    for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        columns_ << QString::fromUtf8(sqlite3_column_name(statement, i));
        positions_.insert(columns_.last().toLower(), i);
    }
}

bool TableReader::next() {
    const int status = sqlite3_step(statement_.get());
    if (status == SQLITE_ROW) {
        ++row_;
        return true;
    }
    if (status != SQLITE_DONE)
        fail(connection_.get());
    return false;
}

int TableReader::position(const QString& column) const {
    return positions_.value(column.toLower(), -1);
}

SqlValue TableReader::value(int column) const {
    sqlite3_stmt* statement = statement_.get();
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            return qint64(sqlite3_column_int64(statement, column));
        case SQLITE_FLOAT:
            return sqlite3_column_double(statement, column);
        case SQLITE_TEXT: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            return QByteArray(text, sqlite3_column_bytes(statement, column));
        }
        case SQLITE_BLOB: {
            const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
            return Blob{QByteArray(bytes, sqlite3_column_bytes(statement, column))};
        }
        default:
            return std::monostate();
    }
}

QString TableReader::text(int column) const {
    if (column < 0)
        return {};
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement_.get(), column));
}

bool TableReader::isNull(int column) const {
    return column < 0 || sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

qint64 TableReader::integer(int column) const {
    return column < 0 ? 0 : sqlite3_column_int64(statement_.get(), column);
}

DatabaseReader::DatabaseReader(const QString& path) {
    try {
        // The engine's own opening checks file and password.
        Database engine;
        engine.Apri(path, CONNESSIONE_DB);
        protected_ = engine.Tabelle().contains(TABELLA_PROTEZIONE, Qt::CaseInsensitive);
    } catch (const Errore_DB& error) {
        throw ToolError(QStringLiteral("the database can't be opened: %1").arg(error.Descrizione()));
    }
    sqlite3* connection = nullptr;
    const int status = sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READONLY, nullptr);
    connection_.reset(connection, sqlite3_close_v2);
    if (status != SQLITE_OK)
        fail(connection);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);

    TableReader objects(
        connection_,
        QStringLiteral("SELECT name, sql FROM sqlite_master WHERE type = 'table' ORDER BY rowid"));
    while (objects.next()) {
        const QString name = objects.text(0);
        if (name.startsWith(QStringLiteral("sqlite_")) ||
            (protected_ && name.compare(TABELLA_PROTEZIONE, Qt::CaseInsensitive) == 0))
            continue;
        tables_ << name;
        if (objects.text(1).simplified().endsWith(QStringLiteral("WITHOUT ROWID"), Qt::CaseInsensitive))
            without_rowid_ << name;
    }
    tables_.sort();
}

bool DatabaseReader::hasTable(const QString& table) const {
    return tables_.contains(table, Qt::CaseInsensitive);
}

std::vector<ColumnDeclaration> DatabaseReader::columns(const QString& table) const {
    std::vector<ColumnDeclaration> columns;
    TableReader info(connection_, QStringLiteral("SELECT name, type FROM pragma_table_info(%1)")
                                      .arg(QString::fromUtf8(toLiteral(table.toUtf8()))));
    while (info.next()) {
        ColumnDeclaration column{info.text(0), info.text(1), QStringLiteral("BINARY")};
        const char* collation = nullptr;
        if (sqlite3_table_column_metadata(connection_.get(), "main", table.toUtf8().constData(),
                                          column.name.toUtf8().constData(), nullptr, &collation, nullptr,
                                          nullptr, nullptr) == SQLITE_OK &&
            collation != nullptr)
            column.collation = QString::fromUtf8(collation).toUpper();
        columns.push_back(column);
    }
    return columns;
}

TableReader DatabaseReader::read(const QString& table) const {
    QString sql = QStringLiteral("SELECT * FROM ") + quotedName(table);
    if (!without_rowid_.contains(table, Qt::CaseInsensitive)) {
        // A column may bear one of the names that stand for the row's number.
        QStringList names = {QStringLiteral("rowid"), QStringLiteral("oid"), QStringLiteral("_rowid_")};
        for (const ColumnDeclaration& column : columns(table))
            names.removeAll(column.name.toLower());
        if (!names.isEmpty())
            sql += QStringLiteral(" ORDER BY ") + names.first();
    }
    return TableReader(connection_, sql);
}

qint64 DatabaseReader::rows(const QString& table) const {
    if (!hasTable(table))
        return 0;
    TableReader count(connection_, QStringLiteral("SELECT count(*) FROM ") + quotedName(table));
    count.next();
    return count.integer(0);
}

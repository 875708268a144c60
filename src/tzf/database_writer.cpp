#include "tzf/database_writer.h"

#include <sqlite3.h>

#include <QFile>
#include <QRegularExpression>

#include "core/catalogue_db/engine/protezione.h"
#include "core/package/indici.h"
#include "tzf/schema.h"
#include "tzf/tool_error.h"

namespace {

[[noreturn]] void fail(sqlite3* connection) {
    throw ToolError(QStringLiteral("the database can't be written: %1")
                        .arg(QString::fromUtf8(sqlite3_errmsg(connection))));
}

void bind(sqlite3_stmt* statement, int position, const SqlValue& value) {
    // The values outlive the step, so nothing is copied.
    if (const auto* integer = std::get_if<qint64>(&value))
        sqlite3_bind_int64(statement, position, *integer);
    else if (const auto* real = std::get_if<double>(&value))
        sqlite3_bind_double(statement, position, *real);
    else if (const auto* text = std::get_if<QByteArray>(&value))
        sqlite3_bind_text(statement, position, text->constData(), static_cast<int>(text->size()),
                          SQLITE_STATIC);
    else if (const auto* blob = std::get_if<Blob>(&value))
        sqlite3_bind_blob(statement, position, blob->bytes.constData(), static_cast<int>(blob->bytes.size()),
                          SQLITE_STATIC);
    else
        sqlite3_bind_null(statement, position);
}

}  // namespace

QString quotedName(const QString& name) {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

ColumnDeclaration ColumnDeclaration::builtIn(const QString& table, const QString& column) {
    const QString type = builtInType(table, column);
    return {column, type, builtInCollation(type)};
}

ColumnDeclaration ColumnDeclaration::parse(const QString& column, const QString& type) {
    static const QRegularExpression form(QStringLiteral("^([A-Za-z][A-Za-z0-9_ ]*(\\([0-9 ,]*\\))?)?$"));
    const qsizetype collate = type.indexOf(QStringLiteral("COLLATE "), 0, Qt::CaseInsensitive);
    const QString name = (collate < 0 ? type : type.left(collate)).trimmed();
    const QString collation =
        collate < 0 ? builtInCollation(name) : type.mid(collate + 8).trimmed().toUpper();
    static const QStringList collations = {QStringLiteral("NOCASE"), QStringLiteral("BINARY"),
                                           QStringLiteral("RTRIM")};
    if (!form.match(name).hasMatch() || !collations.contains(collation))
        throw ToolError(QStringLiteral("\"%1\" is no type for column %2").arg(type, column));
    return {column, name, collation};
}

QString ColumnDeclaration::typeText() const {
    if (collation == builtInCollation(type))
        return type;
    return (type + QStringLiteral(" COLLATE ") + collation).trimmed();
}

bool ColumnDeclaration::isNumeric() const {
    const QString upper = type.toUpper();
    if (upper.contains(u"INT"))
        return true;
    return !upper.isEmpty() && !upper.contains(u"CHAR") && !upper.contains(u"CLOB") &&
           !upper.contains(u"TEXT") && !upper.contains(u"BLOB");
}

TableWriter::TableWriter(std::shared_ptr<sqlite3> connection, const QString& table, size_t columns)
    : connection_(std::move(connection)), columns_(columns) {
    QStringList marks;
    marks.fill(QStringLiteral("?"), static_cast<qsizetype>(columns));
    const QByteArray sql =
        QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(quotedName(table), marks.join(u',')).toUtf8();
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection_.get(), sql.constData(), -1, &statement, nullptr) != SQLITE_OK)
        fail(connection_.get());
    statement_.reset(statement, sqlite3_finalize);
}

void TableWriter::add(std::span<const SqlValue> row) {
    if (row.size() != columns_)
        throw ToolError(QStringLiteral("a row of %1 values for %2 columns").arg(row.size()).arg(columns_));
    for (size_t i = 0; i < row.size(); ++i)
        bind(statement_.get(), static_cast<int>(i + 1), row[i]);
    if (sqlite3_step(statement_.get()) != SQLITE_DONE)
        fail(connection_.get());
    sqlite3_reset(statement_.get());
}

DatabaseWriter::DatabaseWriter(const QString& path) {
    QFile::remove(path);
    sqlite3* connection = nullptr;
    const int status = sqlite3_open_v2(path.toUtf8().constData(), &connection,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    connection_.reset(connection, sqlite3_close_v2);
    if (status != SQLITE_OK)
        fail(connection);
    // The file is new and worth nothing unless finished: no journal is needed.
    run(QStringLiteral("PRAGMA page_size=4096"));
    run(QStringLiteral("PRAGMA journal_mode=OFF"));
    run(QStringLiteral("PRAGMA synchronous=OFF"));
    run(QStringLiteral("PRAGMA locking_mode=EXCLUSIVE"));
    run(QStringLiteral("BEGIN"));
}

TableWriter DatabaseWriter::table(const QString& name, const std::vector<ColumnDeclaration>& columns) {
    QStringList declarations;
    for (const ColumnDeclaration& column : columns) {
        QString text = quotedName(column.name);
        if (!column.type.isEmpty())
            text += u' ' + column.type;
        if (column.collation != u"BINARY")
            text += QStringLiteral(" COLLATE ") + column.collation;
        declarations << text;
    }
    run(QStringLiteral("CREATE TABLE %1 (%2)")
            .arg(quotedName(name), declarations.join(QStringLiteral(", "))));
    for (const Indice_Catalogo& index : Indici_Catalogo()) {
        const auto same = [&](const ColumnDeclaration& column) {
            return column.name.compare(index.Colonna, Qt::CaseInsensitive) == 0;
        };
        if (name.compare(index.Tabella, Qt::CaseInsensitive) == 0 &&
            std::any_of(columns.begin(), columns.end(), same))
            indexes_ << QStringLiteral("CREATE INDEX %1 ON %2 (%3)")
                            .arg(quotedName(QStringLiteral("IX_%1_%2").arg(index.Tabella, index.Colonna)),
                                 quotedName(name), quotedName(index.Colonna));
    }
    return TableWriter(connection_, name, columns.size());
}

void DatabaseWriter::finish() {
    for (const QString& index : indexes_)
        run(index);
    for (const QString& statement : Istruzioni_Protezione(PASSWORD_DB))
        run(statement);
    run(QStringLiteral("COMMIT"));
    connection_.reset();
}

void DatabaseWriter::run(const QString& sql) {
    if (sqlite3_exec(connection_.get(), sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(connection_.get());
}

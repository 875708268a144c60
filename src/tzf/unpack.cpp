#include "tzf/unpack.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <cmath>
#include <map>
#include <optional>

#include "core/package/class_progetto_aperto.h"
#include "tzf/archive.h"
#include "tzf/csv.h"
#include "tzf/database_reader.h"
#include "tzf/safe_path.h"
#include "tzf/source_folder.h"
#include "tzf/tool_error.h"

namespace {

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
}

/// Whether the value comes back as it is from the plain text that `plainField` makes of it.
bool survives(const SqlValue& value, const ColumnDeclaration& column) {
    if (std::holds_alternative<std::monostate>(value))
        return true;
    if (std::holds_alternative<Blob>(value))
        return false;
    if (const auto* text = std::get_if<QByteArray>(&value))
        return text->isValidUtf8() && !text->contains('\0') &&
               (!column.isNumeric() || std::holds_alternative<QByteArray>(numberOrText(*text)));
    if (const auto* real = std::get_if<double>(&value); real != nullptr && std::isinf(*real))
        return false;
    return column.isNumeric();
}

CsvField plainField(const SqlValue& value) {
    if (const auto* integer = std::get_if<qint64>(&value))
        return {QByteArray::number(*integer), false};
    if (const auto* real = std::get_if<double>(&value))
        return {numberText(*real), false};
    if (const auto* text = std::get_if<QByteArray>(&value))
        return {*text, false};
    return {};
}

/// Columns of a table of which some value needs a literal.
std::vector<bool> literalColumns(const DatabaseReader& database, const QString& table,
                                 const std::vector<ColumnDeclaration>& columns) {
    std::vector<bool> literal(columns.size(), false);
    TableReader rows = database.read(table);
    while (rows.next())
        for (size_t i = 0; i < columns.size(); ++i)
            if (!literal[i] && !survives(rows.value(static_cast<int>(i)), columns[i]))
                literal[i] = true;
    return literal;
}

class Unpacking {
  public:
    Unpacking(const QString& package, const QString& folder)
        : archive_(package), output_(QFileInfo(package).fileName()), folder_(folder) {}

    QStringList run();

  private:
    struct Found {
        size_t position;
        QString sub_folder;  ///< "" for the catalogue's own database
        std::unique_ptr<DatabaseReader> database;
    };

    void findEntries();
    void findDatabases();
    bool holdsDatabase(size_t position) const;
    void writeDatabase(const Found& found);
    QByteArray tableContent(const Found& found, const QString& table);
    void writeFiles();
    void writeOptions();
    QString entryOf(const Found& found) const { return archive_.entries()[found.position].name; }
    QString inFolder(const QString& relative) const { return pathInside(folder_, relative); }

    ArchiveReader archive_;
    QString output_, folder_;
    QTemporaryDir temporary_;
    std::vector<size_t> kept_;  ///< positions of the entries that a package can have again
    std::vector<Found> databases_;
    SourceFolder source_;  ///< only its `columns` and `literals` serve here
    PathRegister paths_;
    QJsonObject renamed_, tables_elsewhere_, sub_folders_;
    QJsonArray folders_;
    QString main_entry_;
    QStringList losses_;
};

QStringList Unpacking::run() {
    if (!temporary_.isValid())
        throw ToolError(temporary_.errorString());
    findEntries();
    findDatabases();
    paths_.take(QStringLiteral("catalogue.json"));
    paths_.takeFolder(QStringLiteral("_entries"));
    if (!QDir().mkpath(folder_))
        throw ToolError(QStringLiteral("%1: the folder can't be made").arg(folder_));
    for (const Found& found : databases_)
        if (!found.sub_folder.isEmpty())
            paths_.takeFolder(found.sub_folder);
    for (const Found& found : databases_)
        writeDatabase(found);
    writeFiles();
    writeOptions();
    return losses_;
}

void Unpacking::findEntries() {
    QSet<QString> seen;
    for (size_t i = 0; i < archive_.entries().size(); ++i) {
        const QString& name = archive_.entries()[i].name;
        if (name.isEmpty() || name == u"/") {
            losses_ << QStringLiteral("an entry without a name is left out");
        } else if (seen.contains(name)) {
            losses_ << QStringLiteral("entry %1 is there several times; the first one is kept").arg(name);
        } else {
            seen.insert(name);
            kept_.push_back(i);
        }
    }
}

bool Unpacking::holdsDatabase(size_t position) const {
    static const QByteArray signature("SQLite format 3", 16);
    const ArchiveEntry& entry = archive_.entries()[position];
    return !entry.isFolder() && entry.size >= 512 && archive_.head(position, 16) == signature;
}

void Unpacking::findDatabases() {
    const int main = archive_.lastEndingWith(NOME_DATABASE);
    QSet<QString> first_parts;
    for (const size_t i : kept_)
        first_parts.insert(archive_.entries()[i].name.section(u'/', 0, 0).toCaseFolded());
    for (const size_t i : kept_) {
        const QString path = temporary_.filePath(QString::number(i));
        const QString& entry = archive_.entries()[i].name;
        if (static_cast<int>(i) == main) {
            archive_.extract(i, path);
            databases_.insert(databases_.begin(), Found{i, {}, std::make_unique<DatabaseReader>(path)});
            main_entry_ = entry;
            continue;
        }
        // Any other database is split into tables when it is one of a catalogue's; else it is a file.
        bool split = holdsDatabase(i);
        if (split) {
            try {
                archive_.extract(i, path);
                auto database = std::make_unique<DatabaseReader>(path);
                split = database->isProtected();
                QString sub = QFileInfo(entry).completeBaseName();
                if (!isSafePath(sub))
                    sub = QStringLiteral("database");
                while (first_parts.contains(sub.toCaseFolded()))
                    sub += u'_';
                if (split) {
                    first_parts.insert(sub.toCaseFolded());
                    databases_.push_back(Found{i, sub, std::move(database)});
                }
            } catch (const ToolError&) {
                split = false;
            }
        }
        if (!split)
            QFile::remove(path);
    }
}

QByteArray Unpacking::tableContent(const Found& found, const QString& table) {
    const QString entry = entryOf(found);
    const std::vector<ColumnDeclaration> columns = found.database->columns(table);
    const std::vector<bool> literal = literalColumns(*found.database, table, columns);
    const QString prefix = found.sub_folder.isEmpty() ? QString() : entry + u':';
    QByteArray content;
    std::vector<CsvField> fields;
    for (size_t i = 0; i < columns.size(); ++i) {
        fields.push_back({columns[i].name.toUtf8(), false});
        const QString key = prefix + table + u'.' + columns[i].name;
        const ColumnDeclaration known = source_.column(entry, table, columns[i].name);
        if (known.type != columns[i].type || known.collation != columns[i].collation)
            source_.columns.insert(key, columns[i].typeText());
        if (literal[i])
            source_.literals.insert(key);
    }
    appendCsvRow(content, fields);
    TableReader rows = found.database->read(table);
    while (rows.next()) {
        for (size_t i = 0; i < columns.size(); ++i) {
            const SqlValue value = rows.value(static_cast<int>(i));
            const bool null = std::holds_alternative<std::monostate>(value);
            fields[i] = literal[i] && !null ? CsvField{toLiteral(value), false} : plainField(value);
        }
        appendCsvRow(content, fields);
    }
    return content;
}

void Unpacking::writeDatabase(const Found& found) {
    if (!found.sub_folder.isEmpty())
        sub_folders_.insert(entryOf(found), found.sub_folder);
    const QString prefix = found.sub_folder.isEmpty() ? QString() : found.sub_folder + u'/';
    for (const QString& table : found.database->tables()) {
        QString path = prefix + table + QStringLiteral(".csv");
        if (!isSafePath(path) || table.contains(u'/') || !paths_.take(path)) {
            path = substitutePath(table, static_cast<int>(tables_elsewhere_.size()) + 1) +
                   QStringLiteral(".csv");
            path.replace(QStringLiteral("_entries"), QStringLiteral("_tables"));
            paths_.take(path);
            const QString key = prefix.isEmpty() && !table.contains(u':') ? table : u':' + table;
            tables_elsewhere_.insert((prefix.isEmpty() ? QString() : entryOf(found)) + key, path);
        }
        writeFile(inFolder(path), tableContent(found, table));
    }
    if (!found.sub_folder.isEmpty() && !QDir().mkpath(folder_ + u'/' + found.sub_folder))
        throw ToolError(QStringLiteral("%1: the folder can't be made").arg(found.sub_folder));
}

void Unpacking::writeFiles() {
    QSet<QString> database_folders;
    QSet<size_t> databases;
    for (const Found& found : databases_) {
        databases.insert(found.position);
        database_folders.insert(found.sub_folder.toCaseFolded());
    }
    int number = 0;
    for (const size_t i : kept_) {
        const ArchiveEntry& entry = archive_.entries()[i];
        if (databases.contains(i))
            continue;
        if (entry.isFolder()) {
            folders_.append(entry.name);
            if (isSafePath(entry.name.chopped(1)) && paths_.takeFolder(entry.name.chopped(1)))
                QDir().mkpath(inFolder(entry.name.chopped(1)));
            continue;
        }
        const QString first = entry.name.section(u'/', 0, 0).toCaseFolded();
        const bool table_file =
            !entry.name.contains(u'/') && entry.name.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive);
        const bool own = first == u"_tables" || first == u"_entries" || database_folders.contains(first);
        QString path = entry.name;
        if (table_file || own || !isSafePath(path) || !paths_.take(path)) {
            path = substitutePath(entry.name, ++number);
            paths_.take(path);
            renamed_.insert(path, entry.name);
        }
        archive_.extract(i, inFolder(path));
    }
}

void Unpacking::writeOptions() {
    QJsonObject options;
    options.insert(QStringLiteral("output"), output_);
    options.insert(QStringLiteral("database"), main_entry_);
    const auto add = [&](const char* key, const QJsonObject& value) {
        if (!value.isEmpty())
            options.insert(QLatin1String(key), value);
    };
    add("databases", sub_folders_);
    add("tables", tables_elsewhere_);
    add("entries", renamed_);
    QJsonObject columns;
    for (auto it = source_.columns.begin(); it != source_.columns.end(); ++it)
        columns.insert(it.key(), it.value());
    add("columns", columns);
    QStringList literals(source_.literals.begin(), source_.literals.end());
    literals.sort();
    if (!literals.isEmpty())
        options.insert(QStringLiteral("literals"), QJsonArray::fromStringList(literals));
    if (!folders_.isEmpty())
        options.insert(QStringLiteral("folders"), folders_);

    // The archive's order decides which of two entries with the same end the viewer takes.
    QStringList order, databases, others;
    QSet<size_t> database_positions;
    for (const Found& found : databases_)
        database_positions.insert(found.position);
    for (const size_t i : kept_) {
        const QString& name = archive_.entries()[i].name;
        order << name;
        (database_positions.contains(i) ? databases : others) << name;
    }
    if (order != naturalOrder(main_entry_, databases, others))
        options.insert(QStringLiteral("order"), QJsonArray::fromStringList(order));
    writeFile(inFolder(QStringLiteral("catalogue.json")), QJsonDocument(options).toJson());
}

}  // namespace

QStringList unpackPackage(const QString& package, const QString& folder, bool force) {
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir())
        throw ToolError(QStringLiteral("%1: isn't a folder").arg(folder));
    if (!force && info.isDir() &&
        !QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        throw ToolError(
            QStringLiteral("%1: the folder isn't empty; --force writes into it all the same").arg(folder));
    return Unpacking(package, QDir::cleanPath(info.absoluteFilePath())).run();
}

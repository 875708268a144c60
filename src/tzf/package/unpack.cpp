#include "tzf/package/unpack.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QTemporaryDir>
#include <cmath>
#include <map>
#include <optional>

#include "core/archivio/archivio.h"
#include "core/conversione/conversione.h"
#include "tzf/package/column_type.h"
#include "tzf/package/database_reader.h"
#include "tzf/package/literal.h"
#include "tzf/package/safe_path.h"
#include "tzf/package/source_folder.h"
#include "tzf/tables/csv.h"
#include "tzf/tool_error.h"

namespace {

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
}

/// Whether the value comes back as it is from the plain text that `plainField` makes of it.
bool survives(const Valore& value, const Definizione_Colonna& column) {
    if (value.E_Nullo())
        return true;
    if (value.E_Byte())
        return false;
    if (value.E_Testo()) {
        const QByteArray text = value.Byte();
        return text.isValidUtf8() && !text.contains('\0') &&
               (!isNumeric(column) || numberOrText(text).E_Testo());
    }
    return isNumeric(column) && (value.E_Intero() || !std::isinf(value.Numero()));
}

CsvField plainField(const Valore& value) {
    if (value.E_Nullo())
        return {};
    if (value.E_Testo())
        return {value.Byte(), false};
    return {value.E_Intero() ? QByteArray::number(value.Intero()) : numberText(value.Numero()), false};
}

/// Columns of a table of which some value needs a literal.
std::vector<bool> literalColumns(const DatabaseReader& database, const QString& table,
                                 const std::vector<Definizione_Colonna>& columns) {
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
        qsizetype position;
        QString sub_folder;  ///< "" for the catalogue's own database
        std::unique_ptr<DatabaseReader> database;
    };

    void findEntries();
    void findDatabases();
    bool holdsDatabase(qsizetype position) const;
    void writeDatabase(const Found& found);
    QByteArray tableContent(const Found& found, const QString& table);
    void writeFiles();
    void writeOptions();
    const Voce_Archivio& entry(qsizetype i) const { return archive_.Voci()[static_cast<size_t>(i)]; }
    void extract(qsizetype i, const QString& path) const;
    QString entryOf(const Found& found) const { return entry(found.position).Nome; }
    QString inFolder(const QString& relative) const { return pathInside(folder_, relative); }

    Archivio archive_;
    QString output_, folder_;
    QTemporaryDir temporary_;
    std::vector<qsizetype> kept_;  ///< positions of the entries that a package can have again
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
    require(archive_.Stato(), output_);
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

void Unpacking::extract(qsizetype i, const QString& path) const {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    require(archive_.Leggi_Voce(i, file), entry(i).Nome);
    if (!file.commit())
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
}

void Unpacking::findEntries() {
    // Of several entries with one name the viewer takes the last one.
    QHash<QString, qsizetype> last;
    const auto count = static_cast<qsizetype>(archive_.Voci().size());
    for (qsizetype i = 0; i < count; ++i)
        last.insert(entry(i).Nome, i);
    for (qsizetype i = 0; i < count; ++i) {
        const QString& name = entry(i).Nome;
        if (name.isEmpty() || name == u"/")
            losses_ << QStringLiteral("an entry without a name is left out");
        else if (last.value(name) != i)
            losses_ << QStringLiteral("entry %1 is there several times; the last one is kept").arg(name);
        else
            kept_.push_back(i);
    }
}

bool Unpacking::holdsDatabase(qsizetype position) const {
    return !entry(position).E_Cartella() && E_Un_Database(archive_.Inizio_Voce(position, BYTE_INIZIO));
}

void Unpacking::findDatabases() {
    const qsizetype main = archive_.Cerca_Voce(NOME_DATABASE);
    QSet<QString> first_parts;
    for (const qsizetype i : kept_)
        first_parts.insert(entry(i).Nome.section(u'/', 0, 0).toCaseFolded());
    for (const qsizetype i : kept_) {
        const QString path = temporary_.filePath(QString::number(i));
        const QString& name = entry(i).Nome;
        if (i == main) {
            extract(i, path);
            databases_.insert(databases_.begin(), Found{i, {}, std::make_unique<DatabaseReader>(path)});
            main_entry_ = name;
            continue;
        }
        // Any other database is split into tables when it is one of a catalogue's; else it is a file.
        bool split = holdsDatabase(i);
        if (split) {
            try {
                extract(i, path);
                auto database = std::make_unique<DatabaseReader>(path);
                split = database->isProtected();
                QString sub = QFileInfo(name).completeBaseName();
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
    const std::vector<Definizione_Colonna> columns = found.database->columns(table);
    const std::vector<bool> literal = literalColumns(*found.database, table, columns);
    const QString prefix = found.sub_folder.isEmpty() ? QString() : entry + u':';
    QByteArray content;
    std::vector<CsvField> fields;
    for (size_t i = 0; i < columns.size(); ++i) {
        fields.push_back({columns[i].Nome.toUtf8(), false});
        const QString key = prefix + table + u'.' + columns[i].Nome;
        const Definizione_Colonna known = source_.column(entry, table, columns[i].Nome);
        if (known != columns[i])
            source_.columns.insert(key, typeText(columns[i]));
        if (literal[i])
            source_.literals.insert(key);
    }
    appendCsvRow(content, fields);
    TableReader rows = found.database->read(table);
    while (rows.next()) {
        for (size_t i = 0; i < columns.size(); ++i) {
            const Valore value = rows.value(static_cast<int>(i));
            fields[i] =
                literal[i] && !value.E_Nullo() ? CsvField{toLiteral(value), false} : plainField(value);
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
    QSet<qsizetype> databases;
    for (const Found& found : databases_) {
        databases.insert(found.position);
        database_folders.insert(found.sub_folder.toCaseFolded());
    }
    int number = 0;
    for (const qsizetype i : kept_) {
        const QString& name = entry(i).Nome;
        if (databases.contains(i))
            continue;
        if (entry(i).E_Cartella()) {
            folders_.append(name);
            if (isSafePath(name.chopped(1)) && paths_.takeFolder(name.chopped(1)))
                QDir().mkpath(inFolder(name.chopped(1)));
            continue;
        }
        const QString first = name.section(u'/', 0, 0).toCaseFolded();
        const bool table_file =
            !name.contains(u'/') && name.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive);
        const bool own = first == u"_tables" || first == u"_entries" || database_folders.contains(first);
        QString path = name;
        if (table_file || own || !isSafePath(path) || !paths_.take(path)) {
            path = substitutePath(name, ++number);
            paths_.take(path);
            renamed_.insert(path, name);
        }
        extract(i, inFolder(path));
    }
}

void Unpacking::writeOptions() {
    QJsonObject options;
    options.insert(QStringLiteral("output"), output_);
    options.insert(QStringLiteral("database"), main_entry_);
    // What is in the package is all there is, and all of it stays.
    options.insert(QStringLiteral("complete"), false);
    options.insert(QStringLiteral("keep"), QJsonArray{QStringLiteral("*")});
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
    QSet<qsizetype> database_positions;
    for (const Found& found : databases_)
        database_positions.insert(found.position);
    for (const qsizetype i : kept_) {
        const QString& name = entry(i).Nome;
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

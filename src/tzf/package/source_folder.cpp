#include "tzf/package/source_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>
#include <optional>

#include "core/archivio/archivio.h"
#include "tzf/package/column_type.h"
#include "tzf/tool_error.h"

namespace {

const QString CATALOGUE_FILE = QStringLiteral("catalogue.json");

[[noreturn]] void fault(const QString& folder, const QString& message) {
    throw ToolError(QStringLiteral("%1: %2").arg(QDir(folder).filePath(CATALOGUE_FILE), message));
}

OptionReader readOptions(const QString& folder) {
    QFile file(QDir(folder).filePath(CATALOGUE_FILE));
    if (!file.exists())
        throw ToolError(
            QStringLiteral("%1: there is no %2, so this is no source of a catalogue; \"tzf new\" makes one")
                .arg(folder, CATALOGUE_FILE));
    if (!file.open(QIODevice::ReadOnly))
        throw ToolError(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    QJsonParseError error;
    const QByteArray content = file.readAll();
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        throw SourceError(file.fileName(), content.left(error.offset).count('\n') + 1, error.errorString());
    if (!document.isObject())
        fault(folder, QStringLiteral("an object is expected"));
    OptionReader options(document.object(), file.fileName());
    options.allow(CatalogueOptions::known() +
                  QStringList{QStringLiteral("output"), QStringLiteral("database"),
                              QStringLiteral("databases"), QStringLiteral("tables"),
                              QStringLiteral("columns"), QStringLiteral("literals"),
                              QStringLiteral("entries"), QStringLiteral("folders"), QStringLiteral("order"),
                              QStringLiteral("ignore"), QStringLiteral("keep"), QStringLiteral("base")});
    return options;
}

/// Whether one of the patterns fits, in which "*" stands for any text, folders too.
bool matches(const QStringList& patterns, const QString& name) {
    return std::any_of(patterns.begin(), patterns.end(), [&](const QString& pattern) {
        QString expression = QRegularExpression::escape(pattern);
        expression.replace(QStringLiteral("\\*"), QStringLiteral(".*"))
            .replace(QStringLiteral("\\?"), QStringLiteral("."));
        return QRegularExpression(QRegularExpression::anchoredPattern(expression)).match(name).hasMatch();
    });
}

bool isTableFile(const QString& name) {
    return name.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive) && name.size() > 4;
}

/// Adds the CSV files that stand directly in a folder, unless they are spoken for already.
void addTables(const QString& path, const QSet<QString>& taken, SourceDatabase& database) {
    const QDir dir(path);
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        const QString file = QDir::cleanPath(dir.absoluteFilePath(name));
        if (!isTableFile(name) || name.startsWith(u'.') || taken.contains(file))
            continue;
        const QString table = name.chopped(4);
        for (const QString& other : database.tables.keys())
            if (other.compare(table, Qt::CaseInsensitive) == 0)
                throw ToolError(QStringLiteral("%1: table %2 is there twice").arg(file, table));
        database.tables.insert(table, file);
    }
}

QString columnKey(const QString& table, const QString& column) {
    return table + u'.' + column;
}

}  // namespace

QStringList naturalOrder(const QString& main_entry, QStringList databases, QStringList others) {
    databases.removeAll(main_entry);
    std::sort(databases.begin(), databases.end());
    std::sort(others.begin(), others.end());
    QStringList order = databases + others;
    if (!main_entry.isEmpty())
        order.prepend(main_entry);
    return order;
}

SourceFolder SourceFolder::read(const QString& path) {
    return read(path, {});
}

SourceFolder SourceFolder::read(const QString& path, QStringList variants) {
    SourceFolder source;
    source.folder = QDir::cleanPath(QDir(path).absolutePath());
    if (!QFileInfo(source.folder).isDir())
        throw ToolError(QStringLiteral("%1: no such folder").arg(path));
    const QString& folder = source.folder;
    const OptionReader options = readOptions(folder);
    std::optional<SourceFolder> base;
    if (const QString name = options.text(QStringLiteral("base")); !name.isEmpty()) {
        variants << folder;
        const QString base_folder = QDir::cleanPath(QDir(folder).absoluteFilePath(name));
        if (variants.contains(base_folder))
            fault(folder, QStringLiteral("\"base\": %1 leads back to this folder").arg(name));
        base = read(base_folder, variants);
    }
    source.output = options.text(QStringLiteral("output"));
    source.main_entry_ = options.text(QStringLiteral("database"), base ? base->main_entry_ : NOME_DATABASE);
    source.catalogue = CatalogueOptions::read(options, folder, QDir(folder).filePath(CATALOGUE_FILE));
    source.keep = options.list(QStringLiteral("keep"));
    source.columns = options.map(QStringLiteral("columns"));
    const QStringList literals = options.list(QStringLiteral("literals"));
    source.literals = QSet<QString>(literals.begin(), literals.end());
    source.folders = options.list(QStringLiteral("folders"));
    source.order_ = options.list(QStringLiteral("order"));

    const QMap<QString, QString> others = options.map(QStringLiteral("databases"));
    if (!source.main_entry_.isEmpty())
        source.databases.push_back({source.main_entry_, {}});
    for (auto it = others.begin(); it != others.end(); ++it)
        source.databases.push_back({it.key(), {}});

    // Tables that live elsewhere first: their files are no tables of their own.
    const QStringList sheets = source.catalogue.files();
    QSet<QString> taken(sheets.begin(), sheets.end());
    const QMap<QString, QString> tables = options.map(QStringLiteral("tables"));
    for (auto it = tables.begin(); it != tables.end(); ++it) {
        const QString file = QDir::cleanPath(QDir(folder).absoluteFilePath(it.value()));
        if (!QFileInfo(file).isFile())
            fault(folder, QStringLiteral("\"tables\": %1 isn't there").arg(it.value()));
        taken.insert(file);
        // "entry:Table", or a table of the catalogue's own database, whose name may have ":" in front.
        auto database = std::find_if(source.databases.begin(), source.databases.end(),
                                     [&](const auto& d) { return it.key().startsWith(d.entry + u':'); });
        QString table = it.key();
        if (database != source.databases.end()) {
            table.remove(0, database->entry.size() + 1);
        } else {
            table.remove(0, table.startsWith(u':') ? 1 : 0);
            database = source.databases.begin();
            if (source.main_entry_.isEmpty())
                fault(folder, QStringLiteral("\"tables\": %1 is of no database").arg(it.key()));
        }
        database->tables.insert(table, file);
    }
    for (SourceDatabase& database : source.databases) {
        const bool main = database.entry == source.main_entry_;
        const QString sub = main ? folder : QDir(folder).filePath(others.value(database.entry));
        if (!QFileInfo(sub).isDir())
            fault(folder, QStringLiteral("\"databases\": %1 is no folder").arg(others.value(database.entry)));
        addTables(sub, taken, database);
    }
    const QMap<QString, QString> renamed = options.map(QStringLiteral("entries"));
    QStringList ignored = options.list(QStringLiteral("ignore"));
    for (const QString& sub : others)
        ignored << QDir::cleanPath(sub) + QStringLiteral("/*");
    for (const QString& file : taken)
        ignored << QDir(folder).relativeFilePath(file);
    source.readFiles(renamed, ignored);
    if (base)
        source.inherit(*base);
    source.checkEntries();
    return source;
}

void SourceFolder::inherit(const SourceFolder& base) {
    for (const SourceDatabase& theirs : base.databases) {
        auto ours = std::find_if(databases.begin(), databases.end(),
                                 [&](const SourceDatabase& d) { return d.entry == theirs.entry; });
        if (ours == databases.end())
            ours = databases.insert(databases.end(), {theirs.entry, {}});
        for (auto table = theirs.tables.begin(); table != theirs.tables.end(); ++table) {
            const QStringList own = ours->tables.keys();
            if (!own.contains(table.key(), Qt::CaseInsensitive))
                ours->tables.insert(table.key(), table.value());
        }
    }
    QSet<QString> entries;
    for (const SourceFile& file : files)
        entries.insert(file.entry);
    for (const SourceFile& file : base.files)
        if (!entries.contains(file.entry))
            files.push_back(file);
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.entry < b.entry; });
    for (auto column = base.columns.begin(); column != base.columns.end(); ++column)
        if (!columns.contains(column.key()))
            columns.insert(column.key(), column.value());
    literals.unite(base.literals);
    catalogue.inherit(base.catalogue);
    keep << base.keep;
    for (const QString& entry : base.folders)
        if (!folders.contains(entry))
            folders << entry;
    if (order_.isEmpty())
        order_ = base.order_;
}

void SourceFolder::readFiles(const QMap<QString, QString>& renamed, const QStringList& ignored) {
    for (auto it = renamed.begin(); it != renamed.end(); ++it)
        if (!QFileInfo(QDir(folder).filePath(it.key())).isFile())
            fault(folder, QStringLiteral("\"entries\": %1 isn't there").arg(it.key()));

    // Hidden files are a desktop's and an editor's, never the catalogue's.
    QDirIterator walk(folder, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString name = QDir(folder).relativeFilePath(path);
        const bool hidden = name.startsWith(u'.') || name.contains(QStringLiteral("/."));
        if (hidden || name == CATALOGUE_FILE || matches(ignored, name))
            continue;
        if (!renamed.contains(name) && !name.contains(u'/') && isTableFile(name) && !main_entry_.isEmpty())
            continue;
        if (walk.fileInfo().isSymLink())
            throw ToolError(QStringLiteral("%1: is a link; a package takes files only").arg(path));
        files.push_back({renamed.value(name, name), path});
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.entry < b.entry; });
}

void SourceFolder::checkEntries() const {
    QStringList all = folders;
    for (const SourceDatabase& database : databases)
        all << database.entry;
    for (const SourceFile& file : files)
        all << file.entry;
    QSet<QString> seen;
    for (const QString& entry : all) {
        if (seen.contains(entry))
            fault(folder, QStringLiteral("entry %1 is there twice").arg(entry));
        seen.insert(entry);
    }
    for (const QString& entry : folders)
        if (!entry.endsWith(u'/'))
            fault(folder, QStringLiteral("\"folders\": %1 doesn't end with \"/\"").arg(entry));
    for (const QString& entry : order_)
        if (!seen.contains(entry))
            fault(folder, QStringLiteral("\"order\": there is no entry %1").arg(entry));
}

Definizione_Colonna SourceFolder::column(const QString& entry, const QString& table,
                                         const QString& name) const {
    const QString key = columnKey(table, name);
    auto it = columns.constFind(entry + u':' + key);
    if (it == columns.constEnd())
        it = columns.constFind(key);
    return it == columns.constEnd() ? Definizione_Nota(table, name) : parseColumn(name, *it);
}

bool SourceFolder::isLiteral(const QString& entry, const QString& table, const QString& name) const {
    return literals.contains(entry + u':' + columnKey(table, name)) ||
           literals.contains(columnKey(table, name));
}

bool SourceFolder::isKept(const QString& entry) const {
    return matches(keep, entry);
}

bool SourceFolder::isEmpty() const {
    return files.empty() && catalogue.files().isEmpty() &&
           std::all_of(databases.begin(), databases.end(),
                       [](const SourceDatabase& database) { return database.tables.isEmpty(); });
}

QStringList SourceFolder::entries() const {
    QStringList database_entries, others = folders;
    for (const SourceDatabase& database : databases)
        database_entries << database.entry;
    for (const SourceFile& file : files)
        others << file.entry;
    QStringList result = order_;
    const QSet<QString> placed(order_.begin(), order_.end());
    for (const QString& entry : naturalOrder(main_entry_, database_entries, others))
        if (!placed.contains(entry))
            result << entry;
    return result;
}

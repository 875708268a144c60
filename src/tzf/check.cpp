#include "tzf/check.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <optional>

#include "core/base/testo.h"
#include "core/package/class_progetto_aperto.h"
#include "tzf/archive.h"
#include "tzf/check_context.h"
#include "tzf/pack.h"
#include "tzf/schema.h"
#include "tzf/source_folder.h"
#include "tzf/tool_error.h"

namespace {

/// What is examined, brought into one form.
struct Subject {
    QStringList entries;
    QString database;  ///< path of the catalogue's database; "" when there is none
    std::vector<Finding> findings;
    std::function<QString(const QString& entry)> open;  ///< path of a file with an entry's content
};

void readPackage(const QString& path, const QTemporaryDir& temporary, Subject& subject) {
    const auto archive = std::make_shared<ArchiveReader>(path);
    for (const ArchiveEntry& entry : archive->entries()) {
        subject.entries << entry.name;
        if (!entry.encrypted && !entry.isFolder())
            subject.findings.push_back(
                {false, {}, 0, {}, QStringLiteral("entry \"%1\" isn't encrypted").arg(entry.name)});
        if (!entry.isFolder() && Nome_Sicuro(entry.name).isEmpty())
            subject.findings.push_back(
                {true,
                 {},
                 0,
                 {},
                 QStringLiteral("entry \"%1\" has a name that no file can have").arg(entry.name)});
    }
    if (const Stato_Archivio state = Verifica_Pacchetto(path))
        subject.findings.push_back({true, {}, 0, {}, Descrizione_Stato(state)});
    subject.open = [archive, file = temporary.filePath(QStringLiteral("drawing"))](const QString& entry) {
        archive->extract(static_cast<size_t>(archive->lastEndingWith(entry)), file);
        return file;
    };
    const int database = archive->lastEndingWith(NOME_DATABASE);
    if (database >= 0) {
        archive->extract(static_cast<size_t>(database), temporary.filePath(NOME_DATABASE));
        subject.database = temporary.filePath(NOME_DATABASE);
    }
}

void readFolder(const QString& path, const QTemporaryDir& temporary, Subject& subject) {
    const SourceFolder source = SourceFolder::read(path);
    subject.entries = source.entries();
    QHash<QString, QString> files;
    for (const SourceFile& file : source.files)
        files.insert(file.entry, file.path);
    subject.open = [files](const QString& entry) { return files.value(entry); };
    for (const SourceDatabase& database : source.databases) {
        const bool main = database.entry.endsWith(NOME_DATABASE);
        const QString file = temporary.filePath(main ? NOME_DATABASE : QStringLiteral("other"));
        buildDatabase(source, database, file);
        if (main)
            subject.database = file;
    }
}

/// All files of a package land in one folder when they are used, so their names must differ.
void checkNames(Subject& subject) {
    QHash<QString, QString> seen;
    for (const QString& entry : subject.entries) {
        const QString name = Nome_File(entry, u"/");
        if (name.isEmpty())
            continue;
        if (seen.contains(name))
            subject.findings.push_back(
                {true,
                 {},
                 0,
                 {},
                 QStringLiteral("entries \"%1\" and \"%2\" have one name, so one takes the other's place")
                     .arg(seen.value(name), entry)});
        seen.insert(name, entry);
    }
}

}  // namespace

std::vector<Finding> checkCatalogue(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw ToolError(QStringLiteral("%1: no such file or folder").arg(path));
    QTemporaryDir temporary;
    if (!temporary.isValid())
        throw ToolError(temporary.errorString());
    Subject subject;
    try {
        if (info.isDir())
            readFolder(path, temporary, subject);
        else
            readPackage(path, temporary, subject);
        checkNames(subject);
        if (subject.database.isEmpty())
            throw ToolError(QStringLiteral("there is no catalogue: entry %1 is missing").arg(NOME_DATABASE));
        const DatabaseReader database(subject.database);
        CheckContext context(database, subject.entries);
        context.openEntry = subject.open;
        checkTables(context);
        checkLanguages(context);
        checkTree(context);
        checkSystem(context);
        checkParts(context);
        checkDrawings(context);
        checkPeople(context);
        subject.findings.insert(subject.findings.end(), context.findings.begin(), context.findings.end());
    } catch (const ToolError& error) {
        subject.findings.push_back({true, {}, 0, {}, error.message()});
    }
    return subject.findings;
}

void checkTables(CheckContext& context) {
    const QSet<int> offered(context.languages.begin(), context.languages.end());
    for (const KnownTable& table : knownTables()) {
        if (!context.database.hasTable(table.name)) {
            if (table.needed)
                context.error(table.name, 0, {}, QStringLiteral("the table is missing"));
            continue;
        }
        QSet<QString> present;
        for (const ColumnDeclaration& column : context.database.columns(table.name))
            present.insert(column.name.toLower());
        for (const KnownColumn& column : table.columns)
            if (column.needed && (column.family == 0 || offered.contains(column.family)) &&
                !present.contains(column.name.toLower()))
                context.error(table.name, 0, column.name, QStringLiteral("the column is missing"));
    }
}

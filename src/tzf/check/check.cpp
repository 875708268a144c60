#include "tzf/check/check.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "core/archivio/archivio.h"
#include "core/base/percorsi.h"
#include "core/catalogue_db/schema.h"
#include "tzf/check/check_context.h"
#include "tzf/package/pack.h"
#include "tzf/package/source_folder.h"
#include "tzf/tool_error.h"

namespace {

/// What is examined, brought into one form.
struct Subject {
    QStringList entries;
    QString database;  ///< path of the catalogue's database; "" when there is none
    std::vector<Finding> findings;
    std::function<QString(const QString& entry)> open;  ///< path of a file with an entry's content

    void fault(bool error, const QString& message) { findings.push_back({error, {}, 0, {}, message}); }
};

void readPackage(const QString& path, const QTemporaryDir& temporary, Subject& subject) {
    const auto archive = std::make_shared<Archivio>(path);
    require(archive->Stato(), path);
    for (const Voce_Archivio& entry : archive->Voci()) {
        subject.entries << entry.Nome;
        if (entry.E_Cartella())
            continue;
        if (!entry.Cifrata)
            subject.fault(false, QStringLiteral("entry \"%1\" isn't encrypted").arg(entry.Nome));
        if (Nome_Sicuro(entry.Nome).isEmpty())
            subject.fault(true,
                          QStringLiteral("entry \"%1\" has a name that no file can have").arg(entry.Nome));
    }
    if (const Stato_Archivio state = archive->Verifica_Pacchetto())
        subject.fault(true, Descrizione_Stato(state));
    const auto extract = [archive, &temporary](const QString& entry) {
        QString file;
        require(archive->Scompatta_Voce(archive->Cerca_Voce(entry), temporary.path(), file), entry);
        return file;
    };
    subject.open = [extract, file = QString()](const QString& entry) mutable {
        if (!file.isEmpty())
            QFile::remove(file);  // one at a time
        file = extract(entry);
        return file;
    };
    if (archive->Cerca_Voce(NOME_DATABASE) >= 0)
        subject.database = extract(NOME_DATABASE);
}

void readFolder(const QString& path, const QTemporaryDir& temporary, Subject& subject) {
    const SourceFolder source = SourceFolder::read(path);
    subject.entries = source.entries();
    QHash<QString, QString> files;
    for (const SourceFile& file : source.files)
        files.insert(Nome_Di_Ricerca(file.entry), file.path);
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
        const QString name = Nome_File(Nome_Di_Ricerca(entry), u"/");
        if (name.isEmpty())
            continue;
        if (seen.contains(name))
            subject.fault(true, QStringLiteral(
                                    "entries \"%1\" and \"%2\" have one name, so one takes the other's place")
                                    .arg(seen.value(name), entry));
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
        subject.fault(true, error.message());
    }
    return subject.findings;
}

void checkTables(CheckContext& context) {
    const QSet<int> offered(context.languages.begin(), context.languages.end());
    for (const Tabella_Nota& table : Tabelle_Note()) {
        if (!context.database.hasTable(table.Nome)) {
            if (table.Necessaria)
                context.error(table.Nome, 0, {}, QStringLiteral("the table is missing"));
            continue;
        }
        QSet<QString> present;
        for (const Definizione_Colonna& column : context.database.columns(table.Nome))
            present.insert(column.Nome.toLower());
        for (const Colonna_Nota& column : table.Colonne)
            if (column.Necessaria && (column.Lingua == 0 || offered.contains(column.Lingua)) &&
                !present.contains(column.Nome.toLower()))
                context.error(table.Nome, 0, column.Nome, QStringLiteral("the column is missing"));
    }
}

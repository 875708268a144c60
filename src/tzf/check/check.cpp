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
#include "tzf/package/named_files.h"
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
    std::function<QString(const QString& table, qint64 row)> place;  ///< where a made table's row comes from

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
    if (source.isEmpty())
        throw ToolError(
            QStringLiteral("%1: there are no tables and no files; \"tzf new\" makes a folder to begin with")
                .arg(path));
    subject.entries = source.entries();
    QHash<QString, QString> files;
    for (const SourceFile& file : source.files)
        files.insert(Nome_Di_Ricerca(file.entry), file.path);
    subject.open = [files](const QString& entry) { return files.value(entry); };
    for (const SourceDatabase& database : source.databases) {
        const bool main = database.entry.endsWith(NOME_DATABASE);
        const QString file = temporary.filePath(main ? NOME_DATABASE : QStringLiteral("other"));
        const auto tables = std::make_shared<CatalogueTables>(buildDatabase(source, database, file));
        for (const QString& doubt : tables->doubts())
            subject.fault(false, doubt);
        if (!main)
            continue;
        subject.database = file;
        subject.place = [tables](const QString& table, qint64 row) { return tables->place(table, row); };
        for (const QString& unnamed : unnamedFiles(source, file)) {
            subject.entries.removeAll(unnamed);
            subject.fault(false,
                          QStringLiteral("file \"%1\" is named in no table, so it is left out; \"keep\" in "
                                         "catalogue.json keeps it")
                              .arg(unnamed));
        }
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

/// A column that is missing stands for all that its rows lack, and equal faults of several rows are one.
std::vector<Finding> oneForEachCause(const std::vector<Finding>& findings) {
    QSet<QString> missing;
    for (const Finding& finding : findings)
        if (finding.error && finding.row == 0 && !finding.column.isEmpty())
            missing.insert(finding.table + u'.' + finding.column);
    std::vector<Finding> result;
    QHash<QString, size_t> known;
    for (const Finding& finding : findings) {
        if (finding.row > 0 && missing.contains(finding.table + u'.' + finding.column))
            continue;
        const QString cause = QStringList{finding.error ? QStringLiteral("e") : QString(), finding.table,
                                          finding.column, finding.message}
                                  .join(u'\n');
        const auto same = known.constFind(cause);
        if (same == known.constEnd()) {
            known.insert(cause, result.size());
            result.push_back(finding);
        } else if (finding.row > 0) {
            result[*same].more << finding.row;
        }
    }
    return result;
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
        checkValues(context);
        checkPictures(context);
        checkDrawings(context);
        checkPeople(context);
        checkTexts(context);
        subject.findings.insert(subject.findings.end(), context.findings.begin(), context.findings.end());
    } catch (const ToolError& error) {
        subject.fault(true, error.message());
    }
    for (Finding& finding : subject.findings)
        if (subject.place)
            finding.place = subject.place(finding.table, finding.row);
    return oneForEachCause(subject.findings);
}

void checkTables(CheckContext& context) {
    static const QStringList others = {QStringLiteral("Oggetti_Form")};
    for (const QString& table : context.database.tables())
        if (Colonne_Note(table).isEmpty() && table.compare(u"Componenti", Qt::CaseInsensitive) != 0 &&
            !others.contains(table, Qt::CaseInsensitive))
            context.warning(table, 0, {}, QStringLiteral("the viewer knows no table of this name"));
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

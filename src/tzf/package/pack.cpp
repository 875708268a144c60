#include "tzf/package/pack.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

#include "core/archivio/archivio_in_scrittura.h"
#include "core/catalogue_db/creazione_database.h"
#include "tzf/package/column_type.h"
#include "tzf/package/literal.h"
#include "tzf/package/named_files.h"
#include "tzf/tool_error.h"

namespace {

void addTable(const SourceFolder& source, const QString& entry, const QString& table, RowSource& rows,
              Creazione_Database& database) {
    std::vector<Definizione_Colonna> columns;
    std::vector<bool> numeric, literal;
    for (const QString& name : rows.columns()) {
        columns.push_back(source.column(entry, table, name));
        numeric.push_back(isNumeric(columns.back()));
        literal.push_back(source.isLiteral(entry, table, name));
    }
    Statement writer = database.Tabella(table, columns);
    std::vector<CsvField> fields;
    std::vector<Valore> row(columns.size());
    while (rows.next(fields)) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (fields[i].null)
                row[i] = Valore();
            else if (literal[i] && !parseLiteral(fields[i].text, row[i]))
                rows.fail(QStringLiteral("column %1 holds SQL literals; %2 is none")
                              .arg(columns[i].Nome, QString::fromUtf8(fields[i].text)));
            else if (!literal[i])
                row[i] = numeric[i] ? numberOrText(fields[i].text) : Valore::Da_Testo(fields[i].text);
        }
        writer.Esegui(row);
    }
}

void count(const DatabaseReader& database, PackReport& report) {
    report.has_catalogue = true;
    report.nodes =
        std::max<qint64>(database.rows(QStringLiteral("Albero_Web")) - 1, 0);  // the root never shows
    report.products = database.rows(QStringLiteral("Prodotti"));
    report.parts = database.rows(QStringLiteral("Componenti"));
    report.rows = database.rows(QStringLiteral("Componenti_Web"));
    if (!database.hasTable(QStringLiteral("Lingue")))
        return;
    TableReader rows = database.read(QStringLiteral("Lingue"));
    while (rows.next())
        if (rows.text(QStringLiteral("Attiva_Lingua")).compare(u"TRUE", Qt::CaseInsensitive) == 0)
            report.languages << rows.text(QStringLiteral("Descrizione_Lingua"));
}

}  // namespace

CatalogueTables buildDatabase(const SourceFolder& source, const SourceDatabase& database,
                              const QString& path) {
    CatalogueOptions options = source.catalogue;
    options.complete = options.complete && database.entry.endsWith(NOME_DATABASE);
    CatalogueTables tables(options, database.tables);
    onDatabase("the database can't be written: ", [&] {
        Creazione_Database writer(path);
        for (const QString& table : tables.names())
            addTable(source, database.entry, table, *tables.open(table), writer);
        writer.Termina();
    });
    return tables;
}

PackReport packFolder(const QString& folder, const QString& package) {
    const SourceFolder source = SourceFolder::read(folder);
    if (source.isEmpty())
        throw ToolError(
            QStringLiteral("%1: there are no tables and no files; \"tzf new\" makes a folder to begin with")
                .arg(folder));
    QTemporaryDir temporary;
    if (!temporary.isValid())
        throw ToolError(temporary.errorString());
    PackReport report;
    QMap<QString, QString> paths;
    for (const SourceDatabase& database : source.databases) {
        const QString path = temporary.filePath(QString::number(paths.size()));
        report.doubts << buildDatabase(source, database, path).doubts();
        paths.insert(database.entry, path);
        if (database.entry.endsWith(NOME_DATABASE)) {
            count(DatabaseReader(path), report);
            report.left_out = unnamedFiles(source, path);
        }
    }
    for (const SourceFile& file : source.files)
        paths.insert(file.entry, file.path);
    Archivio_In_Scrittura archive(package);
    for (const QString& entry : source.entries()) {
        if (entry.endsWith(u'/'))
            archive.Aggiungi_Cartella(entry);
        else if (!report.left_out.contains(entry))
            archive.Aggiungi_File(entry, paths.value(entry));
    }
    report.files = static_cast<qsizetype>(source.files.size()) - report.left_out.size();
    if (const QString fault = archive.Termina(); !fault.isEmpty())
        throw ToolError(fault);
    return report;
}

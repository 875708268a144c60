#include "tzf/package/pack.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

#include "core/archivio/archivio_in_scrittura.h"
#include "core/catalogue_db/creazione_database.h"
#include "tzf/package/column_type.h"
#include "tzf/package/csv.h"
#include "tzf/package/literal.h"
#include "tzf/tool_error.h"

namespace {

void addTable(const SourceFolder& source, const QString& entry, const QString& table, const QString& path,
              Creazione_Database& database) {
    CsvReader csv(path);
    std::vector<Definizione_Colonna> columns;
    std::vector<bool> numeric, literal;
    for (const QString& name : csv.header()) {
        columns.push_back(source.column(entry, table, name));
        numeric.push_back(isNumeric(columns.back()));
        literal.push_back(source.isLiteral(entry, table, name));
    }
    Statement writer = database.Tabella(table, columns);
    std::vector<CsvField> fields;
    std::vector<Valore> row(columns.size());
    while (csv.next(fields)) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (fields[i].null)
                row[i] = Valore();
            else if (literal[i] && !parseLiteral(fields[i].text, row[i]))
                throw SourceError(path, csv.line(),
                                  QStringLiteral("column %1 holds SQL literals; %2 is none")
                                      .arg(columns[i].Nome, QString::fromUtf8(fields[i].text)));
            else if (!literal[i])
                row[i] = numeric[i] ? numberOrText(fields[i].text) : Valore::Da_Testo(fields[i].text);
        }
        writer.Esegui(row);
    }
}

}  // namespace

void buildDatabase(const SourceFolder& source, const SourceDatabase& database, const QString& path) {
    onDatabase("the database can't be written: ", [&] {
        Creazione_Database writer(path);
        for (auto it = database.tables.begin(); it != database.tables.end(); ++it)
            addTable(source, database.entry, it.key(), it.value(), writer);
        writer.Termina();
    });
}

void packFolder(const QString& folder, const QString& package) {
    const SourceFolder source = SourceFolder::read(folder);
    QTemporaryDir temporary;
    if (!temporary.isValid())
        throw ToolError(temporary.errorString());
    QMap<QString, QString> paths;
    for (const SourceDatabase& database : source.databases) {
        const QString path = temporary.filePath(QString::number(paths.size()));
        buildDatabase(source, database, path);
        paths.insert(database.entry, path);
    }
    for (const SourceFile& file : source.files)
        paths.insert(file.entry, file.path);
    Archivio_In_Scrittura archive(package);
    for (const QString& entry : source.entries()) {
        if (entry.endsWith(u'/'))
            archive.Aggiungi_Cartella(entry);
        else
            archive.Aggiungi_File(entry, paths.value(entry));
    }
    if (const QString fault = archive.Termina(); !fault.isEmpty())
        throw ToolError(fault);
}

#include "tzf/pack.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

#include "core/package/class_progetto_aperto.h"
#include "tzf/archive.h"
#include "tzf/tool_error.h"

namespace {

void addTable(const SourceFolder& source, const QString& entry, const QString& table, RowSource& rows,
              DatabaseWriter& database) {
    std::vector<ColumnDeclaration> columns;
    std::vector<bool> numeric, literal;
    for (const QString& name : rows.columns()) {
        columns.push_back(source.column(entry, table, name));
        numeric.push_back(columns.back().isNumeric());
        literal.push_back(source.isLiteral(entry, table, name));
    }
    TableWriter writer = database.table(table, columns);
    std::vector<CsvField> fields;
    std::vector<SqlValue> row(columns.size());
    while (rows.next(fields)) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (fields[i].null)
                row[i] = std::monostate();
            else if (literal[i] && !parseLiteral(fields[i].text, row[i]))
                rows.fail(QStringLiteral("column %1 holds SQL literals; %2 is none")
                              .arg(columns[i].name, QString::fromUtf8(fields[i].text)));
            else if (!literal[i])
                row[i] = numeric[i] ? numberOrText(fields[i].text) : SqlValue(fields[i].text);
        }
        writer.add(row);
    }
}

}  // namespace

CatalogueTables buildDatabase(const SourceFolder& source, const SourceDatabase& database,
                              const QString& path) {
    CatalogueOptions options = source.catalogue;
    options.complete = options.complete && database.entry.endsWith(NOME_DATABASE);
    CatalogueTables tables(options, database.tables);
    DatabaseWriter writer(path);
    for (const QString& table : tables.names())
        addTable(source, database.entry, table, *tables.open(table), writer);
    writer.finish();
    return tables;
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
    ArchiveWriter archive(package);
    for (const QString& entry : source.entries()) {
        if (entry.endsWith(u'/'))
            archive.addFolder(entry);
        else
            archive.addFile(entry, paths.value(entry));
    }
    archive.finish();
}

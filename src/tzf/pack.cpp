#include "tzf/pack.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

#include "tzf/archive.h"
#include "tzf/csv.h"
#include "tzf/tool_error.h"

namespace {

void addTable(const SourceFolder& source, const QString& entry, const QString& table, const QString& path,
              DatabaseWriter& database) {
    CsvReader csv(path);
    std::vector<ColumnDeclaration> columns;
    std::vector<bool> numeric, literal;
    for (const QString& name : csv.header()) {
        columns.push_back(source.column(entry, table, name));
        numeric.push_back(columns.back().isNumeric());
        literal.push_back(source.isLiteral(entry, table, name));
    }
    TableWriter writer = database.table(table, columns);
    std::vector<CsvField> fields;
    std::vector<SqlValue> row(columns.size());
    while (csv.next(fields)) {
        for (size_t i = 0; i < fields.size(); ++i) {
            if (fields[i].null)
                row[i] = std::monostate();
            else if (literal[i] && !parseLiteral(fields[i].text, row[i]))
                throw SourceError(path, csv.line(),
                                  QStringLiteral("column %1 holds SQL literals; %2 is none")
                                      .arg(columns[i].name, QString::fromUtf8(fields[i].text)));
            else if (!literal[i])
                row[i] = numeric[i] ? numberOrText(fields[i].text) : SqlValue(fields[i].text);
        }
        writer.add(row);
    }
}

}  // namespace

void buildDatabase(const SourceFolder& source, const SourceDatabase& database, const QString& path) {
    DatabaseWriter writer(path);
    for (auto it = database.tables.begin(); it != database.tables.end(); ++it)
        addTable(source, database.entry, it.key(), it.value(), writer);
    writer.finish();
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

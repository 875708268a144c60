#include "tzf/tables/sheet.h"

#include <QFileInfo>

#include "tzf/tables/csv.h"
#include "tzf/tool_error.h"

namespace {

/// A workbook's rows below its column names.
Sheet fromWorkbook(const QString& path, const QString& name) {
    std::vector<WorkbookSheet> sheets = readWorkbook(path);
    auto found = sheets.begin();
    if (!name.isEmpty()) {
        QStringList names;
        for (const WorkbookSheet& sheet : sheets)
            names << sheet.name;
        found = std::find_if(sheets.begin(), sheets.end(), [&](const WorkbookSheet& sheet) {
            return sheet.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (found == sheets.end())
            throw ToolError(QStringLiteral("%1: there is no sheet \"%2\"; there are: %3")
                                .arg(path, name, names.join(QStringLiteral(", "))));
    }
    Sheet sheet;
    sheet.name = QStringLiteral("%1 (%2)").arg(QFileInfo(path).fileName(), found->name);
    std::vector<size_t> places;  // of the columns that have a name
    for (auto& [number, cells] : found->rows) {
        if (std::all_of(cells.begin(), cells.end(),
                        [](const SheetCell& cell) { return cell.text.isEmpty() && cell.fault.isEmpty(); }))
            continue;
        if (places.empty()) {
            for (size_t i = 0; i < cells.size(); ++i) {
                if (cells[i].text.isEmpty())
                    continue;
                if (sheet.column(cells[i].text) >= 0)
                    throw ToolError(
                        QStringLiteral("%1: column \"%2\" is there twice").arg(sheet.name, cells[i].text));
                places.push_back(i);
                sheet.header << cells[i].text;
            }
            continue;
        }
        SheetRow row{number, {}};
        for (const size_t place : places)
            row.cells.push_back(place < cells.size() ? cells[place] : SheetCell{});
        sheet.rows.push_back(std::move(row));
    }
    if (sheet.header.isEmpty())
        throw ToolError(QStringLiteral("%1: the sheet is empty").arg(sheet.name));
    return sheet;
}

Sheet fromCsv(const QString& path) {
    CsvReader csv(path);
    Sheet sheet;
    sheet.name = QFileInfo(path).fileName();
    for (const QString& column : csv.header())
        sheet.header << column.trimmed();
    std::vector<CsvField> fields;
    while (csv.next(fields)) {
        SheetRow row{csv.line(), {}};
        bool empty = true;
        for (const CsvField& field : fields) {
            row.cells.push_back({QString::fromUtf8(field.text).trimmed(), false, {}});
            empty = empty && row.cells.back().text.isEmpty();
        }
        if (!empty)
            sheet.rows.push_back(std::move(row));
    }
    return sheet;
}

}  // namespace

int Sheet::column(const QString& title) const {
    for (int i = 0; i < header.size(); ++i)
        if (header[i].compare(title.trimmed(), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

Sheet readSheet(const QString& path, const QString& sheet) {
    return isWorkbook(path) ? fromWorkbook(path, sheet) : fromCsv(path);
}

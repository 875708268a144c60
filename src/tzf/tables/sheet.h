#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A cell of a sheet, as text: a number is written plainly with "." ("1048.5"), a date as 2026-11-23.
struct SheetCell {
    QString text;         ///< without blanks around it; "" for an empty cell
    bool number = false;  ///< a number without a form that keeps zeros in front, so those aren't known
    QString fault;        ///< why the cell can't be read; "" when it can
};

struct SheetRow {
    qint64 number = 0;             ///< as the program shows it, from 1
    std::vector<SheetCell> cells;  ///< one for each column of the header
};

/// A table as people keep it: column names in the first row that isn't empty, then the rows.
struct Sheet {
    QString name;  ///< file and sheet, for messages
    QStringList header;
    std::vector<SheetRow> rows;  ///< without empty ones

    /// Position of a column, without regard to case and blanks around it; -1 when there is none.
    int column(const QString& title) const;
};

/// Reads a CSV file, or a sheet of a workbook (`.xlsx`, `.ods`); `sheet` is its name, "" for the first one.
/// Fails with `ToolError`, which names the cell.
Sheet readSheet(const QString& path, const QString& sheet);

/// The cells of a workbook's sheets, in the order of the sheets.
struct WorkbookSheet {
    QString name;
    std::vector<std::pair<qint64, std::vector<SheetCell>>> rows;  ///< by row number
};
std::vector<WorkbookSheet> readWorkbook(const QString& path);
/// Whether the file's name is a workbook's.
bool isWorkbook(const QString& path);

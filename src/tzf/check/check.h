#pragma once

#include <QList>
#include <QString>
#include <vector>

/// Something that a publisher got wrong.
struct Finding {
    bool error = true;  ///< the viewer shows something wrong or nothing; else it is only doubtful
    QString table;      ///< "" for the package as a whole
    qint64 row = 0;     ///< data row of the table from 1; 0 for the table as a whole
    QString column;     ///< "" when it isn't one column's
    QString message;
    QList<qint64> more = {};  ///< further rows with the very same fault
    QString place = {};  ///< where the row comes from when the table was made, "parts.xlsx (Items) row 7"
};

/// Examines a package or a source folder. Fails with `ToolError` only when there is nothing to examine.
std::vector<Finding> checkCatalogue(const QString& path);

#include "tzf/commands/grid_output.h"

#include <QJsonArray>
#include <algorithm>

#include "tzf/commands/command.h"

namespace {

/// A cell as the table shows it: its text, or what stands in its place.
QString cellText(const Griglia& grid, const Tag_Griglia& tags, int row, int column) {
    const Cella& cell = grid.At(row, column);
    if (!cell.Text.isEmpty() || cell.Picture.isEmpty())
        return QString(cell.Text).replace(u'\n', u' ').replace(u'\r', QString());
    const QString tag = row > 0 ? tags.At(row, column) : QString();
    const bool file = tag.startsWith(QStringLiteral("Image|")) || tag.startsWith(QStringLiteral("Document|"));
    return u'(' + (file ? tag.section(u'|', 1) : cell.Picture.section(u'.', 0, 0)) + u')';
}

}  // namespace

QJsonObject gridJson(const Griglia& grid, const Tag_Griglia& tags,
                     const std::vector<Colonna_Griglia>& columns) {
    QJsonArray column_array, row_array;
    for (const Colonna_Griglia& column : columns)
        column_array.append(QJsonObject{{QStringLiteral("title"), column.Titolo},
                                        {QStringLiteral("kind"), column.Tipo},
                                        {QStringLiteral("size"), column.Size}});
    for (int row = 1; grid.Visible && row < grid.Rows(); ++row) {
        QJsonArray cells, cell_tags;
        for (int column = 0; column < grid.Cols(); ++column) {
            cells.append(grid.TextMatrix(row, column));
            cell_tags.append(tags.At(row, column));
        }
        row_array.append(QJsonObject{{QStringLiteral("cells"), cells}, {QStringLiteral("tags"), cell_tags}});
    }
    return {{QStringLiteral("visible"), grid.Visible},
            {QStringLiteral("columns"), column_array},
            {QStringLiteral("rows"), row_array}};
}

void printGrid(const Griglia& grid, const Tag_Griglia& tags) {
    if (!grid.Visible) {
        print(QStringLiteral("(nothing to show)"));
        return;
    }
    std::vector<qsizetype> widths(static_cast<size_t>(grid.Cols()));
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = 0; column < grid.Cols(); ++column)
            widths[static_cast<size_t>(column)] =
                std::max(widths[static_cast<size_t>(column)], cellText(grid, tags, row, column).size());
    for (int row = 0; row < grid.Rows(); ++row) {
        QString text;
        for (int column = 0; column < grid.Cols(); ++column) {
            const QString cell = cellText(grid, tags, row, column);
            const qsizetype width = widths[static_cast<size_t>(column)];
            text += (grid.ColAlignment(column) == Allineamento::Destra ? cell.rightJustified(width)
                                                                       : cell.leftJustified(width)) +
                    QStringLiteral("  ");
        }
        while (text.endsWith(u' '))
            text.chop(1);
        print(text);
    }
}

#pragma once

#include "tzf/tables/table_rows.h"

/// A row of a table with its columns by name.
class RowView {
  public:
    RowView(const RowSource& source, const TableRow& row, qint64 number)
        : source_(source), row_(row), number_(number) {}
    /// "" for NULL and for a column that isn't there.
    QString text(const QString& column) const {
        const int position = source_.position(column);
        return position < 0 ? QString() : QString::fromUtf8(row_[static_cast<size_t>(position)].text);
    }
    bool has(const QString& column) const { return source_.position(column) >= 0; }
    /// From 1.
    qint64 number() const { return number_; }

  private:
    const RowSource& source_;
    const TableRow& row_;
    qint64 number_;
};

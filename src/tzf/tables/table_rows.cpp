#include "tzf/tables/table_rows.h"

#include <algorithm>

#include "tzf/tool_error.h"

namespace {

class CsvRows : public RowSource {
  public:
    explicit CsvRows(const QString& path) : csv_(path) {}
    const std::vector<QString>& columns() const override { return csv_.header(); }
    bool next(TableRow& row) override { return csv_.next(row); }
    void fail(const QString& message) const override { throw SourceError(csv_.name(), csv_.line(), message); }

  private:
    CsvReader csv_;
};

class MadeRows : public RowSource {
  public:
    explicit MadeRows(const MadeTable& table) : table_(table) {}
    const std::vector<QString>& columns() const override { return table_.columns; }
    bool next(TableRow& row) override {
        if (next_ == table_.rows.size())
            return false;
        row = table_.rows[next_++];
        row.resize(table_.columns.size());
        return true;
    }
    void fail(const QString& message) const override {
        throw ToolError(
            QStringLiteral("%1: %2").arg(table_.places.value(static_cast<qsizetype>(next_) - 1), message));
    }

  private:
    const MadeTable& table_;
    size_t next_ = 0;
};

int positionIn(const std::vector<QString>& columns, const QString& column) {
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const QString& name) {
        return name.compare(column, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

}  // namespace

CsvField fieldOf(const QString& text) {
    return text.isEmpty() ? CsvField{} : CsvField{text.toUtf8(), false};
}

int RowSource::position(const QString& column) const {
    return positionIn(columns(), column);
}

void MadeTable::add(const std::vector<std::pair<QString, QString>>& fields, const QString& place) {
    TableRow& row = rows.emplace_back();
    row.resize(columns.size());
    for (const auto& [column, text] : fields) {
        int position = positionIn(columns, column);
        if (position < 0) {
            position = static_cast<int>(columns.size());
            columns.push_back(column);
        }
        if (row.size() < columns.size())
            row.resize(columns.size());
        row[static_cast<size_t>(position)] = fieldOf(text);
    }
    places << place;
}

std::unique_ptr<RowSource> rowsOfCsv(const QString& path) {
    return std::make_unique<CsvRows>(path);
}

std::unique_ptr<RowSource> rowsOf(const MadeTable& table) {
    return std::make_unique<MadeRows>(table);
}

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <cmath>
#include <map>
#include <orcus/exception.hpp>
#include <orcus/orcus_ods.hpp>
#include <orcus/orcus_xlsx.hpp>
#include <orcus/spreadsheet/document.hpp>
#include <orcus/spreadsheet/factory.hpp>
#include <orcus/spreadsheet/shared_strings.hpp>
#include <orcus/spreadsheet/styles.hpp>

#include "tzf/tables/sheet.h"
#include "tzf/tool_error.h"

namespace {

namespace model = orcus::spreadsheet;
namespace iface = orcus::spreadsheet::iface;

constexpr model::range_size_t SHEET_SIZE{1048576, 16384};
constexpr size_t MOST_CELLS = 20'000'000;

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A number as a person would type it: no more digits than a spreadsheet keeps.
QString plainNumber(double number) {
    if (number == std::floor(number) && std::abs(number) < 1e15)
        return QString::number(static_cast<qint64>(number));
    const QString text = QLocale::c().toString(number, 'g', 15);
    if (!text.contains(u'e'))
        return text;
    QString fixed = QLocale(QLocale::C).toString(number, 'f', 20);
    fixed.remove(QRegularExpression(QStringLiteral("[^0-9.-]")));
    return fixed.remove(QRegularExpression(QStringLiteral("\\.?0+$")));
}

struct Cell {
    enum Kind { Text, Number, Date, Fault } kind = Text;
    QString text;
    double number = 0;
    size_t format = 0;
};

using Cells = std::map<model::row_t, std::map<model::col_t, Cell>>;

/// Takes the results that the workbook stores for its formulas: they are what the author saw.
class FormulaResults : public iface::import_formula {
  public:
    explicit FormulaResults(Cells& cells) : cells_(cells) {}
    void set_position(model::row_t row, model::col_t column) override {
        row_ = row;
        column_ = column;
        result_ = {Cell::Fault, {}, 0, 0};
    }
    void set_formula(model::formula_grammar_t, std::string_view) override {}
    void set_shared_formula_index(size_t) override {}
    void set_result_value(double value) override { result_ = {Cell::Number, {}, value, 0}; }
    void set_result_string(std::string_view value) override { result_ = {Cell::Text, textOf(value), 0, 0}; }
    void set_result_bool(bool value) override {
        result_ = {Cell::Text, value ? QStringLiteral("TRUE") : QStringLiteral("FALSE"), 0, 0};
    }
    void set_result_empty() override { result_ = {}; }
    void commit() override {
        Cell& cell = cells_[row_][column_];
        result_.format = cell.format;
        cell = result_;
    }

  private:
    Cells& cells_;
    model::row_t row_ = 0;
    model::col_t column_ = 0;
    Cell result_;
};

/// Collects a sheet's cells with what the spreadsheet model forgets: which were dates, and formulas' results.
class CollectedSheet : public iface::import_sheet {
  public:
    CollectedSheet(QString name, const model::import_shared_strings& strings)
        : name_(std::move(name)), strings_(strings), results_(cells_) {}

    void set_auto(model::row_t row, model::col_t column, std::string_view text) override {
        put(row, column, {Cell::Text, textOf(text), 0, 0});
    }
    void set_string(model::row_t row, model::col_t column, model::string_id_t id) override {
        const std::string* text = strings_.get_string(id);
        put(row, column, {Cell::Text, text == nullptr ? QString() : QString::fromStdString(*text), 0, 0});
    }
    void set_value(model::row_t row, model::col_t column, double value) override {
        put(row, column, {Cell::Number, {}, value, 0});
    }
    void set_bool(model::row_t row, model::col_t column, bool value) override {
        put(row, column, {Cell::Text, value ? QStringLiteral("TRUE") : QStringLiteral("FALSE"), 0, 0});
    }
    void set_date_time(model::row_t row, model::col_t column, int year, int month, int day, int hour,
                       int minute, double) override {
        const QDateTime moment(QDate(year, month, day), QTime(hour, minute));
        put(row, column,
            {Cell::Date,
             hour == 0 && minute == 0 ? moment.toString(u"yyyy-MM-dd") : moment.toString(u"yyyy-MM-dd HH:mm"),
             0, 0});
    }
    void set_format(model::row_t row, model::col_t column, size_t format) override {
        // Empty cells with a format fill whole sheets; those aren't kept.
        if (const auto line = cells_.find(row); line != cells_.end())
            if (const auto cell = line->second.find(column); cell != line->second.end())
                cell->second.format = format;
    }
    void set_format(model::row_t, model::col_t, model::row_t, model::col_t, size_t) override {}
    void fill_down_cells(model::row_t row, model::col_t column, model::row_t count) override {
        const auto line = cells_.find(row);
        if (line == cells_.end() || !line->second.contains(column))
            return;
        const Cell cell = line->second.at(column);
        for (model::row_t i = 1; i <= count; ++i)
            put(row + i, column, cell);
    }
    iface::import_formula* get_formula() override { return &results_; }
    model::range_size_t get_sheet_size() const override { return SHEET_SIZE; }

    const QString& name() const { return name_; }
    const Cells& cells() const { return cells_; }

  private:
    void put(model::row_t row, model::col_t column, const Cell& cell) {
        if (++count_ > MOST_CELLS)
            throw ToolError(QStringLiteral("sheet %1 has too many cells").arg(name_));
        cells_[row][column] = cell;
    }

    QString name_;
    const model::import_shared_strings& strings_;
    Cells cells_;
    FormulaResults results_;
    size_t count_ = 0;
};

/// The model's own factory for texts and styles, and sheets that collect.
class Factory : public iface::import_factory {
  public:
    Factory() : document_(SHEET_SIZE), model_(document_) {}

    iface::import_global_settings* get_global_settings() override { return model_.get_global_settings(); }
    iface::import_shared_strings* get_shared_strings() override { return model_.get_shared_strings(); }
    iface::import_styles* get_styles() override { return model_.get_styles(); }
    iface::import_reference_resolver* get_reference_resolver(model::formula_ref_context_t context) override {
        return model_.get_reference_resolver(context);
    }
    iface::import_sheet* append_sheet(model::sheet_t, std::string_view name) override {
        model_.append_sheet(static_cast<model::sheet_t>(sheets_.size()), name);
        sheets_.push_back(std::make_unique<CollectedSheet>(textOf(name), *document_.get_shared_strings()));
        return sheets_.back().get();
    }
    iface::import_sheet* get_sheet(std::string_view name) override {
        for (const auto& sheet : sheets_)
            if (sheet->name() == textOf(name))
                return sheet.get();
        return nullptr;
    }
    iface::import_sheet* get_sheet(model::sheet_t index) override {
        return static_cast<size_t>(index) < sheets_.size() ? sheets_[static_cast<size_t>(index)].get()
                                                           : nullptr;
    }
    void finalize() override {}

    const std::vector<std::unique_ptr<CollectedSheet>>& sheets() const { return sheets_; }
    /// The mask in which a cell of that format shows a number; "" when nothing is known of it.
    QString mask(size_t format) const;

  private:
    model::document document_;
    model::import_factory model_;
    std::vector<std::unique_ptr<CollectedSheet>> sheets_;
};

QString Factory::mask(size_t format) const {
    const model::styles& styles = document_.get_styles();
    const model::cell_format_t* cell = styles.get_cell_format(format);
    if (cell == nullptr)
        return {};
    // The numbers of the masks that files use without giving them.
    const size_t id = cell->number_format;
    if ((id >= 14 && id <= 22) || (id >= 27 && id <= 36) || (id >= 45 && id <= 47) || (id >= 50 && id <= 58))
        return id == 22 ? QStringLiteral("y h") : QStringLiteral("y");
    for (size_t i = 0; i < styles.get_number_format_count(); ++i)
        if (const model::number_format_t* number = styles.get_number_format(i);
            number != nullptr && number->identifier == id)
            return textOf(number->format_string);
    return {};
}

/// What the author sees of a number, as far as it says what the number is: zeros in front, or a date.
SheetCell shownNumber(double number, const QString& mask) {
    static const QRegularExpression literal(QStringLiteral("\"[^\"]*\"|\\[[^\\]]*\\]|\\\\.")),
        zeros(QStringLiteral("^0{2,}$")), date(QStringLiteral("[dyhsDYHS]"));
    QString form = mask;
    form.remove(literal);
    if (zeros.match(form).hasMatch() && number >= 0 && number == std::floor(number))
        return {plainNumber(number).rightJustified(form.size(), u'0'), false, {}};
    if (form.compare(u"General", Qt::CaseInsensitive) != 0 && form.contains(date) && number >= 0 &&
        number < 2958466) {
        const auto minutes = static_cast<qint64>(std::llround(number * 24 * 60));
        const QDateTime moment = QDate(1899, 12, 30).startOfDay(Qt::UTC).addSecs(minutes * 60);
        return {moment.toString(minutes % (24 * 60) == 0 ? u"yyyy-MM-dd" : u"yyyy-MM-dd HH:mm"), false, {}};
    }
    return {plainNumber(number), true, {}};
}

SheetCell finished(const Factory& factory, const Cell& cell) {
    static const QStringList faults = {QStringLiteral("#REF!"),   QStringLiteral("#N/A"),
                                       QStringLiteral("#VALUE!"), QStringLiteral("#NAME?"),
                                       QStringLiteral("#DIV/0!"), QStringLiteral("#NUM!")};
    if (cell.kind == Cell::Number)
        return shownNumber(cell.number, factory.mask(cell.format));
    if (cell.kind == Cell::Fault)
        return {{},
                false,
                QStringLiteral("the formula has no result that can be read; put the value in its place")};
    if (faults.contains(cell.text))
        return {{}, false, QStringLiteral("the cell holds the error %1").arg(cell.text)};
    return {cell.text.trimmed(), false, {}};
}

}  // namespace

bool isWorkbook(const QString& path) {
    return path.endsWith(QStringLiteral(".xlsx"), Qt::CaseInsensitive) ||
           path.endsWith(QStringLiteral(".ods"), Qt::CaseInsensitive);
}

std::vector<WorkbookSheet> readWorkbook(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ToolError(QStringLiteral("%1: %2").arg(path, file.errorString()));
    const QByteArray content = file.readAll();
    Factory factory;
    try {
        const std::string_view bytes(content.constData(), static_cast<size_t>(content.size()));
        if (path.endsWith(QStringLiteral(".ods"), Qt::CaseInsensitive))
            orcus::orcus_ods(&factory).read_stream(bytes);
        else
            orcus::orcus_xlsx(&factory).read_stream(bytes);
    } catch (const ToolError& error) {
        throw ToolError(QStringLiteral("%1: %2").arg(path, error.message()));
    } catch (const std::exception& error) {
        throw ToolError(QStringLiteral("%1: the workbook can't be read (%2)")
                            .arg(path, QString::fromLocal8Bit(error.what())));
    }
    std::vector<WorkbookSheet> sheets;
    for (const auto& sheet : factory.sheets()) {
        WorkbookSheet& result = sheets.emplace_back(WorkbookSheet{sheet->name(), {}});
        for (const auto& [row, cells] : sheet->cells()) {
            auto& [number, line] = result.rows.emplace_back(row + 1, std::vector<SheetCell>());
            for (const auto& [column, cell] : cells) {
                line.resize(static_cast<size_t>(column) + 1);
                line.back() = finished(factory, cell);
            }
        }
    }
    // Among them workbooks whose parts the library doesn't find, as some programs that aren't spreadsheets
    // write them.
    if (std::all_of(sheets.begin(), sheets.end(), [](const auto& sheet) { return sheet.rows.empty(); }))
        throw ToolError(
            QStringLiteral(
                "%1: no cells are found; open the workbook in a spreadsheet program and save it anew")
                .arg(path));
    return sheets;
}

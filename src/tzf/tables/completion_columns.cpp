// The columns that a table lacks, worked out row by row while it is read.

#include <algorithm>

#include "core/catalogue_db/schema.h"
#include "tzf/tables/completion.h"

namespace {

const QString MODEL = QStringLiteral("Struttura_Componenti"), PARTS = QStringLiteral("Componenti"),
              ROWS = QStringLiteral("Componenti_Web"), KEY = QStringLiteral("Key_Prodotto"),
              ROOT = QStringLiteral("R");
constexpr int DEEPEST = 1000;  ///< a cycle of parents ends here

}  // namespace

const Tabella_Nota* knownTable(const QString& name) {
    const auto found = std::find_if(
        Tabelle_Note().begin(), Tabelle_Note().end(),
        [&](const Tabella_Nota& table) { return table.Nome.compare(name, Qt::CaseInsensitive) == 0; });
    return found == Tabelle_Note().end() ? nullptr : &*found;
}

QString bareKey(const QString& key) {
    return key.mid(key.indexOf(u'_') + 1);
}

/// A table's rows with the columns that it lacks, and the rows that are added to it.
class CatalogueTables::CompletedRows : public RowSource {
  public:
    CompletedRows(std::unique_ptr<RowSource> rows, std::vector<Derived> derived, const MadeTable* addition)
        : rows_(std::move(rows)), derived_(std::move(derived)), columns_(rows_->columns()) {
        for (const Derived& column : derived_)
            if (column.fills < 0)
                columns_.push_back(column.column);
        if (addition != nullptr)
            addition_ = rowsOf(*addition);
    }
    const std::vector<QString>& columns() const override { return columns_; }
    bool next(TableRow& row) override {
        own_ended_ = own_ended_ || !rows_->next(row);
        if (own_ended_ && !nextAddition(row))
            return false;
        const TableRow given = row;
        const View view(*rows_, given, ++number_);
        for (const Derived& column : derived_) {
            if (column.fills < 0)
                row.push_back(column.value(view));
            else if (CsvField& field = row[static_cast<size_t>(column.fills)]; field.null)
                field = column.value(view);
        }
        return true;
    }
    void fail(const QString& message) const override { rows_->fail(message); }

  private:
    /// The added row in the columns of the table.
    bool nextAddition(TableRow& row) {
        TableRow added;
        if (!addition_ || !addition_->next(added))
            return false;
        row.assign(rows_->columns().size(), {});
        for (size_t i = 0; i < row.size(); ++i)
            if (const int position = addition_->position(rows_->columns()[i]); position >= 0)
                row[i] = added[static_cast<size_t>(position)];
        return true;
    }

    std::unique_ptr<RowSource> rows_, addition_;
    std::vector<Derived> derived_;
    std::vector<QString> columns_;
    qint64 number_ = 0;
    bool own_ended_ = false;
};

std::unique_ptr<RowSource> CatalogueTables::open(const QString& table) const {
    std::unique_ptr<RowSource> rows = raw(table);
    if (!options_.complete || knownTable(table) == nullptr)
        return rows;
    std::vector<Derived> missing = derived(table, *rows);
    const auto addition = additions_.constFind(table);
    return std::make_unique<CompletedRows>(std::move(rows), std::move(missing),
                                           addition == additions_.constEnd() ? nullptr : &*addition);
}

qint64 CatalogueTables::depth(const QString& key) const {
    qint64 depth = 0;
    for (QString at = key; at != ROOT && nodes_.contains(at) && depth < DEEPEST; at = nodes_.value(at).parent)
        ++depth;
    return depth;
}

QString CatalogueTables::path(const QString& key) const {
    QStringList captions;
    for (QString at = nodes_.value(key).parent;
         at != ROOT && nodes_.contains(at) && captions.size() < DEEPEST; at = nodes_.value(at).parent)
        captions.prepend(nodes_.value(at).captions.value(languages_.first()));
    return captions.join(u'/');
}

const QHash<QString, TableRow>& CatalogueTables::parts() const {
    if (!part_columns_.empty() || !has(PARTS))
        return parts_;
    const auto rows = raw(PARTS);
    part_columns_ = rows->columns();
    const int code = rows->position(code_column_);
    TableRow row;
    while (code >= 0 && rows->next(row)) {
        const QString key = QString::fromUtf8(row[static_cast<size_t>(code)].text).toUpper();
        if (!parts_.contains(key))
            parts_.insert(key, row);
    }
    return parts_;
}

/// What a column says when its table doesn't have it; nothing for a column that stays empty.
CatalogueTables::Value CatalogueTables::derivation(const QString& table, const QString& column) const {
    const auto fixed = [](const char* text) {
        return [text](const View&) { return QString::fromLatin1(text); };
    };
    const auto copy = [](const char* from) {
        return [from](const View& row) { return row.text(QString::fromLatin1(from)); };
    };
    const auto numbered = [](const View& row) { return QString::number(row.number()); };
    const auto direct = [](const View& row) { return row.text(QStringLiteral("Key_Riferimento")).isEmpty(); };
    const QHash<QString, Value> values = {
        {QStringLiteral("Albero_Web.Key_Padre"),
         [](const View& row) { return row.text(KEY) == ROOT ? QString() : ROOT; }},
        {QStringLiteral("Albero_Web.Ordine"),
         [this](const View& row) { return QString::number(nodes_.value(row.text(KEY)).order); }},
        {QStringLiteral("Albero_Web.Profondita_Nodo"),
         [this](const View& row) { return QString::number(depth(row.text(KEY))); }},
        {QStringLiteral("Albero_Web.Percorso"), [this](const View& row) { return path(row.text(KEY)); }},
        {QStringLiteral("Prodotti.Key_Associazione"), [](const View& row) { return bareKey(row.text(KEY)); }},
        {QStringLiteral("Prodotti.Codice"), [](const View& row) { return bareKey(row.text(KEY)); }},
        {QStringLiteral("Prodotti.Flag_2"),
         [](const View& row) {
             return row.text(QStringLiteral("Mappa_Associata")).trimmed().isEmpty() ? QStringLiteral("0")
                                                                                    : QStringLiteral("1");
         }},
        {QStringLiteral("Componenti_Web.Ordine"), numbered},
        {QStringLiteral("Componenti_Web.Tipo_Associazione"),
         [direct](const View& row) { return direct(row) ? QStringLiteral("1") : QStringLiteral("2"); }},
        {QStringLiteral("Componenti_Web.Key_Riferimento"), copy("Codice_Componente")},
        {QStringLiteral("Struttura_Componenti.Ordine"), numbered},
        {QStringLiteral("Struttura_Componenti.Visualizzato"), fixed("Yes")},
        {QStringLiteral("Struttura_Componenti.Indice_Primario"),
         [](const View& row) { return row.number() == 1 ? QStringLiteral("Yes") : QStringLiteral("No"); }},
        {QStringLiteral("Struttura_Componenti.Tipo_Colonna"), fixed("Text [255 car.]")},
        {QStringLiteral("Struttura_Componenti.Titolo_Colonna"),
         [name = QStringLiteral("Traduzione_%1").arg(languages_.first())](const View& row) {
             return row.text(name);
         }},
        {QStringLiteral("Scheda_Prodotti.Ordine"), numbered},
        {QStringLiteral("Sconti.Ordine"), numbered},
        {QStringLiteral("Gruppi_Utenti.Ordine"), numbered},
    };
    if (const Value value = values.value(table + u'.' + column))
        return value;
    if (table == MODEL && column.startsWith(QStringLiteral("Traduzione_")) &&
        languages_.offered().contains(column.mid(11).toInt()))
        return copy("Titolo_Colonna");
    return {};
}

std::vector<CatalogueTables::Derived> CatalogueTables::derived(const QString& table,
                                                               const RowSource& rows) const {
    std::vector<Derived> columns;
    for (const Colonna_Nota& column : knownTable(table)->Colonne) {
        if (rows.position(column.Nome) >= 0)
            continue;
        const Value value = derivation(table, column.Nome);
        if (value)
            columns.push_back({column.Nome, [value](const View& row) { return fieldOf(value(row)); }, -1});
        else if (column.Necessaria)
            columns.push_back({column.Nome, [](const View&) { return CsvField{}; }, -1});
    }
    if (table != ROWS)
        return columns;
    // A row without a reference belongs to the product itself, and the cart knows it by its code.
    if (const int reference = rows.position(QStringLiteral("Key_Riferimento"));
        reference >= 0 && rows.position(QStringLiteral("Tipo_Associazione")) < 0)
        columns.push_back(
            {{},
             [](const View& row) { return fieldOf(row.text(QStringLiteral("Codice_Componente"))); },
             reference});
    parts();
    for (const QString& name : model_columns_) {
        const auto at = std::find_if(part_columns_.begin(), part_columns_.end(), [&](const QString& column) {
            return column.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (rows.position(name) >= 0 || at == part_columns_.end())
            continue;
        columns.push_back(
            {name,
             [this, position = static_cast<size_t>(at - part_columns_.begin())](const View& row) {
                 const auto part = parts_.constFind(row.text(QStringLiteral("Codice_Componente")).toUpper());
                 return part == parts_.constEnd() ? CsvField{} : (*part)[position];
             },
             -1});
    }
    return columns;
}

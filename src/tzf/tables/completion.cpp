#include "tzf/tables/completion.h"

#include "core/base/testo.h"
#include "core/catalogue_db/schema.h"
#include "tzf/tables/importer.h"
#include "tzf/tool_error.h"

namespace {

const QString SYSTEM = QStringLiteral("SYSTEM"), LANGUAGES = QStringLiteral("Lingue"),
              TITLES = QStringLiteral("Albero"), TREE = QStringLiteral("Albero_Web"),
              TRANSLATIONS = QStringLiteral("Traduzioni_Albero"), PRODUCTS = QStringLiteral("Prodotti"),
              PRODUCT_TEXTS = QStringLiteral("Traduzioni_Prodotti"),
              MODEL = QStringLiteral("Struttura_Componenti"), PARTS = QStringLiteral("Componenti"),
              ROWS = QStringLiteral("Componenti_Web"), NOTES = QStringLiteral("Traduzioni_Componenti_Mappe"),
              TEXTS = QStringLiteral("Traduzioni_Viewer_System"), KEY = QStringLiteral("Key_Prodotto"),
              PARENT = QStringLiteral("Key_Padre"), CAPTION = QStringLiteral("Testo_Visualizzato_"),
              ROOT = QStringLiteral("R");
constexpr int DEEPEST = 1000;  ///< a cycle of parents ends here

/// nullptr for a table that the viewer doesn't know.
const Tabella_Nota* knownTable(const QString& name) {
    const auto found = std::find_if(
        Tabelle_Note().begin(), Tabelle_Note().end(),
        [&](const Tabella_Nota& table) { return table.Nome.compare(name, Qt::CaseInsensitive) == 0; });
    return found == Tabelle_Note().end() ? nullptr : &*found;
}

/// A product's key without the prefix that tells its kind.
QString bare(const QString& key) {
    return key.mid(key.indexOf(u'_') + 1);
}

}  // namespace

class CatalogueTables::View {
  public:
    View(const RowSource& source, const TableRow& row, qint64 number)
        : source_(source), row_(row), number_(number) {}
    QString text(const QString& column) const {
        const int position = source_.position(column);
        return position < 0 ? QString() : QString::fromUtf8(row_[static_cast<size_t>(position)].text);
    }
    bool has(const QString& column) const { return source_.position(column) >= 0; }
    qint64 number() const { return number_; }

  private:
    const RowSource& source_;
    const TableRow& row_;
    qint64 number_;
};

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

CatalogueTables::CatalogueTables(const CatalogueOptions& options, const QMap<QString, QString>& files)
    : options_(options) {
    // Under the names that the viewer knows, however the files are written.
    for (auto it = files.begin(); it != files.end(); ++it) {
        const Tabella_Nota* known = knownTable(it.key());
        files_.insert(known == nullptr || !options_.complete ? it.key() : known->Nome, it.value());
    }
    if (!options_.complete)
        return;
    readLanguages();
    import();
    readNodes();
    readModel();
    makeSettings();
    makeProducts();
    makeTitles();
    if (!has(TEXTS))
        files_.insert(TEXTS, builtInTable(TEXTS));
    makeEmptyTables();
}

bool CatalogueTables::has(const QString& table) const {
    return files_.contains(table) || made_.contains(table);
}

QStringList CatalogueTables::names() const {
    QStringList names = files_.keys() + made_.keys();
    names.sort();
    return names;
}

std::unique_ptr<RowSource> CatalogueTables::raw(const QString& table) const {
    const auto made = made_.constFind(table);
    return made == made_.constEnd() ? rowsOfCsv(files_.value(table)) : rowsOf(*made);
}

std::unique_ptr<RowSource> CatalogueTables::open(const QString& table) const {
    std::unique_ptr<RowSource> rows = raw(table);
    if (!options_.complete || knownTable(table) == nullptr)
        return rows;
    std::vector<Derived> missing = derived(table, *rows);
    const auto addition = additions_.constFind(table);
    return std::make_unique<CompletedRows>(std::move(rows), std::move(missing),
                                           addition == additions_.constEnd() ? nullptr : &*addition);
}

QString CatalogueTables::place(const QString& table, qint64 row) const {
    return made_.value(table).places.value(row - 1);
}

void CatalogueTables::each(const QString& table, const std::function<void(const View&)>& visit) const {
    if (!has(table))
        return;
    const auto rows = raw(table);
    TableRow row;
    for (qint64 number = 1; rows->next(row); ++number)
        visit(View(*rows, row, number));
}

void CatalogueTables::readLanguages() {
    if (!has(LANGUAGES))
        made_.insert(LANGUAGES, makeLanguages(options_));
    else if (!options_.languages.isEmpty())
        throw ToolError(QStringLiteral("%1: \"languages\" and the table Lingue say the same; leave one out")
                            .arg(options_.place));
    languages_ = Languages(*raw(LANGUAGES), options_.languages.value(0));
}

void CatalogueTables::import() {
    const auto model = has(MODEL) ? raw(MODEL) : nullptr;
    Importer importer(options_, languages_, model.get(), has(NOTES));
    const MadeTables tables = importer.run();
    doubts_ = importer.doubts();
    for (auto it = tables.begin(); it != tables.end(); ++it) {
        if (has(it.key()))
            throw ToolError(
                QStringLiteral("%1: \"import\" makes the table %2, which is in the folder too; take "
                               "one of them away")
                    .arg(options_.place, it.key()));
        made_.insert(it.key(), *it);
    }
}

void CatalogueTables::readNodes() {
    QHash<QString, qint64> children;
    each(TREE, [&](const View& row) {
        Node node{row.text(KEY), row.has(PARENT) ? row.text(PARENT) : ROOT, {}, 0};
        node.order = node.key == ROOT ? 0 : ++children[node.parent];
        for (const int language : languages_.offered())
            node.captions.insert(language, row.text(CAPTION + QString::number(language)));
        if (!nodes_.contains(node.key))
            node_order_ << node.key;
        nodes_.insert(node.key, node);
    });
    if (!has(TREE))
        made_[TREE].columns = {KEY, PARENT};
    if (nodes_.contains(ROOT))
        return;
    Node root{ROOT, {}, {}, 0};
    const QString title =
        options_.title.value({}, options_.settings.value(QStringLiteral("PROPRIETA_PROGETTO_TITOLO")));
    for (const int language : languages_.offered())
        root.captions.insert(language, title);
    for (auto it = options_.title.begin(); it != options_.title.end(); ++it)
        if (!it.key().isEmpty())
            root.captions.insert(languages_.number(it.key()), *it);
    nodes_.insert(ROOT, root);
    node_order_.prepend(ROOT);
    std::vector<std::pair<QString, QString>> fields = {
        {KEY, ROOT},
        {QStringLiteral("Ordine"), QStringLiteral("0")},
        {QStringLiteral("Profondita_Nodo"), QStringLiteral("0")}};
    for (auto it = root.captions.begin(); it != root.captions.end(); ++it)
        fields.emplace_back(CAPTION + QString::number(it.key()), *it);
    additions_[TREE].add(fields);
}

void CatalogueTables::readModel() {
    each(MODEL, [&](const View& row) {
        model_columns_ << row.text(QStringLiteral("Nome_Colonna_Tabella"));
        const QString primary = row.text(QStringLiteral("Indice_Primario"));
        if (primary.compare(u"Yes", Qt::CaseInsensitive) == 0 ||
            (!row.has(QStringLiteral("Indice_Primario")) && row.number() == 1))
            code_column_ = model_columns_.last();
    });
}

void CatalogueTables::makeSettings() {
    const QString title = nodes_.value(ROOT).captions.value(languages_.first());
    QMap<QString, QString> settings = {
        {QStringLiteral("VERSIONE"), QStringLiteral("4.3")},
        {QStringLiteral("LINGUA_START"), languages_.firstLanguage()},
        {QStringLiteral("MERCATO_START"), languages_.firstMarket()},
        {QStringLiteral("UNIFICA_NAVIGAZIONE_VIEWER"), QStringLiteral("LINGUA")},
        {QStringLiteral("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE"), QStringLiteral("Libera")},
        {QStringLiteral("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI"), QStringLiteral("SI")},
        {QStringLiteral("IMPOSTAZIONE_VISUALIZZA_QUANTITA"), QStringLiteral("SI")},
        {QStringLiteral("PROPRIETA_PROGETTO_TITOLO"), title}};
    const bool own = has(SYSTEM);
    if (own)
        settings.clear();  // a key that isn't there is a decision
    MadeTable& table = own ? additions_[SYSTEM] : made_[SYSTEM];
    settings.insert(options_.settings);
    for (auto it = settings.begin(); it != settings.end(); ++it)
        table.add({{QStringLiteral("KEY"), it.key()}, {QStringLiteral("VALORE"), *it}});
}

void CatalogueTables::makeProducts() {
    if (!has(PRODUCTS)) {
        MadeTable& table = made_[PRODUCTS];
        table.columns = {KEY};
        for (const QString& key : std::as_const(node_order_))
            if (E_Prodotto(key))
                table.add({{KEY, key}});
    }
    if (has(PRODUCT_TEXTS))
        return;
    MadeTable& table = made_[PRODUCT_TEXTS];
    table.columns = {KEY};
    each(PRODUCTS, [&](const View& row) {
        const QString code =
            row.has(QStringLiteral("Codice")) ? row.text(QStringLiteral("Codice")) : bare(row.text(KEY));
        std::vector<std::pair<QString, QString>> fields = {{KEY, row.text(KEY)}};
        for (const int language : languages_.offered())
            fields.emplace_back(QStringLiteral("Traduzione_Matricola_%1").arg(language), code);
        table.add(fields);
    });
}

/// The title above the tree and its translations; the other nodes' for company.
void CatalogueTables::makeTitles() {
    const QString description = QStringLiteral("Descrizione_Nodo");
    if (!has(TITLES))
        for (const QString& key : std::as_const(node_order_))
            made_[TITLES].add({{KEY, key},
                               {PARENT, nodes_[key].parent},
                               {description, nodes_[key].captions.value(languages_.first())}});
    if (has(TRANSLATIONS))
        return;
    MadeTable translations;
    translations.columns = {description};
    QSet<QString> seen;
    each(TITLES, [&](const View& row) {
        const QString text = row.text(description);
        if (text.isEmpty() || seen.contains(text))
            return;
        seen.insert(text);
        std::vector<std::pair<QString, QString>> fields = {{description, text},
                                                           {QStringLiteral("Key_Testo_Visualizzato"), text}};
        const QMap<int, QString> captions = nodes_.value(row.text(KEY)).captions;
        for (auto it = captions.begin(); it != captions.end(); ++it)
            fields.emplace_back(QStringLiteral("Traduzione_%1").arg(it.key()), *it);
        translations.add(fields);
    });
    made_.insert(TRANSLATIONS, translations);
}

void CatalogueTables::makeEmptyTables() {
    for (const Tabella_Nota& table : Tabelle_Note()) {
        if (has(table.Nome))
            continue;
        MadeTable& made = made_[table.Nome];
        for (const Colonna_Nota& column : table.Colonne)
            if (column.Necessaria)
                made.columns.push_back(column.Nome);
        if (table.Nome == PARTS)
            made.columns = {model_columns_.begin(), model_columns_.end()};
        if (made.columns.empty())
            made.columns = {QStringLiteral("Campo01")};
    }
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
        {QStringLiteral("Prodotti.Key_Associazione"), [](const View& row) { return bare(row.text(KEY)); }},
        {QStringLiteral("Prodotti.Codice"), [](const View& row) { return bare(row.text(KEY)); }},
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

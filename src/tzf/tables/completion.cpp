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

}  // namespace

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
            row.has(QStringLiteral("Codice")) ? row.text(QStringLiteral("Codice")) : bareKey(row.text(KEY));
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

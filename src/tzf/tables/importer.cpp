#include "tzf/tables/importer.h"

#include <QRegularExpression>
#include <QSet>

#include "tzf/tool_error.h"

namespace {

const QString CODE = QStringLiteral("code"), TEXT = QStringLiteral("text"),
              PRODUCT = QStringLiteral("product"), REFERENCE = QStringLiteral("reference"),
              QUANTITY = QStringLiteral("quantity"), NOTE = QStringLiteral("note"),
              PARENT = QStringLiteral("parent"), DRAWING = QStringLiteral("drawing"),
              PHOTO = QStringLiteral("photo"), CAPTION = QStringLiteral("caption"),
              DESCRIPTION = QStringLiteral("description"), MARKET = QStringLiteral("market"),
              GROUP = QStringLiteral("group");

/// Meanings of a parts file's columns, and what the column model calls them.
const QMap<QString, QString>& partKinds() {
    static const QMap<QString, QString> kinds = {{CODE, QStringLiteral("String [255 car.]")},
                                                 {TEXT, QStringLiteral("Text [255 car.]")},
                                                 {QStringLiteral("number"), QStringLiteral("Number")},
                                                 {QStringLiteral("price"), QStringLiteral("Price")},
                                                 {QStringLiteral("picture"), QStringLiteral("Image")},
                                                 {QStringLiteral("document"), QStringLiteral("Document")},
                                                 {QUANTITY, QStringLiteral("Quantity")},
                                                 {QStringLiteral("discount"), QStringLiteral("Discount")},
                                                 {QStringLiteral("kit"), QStringLiteral("Memo")}};
    return kinds;
}

bool isNumeric(const QString& kind) {
    return kind == u"Number" || kind == u"Price" || kind == u"Quantity";
}

/// A number as the tables have it; a null text when the text is none, or could be two.
QString plainNumber(QString text, QChar decimal) {
    static const QRegularExpression plain(QStringLiteral("^-?\\d+(\\.\\d+)?$")),
        grouped(QStringLiteral("^-?\\d{1,3}(,\\d{3})+(\\.\\d+)?$"));
    if (decimal == u',') {
        text.replace(u'.', u'\n').replace(u',', u'.').replace(u'\n', u',');
    }
    if (plain.match(text).hasMatch())
        return text;
    return !decimal.isNull() && grouped.match(text).hasMatch() ? text.remove(u',') : QString();
}

std::vector<std::pair<QString, QString>> family(const QString& prefix, const QMap<int, QString>& texts) {
    std::vector<std::pair<QString, QString>> fields;
    for (auto it = texts.begin(); it != texts.end(); ++it)
        fields.emplace_back(prefix + QString::number(it.key()), it.value());
    return fields;
}

}  // namespace

Importer::Importer(const CatalogueOptions& options, const Languages& languages, RowSource* model,
                   bool own_notes)
    : options_(options), languages_(languages), model_(model), own_notes_(own_notes) {}

MadeTables Importer::run() {
    if (options_.parts.isGiven())
        makeParts();
    // The lists first: a product without one and without a drawing is a group.
    if (options_.lists.isGiven()) {
        const Sheet sheet = readSheet(options_.lists.file, options_.lists.sheet);
        for (const QString& column : options_.lists.columns.keys(PRODUCT))
            if (const int position = sheet.column(column); position >= 0)
                for (const SheetRow& row : sheet.rows)
                    listed_.insert(row.cells[static_cast<size_t>(position)].text.toUpper());
    }
    if (options_.products.isGiven())
        makeProducts();
    if (options_.lists.isGiven())
        makeLists();
    return std::move(tables_);
}

std::vector<Importer::Use> Importer::uses(const SheetMapping& mapping, const Sheet& sheet,
                                          const QString& what, const QStringList& known) const {
    QMap<int, Use> found;  // in the order of the sheet
    for (auto it = mapping.columns.begin(); it != mapping.columns.end(); ++it) {
        const int column = sheet.column(it.key());
        if (column < 0)
            throw ToolError(
                QStringLiteral("%1: import.%2: %3 has no column \"%4\"; there are: %5")
                    .arg(mapping.place, what, sheet.name, it.key(), sheet.header.join(QStringLiteral(", "))));
        const QStringList words = it->split(u' ', Qt::SkipEmptyParts);
        if (!known.contains(words.value(0)))
            throw ToolError(QStringLiteral("%1: import.%2: column \"%3\" is \"%4\", and can be: %5")
                                .arg(mapping.place, what, it.key(), *it, known.join(QStringLiteral(", "))));
        found.insert(column, {column, sheet.header[column], words});
    }
    return {found.begin(), found.end()};
}

QString Importer::place(const Sheet& sheet, const SheetRow& row) {
    return QStringLiteral("%1 row %2").arg(sheet.name).arg(row.number);
}

QString Importer::cell(const SheetMapping& mapping, const Sheet& sheet, const SheetRow& row, const Use& use,
                       bool numeric) const {
    const SheetCell& cell = row.cells[static_cast<size_t>(use.column)];
    const auto fail = [&](const QString& message) {
        throw ToolError(QStringLiteral("%1, %2: %3").arg(place(sheet, row), use.title, message));
    };
    if (!cell.fault.isEmpty())
        fail(cell.fault);
    if (!numeric || cell.number || cell.text.isEmpty())
        return cell.text;
    const QString number = plainNumber(cell.text, mapping.decimal);
    if (number.isNull())
        fail(mapping.decimal.isNull()
                 ? QStringLiteral(
                       "\"%1\" isn't a plain number such as 1048.50; if the file writes its numbers "
                       "like this, say \"decimal\": \",\" or \".\" in catalogue.json")
                       .arg(cell.text)
                 : QStringLiteral("\"%1\" isn't a number").arg(cell.text));
    return number;
}

int Importer::language(const SheetMapping& mapping, const Use& use) const {
    const QString key = use.words.value(1);
    static const QRegularExpression digits(QStringLiteral("^[0-9]+$"));
    if (key.isEmpty() || digits.match(key).hasMatch())
        return 0;
    const int number = languages_.number(key);
    if (number == 0)
        throw ToolError(
            QStringLiteral("%1: column \"%2\": there is no language \"%3\"; there are: %4")
                .arg(mapping.place, use.title, key, languages_.keys().join(QStringLiteral(", "))));
    return number;
}

/// A column of codes that are partly texts and partly numbers: zeros in front of the numbers may be lost.
void Importer::doubtCodes(const Sheet& sheet, const Use& use) {
    qint64 zeros = 0, number = 0;
    for (const SheetRow& row : sheet.rows) {
        const SheetCell& cell = row.cells[static_cast<size_t>(use.column)];
        if (!cell.number && cell.text.startsWith(u'0') && zeros == 0)
            zeros = row.number;
        if (cell.number && number == 0)
            number = row.number;
    }
    if (zeros > 0 && number > 0)
        doubts_
            << QStringLiteral(
                   "%1, %2: row %3 is a number and row %4 a text that begins with 0; zeros in front of the "
                   "numbers are lost, so give the column the format \"text\" and type them again")
                   .arg(sheet.name, use.title)
                   .arg(number)
                   .arg(zeros);
}

/// The columns of a model that the folder has itself, found by their titles.
std::vector<Importer::Part> Importer::modelColumns(const Sheet& sheet) {
    std::vector<Part> parts;
    const auto text = [&](const TableRow& row, const char* column) {
        const int position = model_->position(QLatin1String(column));
        return position < 0 ? QString() : QString::fromUtf8(row[static_cast<size_t>(position)].text);
    };
    TableRow row;
    while (model_->next(row)) {
        QString title = text(row, "Titolo_Colonna");
        if (title.isEmpty())
            title = text(row, qPrintable(QStringLiteral("Traduzione_%1").arg(languages_.first())));
        const int column = sheet.column(title);
        if (column < 0)
            throw ToolError(
                QStringLiteral("%1 has no column \"%2\", which Struttura_Componenti names; there are: %3")
                    .arg(sheet.name, title, sheet.header.join(QStringLiteral(", "))));
        parts.push_back(
            {text(row, "Nome_Colonna_Tabella"), {column, title, {}}, isNumeric(text(row, "Tipo_Colonna"))});
    }
    return parts;
}

std::vector<Importer::Part> Importer::partColumns(const Sheet& sheet) {
    std::vector<Part> parts;
    int codes = 0;
    for (const Use& use : uses(options_.parts, sheet, QStringLiteral("parts"), partKinds().keys())) {
        const QString name = QStringLiteral("Campo%1").arg(parts.size() + 1, 2, 10, QChar(u'0'));
        parts.push_back({name, use, isNumeric(partKinds().value(use.words.first()))});
        describe(parts.back(), sheet);
        if (use.words.first() == CODE) {
            ++codes;
            doubtCodes(sheet, use);
        }
    }
    if (codes != 1)
        throw ToolError(
            QStringLiteral("%1: import.parts: one column has to be \"code\"").arg(options_.place));
    return parts;
}

/// The row of the column model: the title is the column's name, the width what its longest text needs.
void Importer::describe(const Part& part, const Sheet& sheet) {
    const QString kind = partKinds().value(part.use.words.first());
    const int number = language(options_.parts, part.use);
    qsizetype longest = 1, decimals = 0;
    for (const SheetRow& row : sheet.rows) {
        const QString text = row.cells[static_cast<size_t>(part.use.column)].text;
        longest = std::max(longest, text.size());
        decimals = std::max(decimals, text.contains(u'.') ? text.size() - text.indexOf(u'.') - 1 : 0);
    }
    const QString given = part.use.words.size() > 1 ? part.use.words.last() : QString();
    bool digits = false;
    given.toInt(&digits);
    const QString size = digits              ? given
                         : kind == u"Price"  ? QStringLiteral("2")
                         : kind == u"Number" ? QString::number(std::min<qsizetype>(decimals, 3))
                         : isNumeric(kind)   ? QString()
                                             : QString::number(std::min<qsizetype>(longest, 255));
    QString title = part.use.title;
    title.replace(u'[', u'(').replace(u']', u')');
    std::vector<std::pair<QString, QString>> fields = {
        {QStringLiteral("Nome_Colonna_Tabella"), part.column},
        {QStringLiteral("Titolo_Colonna"), title},
        {QStringLiteral("Visualizzato"), QStringLiteral("Yes")},
        {QStringLiteral("Indice_Primario"),
         part.use.words.first() == CODE ? QStringLiteral("Yes") : QStringLiteral("No")},
        {QStringLiteral("Tipo_Colonna"), kind},
        {QStringLiteral("Size"), size},
        {QStringLiteral("Key_Lingua"), number > 0 ? QStringLiteral("/%1/").arg(number) : QString()}};
    const QMap<QString, QString> titles = options_.parts.titles.value(part.use.title);
    for (const int offered : languages_.offered())
        fields.emplace_back(QStringLiteral("Traduzione_%1").arg(offered), title);
    for (auto it = titles.begin(); it != titles.end(); ++it)
        fields.emplace_back(
            QStringLiteral("Traduzione_%1")
                .arg(language(options_.parts, {part.use.column, part.use.title, {TEXT, it.key()}})),
            *it);
    tables_[QStringLiteral("Struttura_Componenti")].add(fields);
}

void Importer::makeParts() {
    const Sheet sheet = readSheet(options_.parts.file, options_.parts.sheet);
    const std::vector<Part> parts = model_ != nullptr ? modelColumns(sheet) : partColumns(sheet);
    MadeTable& table = tables_[QStringLiteral("Componenti")];
    for (const SheetRow& row : sheet.rows) {
        std::vector<std::pair<QString, QString>> fields;
        for (const Part& part : parts)
            fields.emplace_back(part.column, cell(options_.parts, sheet, row, part.use, part.numeric));
        table.add(fields, place(sheet, row));
    }
}

void Importer::makeProducts() {
    const SheetMapping& mapping = options_.products;
    const Sheet sheet = readSheet(mapping.file, mapping.sheet);
    const std::vector<Use> columns = uses(mapping, sheet, QStringLiteral("products"),
                                          {PRODUCT, PARENT, CAPTION, DESCRIPTION, QStringLiteral("serial"),
                                           QStringLiteral("revision"), DRAWING, PHOTO, MARKET, GROUP});
    MadeTable &tree = tables_[QStringLiteral("Albero_Web")], &products = tables_[QStringLiteral("Prodotti")],
              &texts = tables_[QStringLiteral("Traduzioni_Prodotti")];
    struct Product {
        QString code, parent, serial, revision, drawing, market, group, place;
        QStringList photos;
        QMap<int, QString> captions, descriptions;
    };
    std::vector<Product> read;
    for (const SheetRow& row : sheet.rows) {
        Product& product = read.emplace_back();
        product.place = place(sheet, row);
        for (const Use& use : columns) {
            const QString text = cell(mapping, sheet, row, use, false), &word = use.words.first();
            const int number = language(mapping, use);
            QMap<int, QString>* const family = word == CAPTION       ? &product.captions
                                               : word == DESCRIPTION ? &product.descriptions
                                                                     : nullptr;
            if (family != nullptr) {
                for (const int offered : languages_.offered())
                    if (number == offered || number == 0)
                        family->insert(offered, text);
            } else if (word == PHOTO) {
                product.photos << text;
            } else {
                (word == PRODUCT                   ? product.code
                 : word == PARENT                  ? product.parent
                 : word == DRAWING                 ? product.drawing
                 : word == MARKET                  ? product.market
                 : word == GROUP                   ? product.group
                 : word == QLatin1String("serial") ? product.serial
                                                   : product.revision) = text;
            }
        }
        if (product.code.isEmpty())
            throw ToolError(QStringLiteral("%1: the product has no code").arg(product.place));
        const bool group = !listed_.contains(product.code.toUpper()) && product.drawing.isEmpty();
        keys_.insert(product.code.toUpper(),
                     (group ? QStringLiteral("G_") : QStringLiteral("P_")) + product.code);
    }
    for (const Product& product : read) {
        const QString key = keys_.value(product.code.toUpper());
        const QString parent =
            product.parent.isEmpty() ? QStringLiteral("R") : keys_.value(product.parent.toUpper());
        if (parent.isEmpty())
            throw ToolError(QStringLiteral("%1: there is no product \"%2\" to stand below")
                                .arg(product.place, product.parent));
        auto node = family(QStringLiteral("Testo_Visualizzato_"), product.captions);
        if (product.captions.isEmpty())
            for (const int offered : languages_.offered())
                node.emplace_back(QStringLiteral("Testo_Visualizzato_%1").arg(offered), product.code);
        node.insert(node.begin(), {{QStringLiteral("Key_Prodotto"), key},
                                   {QStringLiteral("Key_Padre"), parent},
                                   {QStringLiteral("Key_Mercato"), product.market},
                                   {QStringLiteral("Key_Gruppo"), product.group}});
        tree.add(node, product.place);
        auto text = family(QStringLiteral("Traduzione_Descrizione_"), product.descriptions);
        text.insert(text.begin(), {QStringLiteral("Key_Prodotto"), key});
        for (const int offered : languages_.offered())
            text.emplace_back(QStringLiteral("Traduzione_Matricola_%1").arg(offered),
                              key.startsWith(QStringLiteral("P_")) ? product.code : QString());
        texts.add(text, product.place);
        if (key.startsWith(QStringLiteral("P_")))
            products.add({{QStringLiteral("Key_Prodotto"), key},
                          {QStringLiteral("Codice"), product.code},
                          {QStringLiteral("Revisione"), product.revision},
                          {QStringLiteral("Matricola"), product.serial},
                          {QStringLiteral("Mappa_Associata"), product.drawing},
                          {QStringLiteral("Foto_1_Prodotto"), product.photos.value(0)},
                          {QStringLiteral("Foto_2_Prodotto"), product.photos.value(1)}},
                         product.place);
    }
}

void Importer::makeLists() {
    const SheetMapping& mapping = options_.lists;
    const Sheet sheet = readSheet(mapping.file, mapping.sheet);
    const std::vector<Use> columns = uses(mapping, sheet, QStringLiteral("lists"),
                                          {PRODUCT, REFERENCE, CODE, QUANTITY, NOTE, MARKET, GROUP});
    const QMap<QString, QString> names = {{REFERENCE, QStringLiteral("Key_Riferimento")},
                                          {CODE, QStringLiteral("Codice_Componente")},
                                          {QUANTITY, QStringLiteral("Quantita_min")},
                                          {MARKET, QStringLiteral("Key_Mercato")},
                                          {GROUP, QStringLiteral("Key_Gruppo")}};
    for (const Use& use : columns)
        if (use.words.first() == CODE || use.words.first() == PRODUCT)
            doubtCodes(sheet, use);
    MadeTable& table = tables_[QStringLiteral("Componenti_Web")];
    for (const SheetRow& row : sheet.rows) {
        QString product;
        std::vector<std::pair<QString, QString>> fields;
        for (const Use& use : columns) {
            const QString& word = use.words.first();
            const QString text = cell(mapping, sheet, row, use, word == QUANTITY);
            if (word == PRODUCT)
                product = text;
            else if (word == NOTE)
                fields.emplace_back(QStringLiteral("Key_Nota_1"), own_notes_ ? text : note(text));
            else
                fields.emplace_back(names.value(word), text);
        }
        QString& key = keys_[product.toUpper()];
        if (key.isEmpty()) {
            // Without a products file each list is a product of its own, at the top of the tree.
            key = QStringLiteral("P_") + product;
            if (!options_.products.isGiven() && !product.isEmpty()) {
                std::vector<std::pair<QString, QString>> node = {
                    {QStringLiteral("Key_Prodotto"), key},
                    {QStringLiteral("Key_Padre"), QStringLiteral("R")}};
                for (const int offered : languages_.offered())
                    node.emplace_back(QStringLiteral("Testo_Visualizzato_%1").arg(offered), product);
                tables_[QStringLiteral("Albero_Web")].add(node, place(sheet, row));
            }
        }
        fields.insert(fields.begin(), {QStringLiteral("Key_Prodotto"), key});
        table.add(fields, place(sheet, row));
    }
}

/// The key of a note's text, which shows in all languages alike.
QString Importer::note(const QString& text) {
    if (text.isEmpty())
        return {};
    QString& key = notes_[text];
    if (key.isEmpty()) {
        key = QStringLiteral("NOTE_%1").arg(notes_.size());
        std::vector<std::pair<QString, QString>> fields = {{QStringLiteral("Key"), key}};
        for (const int offered : languages_.offered())
            fields.emplace_back(QStringLiteral("Traduzione_Nota_%1").arg(offered), text);
        tables_[QStringLiteral("Traduzioni_Componenti_Mappe")].add(fields);
    }
    return key;
}

#include "tzf/tables/skeleton.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>

#include "tzf/tables/languages.h"
#include "tzf/tool_error.h"

namespace {

/// What the skeleton says in a language.
struct Words {
    const char* key;
    const char *machine, *assembly, *code, *description, *price, *housing, *cover;
};
constexpr Words WORDS[] = {
    {"UK", "Machine", "Assembly", "Code", "Description", "Price", "Housing", "Cover"},
    {"IT", "Macchina", "Gruppo", "Codice", "Descrizione", "Prezzo", "Basamento", "Coperchio"},
    {"FR", "Machine", "Ensemble", "Référence", "Désignation", "Prix", "Carter", "Couvercle"},
    {"DE", "Maschine", "Baugruppe", "Bestellnummer", "Bezeichnung", "Preis", "Gehäuse", "Deckel"},
    {"ES", "Máquina", "Conjunto", "Código", "Descripción", "Precio", "Cárter", "Tapa"},
    {"PT", "Máquina", "Conjunto", "Código", "Descrição", "Preço", "Cárter", "Tampa"},
};

const Words& wordsOf(const QString& key) {
    const auto found = std::find_if(std::begin(WORDS), std::end(WORDS),
                                    [&](const Words& words) { return key == QLatin1String(words.key); });
    return found == std::end(WORDS) ? WORDS[0] : *found;
}

constexpr const char* DRAWING = R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 400 300" font-family="sans-serif" font-size="16">
  <g fill="#fff" stroke="#222" stroke-width="2">
    <path data-hotspot="1" d="M80 140h180v100h-180z"/>
    <path data-hotspot="2" d="M90 80h160v30h-160z"/>
    <path d="M260 190l60 20M250 95l70 -25"/>
    <circle data-hotspot="1" cx="334" cy="215" r="14"/>
    <circle data-hotspot="2" cx="334" cy="66" r="14"/>
  </g>
  <g text-anchor="middle">
    <text x="334" y="221">1</text>
    <text x="334" y="72">2</text>
  </g>
</svg>
)";

class Skeleton {
  public:
    Skeleton(const QString& folder, const QStringList& languages) : folder_(folder), languages_(languages) {}
    QStringList write();

  private:
    using Text = const char* Words::*;
    void add(const QString& table, std::vector<std::pair<QString, QString>> fields,
             const QString& prefix = {}, Text text = nullptr) {
        for (const auto& [number, words] : words_)
            if (text != nullptr)
                fields.emplace_back(prefix + QString::number(number), QString::fromUtf8(words.*text));
        tables_[table].add(fields);
    }
    void fill();
    void put(const QString& name, const QByteArray& content);

    QString folder_;
    QStringList languages_, files_;
    std::map<int, Words> words_;  ///< by number of the language
    MadeTables tables_;
};

void Skeleton::fill() {
    const QString tree = QStringLiteral("Albero_Web"), key = QStringLiteral("Key_Prodotto"),
                  parent = QStringLiteral("Key_Padre"), caption = QStringLiteral("Testo_Visualizzato_"),
                  model = QStringLiteral("Struttura_Componenti"), title = QStringLiteral("Traduzione_"),
                  name = QStringLiteral("Nome_Colonna_Tabella"), kind = QStringLiteral("Tipo_Colonna"),
                  size = QStringLiteral("Size"), filter = QStringLiteral("Key_Lingua"),
                  text = QStringLiteral("Text [255 car.]"), parts = QStringLiteral("Componenti"),
                  rows = QStringLiteral("Componenti_Web"), product = QStringLiteral("P_10");
    add(tree, {{key, QStringLiteral("G_1")}, {parent, QStringLiteral("R")}}, caption, &Words::machine);
    add(tree, {{key, product}, {parent, QStringLiteral("G_1")}}, caption, &Words::assembly);
    add(QStringLiteral("Prodotti"), {{key, product},
                                     {QStringLiteral("Codice"), QStringLiteral("10")},
                                     {QStringLiteral("Mappa_Associata"), QStringLiteral("drawing.svg")}});

    // One column for the code, one description for each language, one price.
    add(model, {{name, QStringLiteral("Campo01")}, {kind, text}, {size, QStringLiteral("15")}, {filter, {}}},
        title, &Words::code);
    std::vector<std::pair<QString, QString>> housing = {{QStringLiteral("Campo01"),
                                                         QStringLiteral("10.001")}},
                                             cover = {{QStringLiteral("Campo01"), QStringLiteral("10.002")}};
    int column = 1;
    const auto next = [&] { return QStringLiteral("Campo%1").arg(++column, 2, 10, QChar(u'0')); };
    for (const auto& [number, words] : words_) {
        const QString field = next();
        add(model,
            {{name, field},
             {kind, text},
             {size, QStringLiteral("40")},
             {filter, QStringLiteral("/%1/").arg(number)}},
            title, &Words::description);
        housing.emplace_back(field, QString::fromUtf8(words.housing));
        cover.emplace_back(field, QString::fromUtf8(words.cover));
    }
    const QString price = next();
    add(model, {{name, price}, {kind, QStringLiteral("Price")}, {size, QStringLiteral("2")}, {filter, {}}},
        title, &Words::price);
    housing.emplace_back(price, QStringLiteral("120.00"));
    cover.emplace_back(price, QStringLiteral("18.50"));
    add(parts, housing);
    add(parts, cover);
    for (int i = 1; i <= 2; ++i)
        add(rows, {{key, product},
                   {QStringLiteral("Key_Riferimento"), QString::number(i)},
                   {QStringLiteral("Codice_Componente"), QStringLiteral("10.00%1").arg(i)},
                   {QStringLiteral("Quantita_min"), QStringLiteral("1")}});
}

void Skeleton::put(const QString& name, const QByteArray& content) {
    QFile file(QDir(folder_).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        throw ToolError(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
    files_ << name;
}

QStringList Skeleton::write() {
    CatalogueOptions options;
    options.place = QStringLiteral("tzf new");
    options.languages = languages_;
    const MadeTable table = makeLanguages(options);
    const auto rows = rowsOf(table);
    const Languages known(*rows, languages_.value(0));
    QStringList keys;
    for (const QString& key : languages_)
        keys << key.toUpper();
    for (const QString& key : std::as_const(keys))
        words_.emplace(known.number(key), wordsOf(key));
    fill();
    if (QDir(folder_).exists() &&
        !QDir(folder_).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden))
        throw ToolError(QStringLiteral("%1: the folder isn't empty").arg(folder_));
    if (!QDir().mkpath(folder_))
        throw ToolError(QStringLiteral("%1: the folder can't be made").arg(folder_));
    const QString name = QFileInfo(QDir(folder_).absolutePath()).fileName();
    put(QStringLiteral("catalogue.json"),
        QJsonDocument(QJsonObject{{QStringLiteral("output"), name + QStringLiteral(".TZF")},
                                  {QStringLiteral("title"), name},
                                  {QStringLiteral("languages"), QJsonArray::fromStringList(keys)},
                                  {QStringLiteral("settings"),
                                   QJsonObject{{QStringLiteral("PROPRIETA_PROGETTO_SOCIETA"), QString()}}}})
            .toJson());
    for (auto it = tables_.begin(); it != tables_.end(); ++it) {
        QByteArray csv;
        TableRow header;
        for (const QString& column : it->columns)
            header.push_back(fieldOf(column));
        appendCsvRow(csv, header);
        for (TableRow row : it->rows) {
            row.resize(it->columns.size());
            appendCsvRow(csv, row);
        }
        put(it.key() + QStringLiteral(".csv"), csv);
    }
    put(QStringLiteral("drawing.svg"), DRAWING);
    return files_;
}

}  // namespace

QStringList writeSkeleton(const QString& folder, const QStringList& languages) {
    return Skeleton(folder, languages).write();
}

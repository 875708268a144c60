#include "tzf/package/generate.h"

#include <QTemporaryDir>
#include <random>

#include "core/archivio/archivio.h"
#include "core/archivio/archivio_in_scrittura.h"
#include "core/catalogue_db/creazione_database.h"
#include "core/catalogue_db/schema.h"
#include "tzf/tool_error.h"

namespace {

constexpr qint64 MOST_ROWS = 900;  ///< of one product; a parts list has room for a few more
constexpr int MARKETS = 3;

struct Language {
    const char *key, *name, *market;
};
constexpr Language LANGUAGES[ULTIMA_LINGUA] = {
    {"IT", "Italiano", "Italia"},      {"UK", "English", "United Kingdom"}, {"FR", "Français", "France"},
    {"DE", "Deutsch", "Deutschland"},  {"ES", "Español", "España"},         {"PT", "Português", "Portugal"},
    {"NL", "Nederlands", "Nederland"}, {"PL", "Polski", "Polska"},          {"CZ", "Čeština", "Česko"},
    {"GR", "Ελληνικά", "Ελλάδα"},      {"TR", "Türkçe", "Türkiye"}};

// One word for each language number up to 5; further languages take the English one.
using Word = const char* [5];
constexpr Word GROUP_WORDS[] = {
    {"Motore", "Engine", "Moteur", "Motor", "Motor"},
    {"Cambio", "Gearbox", "Boîte de vitesses", "Getriebe", "Caja de cambios"},
    {"Telaio", "Frame", "Châssis", "Rahmen", "Bastidor"},
    {"Impianto elettrico", "Electrics", "Circuit électrique", "Elektrik", "Electricidad"},
    {"Sterzo", "Steering", "Direction", "Lenkung", "Dirección"},
    {"Freni", "Brakes", "Freins", "Bremsen", "Frenos"},
    {"Idraulica", "Hydraulics", "Hydraulique", "Hydraulik", "Hidráulica"},
    {"Cabina", "Cab", "Cabine", "Kabine", "Cabina"}};
constexpr Word PART_WORDS[] = {{"Vite", "Screw", "Vis", "Schraube", "Tornillo"},
                               {"Dado", "Nut", "Écrou", "Mutter", "Tuerca"},
                               {"Rondella", "Washer", "Rondelle", "Scheibe", "Arandela"},
                               {"Guarnizione", "Gasket", "Joint", "Dichtung", "Junta"},
                               {"Albero", "Shaft", "Arbre", "Welle", "Eje"},
                               {"Ingranaggio", "Gear", "Engrenage", "Zahnrad", "Engranaje"},
                               {"Molla", "Spring", "Ressort", "Feder", "Muelle"},
                               {"Cuscinetto", "Bearing", "Roulement", "Lager", "Cojinete"},
                               {"Leva", "Lever", "Levier", "Hebel", "Palanca"},
                               {"Coperchio", "Cover", "Couvercle", "Deckel", "Tapa"}};
constexpr Word NOTE_WORDS[] = {
    {"Fino a esaurimento", "While stocks last", "Jusqu'à épuisement", "Solange Vorrat reicht",
     "Hasta agotar existencias"},
    {"Ordinare a coppie", "Order in pairs", "Commander par paires", "Paarweise bestellen", "Pedir por pares"},
    {"Su richiesta", "On request", "Sur demande", "Auf Anfrage", "Bajo pedido"}};

QString word(const Word& words, int language) {
    return QString::fromUtf8(words[language <= 5 ? language - 1 : 1]);
}

Valore text(const QString& value) {
    return Valore(value);
}
Valore text(const char* value) {
    return Valore(QString::fromUtf8(value));
}

/// A table with the known columns, filled by name.
class GeneratedTable {
  public:
    GeneratedTable(Creazione_Database& database, const QString& name, const QStringList& more = {})
        : columns_(Colonne_Note(name) + more),
          row_(static_cast<size_t>(columns_.size())),
          writer_(make(database, name)) {}

    int column(const QString& name) const {
        const qsizetype position = columns_.indexOf(name);
        Q_ASSERT(position >= 0);
        return static_cast<int>(position);
    }
    void set(int column, Valore value) { row_[static_cast<size_t>(column)] = std::move(value); }
    void set(const QString& name, Valore value) { set(column(name), std::move(value)); }
    void setAll(const QString& prefix, const Word& words, int languages, const QString& suffix = {}) {
        for (int language = 1; language <= languages; ++language)
            set(prefix + QString::number(language), text(word(words, language) + suffix));
    }
    /// Writes the row and starts an empty one.
    void add() {
        writer_.Esegui(row_);
        std::fill(row_.begin(), row_.end(), Valore());
    }

  private:
    Statement make(const Creazione_Database& database, const QString& name) const {
        std::vector<Definizione_Colonna> columns;
        for (const QString& column : columns_)
            columns.push_back(Definizione_Nota(name, column));
        return database.Tabella(name, columns);
    }

    QStringList columns_;
    std::vector<Valore> row_;
    Statement writer_;
};

class Generator {
  public:
    Generator(const QString& path, const GeneratedSize& size)
        : size_(size), random_(size.seed), database_(path) {}
    void run();

  private:
    void writeSettings();
    void writePeople();
    void writeTexts();
    void writeModel();
    void writeTree();
    void writeSerial(GeneratedTable& serials, const QString& key);
    void writeParts();
    void writeRows();
    void writeOthers();

    /// One in `n`.
    bool chance(int n) { return random_() % static_cast<quint32>(n) == 0; }
    qint64 below(qint64 n) { return static_cast<qint64>(random_() % static_cast<quint64>(n)); }
    /// Code, description by language, price, weight, quantity of a part, by its number.
    std::vector<Valore> makePart(qint64 part) const;
    QStringList partColumns() const;
    QString productKey(qint64 product) const {
        return (product % 40 == 39 ? QStringLiteral("X_%1") : QStringLiteral("P_%1"))
            .arg(product + 1, 6, 10, QChar(u'0'));
    }
    qint64 partCount() const { return std::clamp<qint64>(size_.rows / 10, 100, 100000); }

    GeneratedSize size_;
    std::mt19937 random_;
    Creazione_Database database_;
    std::vector<std::vector<Valore>> parts_;
};

void Generator::run() {
    writeSettings();
    writePeople();
    writeTexts();
    writeModel();
    writeTree();
    writeParts();
    writeRows();
    writeOthers();
    database_.Termina();
}

void Generator::writeSettings() {
    GeneratedTable system(database_, QStringLiteral("SYSTEM"));
    const std::pair<const char*, const char*> values[] = {{"VERSIONE", "4.3"},
                                                          {"LINGUA_START", "Italiano"},
                                                          {"MERCATO_START", "Italia"},
                                                          {"UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO"},
                                                          {"IMPOSTAZIONE_VISUALIZZA_QUANTITA", "SI"},
                                                          {"IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE", "20"},
                                                          {"IMPOSTAZIONE_NODO_HOMEPAGE", "R"},
                                                          {"PROPRIETA_PROGETTO_TITOLO", "Catalogo generato"}};
    for (const auto& [key, value] : values) {
        system.set(QStringLiteral("KEY"), text(key));
        system.set(QStringLiteral("VALORE"), text(value));
        system.add();
    }
    GeneratedTable languages(database_, QStringLiteral("Lingue"));
    for (int i = 0; i < std::max(size_.languages, MARKETS); ++i) {
        languages.set(QStringLiteral("ID"), Valore(qint64(i + 1)));
        languages.set(QStringLiteral("Chiave"), text(LANGUAGES[i].key));
        languages.set(QStringLiteral("Descrizione_Lingua"), text(LANGUAGES[i].name));
        languages.set(QStringLiteral("Descrizione_Mercato"), text(LANGUAGES[i].market));
        languages.set(QStringLiteral("Immagine"),
                      text(QStringLiteral("flag_%1.png").arg(QLatin1String(LANGUAGES[i].key))));
        languages.set(QStringLiteral("Attiva_Lingua"), text(i < size_.languages ? "TRUE" : "FALSE"));
        languages.set(QStringLiteral("Attiva_Mercato"), text(i < MARKETS ? "TRUE" : "FALSE"));
        languages.add();
    }
}

void Generator::writePeople() {
    GeneratedTable groups(database_, QStringLiteral("Gruppi_Utenti"));
    for (const char* group : {"1", "2"}) {
        groups.set(QStringLiteral("Key_Gruppo"), text(group));
        groups.set(QStringLiteral("Ordine"), Valore(qint64(1)));
        groups.add();
    }
}

void Generator::writeTexts() {
    constexpr Word quantity = {"Quantità", "Quantity", "Quantité", "Menge", "Cantidad"};
    constexpr Word notes = {"Note", "Notes", "Notes", "Hinweise", "Notas"};
    GeneratedTable texts(database_, QStringLiteral("Traduzioni_Viewer_System"));
    const auto add = [&](const char* key, const Word& words) {
        texts.set(QStringLiteral("Form"), text("DESCRIZIONE"));
        texts.set(QStringLiteral("Tipo"), text("DESCRIZIONE"));
        texts.set(QStringLiteral("Name_Object"), text(key));
        texts.setAll(QStringLiteral("Traduzione_"), words, size_.languages);
        texts.add();
    };
    add("QUANTITA", quantity);
    add("Note", notes);
    GeneratedTable note_table(database_, QStringLiteral("Traduzioni_Componenti_Mappe"));
    for (size_t i = 0; i < std::size(NOTE_WORDS); ++i) {
        note_table.set(QStringLiteral("Key"), text(QStringLiteral("NOTA_%1").arg(i + 1)));
        note_table.setAll(QStringLiteral("Traduzione_Nota_"), NOTE_WORDS[i], size_.languages);
        note_table.add();
    }
}

QStringList Generator::partColumns() const {
    QStringList columns;
    for (int i = 1; i <= size_.languages + 4; ++i)
        columns << QStringLiteral("Campo%1").arg(i, 2, 10, QChar(u'0'));
    return columns;
}

void Generator::writeModel() {
    GeneratedTable model(database_, QStringLiteral("Struttura_Componenti"));
    const QStringList names = partColumns();
    qint64 order = 0;
    const auto add = [&](const Word& title, const char* kind, int width, const QString& language = {}) {
        model.set(QStringLiteral("Nome_Colonna_Tabella"), text(names.at(order)));
        model.set(QStringLiteral("Titolo_Colonna"), text(word(title, 1)));
        model.setAll(QStringLiteral("Traduzione_"), title, size_.languages);
        model.set(QStringLiteral("Visualizzato"), text("Yes"));
        model.set(QStringLiteral("Indice_Primario"), text(order == 0 ? "Yes" : "No"));
        model.set(QStringLiteral("Ordine"), Valore(++order));
        model.set(QStringLiteral("Tipo_Colonna"), text(kind));
        model.set(QStringLiteral("Size"), text(QString::number(width)));
        if (!language.isEmpty())
            model.set(QStringLiteral("Key_Lingua"), text(language));
        model.add();
    };
    constexpr Word code = {"Codice", "Code", "Référence", "Bestellnummer", "Código"};
    constexpr Word description = {"Descrizione", "Description", "Désignation", "Bezeichnung", "Descripción"};
    constexpr Word price = {"Prezzo", "Price", "Prix", "Preis", "Precio"};
    constexpr Word weight = {"Peso", "Weight", "Poids", "Gewicht", "Peso"};
    constexpr Word pieces = {"Pezzi", "Pieces", "Pièces", "Stück", "Piezas"};
    add(code, "String [255 car.]", 15);
    for (int language = 1; language <= size_.languages; ++language)
        add(description, "Text [255 car.]", 40, QStringLiteral("/%1/").arg(language));
    add(price, "Price", 2);
    add(weight, "Number", 3);
    add(pieces, "Quantity", 0);
}

std::vector<Valore> Generator::makePart(qint64 part) const {
    const size_t kind = static_cast<size_t>(part) % std::size(PART_WORDS);
    std::vector<Valore> fields;
    fields.push_back(text(QStringLiteral("%1.%2").arg(10 + part % 89).arg(part + 1, 7, 10, QChar(u'0'))));
    for (int language = 1; language <= size_.languages; ++language)
        fields.push_back(text(QStringLiteral("%1 M%2x%3")
                                  .arg(word(PART_WORDS[kind], language))
                                  .arg(4 + part % 17)
                                  .arg(10 + part % 91)));
    fields.push_back(text(QStringLiteral("%1.%2").arg(part * 7 % 900).arg(part % 100, 2, 10, QChar(u'0'))));
    fields.push_back(text(QStringLiteral("%1.%2").arg(part % 20).arg(part % 1000, 3, 10, QChar(u'0'))));
    fields.push_back(text(QString::number(1 + part % 4)));
    return fields;
}

void Generator::writeTree() {
    const qint64 groups = size_.nodes - size_.products - 1;
    struct Group {
        QString key;
        qint64 depth;
        qint64 children = 0;
    };
    std::vector<Group> made{{QStringLiteral("R"), 0}};
    made.reserve(static_cast<size_t>(groups) + 1);
    GeneratedTable nodes(database_, QStringLiteral("Albero_Web"));
    GeneratedTable products(database_, QStringLiteral("Prodotti"));
    GeneratedTable serials(database_, QStringLiteral("Matricola_Nodo"));
    const auto add = [&](const QString& key, Group* parent, const Word& words, const QString& suffix) {
        nodes.set(QStringLiteral("Key_Prodotto"), text(key));
        nodes.set(QStringLiteral("Key_Padre"), text(parent ? parent->key : QString()));
        nodes.set(QStringLiteral("Ordine"), Valore(parent ? ++parent->children : qint64(0)));
        nodes.set(QStringLiteral("Profondita_Nodo"), Valore(parent ? parent->depth + 1 : qint64(0)));
        nodes.set(QStringLiteral("Percorso"), text(key));
        nodes.setAll(QStringLiteral("Testo_Visualizzato_"), words, size_.languages, suffix);
        if (parent != nullptr && chance(50))
            nodes.set(QStringLiteral("Key_Mercato"),
                      text(QStringLiteral("/%1/%2/").arg(1 + below(2)).arg(MARKETS)));
        if (parent != nullptr && chance(100))
            nodes.set(QStringLiteral("Key_Gruppo"), text(chance(2) ? "/1/" : "/1/2/"));
        nodes.add();
    };
    constexpr Word root = {"Catalogo", "Catalogue", "Catalogue", "Katalog", "Catálogo"};
    add(QStringLiteral("R"), nullptr, root, {});
    // Eight sub-groups for each group give a bushy tree of some six levels at a hundred thousand nodes.
    for (qint64 i = 0; i < groups; ++i) {
        Group& parent = made[static_cast<size_t>(i / 8)];
        const QString key = QStringLiteral("G_%1").arg(i + 1, 6, 10, QChar(u'0'));
        add(key, &parent, GROUP_WORDS[static_cast<size_t>(i) % std::size(GROUP_WORDS)],
            QStringLiteral(" %1").arg(i / 8 + 1));
        made.push_back({key, parent.depth + 1});
    }
    for (qint64 i = 0; i < size_.products; ++i) {
        const QString key = productKey(i);
        add(key, &made[static_cast<size_t>(groups - i % groups)],
            GROUP_WORDS[static_cast<size_t>(i / 3) % std::size(GROUP_WORDS)],
            QStringLiteral(" TZ %1").arg(100 + i));
        products.set(QStringLiteral("Key_Prodotto"), text(key));
        products.set(QStringLiteral("Codice"), text(key.mid(2)));
        products.set(QStringLiteral("Flag_2"), text("0"));
        products.add();
        if (chance(4))
            writeSerial(serials, key);
    }
}

void Generator::writeSerial(GeneratedTable& serials, const QString& key) {
    const qint64 first = 100000 + below(800000), last = first + 1 + below(50000);
    serials.set(QStringLiteral("Key_Prodotto"), text(key));
    serials.set(QStringLiteral("Min_Matricola"), text(QString::number(first)));
    serials.set(QStringLiteral("Max_Matricola"), text(QString::number(last)));
    serials.set(QStringLiteral("Min_Matricola_n"), Valore(double(first)));
    serials.set(QStringLiteral("Max_Matricola_n"), Valore(double(last)));
    serials.add();
}

void Generator::writeParts() {
    GeneratedTable parts(database_, QStringLiteral("Componenti"), partColumns());
    for (qint64 part = 0; part < partCount(); ++part) {
        parts_.push_back(makePart(part));
        for (size_t i = 0; i < parts_.back().size(); ++i)
            parts.set(static_cast<int>(i), parts_.back()[i]);
        parts.add();
    }
}

void Generator::writeRows() {
    GeneratedTable rows(database_, QStringLiteral("Componenti_Web"), partColumns());
    const int order = rows.column(QStringLiteral("Ordine")),
              product_key = rows.column(QStringLiteral("Key_Prodotto"));
    const int reference = rows.column(QStringLiteral("Key_Riferimento"));
    const int code = rows.column(QStringLiteral("Codice_Componente"));
    const int kind = rows.column(QStringLiteral("Tipo_Associazione"));
    const int minimum = rows.column(QStringLiteral("Quantita_min"));
    const int note = rows.column(QStringLiteral("Key_Nota_1"));
    const int market = rows.column(QStringLiteral("Key_Mercato")),
              group = rows.column(QStringLiteral("Key_Gruppo"));
    const int first_field = rows.column(QStringLiteral("Campo01"));
    qint64 left = size_.rows;
    for (qint64 product = 0; product < size_.products; ++product) {
        // An even share, and whatever the division leaves over on the first products.
        const qint64 share =
            left / (size_.products - product) + (left % (size_.products - product) > 0 ? 1 : 0);
        left -= share;
        const Valore key = text(productKey(product));
        for (qint64 i = 1; i <= share; ++i) {
            const std::vector<Valore>& fields = parts_[static_cast<size_t>(below(partCount()))];
            rows.set(order, Valore(i));
            rows.set(product_key, key);
            const bool direct = chance(20);
            rows.set(reference, direct ? fields.front() : text(QString::number(i)));
            rows.set(code, fields.front());
            rows.set(kind, Valore(qint64(direct ? 1 : 2)));
            rows.set(minimum, text(QString::number(1 + below(4))));
            if (chance(30))
                rows.set(note, text(QStringLiteral("NOTA_%1").arg(
                                   1 + below(static_cast<qint64>(std::size(NOTE_WORDS))))));
            if (chance(25))
                rows.set(market, text(QStringLiteral("/%1/").arg(1 + below(MARKETS))));
            if (chance(60))
                rows.set(group, text("/1/"));
            for (size_t f = 0; f < fields.size(); ++f)
                rows.set(first_field + static_cast<int>(f), fields[f]);
            rows.add();
        }
    }
}

void Generator::writeOthers() {
    GeneratedTable tree(database_, QStringLiteral("Albero"));
    tree.set(QStringLiteral("Key_Prodotto"), text("R"));
    tree.set(QStringLiteral("Descrizione_Nodo"), text("Catalogo"));
    tree.set(QStringLiteral("Tipo_Prodotto"), text("RADICE"));
    tree.add();
    for (const char* table :
         {"Traduzioni_Albero", "Traduzioni_Prodotti", "Scheda_Prodotti", "Componenti_Mappe",
          "Prodotti_Componenti", "Anagrafico", "Sconti", "Print_Extension_Associate"})
        GeneratedTable(database_, QString::fromLatin1(table));
}

}  // namespace

void generateCatalogue(const QString& package, const GeneratedSize& size) {
    if (size.products < 1 || size.nodes < size.products + 2)
        throw UsageError(
            QStringLiteral("the nodes must be at least two more than the products, for root and groups"));
    if (size.rows > size.products * MOST_ROWS)
        throw UsageError(QStringLiteral("at most %1 rows for each product").arg(MOST_ROWS));
    if ((size.products - 1) / (size.nodes - size.products - 1) > 30000)
        throw UsageError(QStringLiteral("more groups are needed for so many products"));
    QTemporaryDir temporary;
    const QString database = temporary.filePath(NOME_DATABASE);
    onDatabase("the database can't be written: ", [&] { Generator(database, size).run(); });
    Archivio_In_Scrittura archive(package);
    archive.Aggiungi_File(NOME_DATABASE, database);
    if (const QString fault = archive.Termina(); !fault.isEmpty())
        throw ToolError(fault);
}

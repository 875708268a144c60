// Drawings against parts lists: a hotspot should stand for something, and a reference be found.

#include <QFile>
#include <array>
#include <optional>

#include "canvas/documento_tavola.h"
#include "core/base/testo.h"
#include "tzf/check/check_context.h"
#include "tzf/tool_error.h"

namespace {

const QString PRODUCTS = QStringLiteral("Prodotti"), ROWS = QStringLiteral("Componenti_Web"),
              MAP = QStringLiteral("Componenti_Mappe"), TREE = QStringLiteral("Albero_Web"),
              KEY = QStringLiteral("Key_Prodotto"), DRAWING = QStringLiteral("Mappa_Associata"),
              REFERENCE = QStringLiteral("Key_Riferimento"), HOTSPOT = QStringLiteral("Key_HotSpot"),
              ASSOCIATION = QStringLiteral("Key_Associazione");
constexpr qint16 LINK_TO_PRODUCT = 4, LINK_TO_SUBPRODUCT = 5;  ///< kinds of `Tipo_Nodo`

class DrawingCheck {
  public:
    explicit DrawingCheck(CheckContext& context) : context_(context) {}
    void run();

  private:
    struct Row {
        qint64 number;
        QString reference, hotspot, code;
        bool numbered;  ///< shows its reference, not "-"
    };
    struct Drawing {
        QStringList hotspots;  ///< their strings
        QString refusal;       ///< why it can't be shown
        QStringList left_out;  ///< what isn't shown of it
        bool compared = false;
    };
    struct Product {
        qint64 row;
        QString key, drawing;
    };

    void readTree();
    void readRows();
    void readMap();
    const Drawing& drawing(const QString& entry);
    void checkHotspots(const Product& product, const QString& association, const Drawing& drawing);
    void checkReferences(const Product& product, const Drawing& drawing);
    bool leadsSomewhere(const QString& product, const QString& hotspot) const;
    /// The row that names it in `Key_HotSpot` alone is told, and one cause is one finding.
    bool isToldWithItsRow(const QString& product, const QString& hotspot, const Drawing& drawing) const;
    bool hasRow(const QString& product, const QString& association, const QString& hotspot) const;

    CheckContext& context_;
    QHash<QString, QStringList> parents_, children_;  ///< of a node
    QMultiHash<QString, QString> by_association_;     ///< products
    QHash<QString, std::vector<Row>> rows_;           ///< by product
    QHash<QString, QSet<QString>> map_;               ///< what the map knows, by association
    QHash<QString, Drawing> drawings_;                ///< by entry
};

void DrawingCheck::run() {
    if (!context_.database.hasTable(PRODUCTS) || !context_.openEntry)
        return;
    readTree();
    readRows();
    readMap();
    std::vector<std::pair<Product, QString>> products;
    TableReader rows = context_.database.read(PRODUCTS);
    while (rows.next()) {
        const QString association = rows.text(ASSOCIATION), name = rows.text(DRAWING).trimmed();
        const Valore flag = rows.value(rows.position(QStringLiteral("Flag_2")));
        by_association_.insert(association, rows.text(KEY));
        const bool shown = flag.E_Nullo() || flag.Testo().trimmed() == u"1";
        if (!shown && !name.isEmpty())
            context_.warning(PRODUCTS, rows.row(), QStringLiteral("Flag_2"),
                             QStringLiteral("drawing \"%1\" never shows, because Flag_2 isn't 1").arg(name));
        if (shown && !name.isEmpty())
            products.push_back({{rows.row(), rows.text(KEY), name}, association});
    }
    for (const auto& [product, association] : products) {
        const QString entry = context_.findEntry(product.drawing);
        if (entry.isEmpty())
            continue;  // told with the missing files
        const Drawing& found = drawing(entry);
        if (!found.refusal.isEmpty())
            context_.error(
                PRODUCTS, product.row, DRAWING,
                QStringLiteral("drawing \"%1\" can't be shown: %2").arg(product.drawing, found.refusal));
        if (!found.left_out.isEmpty())
            context_.warning(PRODUCTS, product.row, DRAWING,
                             QStringLiteral("drawing \"%1\" is shown without %2")
                                 .arg(product.drawing, found.left_out.join(QStringLiteral("; "))));
        if (!found.compared)
            continue;
        if (found.hotspots.isEmpty()) {
            context_.warning(PRODUCTS, product.row, DRAWING,
                             QStringLiteral("drawing \"%1\" has no hotspots").arg(product.drawing));
            continue;
        }
        checkHotspots(product, association, found);
        checkReferences(product, found);
    }
}

void DrawingCheck::readTree() {
    if (!context_.database.hasTable(TREE))
        return;
    TableReader rows = context_.database.read(TREE);
    while (rows.next()) {
        const QString parent = rows.text(QStringLiteral("Key_Padre"));
        parents_[rows.text(KEY)] << parent;
        children_[parent] << rows.text(KEY);
    }
}

void DrawingCheck::readRows() {
    if (!context_.database.hasTable(ROWS))
        return;
    TableReader rows = context_.database.read(ROWS);
    while (rows.next())
        rows_[rows.text(KEY)].push_back({rows.row(), rows.text(REFERENCE), rows.text(HOTSPOT),
                                         rows.text(QStringLiteral("Codice_Componente")),
                                         rows.text(QStringLiteral("Tipo_Associazione")) != u"1"});
}

void DrawingCheck::readMap() {
    if (!context_.database.hasTable(MAP))
        return;
    TableReader rows = context_.database.read(MAP);
    while (rows.next())
        map_[rows.text(ASSOCIATION)] << rows.text(REFERENCE);
}

const DrawingCheck::Drawing& DrawingCheck::drawing(const QString& entry) {
    if (const auto known = drawings_.constFind(entry); known != drawings_.constEnd())
        return *known;
    Drawing read;
    try {
        const QString path = context_.openEntry(entry);
        if (const auto document = Documento_Tavola::Da_File(path, &read.refusal)) {
            read.refusal.clear();
            read.compared = true;
            read.left_out = document->Lasciato_Fuori();
            for (const Gruppo_HotSpot& group : document->Gruppi())
                read.hotspots << group.stringa;
        } else if (!pictureKind(path).isEmpty()) {  // without hotspots to compare
            read.refusal.clear();
        }
    } catch (const ToolError& error) {
        read.refusal = error.message();
    }
    return *drawings_.insert(entry, read);
}

void DrawingCheck::checkHotspots(const Product& product, const QString& association, const Drawing& drawing) {
    for (const QString& hotspot : drawing.hotspots) {
        const qint16 kind = Tipo_Nodo(hotspot);
        const bool link = kind == LINK_TO_PRODUCT || kind == LINK_TO_SUBPRODUCT;
        if (hasRow(product.key, association, hotspot) || isToldWithItsRow(product.key, hotspot, drawing) ||
            (link && leadsSomewhere(product.key, hotspot)))
            continue;
        const QString message =
            link ? QStringLiteral("hotspot \"%1\" of drawing \"%2\" leads to no node")
                 : QStringLiteral("hotspot \"%1\" of drawing \"%2\" has no row in Componenti_Web");
        context_.warning(PRODUCTS, product.row, DRAWING, message.arg(hotspot, product.drawing));
    }
}

/// As the viewer follows a link: a sub-product is looked for below the product, then beside it.
bool DrawingCheck::leadsSomewhere(const QString& product, const QString& hotspot) const {
    const QString value = Key_Da_Nodo(hotspot);
    if (Tipo_Nodo(hotspot) == LINK_TO_PRODUCT)
        return context_.nodes.contains(value);
    QStringList places{product};
    places << parents_.value(product);
    const QStringList targets = by_association_.values(value);
    return std::any_of(targets.begin(), targets.end(), [&](const QString& target) {
        return std::any_of(places.begin(), places.end(),
                           [&](const QString& place) { return children_.value(place).contains(target); });
    });
}

bool DrawingCheck::hasRow(const QString& product, const QString& association, const QString& hotspot) const {
    const QString value = Key_Da_Nodo(hotspot);
    const QSet<QString> map = map_.value(association);
    if (map.contains(hotspot) || map.contains(value))
        return true;
    const auto rows = rows_.constFind(product);
    return rows != rows_.constEnd() && std::any_of(rows->begin(), rows->end(), [&](const Row& row) {
               return row.code == value || (row.numbered && row.reference == value);
           });
}

bool DrawingCheck::isToldWithItsRow(const QString& product, const QString& hotspot,
                                    const Drawing& drawing) const {
    const std::vector<Row> rows = rows_.value(product);
    return std::any_of(rows.begin(), rows.end(), [&](const Row& row) {
        return row.hotspot == hotspot && row.numbered && !row.reference.isEmpty() &&
               !drawing.hotspots.contains(row.reference);
    });
}

void DrawingCheck::checkReferences(const Product& product, const Drawing& drawing) {
    QSet<QString> shown(drawing.hotspots.begin(), drawing.hotspots.end()), told;
    for (const QString& hotspot : drawing.hotspots)
        shown << Key_Da_Nodo(hotspot);
    const auto rows = rows_.constFind(product.key);
    if (rows == rows_.constEnd())
        return;
    for (const Row& row : *rows) {
        if (!row.numbered || row.reference.isEmpty() || told.contains(row.reference) ||
            shown.contains(row.reference) || shown.contains(row.code))
            continue;
        told << row.reference;  // several codes may share a reference
        QString message =
            QStringLiteral("reference %1 isn't on drawing \"%2\"").arg(row.reference, product.drawing);
        if (shown.contains(row.hotspot))
            message += QStringLiteral("; Key_HotSpot %1 is, but the viewer doesn't read it").arg(row.hotspot);
        context_.warning(ROWS, row.number, REFERENCE, message);
    }
}

}  // namespace

QString pictureKind(const QString& path) {
    static const std::array<std::pair<QByteArray, const char*>, 6> starts = {
        {{"\x89PNG", "PNG"},
         {"\xff\xd8\xff", "JPEG"},
         {"GIF8", "GIF"},
         {"BM", "BMP"},
         {QByteArray("II*\0", 4), "TIFF"},
         {QByteArray("MM\0*", 4), "TIFF"}}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray head = file.read(4);
    for (const auto& [start, kind] : starts)
        if (head.startsWith(start))
            return QLatin1String(kind);
    return {};
}

void checkDrawings(CheckContext& context) {
    DrawingCheck(context).run();
}

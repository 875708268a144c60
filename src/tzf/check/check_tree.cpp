#include <QHash>

#include "core/base/testo.h"
#include "core/catalogue_db/schema.h"
#include "tzf/check/check_context.h"

namespace {

const QString NODES = QStringLiteral("Albero_Web");
const QString PRODUCTS = QStringLiteral("Prodotti");
const QString KEY = QStringLiteral("Key_Prodotto");
const QString PARENT = QStringLiteral("Key_Padre");

struct Node {
    QString key, parent;
    qint64 row = 0, depth = 0, order = 0;
    qsizetype place = 0;  ///< in the order in which the viewer reads the nodes
};

class TreeCheck {
  public:
    explicit TreeCheck(CheckContext& context) : context_(context) {}
    void run();

  private:
    void readNodes();
    void checkCaptions(const TableReader& rows, const QString& key);
    void checkParents();
    bool isInCycle(const Node& node) const;
    void checkTitle();
    void checkProducts();
    void checkSheets();
    void checkSerials();

    CheckContext& context_;
    std::vector<Node> nodes_;
    QHash<QString, size_t> by_key_;
};

void TreeCheck::run() {
    if (context_.database.hasTable(NODES)) {
        readNodes();
        checkParents();
    }
    checkTitle();
    checkProducts();
    checkSheets();
    checkSerials();
}

void TreeCheck::readNodes() {
    TableReader rows = context_.database.read(NODES);
    const int key_column = rows.position(KEY);
    while (rows.next()) {
        const QString key = rows.text(key_column);
        context_.checkMarketList(NODES, rows, QStringLiteral("Key_Mercato"));
        context_.checkGroupList(NODES, rows, QStringLiteral("Key_Gruppo"));
        if (key.isEmpty()) {
            context_.error(NODES, rows.row(), KEY, QStringLiteral("the node has no key"));
            continue;
        }
        if (by_key_.contains(key)) {
            context_.error(
                NODES, rows.row(), KEY,
                QStringLiteral("node %1 stands in row %2 already").arg(key).arg(nodes_[by_key_[key]].row));
            continue;
        }
        const bool known = key == u"R" || key.startsWith(QStringLiteral("G_")) || E_Prodotto(key);
        if (!known)
            context_.error(
                NODES, rows.row(), KEY,
                QStringLiteral("\"%1\" begins with none of G_, P_, X_, so it never shows").arg(key));
        checkCaptions(rows, key);
        by_key_.insert(key, nodes_.size());
        context_.nodes.insert(key);
        nodes_.push_back({key, rows.text(PARENT), rows.row(),
                          rows.value(rows.position(QStringLiteral("Profondita_Nodo"))).Intero(),
                          rows.value(rows.position(QStringLiteral("Ordine"))).Intero(), 0});
        if (nodes_.back().order < -32768 || nodes_.back().order > 32767)
            context_.error(NODES, rows.row(), QStringLiteral("Ordine"),
                           QStringLiteral("the number is too large"));
    }
}

void TreeCheck::checkCaptions(const TableReader& rows, const QString& key) {
    if (key == u"R")
        return;  // the root never shows
    for (const int language : context_.languages) {
        const QString column = QStringLiteral("Testo_Visualizzato_%1").arg(language);
        if (rows.position(column) >= 0 && rows.text(column).trimmed().isEmpty())
            context_.error(NODES, rows.row(), column, QStringLiteral("node %1 has no caption").arg(key));
    }
}

void TreeCheck::checkParents() {
    std::vector<size_t> order(nodes_.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        return std::pair(nodes_[a].depth, nodes_[a].order) < std::pair(nodes_[b].depth, nodes_[b].order);
    });
    for (size_t i = 0; i < order.size(); ++i)
        nodes_[order[i]].place = static_cast<qsizetype>(i);

    for (const Node& node : nodes_) {
        if (node.key == u"R")
            continue;
        const auto parent = by_key_.constFind(node.parent);
        if (parent == by_key_.constEnd())
            context_.error(
                NODES, node.row, PARENT,
                QStringLiteral("node %1: its parent \"%2\" isn't there").arg(node.key, node.parent));
        else if (isInCycle(node))
            context_.error(NODES, node.row, PARENT,
                           QStringLiteral("node %1 stands among its own parents").arg(node.key));
        else if (node.parent != u"R" && nodes_[*parent].place > node.place)
            context_.error(NODES, node.row, QStringLiteral("Profondita_Nodo"),
                           QStringLiteral("node %1 is read before its parent %2, so its branch never shows")
                               .arg(node.key, node.parent));
        else if (node.depth <= nodes_[*parent].depth)
            context_.warning(
                NODES, node.row, QStringLiteral("Profondita_Nodo"),
                QStringLiteral("node %1 is no deeper than its parent %2").arg(node.key, node.parent));
    }
    if (!by_key_.contains(QStringLiteral("R")))
        context_.error(NODES, 0, KEY, QStringLiteral("the root node R is missing"));
}

bool TreeCheck::isInCycle(const Node& node) const {
    // The way up from a node into a cycle that it isn't part of would never end.
    constexpr int HIGHEST = 1000;
    auto it = by_key_.constFind(node.parent);
    for (int steps = 0; it != by_key_.constEnd() && steps < HIGHEST; ++steps) {
        const Node& ancestor = nodes_[*it];
        if (ancestor.key == node.key)
            return true;
        it = by_key_.constFind(ancestor.parent);
    }
    return false;
}

void TreeCheck::checkTitle() {
    const QString table = QStringLiteral("Albero"), column = QStringLiteral("Descrizione_Nodo");
    if (!context_.database.hasTable(table))
        return;
    TableReader rows = context_.database.read(table);
    while (rows.next()) {
        if (rows.text(KEY) != u"R")
            continue;
        if (rows.text(column).trimmed().isEmpty())
            context_.error(
                table, rows.row(), column,
                QStringLiteral("the title above the tree is empty; \"title\" in catalogue.json gives one"));
        return;
    }
    context_.error(table, 0, KEY, QStringLiteral("row R with the title above the tree is missing"));
}

void TreeCheck::checkProducts() {
    if (!context_.database.hasTable(PRODUCTS))
        return;
    QHash<QString, qint64> seen;
    TableReader rows = context_.database.read(PRODUCTS);
    while (rows.next()) {
        const QString key = rows.text(KEY);
        if (seen.contains(key.toCaseFolded()))
            context_.error(PRODUCTS, rows.row(), KEY,
                           QStringLiteral("product %1 stands in row %2 already")
                               .arg(key)
                               .arg(seen.value(key.toCaseFolded())));
        seen.insert(key.toCaseFolded(), rows.row());
        if (!by_key_.contains(key))
            context_.error(PRODUCTS, rows.row(), KEY, QStringLiteral("there is no node %1").arg(key));
        for (const char* name : {"Foto_1_Prodotto", "Foto_2_Prodotto", "Mappa_Associata"}) {
            const QString column = QString::fromLatin1(name);
            context_.checkFile(PRODUCTS, rows.row(), column, rows.text(column));
        }
    }
    for (const Node& node : nodes_)
        if (E_Prodotto(node.key) && !seen.contains(node.key.toCaseFolded()))
            context_.error(NODES, node.row, KEY,
                           QStringLiteral("product %1 has no row in Prodotti").arg(node.key));
}

void TreeCheck::checkSheets() {
    const QString table = QStringLiteral("Scheda_Prodotti");
    if (!context_.database.hasTable(table))
        return;
    TableReader rows = context_.database.read(table);
    while (rows.next()) {
        if (!by_key_.contains(rows.text(KEY)))
            context_.error(table, rows.row(), KEY, QStringLiteral("there is no node %1").arg(rows.text(KEY)));
        for (int language = 1; language <= ULTIMA_LINGUA; ++language) {
            const QString column = QStringLiteral("Allegato_%1").arg(language);
            context_.checkFile(table, rows.row(), column, rows.text(column));
        }
        context_.checkFamily(table, rows, QStringLiteral("Titolo_"));
        context_.checkFamily(table, rows, QStringLiteral("Descrizione_"));
    }
}

void TreeCheck::checkSerials() {
    const QString table = QStringLiteral("Matricola_Nodo"), max_column = QStringLiteral("Max_Matricola");
    if (!context_.database.hasTable(table))
        return;
    TableReader rows = context_.database.read(table);
    while (rows.next()) {
        if (!by_key_.contains(rows.text(KEY)))
            context_.error(table, rows.row(), KEY, QStringLiteral("there is no node %1").arg(rows.text(KEY)));
        const QString min = rows.text(QStringLiteral("Min_Matricola")), max = rows.text(max_column);
        if (!min.isEmpty() && !max.isEmpty() && min.toUpper() > max.toUpper())
            context_.error(
                table, rows.row(), max_column,
                QStringLiteral("no serial number is in %1 to %2: they are compared as texts, from the left")
                    .arg(min, max));
    }
}

}  // namespace

void checkTree(CheckContext& context) {
    TreeCheck(context).run();
}

// What stands in the cells of parts and lists: numbers, copies, kits, discounts, orders.

#include <QHash>
#include <QRegularExpression>
#include <functional>

#include "tzf/check/check_context.h"

namespace {

const QString PARTS = QStringLiteral("Componenti"), ROWS = QStringLiteral("Componenti_Web"),
              DISCOUNTS = QStringLiteral("Sconti"), SYSTEM = QStringLiteral("SYSTEM");

bool isPlainNumber(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^-?[0-9]+([.,][0-9]+)?$"));
    return form.match(text).hasMatch();
}

class ValuesCheck {
  public:
    explicit ValuesCheck(CheckContext& context) : context_(context) {}
    void run();

  private:
    struct Link {
        QString code;
        qint64 row;
        QString column;
    };

    void checkPart(const TableReader& rows);
    void checkNumber(const QString& table, qint64 row, const QString& column, const QString& text);
    void readKit(qint64 row, const QString& column, const QString& code, const QString& list);
    void checkKits();
    void checkRows();
    void checkCopies(const TableReader& rows);
    void checkQuantity(qint64 row, const QString& text);
    void checkDiscounts();
    void checkDiscount(const TableReader& rows, const QString& column, bool range);
    void checkOrders();
    bool stepsAreForced() const;

    CheckContext& context_;
    QHash<QString, QStringList> parts_;       ///< values of the model's columns, by code in small letters
    QHash<QString, std::vector<Link>> kits_;  ///< linked codes in small letters
    bool forced_ = false;                     ///< quantities are multiples of `Quantita_min`
};

void ValuesCheck::run() {
    forced_ = stepsAreForced();
    if (context_.database.hasTable(PARTS) && !context_.code_column.isEmpty()) {
        TableReader rows = context_.database.read(PARTS);
        while (rows.next())
            checkPart(rows);
        checkKits();
    }
    checkRows();
    checkDiscounts();
    checkOrders();
}

bool ValuesCheck::stepsAreForced() const {
    if (!context_.database.hasTable(SYSTEM))
        return false;
    TableReader rows = context_.database.read(SYSTEM);
    while (rows.next())
        if (rows.text(QStringLiteral("KEY"))
                .compare(u"IMPOSTAZIONE_RICHIEDI_QUANTITA_MINIMA", Qt::CaseInsensitive) == 0)
            return rows.text(QStringLiteral("VALORE")).trimmed() == u"SI";
    return false;
}

void ValuesCheck::checkPart(const TableReader& rows) {
    const QString code = rows.text(context_.code_column).toCaseFolded();
    QStringList values;
    for (const ModelColumn& column : context_.model) {
        const QString text = rows.text(column.name);
        values << text;
        if (column.kind == u"Price" || column.kind == u"Number" || column.kind == u"Quantity")
            checkNumber(PARTS, rows.row(), column.name, text);
        else if (column.kind == u"Discount")
            context_.checkDiscountList(PARTS, rows, column.name);
        else if (column.kind == u"Memo")
            readKit(rows.row(), column.name, code, text);
    }
    parts_.insert(code, values);
}

void ValuesCheck::checkNumber(const QString& table, qint64 row, const QString& column, const QString& text) {
    static const QRegularExpression doubtful(QStringLiteral("^-?[0-9]{1,3},[0-9]{3}$"));
    if (text.isEmpty())
        return;
    if (!isPlainNumber(text))
        context_.error(
            table, row, column,
            QStringLiteral("\"%1\" isn't a plain number such as 1048.50, so the cart takes it for another")
                .arg(text));
    else if (doubtful.match(text).hasMatch())
        context_.warning(
            table, row, column,
            QStringLiteral("\"%1\" is taken for %2; write it without a comma if it is a thousand")
                .arg(text, QString(text).replace(u',', u'.')));
}

void ValuesCheck::readKit(qint64 row, const QString& column, const QString& code, const QString& list) {
    for (const QString& item : list.split(u'/')) {
        const QString entry = item.trimmed();
        if (entry.isEmpty())
            continue;
        const QString linked = entry.section(u'§', 0, 0).trimmed(), factor = entry.section(u'§', 1).trimmed();
        if (linked.isEmpty() || !isPlainNumber(factor) || factor.startsWith(u'-')) {
            context_.error(
                PARTS, row, column,
                QStringLiteral(
                    "\"%1\" is no linked part; it is written CODE§2, several with \"/\" between them")
                    .arg(entry));
            continue;
        }
        kits_[code].push_back({linked.toCaseFolded(), row, column});
    }
}

/// Linked parts that aren't there, and kits that lead back to each other.
void ValuesCheck::checkKits() {
    QHash<QString, int> done;  // 1 on the way, 2 done
    QStringList way;
    const std::function<void(const QString&)> walk = [&](const QString& code) {
        done[code] = 1;
        way << code;
        for (const Link& link : kits_.value(code)) {
            if (!parts_.contains(link.code))
                context_.error(PARTS, link.row, link.column,
                               QStringLiteral("Componenti has no part \"%1\", which the kit names")
                                   .arg(link.code.toUpper()));
            else if (done.value(link.code) == 0 && way.size() < 1000)
                walk(link.code);
            // A kit that names a kit that names the first one is a pair that may be sold either way.
            else if (done.value(link.code) == 1 && way.size() - way.indexOf(link.code) > 2)
                context_.warning(
                    PARTS, link.row, link.column,
                    QStringLiteral("the kits %1 lead in a circle, so an order lists them again and again")
                        .arg((way.mid(way.indexOf(link.code)) << link.code)
                                 .join(QStringLiteral(" → "))
                                 .toUpper()));
        }
        way.removeLast();
        done[code] = 2;
    };
    for (const QString& code : kits_.keys())
        if (done.value(code) == 0)
            walk(code);
}

void ValuesCheck::checkRows() {
    if (!context_.database.hasTable(ROWS))
        return;
    TableReader rows = context_.database.read(ROWS);
    const int quantity = rows.position(QStringLiteral("Quantita_min"));
    while (rows.next()) {
        checkQuantity(rows.row(), rows.text(quantity));
        checkCopies(rows);
    }
}

void ValuesCheck::checkQuantity(qint64 row, const QString& text) {
    const QString column = QStringLiteral("Quantita_min");
    static const QRegularExpression whole(QStringLiteral("^0*[1-9][0-9]*([.,]0+)?$")),
        zero(QStringLiteral("^0+([.,]0+)?$"));
    if (text.isEmpty() || whole.match(text).hasMatch())
        return;
    if (zero.match(text).hasMatch())
        context_.error(ROWS, row, column,
                       forced_
                           ? QStringLiteral("a quantity of 0 has no multiples, and the settings ask for them")
                           : QStringLiteral("with a quantity of 0 nothing is added to the cart"));
    else if (isPlainNumber(text) && !text.startsWith(u'-'))
        context_.warning(ROWS, row, column,
                         QStringLiteral("\"%1\" counts as a whole number in the cart").arg(text));
    else
        context_.error(ROWS, row, column, QStringLiteral("\"%1\" is no quantity").arg(text));
}

/// The list shows the row's own copy of the part's columns, other windows the part.
void ValuesCheck::checkCopies(const TableReader& rows) {
    const auto part = parts_.constFind(rows.text(QStringLiteral("Codice_Componente")).toCaseFolded());
    if (part == parts_.constEnd())
        return;
    for (size_t i = 0; i < context_.model.size(); ++i) {
        const int position = rows.position(context_.model[i].name);
        if (position >= 0 && rows.text(position) != part->at(static_cast<qsizetype>(i)))
            context_.warning(
                ROWS, rows.row(), context_.model[i].name,
                QStringLiteral("\"%1\" differs from the part's own \"%2\"; a table without the column "
                               "takes it from there")
                    .arg(rows.text(position), part->at(static_cast<qsizetype>(i))));
    }
}

void ValuesCheck::checkDiscounts() {
    if (!context_.database.hasTable(DISCOUNTS))
        return;
    TableReader rows = context_.database.read(DISCOUNTS);
    while (rows.next()) {
        if (rows.text(QStringLiteral("Key_Sconto")).contains(u'/'))
            context_.error(DISCOUNTS, rows.row(), QStringLiteral("Key_Sconto"),
                           QStringLiteral("a key can't hold \"/\": lists of keys are written /a/b/"));
        checkDiscount(rows, QStringLiteral("Sconto_Generale"), false);
        checkDiscount(rows, QStringLiteral("Sconto_Qta"), true);
        checkDiscount(rows, QStringLiteral("Sconto_Totale"), true);
    }
}

void ValuesCheck::checkDiscount(const TableReader& rows, const QString& column, bool range) {
    const QString text = rows.text(column).trimmed();
    if (text.isEmpty())
        return;
    const auto fail = [&](const QString& message) { context_.error(DISCOUNTS, rows.row(), column, message); };
    static const QRegularExpression whole(QStringLiteral("^[0-9]+$"));
    for (const QString& item : text.split(u'|')) {
        const QStringList fields = item.split(u'/');
        if (fields.size() != (range ? 4 : 2) || !isPlainNumber(fields[1]) ||
            (range && (!isPlainNumber(fields[2]) || !isPlainNumber(fields[3])))) {
            fail(QStringLiteral("\"%1\" isn't %2, with \"|\" between several")
                     .arg(item, range ? QStringLiteral("market/percent/min/max")
                                      : QStringLiteral("market/percent")));
            continue;
        }
        if (!context_.markets.contains(fields[0].toInt()))
            fail(QStringLiteral("\"%1\": there is no market %2").arg(item, fields[0]));
        if (!whole.match(fields[1]).hasMatch())
            fail(QStringLiteral(
                     "\"%1\": a percentage with decimals is read otherwise in another country; write a "
                     "whole number")
                     .arg(item));
        else if (fields[1].toInt() >= 100)
            fail(QStringLiteral("\"%1\": %2 percent count as no discount").arg(item, fields[1]));
        if (range && QString(fields[2]).replace(u',', u'.').toDouble() >
                         QString(fields[3]).replace(u',', u'.').toDouble())
            fail(QStringLiteral("\"%1\": nothing is from %2 to %3").arg(item, fields[2], fields[3]));
    }
}

/// Places in an order, which the database sorts as numbers only when they are.
void ValuesCheck::checkOrders() {
    static const QRegularExpression whole(QStringLiteral("^-?[0-9]+$"));
    for (const QString& table : context_.database.tables()) {
        for (const auto* name : {"Ordine", "Profondita_Nodo"}) {
            const QString column = QLatin1String(name);
            TableReader rows = context_.database.read(table);
            const int position = rows.position(column);
            while (position >= 0 && rows.next())
                if (const QString text = rows.text(position);
                    !text.isEmpty() && !whole.match(text).hasMatch())
                    context_.error(table, rows.row(), column,
                                   QStringLiteral("\"%1\" isn't a whole number").arg(text));
        }
    }
}

}  // namespace

void checkValues(CheckContext& context) {
    ValuesCheck(context).run();
}

void checkPictures(CheckContext& context) {
    static const QStringList shown = {QStringLiteral("PNG"), QStringLiteral("JPEG"), QStringLiteral("GIF"),
                                      QStringLiteral("BMP")};
    QHash<QString, bool> known;  // by entry
    const auto check = [&](const QString& table, const QString& column) {
        if (!context.database.hasTable(table))
            return;
        TableReader rows = context.database.read(table);
        const int position = rows.position(column);
        while (position >= 0 && rows.next()) {
            const QString name = rows.text(position).trimmed(), entry = context.findEntry(name);
            if (name.isEmpty() || (entry != name && !entry.endsWith(u'/' + name)))
                continue;  // told with the missing files
            if (!known.contains(entry))
                known.insert(entry, shown.contains(pictureKind(context.openEntry(entry))));
            if (!known.value(entry))
                context.error(table, rows.row(), column,
                              QStringLiteral("\"%1\" isn't a PNG, JPEG, GIF or BMP picture").arg(name));
        }
    };
    if (!context.openEntry)
        return;
    for (const auto* column : {"Foto_1_Prodotto", "Foto_2_Prodotto"})
        check(QStringLiteral("Prodotti"), QLatin1String(column));
    for (const ModelColumn& column : context.model)
        if (column.kind == u"Image")
            check(PARTS, column.name);
}

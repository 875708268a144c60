#include <QHash>
#include <QRegularExpression>
#include <functional>

#include "core/griglia/griglia.h"
#include "tzf/check/check_context.h"

namespace {

const QString MODEL = QStringLiteral("Struttura_Componenti");
const QString PARTS = QStringLiteral("Componenti");
const QString ROWS = QStringLiteral("Componenti_Web");
const QString NAME = QStringLiteral("Nome_Colonna_Tabella");
constexpr int MOST_ROWS = 1000;  ///< of one parts list

class PartsCheck {
  public:
    explicit PartsCheck(CheckContext& context) : context_(context) {}
    void run();

  private:
    void checkModel();
    void checkModelRow(const TableReader& rows);
    void checkTitles(const TableReader& rows, bool visible);
    int widest(const std::function<int(const QString& kind)>& counts) const;
    void checkWidth();
    void readParts();
    void readNotes();
    void checkRows();
    void checkRow(const TableReader& rows);
    void checkFiles(const QString& table, const TableReader& rows);
    void tellUnknown();
    void countRow(const TableReader& rows);
    void checkCounts();

    CheckContext& context_;
    QStringList file_columns_;
    QString primary_;
    int primaries_ = 0;
    QSet<QString> codes_, notes_;
    std::vector<std::pair<qint64, QString>> unknown_;  ///< rows with a code that no part has
    qint64 rows_ = 0;
    struct Count {
        int everywhere = 0;
        QHash<QString, int> by_market;
    };
    QHash<QString, Count> counts_;
};

bool isYes(const QString& text) {
    return text.compare(u"Yes", Qt::CaseInsensitive) == 0;
}

void PartsCheck::run() {
    if (context_.database.hasTable(MODEL)) {
        checkModel();
        checkWidth();
    }
    readParts();
    readNotes();
    if (context_.database.hasTable(ROWS)) {
        checkRows();
        tellUnknown();
        checkCounts();
    }
}

void PartsCheck::checkModel() {
    TableReader rows = context_.database.read(MODEL);
    while (rows.next())
        checkModelRow(rows);
    if (primaries_ == 1)
        context_.code_column = primary_;
    else
        context_.error(MODEL, 0, QStringLiteral("Indice_Primario"),
                       primaries_ == 0 ? QStringLiteral("no column that is shown is the primary one")
                                       : QStringLiteral("%1 columns are the primary one").arg(primaries_));
}

void PartsCheck::checkModelRow(const TableReader& rows) {
    const qint64 row = rows.row();
    const QString name = rows.text(NAME), kind = rows.text(QStringLiteral("Tipo_Colonna"));
    const bool visible = isYes(rows.text(QStringLiteral("Visualizzato")));
    for (const QString& table : {PARTS, ROWS}) {
        if (!context_.database.hasTable(table))
            continue;
        const auto columns = context_.database.columns(table);
        const bool there =
            std::any_of(columns.begin(), columns.end(), [&](const Definizione_Colonna& column) {
                return column.Nome.compare(name, Qt::CaseInsensitive) == 0;
            });
        if (!there)
            context_.error(MODEL, row, NAME, QStringLiteral("%1 has no column %2").arg(table, name));
    }
    const QString primary = rows.text(QStringLiteral("Indice_Primario"));
    if (visible && isYes(primary)) {
        ++primaries_;
        primary_ = name;
    } else if (visible && primary.compare(u"Si", Qt::CaseInsensitive) == 0) {
        context_.error(
            MODEL, row, QStringLiteral("Indice_Primario"),
            QStringLiteral("not every question of the viewer takes \"%1\" for \"Yes\"").arg(primary));
    }
    checkTitles(rows, visible);
    context_.checkLanguageList(MODEL, rows, QStringLiteral("Key_Lingua"));
    context_.checkMarketList(MODEL, rows, QStringLiteral("Key_Mercato"));
    context_.checkGroupList(MODEL, rows, QStringLiteral("Key_Gruppo"));

    static const QStringList kinds = {QStringLiteral("String [255 car.]"),
                                      QStringLiteral("Text [255 car.]"),
                                      QStringLiteral("Memo"),
                                      QStringLiteral("Number"),
                                      QStringLiteral("Price"),
                                      QStringLiteral("Quantity"),
                                      QStringLiteral("Discount"),
                                      QStringLiteral("Image"),
                                      QStringLiteral("Document"),
                                      QStringLiteral("Single")};
    if (!kinds.contains(kind))
        context_.error(MODEL, row, QStringLiteral("Tipo_Colonna"),
                       QStringLiteral("\"%1\" is no kind of column").arg(kind));
    const QString size = rows.text(QStringLiteral("Size")).trimmed();
    bool number = true;
    if (!size.isEmpty() && (size.toInt(&number) < 0 || !number))
        context_.error(MODEL, row, QStringLiteral("Size"), QStringLiteral("\"%1\" isn't a number").arg(size));
    if (kind == u"Image" || kind == u"Document")
        file_columns_ << name;
    const auto list = [&](const char* column) {
        return rows.text(QLatin1String(column)).split(u'/', Qt::SkipEmptyParts);
    };
    context_.model.push_back({name, kind, visible, list("Key_Lingua"), list("Key_Mercato")});
}

void PartsCheck::checkTitles(const TableReader& rows, bool visible) {
    const QString title = rows.text(QStringLiteral("Titolo_Colonna"));
    if (title.contains(u'[') || title.contains(u']'))
        context_.error(MODEL, rows.row(), QStringLiteral("Titolo_Colonna"),
                       QStringLiteral("brackets in the title spoil the viewer's questions"));
    for (const int language : context_.languages) {
        const QString column = QStringLiteral("Traduzione_%1").arg(language);
        if (visible && rows.position(column) >= 0 && rows.text(column).trimmed().isEmpty())
            context_.error(MODEL, rows.row(), column,
                           QStringLiteral("column %1 has no title").arg(rows.text(NAME)));
    }
}

/// The most columns that one language and market show; `counts` says how many a column of a kind makes.
int PartsCheck::widest(const std::function<int(const QString& kind)>& counts) const {
    const auto passes = [](const QStringList& filter, int number) {
        return filter.isEmpty() || filter.contains(QString::number(number));
    };
    int widest = 0;
    for (const int language : context_.languages)
        for (const int market : std::as_const(context_.markets)) {
            int columns = 0;
            for (const ModelColumn& column : context_.model)
                if (column.visible && passes(column.languages, language) && passes(column.markets, market))
                    columns += counts(column.kind);
            widest = std::max(widest, columns);
        }
    return widest;
}

void PartsCheck::checkWidth() {
    constexpr int MOST = Tag_Griglia::ULTIMA_COLONNA + 1;
    // Reference and cart column are always in the list, quantity and notes may come; in the cart there are
    // those for removing, product, reference, quantity and note, and each price has a total.
    constexpr int FIXED = 2, OPTIONAL = 2, CART = 5;
    const int list = widest([](const QString& kind) {
        return kind == u"Discount" || kind == u"Quantity" || kind == u"Memo" ? 0 : 1;
    });
    const int cart = widest([](const QString& kind) {
        return kind == u"Quantity" || kind == u"Memo" ? 0 : kind == u"Price" ? 2 : 1;
    });
    const QString message =
        QStringLiteral("%1 columns are shown at once, and a parts list has room for %2 of them");
    if (list + FIXED > MOST)
        context_.error(MODEL, 0, {}, message.arg(list).arg(MOST - FIXED));
    else if (cart + CART > MOST)
        context_.error(
            MODEL, 0, {},
            QStringLiteral("%1 columns and totals of prices are in the cart, and it has room for %2")
                .arg(cart)
                .arg(MOST - CART));
    else if (list + FIXED + OPTIONAL > MOST)
        context_.warning(
            MODEL, 0, {},
            message.arg(list).arg(MOST - FIXED - OPTIONAL) + QStringLiteral(" with quantities and notes"));
}

void PartsCheck::readParts() {
    if (!context_.database.hasTable(PARTS))
        return;
    TableReader rows = context_.database.read(PARTS);
    const int code_column = primaries_ == 1 ? rows.position(primary_) : -1;
    while (rows.next()) {
        checkFiles(PARTS, rows);
        if (code_column < 0)
            continue;
        const QString code = rows.text(code_column).toCaseFolded();
        if (code.isEmpty())
            context_.error(PARTS, rows.row(), primary_, QStringLiteral("the part has no code"));
        else if (codes_.contains(code))
            context_.error(PARTS, rows.row(), primary_,
                           QStringLiteral("part %1 is there already").arg(rows.text(code_column)));
        codes_.insert(code);
    }
}

void PartsCheck::readNotes() {
    const QString table = QStringLiteral("Traduzioni_Componenti_Mappe");
    if (!context_.database.hasTable(table))
        return;
    TableReader rows = context_.database.read(table);
    while (rows.next())
        notes_.insert(rows.text(QStringLiteral("Key")).toCaseFolded());
}

void PartsCheck::checkRows() {
    TableReader rows = context_.database.read(ROWS);
    while (rows.next()) {
        ++rows_;
        checkRow(rows);
    }
}

void PartsCheck::tellUnknown() {
    const QString column = QStringLiteral("Codice_Componente");
    if (!context_.database.hasTable(PARTS))
        return;  // told already
    if (rows_ > 1 && unknown_.size() == static_cast<size_t>(rows_)) {
        context_.error(ROWS, 0, column,
                       QStringLiteral("no code is in Componenti, whose codes are taken from its column %1")
                           .arg(primary_));
        return;
    }
    // The same code without the zeros that a spreadsheet takes for nothing.
    static const QRegularExpression zeros(QStringLiteral("^0+"));
    QHash<QString, QString> bare;
    for (const QString& code : std::as_const(codes_))
        if (code.startsWith(u'0'))
            bare.insert(QString(code).remove(zeros), code);
    for (const auto& [row, code] : unknown_) {
        const QString similar = bare.value(QString(code.toCaseFolded()).remove(zeros));
        context_.error(
            ROWS, row, column,
            QStringLiteral("Componenti has no part \"%1\"").arg(code) +
                (similar.isEmpty() ? QString() : QStringLiteral("; there is \"%1\"").arg(similar)));
    }
}

void PartsCheck::checkRow(const TableReader& rows) {
    const qint64 row = rows.row();
    const QString key_column = QStringLiteral("Key_Prodotto"),
                  code_column = QStringLiteral("Codice_Componente");
    const QString product = rows.text(key_column), code = rows.text(code_column);
    if (!context_.nodes.contains(product))
        context_.error(ROWS, row, key_column, QStringLiteral("there is no node %1").arg(product));
    if (primaries_ == 1 && !codes_.contains(code.toCaseFolded()))
        unknown_.emplace_back(row, code);
    const QString kind = rows.text(QStringLiteral("Tipo_Associazione"));
    if (kind != u"1" && kind != u"2")
        context_.error(ROWS, row, QStringLiteral("Tipo_Associazione"),
                       QStringLiteral("\"%1\" is neither 1 nor 2").arg(kind));
    const QString reference = rows.text(QStringLiteral("Key_Riferimento"));
    if (kind == u"1" && reference.compare(code, Qt::CaseInsensitive) != 0 &&
        codes_.contains(code.toCaseFolded()))
        context_.warning(
            ROWS, row, QStringLiteral("Key_Riferimento"),
            QStringLiteral("a row that shows \"-\" needs its code as reference, else the cart doesn't "
                           "find its quantity and note"));
    bool number = false;
    if (kind != u"1" && reference != reference.trimmed())
        context_.warning(
            ROWS, row, QStringLiteral("Key_Riferimento"),
            QStringLiteral("reference \"%1\" has blanks around it, so no drawing has it").arg(reference));
    static const QRegularExpression odd(QStringLiteral("^\\s*(0[0-9]+|[0-9]+[.,][0-9]+)\\s*$"));
    if (kind != u"1" && odd.match(reference).hasMatch())
        context_.warning(ROWS, row, QStringLiteral("Key_Riferimento"),
                         QStringLiteral("reference \"%1\" is shown as a whole number").arg(reference));
    if (kind != u"1" && (reference.isEmpty() || (reference.toDouble(&number) == 0 && number)))
        context_.error(
            ROWS, row, QStringLiteral("Key_Riferimento"),
            QStringLiteral("without a reference the cells of the row move one column to the left"));
    for (const char* name : {"Key_Nota_1", "Key_Nota_2", "Key_Nota_3"}) {
        const QString note = rows.text(QLatin1String(name));
        if (!note.isEmpty() && !notes_.contains(note.toCaseFolded()))
            context_.error(ROWS, row, QLatin1String(name),
                           QStringLiteral("note \"%1\" isn't in Traduzioni_Componenti_Mappe").arg(note));
    }
    context_.checkMarketList(ROWS, rows, QStringLiteral("Key_Mercato"));
    context_.checkGroupList(ROWS, rows, QStringLiteral("Key_Gruppo"));
    countRow(rows);
}

void PartsCheck::checkFiles(const QString& table, const TableReader& rows) {
    for (const QString& column : std::as_const(file_columns_))
        context_.checkFile(table, rows.row(), column, rows.text(column));
}

void PartsCheck::countRow(const TableReader& rows) {
    Count& count = counts_[rows.text(QStringLiteral("Key_Prodotto"))];
    const QString markets = rows.text(QStringLiteral("Key_Mercato"));
    if (markets.isEmpty())
        ++count.everywhere;
    else
        for (const QString& market : markets.split(u'/', Qt::SkipEmptyParts))
            ++count.by_market[market];
}

void PartsCheck::checkCounts() {
    for (auto it = counts_.begin(); it != counts_.end(); ++it) {
        int most = 0;
        for (const int count : std::as_const(it->by_market))
            most = std::max(most, count);
        if (most + it->everywhere > MOST_ROWS)
            context_.error(ROWS, 0, {},
                           QStringLiteral("product %1 has %2 rows; a parts list shows nothing beyond %3")
                               .arg(it.key())
                               .arg(most + it->everywhere)
                               .arg(MOST_ROWS));
    }
}

}  // namespace

void checkParts(CheckContext& context) {
    PartsCheck(context).run();
}

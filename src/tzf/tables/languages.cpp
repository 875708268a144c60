#include "tzf/tables/languages.h"

#include "tzf/tool_error.h"

// Outside any namespace, as the macro wants it.
static void useResources() {
    Q_INIT_RESOURCE(tzf_tables);
}

namespace {

QString textAt(const TableRow& row, int position) {
    return position < 0 ? QString() : QString::fromUtf8(row[static_cast<size_t>(position)].text);
}

bool isTrue(const QString& text) {
    return text.trimmed().compare(u"TRUE", Qt::CaseInsensitive) == 0;
}

}  // namespace

QString builtInTable(const QString& table) {
    useResources();
    return QStringLiteral(":/tzf/%1.csv").arg(table);
}

MadeTable makeLanguages(const CatalogueOptions& options) {
    const auto rows = rowsOfCsv(builtInTable(QStringLiteral("Lingue")));
    const int key_column = rows->position(QStringLiteral("Chiave"));
    MadeTable table;
    table.columns = rows->columns();
    QStringList known, wanted;
    for (const QString& key : options.languages)
        wanted << key.toUpper();
    TableRow row;
    while (rows->next(row)) {
        const QString key = textAt(row, key_column);
        known << key;
        for (const auto* column : {"Attiva_Lingua", "Attiva_Mercato"})
            row[static_cast<size_t>(rows->position(QLatin1String(column)))] =
                fieldOf(wanted.contains(key) ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
        table.rows.push_back(row);
    }
    const QString choice = known.join(QStringLiteral(", "));
    if (wanted.isEmpty())
        throw ToolError(QStringLiteral("%1: \"languages\" is missing, and there is no table Lingue; "
                                       "write for example \"languages\": [\"UK\", \"DE\"], out of %2")
                            .arg(options.place, choice));
    for (const QString& key : wanted)
        if (!known.contains(key))
            throw ToolError(QStringLiteral("%1: \"languages\": there is no \"%2\"; there are: %3")
                                .arg(options.place, key, choice));
    return table;
}

Languages::Languages(RowSource& rows, const QString& first) {
    const int id = rows.position(QStringLiteral("ID")), key = rows.position(QStringLiteral("Chiave")),
              active = rows.position(QStringLiteral("Attiva_Lingua")),
              language = rows.position(QStringLiteral("Descrizione_Lingua")),
              market = rows.position(QStringLiteral("Descrizione_Mercato")),
              active_market = rows.position(QStringLiteral("Attiva_Mercato"));
    TableRow row;
    QString any_market;
    while (rows.next(row)) {
        const int number = textAt(row, id).toInt();
        numbers_.insert(textAt(row, key).toUpper(), number);
        keys_.insert(number, textAt(row, key));
        const bool leads = textAt(row, key).compare(first, Qt::CaseInsensitive) == 0;
        if (isTrue(textAt(row, active)))
            offered_.insert(leads ? 0 : offered_.size(), number);
        if (isTrue(textAt(row, active)) && offered_.first() == number)
            first_language_ = textAt(row, language);
        if (isTrue(textAt(row, active_market)) && (any_market.isEmpty() || leads))
            any_market = textAt(row, market);
    }
    first_market_ = any_market;
}

QStringList Languages::keys() const {
    return keys_.values();
}

#include <QHash>

#include "core/catalogue_db/schema.h"
#include "tzf/check/check_context.h"

namespace {

void checkFamilies(CheckContext& context, const QString& table, const QStringList& prefixes) {
    if (!context.database.hasTable(table))
        return;
    TableReader rows = context.database.read(table);
    while (rows.next())
        for (const QString& prefix : prefixes)
            context.checkFamily(table, rows, prefix);
}

void checkActive(CheckContext& context, const TableReader& rows, const QString& column) {
    const QString value = rows.text(column).trimmed().toUpper();
    if (!value.isEmpty() && value != u"TRUE" && value != u"FALSE")
        context.error(QStringLiteral("Lingue"), rows.row(), column,
                      QStringLiteral("\"%1\" is neither TRUE nor FALSE").arg(rows.text(column)));
}

void checkLanguageRows(CheckContext& context) {
    const QString table = QStringLiteral("Lingue");
    if (!context.database.hasTable(table))
        return;
    QHash<int, qint64> seen;
    TableReader rows = context.database.read(table);
    while (rows.next()) {
        const QString id = rows.text(QStringLiteral("ID"));
        const int number = id.toInt();
        if (number < 1 || number > ULTIMA_LINGUA)
            context.error(table, rows.row(), QStringLiteral("ID"),
                          QStringLiteral("\"%1\" isn't a number from 1 to %2").arg(id).arg(ULTIMA_LINGUA));
        else if (seen.contains(number))
            context.error(
                table, rows.row(), QStringLiteral("ID"),
                QStringLiteral("number %1 stands in row %2 already").arg(number).arg(seen.value(number)));
        seen.insert(number, rows.row());
        checkActive(context, rows, QStringLiteral("Attiva_Lingua"));
        checkActive(context, rows, QStringLiteral("Attiva_Mercato"));
        const bool language = context.languages.contains(number), market = context.markets.contains(number);
        const auto needs = [&](const QString& column, bool needed) {
            if (needed && rows.text(column).trimmed().isEmpty())
                context.error(table, rows.row(), column, QStringLiteral("the text is missing"));
        };
        needs(QStringLiteral("Descrizione_Lingua"), language);
        needs(QStringLiteral("Descrizione_Mercato"), market);
        needs(QStringLiteral("Chiave"), language || market);
    }
    if (context.languages.isEmpty())
        context.error(table, 0, QStringLiteral("Attiva_Lingua"), QStringLiteral("no language is offered"));
    if (context.markets.isEmpty())
        context.error(table, 0, QStringLiteral("Attiva_Mercato"), QStringLiteral("no market is offered"));
}

}  // namespace

void checkLanguages(CheckContext& context) {
    checkLanguageRows(context);
    const QString text = QStringLiteral("Traduzione_");
    checkFamilies(context, QStringLiteral("Traduzioni_Albero"), {text});
    checkFamilies(context, QStringLiteral("Traduzioni_Prodotti"),
                  {QStringLiteral("Traduzione_Matricola_"), QStringLiteral("Traduzione_Descrizione_"),
                   QStringLiteral("Traduzione_Nota_")});
    checkFamilies(context, QStringLiteral("Traduzioni_Componenti_Mappe"),
                  {QStringLiteral("Traduzione_Nota_")});
    checkFamilies(context, QStringLiteral("Traduzioni_Viewer_System"),
                  {text, QStringLiteral("Traduzione_Tooltiptext_")});
}

void checkPeople(CheckContext& context) {
    const QString groups = QStringLiteral("Gruppi_Utenti"), people = QStringLiteral("Anagrafico");
    if (context.database.hasTable(groups)) {
        TableReader rows = context.database.read(groups);
        while (rows.next()) {
            bool number = false;
            const QString key = rows.text(QStringLiteral("Key_Gruppo"));
            key.toUInt(&number);
            if (!number)
                context.warning(
                    groups, rows.row(), QStringLiteral("Key_Gruppo"),
                    QStringLiteral(
                        "\"%1\" isn't a number: the languages and markets of its users can't be read")
                        .arg(key));
            context.checkLanguageList(groups, rows, QStringLiteral("ID_Lingue"));
            context.checkMarketList(groups, rows, QStringLiteral("ID_Mercati"));
            context.checkDiscountList(groups, rows, QStringLiteral("Key_Sconto"));
        }
    }
    if (context.database.hasTable(people)) {
        static const QStringList kinds = {QStringLiteral("/1/0/0/"), QStringLiteral("/0/1/0/"),
                                          QStringLiteral("/0/0/1/"), QStringLiteral("/0/1/1/"),
                                          QStringLiteral("/1/1/1/")};
        QHash<QString, qint64> logins;
        TableReader rows = context.database.read(people);
        while (rows.next()) {
            context.checkGroupList(people, rows, QStringLiteral("Key_Gruppo"));
            context.checkDiscountList(people, rows, QStringLiteral("Key_Sconto"));
            const QString login = rows.text(QStringLiteral("Login"));
            if (login.contains(u'\''))
                context.warning(people, rows.row(), QStringLiteral("Login"),
                                QStringLiteral("\"%1\" holds a quote: nobody can log in with it").arg(login));
            const QString folded = login.toCaseFolded();
            if (!login.isEmpty() && logins.contains(folded))
                context.error(
                    people, rows.row(), QStringLiteral("Login"),
                    QStringLiteral("\"%1\" stands in row %2 already").arg(login).arg(logins.value(folded)));
            logins.insert(folded, rows.row());
            const QString kind = rows.text(QStringLiteral("Utente_Tipo"));
            if (!kind.isEmpty() && !kinds.contains(kind))
                context.error(
                    people, rows.row(), QStringLiteral("Utente_Tipo"),
                    QStringLiteral("\"%1\" is none of %2").arg(kind, kinds.join(QStringLiteral(", "))));
        }
    }
}

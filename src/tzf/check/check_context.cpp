#include "tzf/check/check_context.h"

#include <QRegularExpression>

#include "core/base/percorsi.h"

namespace {

/// An entry's file name, or a file's, without regard to case.
QString fileName(const QString& entry) {
    return Nome_File(Nome_Di_Ricerca(entry), u"/").toCaseFolded();
}

QSet<QString> keysOf(const DatabaseReader& database, const QString& table, const QString& column) {
    QSet<QString> keys;
    if (!database.hasTable(table))
        return keys;
    TableReader rows = database.read(table);
    while (rows.next())
        keys.insert(rows.text(column));
    keys.remove({});
    return keys;
}

}  // namespace

CheckContext::CheckContext(const DatabaseReader& db, const QStringList& entries)
    : database(db), names_(entries) {
    for (const QString& entry : entries)
        similar_.insert(fileName(entry), entry);
    if (database.hasTable(QStringLiteral("Lingue"))) {
        TableReader rows = database.read(QStringLiteral("Lingue"));
        while (rows.next()) {
            const int number = rows.text(QStringLiteral("ID")).toInt();
            numbers.insert(number);
            if (rows.text(QStringLiteral("Attiva_Lingua")).compare(u"TRUE", Qt::CaseInsensitive) == 0)
                languages << number;
            if (rows.text(QStringLiteral("Attiva_Mercato")).compare(u"TRUE", Qt::CaseInsensitive) == 0)
                markets.insert(number);
        }
    }
    groups = keysOf(database, QStringLiteral("Gruppi_Utenti"), QStringLiteral("Key_Gruppo"));
    discounts = keysOf(database, QStringLiteral("Sconti"), QStringLiteral("Key_Sconto"));
}

void CheckContext::error(const QString& table, qint64 row, const QString& column, const QString& message) {
    findings.push_back({true, table, row, column, message});
}

void CheckContext::warning(const QString& table, qint64 row, const QString& column, const QString& message) {
    findings.push_back({false, table, row, column, message});
}

QString CheckContext::findEntry(const QString& name) const {
    const qsizetype position = names_.Cerca(name);
    return position < 0 ? QString() : names_.Nome(position);
}

void CheckContext::checkFile(const QString& table, qint64 row, const QString& column, const QString& name) {
    if (name.trimmed().isEmpty())
        return;
    const QString found = findEntry(name);
    if (found == name || found.endsWith(u'/' + name))
        return;
    if (!found.isEmpty()) {
        error(table, row, column,
              QStringLiteral("\"%1\" isn't in the package as such, and the viewer shows \"%2\" for it")
                  .arg(name, found));
        return;
    }
    const QString similar = similar_.value(fileName(name));
    error(table, row, column,
          QStringLiteral("file \"%1\" isn't in the package").arg(name) +
              (similar.isEmpty() ? QString() : QStringLiteral("; there is \"%1\"").arg(similar)));
}

QStringList CheckContext::listValues(const QString& table, qint64 row, const QString& column,
                                     const QString& value) {
    static const QRegularExpression form(QStringLiteral("^/([^/]+/)+$"));
    if (value.isEmpty())
        return {};
    if (!form.match(value).hasMatch()) {
        error(table, row, column, QStringLiteral("\"%1\" is no list; a list is written /a/b/").arg(value));
        return {};
    }
    return value.split(u'/', Qt::SkipEmptyParts);
}

void CheckContext::checkNumberList(const QString& table, const TableReader& row, const QString& column,
                                   const QSet<int>& known, const QString& what) {
    for (const QString& value : listValues(table, row.row(), column, row.text(column).trimmed())) {
        bool ok = false;
        const int number = value.toInt(&ok);
        if (!ok || !known.contains(number) || QString::number(number) != value)
            error(table, row.row(), column, QStringLiteral("there is no %1 %2").arg(what, value));
    }
}

void CheckContext::checkKeyList(const QString& table, const TableReader& row, const QString& column,
                                const QSet<QString>& known, const QString& where) {
    for (const QString& value : listValues(table, row.row(), column, row.text(column).trimmed()))
        if (!known.contains(value))
            error(table, row.row(), column, QStringLiteral("%1 has no \"%2\"").arg(where, value));
}

void CheckContext::checkLanguageList(const QString& table, const TableReader& row, const QString& column) {
    checkNumberList(table, row, column, numbers, QStringLiteral("language"));
}

void CheckContext::checkMarketList(const QString& table, const TableReader& row, const QString& column) {
    checkNumberList(table, row, column, markets, QStringLiteral("market"));
}

void CheckContext::checkGroupList(const QString& table, const TableReader& row, const QString& column) {
    checkKeyList(table, row, column, groups, QStringLiteral("Gruppi_Utenti"));
}

void CheckContext::checkDiscountList(const QString& table, const TableReader& row, const QString& column) {
    checkKeyList(table, row, column, discounts, QStringLiteral("Sconti"));
}

void CheckContext::checkFamily(const QString& table, const TableReader& row, const QString& prefix) {
    QStringList missing;
    for (const int language : languages) {
        const int column = row.position(prefix + QString::number(language));
        if (column >= 0 && row.text(column).trimmed().isEmpty())
            missing << prefix + QString::number(language);
    }
    if (missing.isEmpty() || missing.size() == languages.size())
        return;
    for (const QString& column : missing)
        error(table, row.row(), column, QStringLiteral("the text is missing, and other languages have it"));
}

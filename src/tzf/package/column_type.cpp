#include "tzf/package/column_type.h"

#include <QRegularExpression>

#include "tzf/tool_error.h"

Definizione_Colonna parseColumn(const QString& column, const QString& type) {
    static const QRegularExpression form(QStringLiteral("^([A-Za-z][A-Za-z0-9_ ]*(\\([0-9 ,]*\\))?)?$"));
    const qsizetype collate = type.indexOf(QStringLiteral("COLLATE "), 0, Qt::CaseInsensitive);
    const QString name = (collate < 0 ? type : type.left(collate)).trimmed();
    const QString collation =
        collate < 0 ? Confronto_Del_Tipo(name) : type.mid(collate + 8).trimmed().toUpper();
    static const QStringList collations = {QStringLiteral("NOCASE"), QStringLiteral("BINARY"),
                                           QStringLiteral("RTRIM")};
    if (!form.match(name).hasMatch() || !collations.contains(collation))
        throw ToolError(QStringLiteral("\"%1\" is no type for column %2").arg(type, column));
    return {column, name, collation};
}

QString typeText(const Definizione_Colonna& column) {
    if (column.Confronto == Confronto_Del_Tipo(column.Tipo))
        return column.Tipo;
    return (column.Tipo + QStringLiteral(" COLLATE ") + column.Confronto).trimmed();
}

bool isNumeric(const Definizione_Colonna& column) {
    const QString upper = column.Tipo.toUpper();
    if (upper.contains(u"INT"))
        return true;
    return !upper.isEmpty() && !upper.contains(u"CHAR") && !upper.contains(u"CLOB") &&
           !upper.contains(u"TEXT") && !upper.contains(u"BLOB");
}

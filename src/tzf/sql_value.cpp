#include "tzf/sql_value.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

QByteArray numberText(double number) {
    if (std::isinf(number))
        return number > 0 ? QByteArrayLiteral("9e999") : QByteArrayLiteral("-9e999");
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

SqlValue numberOrText(const QByteArray& text) {
    static const QRegularExpression whole(QStringLiteral("^-?[0-9]{1,19}$"));
    static const QRegularExpression number(
        QStringLiteral("^-?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][-+]?[0-9]+)?$"));
    const QString string = QString::fromUtf8(text);
    bool ok = false;
    if (whole.match(string).hasMatch()) {
        const qint64 integer = text.toLongLong(&ok);
        if (ok)
            return integer;
    }
    if (number.match(string).hasMatch()) {
        const double real = text.toDouble(&ok);
        if (ok)
            return real;
    }
    return text;
}

QByteArray toLiteral(const SqlValue& value) {
    if (const auto* integer = std::get_if<qint64>(&value))
        return QByteArray::number(*integer);
    if (const auto* real = std::get_if<double>(&value)) {
        const QByteArray text = numberText(*real);
        return text.contains('.') || text.contains('e') ? text : text + ".0";
    }
    if (const auto* text = std::get_if<QByteArray>(&value)) {
        if (!text->isValidUtf8() || text->contains('\0'))
            return "CAST(X'" + text->toHex() + "' AS TEXT)";
        return "'" + QByteArray(*text).replace('\'', "''") + "'";
    }
    if (const auto* blob = std::get_if<Blob>(&value))
        return "X'" + blob->bytes.toHex() + "'";
    return "NULL";
}

bool parseLiteral(const QByteArray& literal, SqlValue& value) {
    if (literal == "NULL") {
        value = std::monostate();
        return true;
    }
    if (literal == "9e999" || literal == "-9e999") {
        value = literal.startsWith('-') ? -INFINITY : INFINITY;
        return true;
    }
    if (literal.startsWith('\'') && literal.endsWith('\'') && literal.size() > 1) {
        value = literal.mid(1, literal.size() - 2).replace("''", "'");
        return true;
    }
    const bool text = literal.startsWith("CAST(X'") && literal.endsWith("' AS TEXT)");
    if (text || (literal.startsWith("X'") && literal.endsWith('\'') && literal.size() > 2)) {
        const QByteArray hex =
            text ? literal.mid(7, literal.size() - 17) : literal.mid(2, literal.size() - 3);
        const QByteArray bytes = QByteArray::fromHex(hex);
        if (bytes.toHex() != hex.toLower())
            return false;
        if (text)
            value = bytes;
        else
            value = Blob{bytes};
        return true;
    }
    value = numberOrText(literal);
    return !std::holds_alternative<QByteArray>(value);
}

#include "tzf/package/literal.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

QByteArray numberText(double number) {
    if (std::isinf(number))
        return number > 0 ? QByteArrayLiteral("9e999") : QByteArrayLiteral("-9e999");
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

Valore numberOrText(const QByteArray& text) {
    static const QRegularExpression whole(QStringLiteral("^-?[0-9]{1,19}$"));
    static const QRegularExpression number(
        QStringLiteral("^-?([0-9]+\\.?[0-9]*|\\.[0-9]+)([eE][-+]?[0-9]+)?$"));
    const QString string = QString::fromUtf8(text);
    bool ok = false;
    if (whole.match(string).hasMatch()) {
        const qint64 integer = text.toLongLong(&ok);
        if (ok)
            return Valore(integer);
    }
    if (number.match(string).hasMatch()) {
        const double real = text.toDouble(&ok);
        if (ok)
            return Valore(real);
    }
    return Valore::Da_Testo(text);
}

QByteArray toLiteral(const Valore& value) {
    if (value.E_Nullo())
        return "NULL";
    if (value.E_Byte())
        return "X'" + value.Byte().toHex() + "'";
    if (value.E_Testo()) {
        QByteArray text = value.Byte();
        if (!text.isValidUtf8() || text.contains('\0'))
            return "CAST(X'" + text.toHex() + "' AS TEXT)";
        return "'" + text.replace('\'', "''") + "'";
    }
    if (value.E_Intero())
        return QByteArray::number(value.Intero());
    const QByteArray text = numberText(value.Numero());
    return text.contains('.') || text.contains('e') ? text : text + ".0";
}

bool parseLiteral(const QByteArray& literal, Valore& value) {
    if (literal == "NULL") {
        value = Valore();
        return true;
    }
    if (literal == "9e999" || literal == "-9e999") {
        value = Valore(literal.startsWith('-') ? -qInf() : qInf());
        return true;
    }
    if (literal.startsWith('\'') && literal.endsWith('\'') && literal.size() > 1) {
        value = Valore::Da_Testo(literal.mid(1, literal.size() - 2).replace("''", "'"));
        return true;
    }
    const bool text = literal.startsWith("CAST(X'") && literal.endsWith("' AS TEXT)");
    if (text || (literal.startsWith("X'") && literal.endsWith('\'') && literal.size() > 2)) {
        const QByteArray hex =
            text ? literal.mid(7, literal.size() - 17) : literal.mid(2, literal.size() - 3);
        const QByteArray bytes = QByteArray::fromHex(hex);
        if (bytes.toHex() != hex.toLower())
            return false;
        value = text ? Valore::Da_Testo(bytes) : Valore::Da_Byte(bytes);
        return true;
    }
    value = numberOrText(literal);
    return !value.E_Testo();
}

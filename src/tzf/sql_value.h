#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

/// Bytes that aren't a text.
struct Blob {
    QByteArray bytes;
    bool operator==(const Blob&) const = default;
};

/// A value exactly as a database stores it: NULL, whole number, number, UTF-8 text or bytes.
using SqlValue = std::variant<std::monostate, qint64, double, QByteArray, Blob>;

/// The value as a literal of SQL, from which `parseLiteral` gets it back exactly.
QByteArray toLiteral(const SqlValue& value);
/// Reads what `toLiteral` wrote; false for anything else.
bool parseLiteral(const QByteArray& literal, SqlValue& value);

/// A number written so that it reads back the same.
QByteArray numberText(double number);
/// The value as a database column of a numeric type takes it from a text: a whole number, a number, or the
/// text itself when it is neither.
SqlValue numberOrText(const QByteArray& text);

#pragma once

#include <QByteArray>

#include "core/catalogue_db/engine/valore.h"

/// The value as a literal of SQL, from which `parseLiteral` gets it back exactly.
QByteArray toLiteral(const Valore& value);
/// Reads what `toLiteral` wrote; false for anything else.
bool parseLiteral(const QByteArray& literal, Valore& value);

/// A number written so that it reads back the same.
QByteArray numberText(double number);
/// The value as a database column of a numeric type takes it from a text: a whole number, a number, or the
/// text itself when it is neither. (The engine's own reading of long numbers isn't exact.)
Valore numberOrText(const QByteArray& text);

#pragma once

#include <QString>

class Database;

/// The password of every database of the system.
inline const QString PASSWORD_DB = QStringLiteral("TZ_07_QR");
/// The connect string with it.
inline const QString CONNESSIONE_DB = QStringLiteral(";pwd=TZ_07_QR;");

/// The statements that put a password on a database: a salted digest in a table of its own. A lock on the
/// door, not encryption.
QStringList Istruzioni_Protezione(const QString& password);

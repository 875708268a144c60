#pragma once

#include <QString>
#include <QStringList>

class Database;

/// The password of every database of the system.
inline const QString PASSWORD_DB = QStringLiteral("TZ_07_QR");
/// The connect string with it.
inline const QString CONNESSIONE_DB = QStringLiteral(";pwd=TZ_07_QR;");
/// The table that holds a database's password. A database without it opens with any password or none.
inline const QString TABELLA_PROTEZIONE = QStringLiteral("Protezione");

/// The statements that put a password on a database: a salted digest in a table of its own. A lock on the
/// door, not encryption.
QStringList Istruzioni_Protezione(const QString& password);

/// Fails with `Errore_DB` unless the connect string (";pwd=...;", blanks around its parts don't count) holds
/// the database's password.
void Verifica_Password(const Database& database, const QString& connessione);

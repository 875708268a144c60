#pragma once

#include <QString>

struct sqlite3;

/// The catalogues' SQL as the engine reads it: "DELETE * FROM" loses its star, words that the engine reserves
/// and catalogues use as column names are quoted, "text" becomes a string. Strings and bracketed names are
/// never touched inside. A syntax error stays a syntax error.
QString Traduci_Dialetto(const QString& sql);

/// Gives a connection the dialect's LIKE: "*", "?", "#", "[a-z]", "[!a-z]", without regard to case in any
/// alphabet.
void Registra_Like(sqlite3* connessione);

/// The dialect's LIKE itself.
bool Corrisponde(QStringView testo, QStringView modello);

#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <stdexcept>
#include <vector>

#include "core/catalogue_db/engine/valore.h"

struct Connessione;
struct sqlite3_stmt;

/// A failure of the database engine, with a description for the user.
class Errore_DB : public std::runtime_error {
  public:
    explicit Errore_DB(const QString& descrizione)
        : std::runtime_error(descrizione.toStdString()), descrizione_(descrizione) {}
    const QString& Descrizione() const { return descrizione_; }

  private:
    QString descrizione_;
};

/// The rows of a statement, read forwards once. It belongs to whoever asked for it; closing it, or letting it
/// go, frees the statement.
class Recordset {
  public:
    Recordset() = default;  ///< not set: `E_Impostato` is false
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    bool E_Impostato() const { return statement_ != nullptr; }
    /// There is no current row (any more).
    bool EOF_() const { return fine_; }
    /// The next row. Fails when there is no current row.
    void MoveNext();
    /// Runs the statement again and stands on its first row.
    void MoveFirst();

    /// Number of fields of a row.
    int Count() const;
    /// Names of the fields, aliases included.
    QStringList Campi() const;
    /// Field by position from 0. A position that isn't there fails, and so does a recordset at its end.
    Valore Campo(int indice) const;
    /// Field by name, without regard to case; the first one of that name. A name that isn't there fails.
    Valore Campo(QStringView nome) const;
    /// Position of a field, without regard to case; -1 when there is none.
    int Posizione(QStringView nome) const;

    void Close();

  private:
    friend class Database;
    Recordset(std::shared_ptr<Connessione> connessione, sqlite3_stmt* statement);

    std::shared_ptr<Connessione> connessione_;
    sqlite3_stmt* statement_ = nullptr;
    QStringList campi_;
    bool fine_ = true;
};

/// A statement without rows that is run many times with other values, one for each "?" of its text.
class Statement {
  public:
    Statement(Statement&&) noexcept;
    Statement& operator=(Statement&&) = delete;
    ~Statement();

    /// Fails with `Errore_DB`, also when the number of values isn't that of the "?".
    void Esegui(const std::vector<Valore>& valori);

  private:
    friend class Database;
    Statement(std::shared_ptr<Connessione> connessione, sqlite3_stmt* statement);

    std::shared_ptr<Connessione> connessione_;
    sqlite3_stmt* statement_ = nullptr;
};

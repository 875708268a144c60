#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <stdexcept>

#include "core/catalogue_db/engine/valore.h"

struct sqlite3;
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
    void MoveNext();
    /// Runs the statement again and stands on its first row.
    void MoveFirst();

    /// Number of fields of a row.
    int Count() const;
    /// Names of the fields, aliases included.
    QStringList Campi() const;
    /// Field by position from 0. A position that isn't there fails.
    Valore Campo(int indice) const;
    /// Field by name, without regard to case. A name that isn't there fails.
    Valore Campo(QStringView nome) const;
    /// Position of a field, without regard to case; -1 when there is none.
    int Posizione(QStringView nome) const;

    void Close();

  private:
    friend class Database;
    Recordset(std::shared_ptr<sqlite3> connessione, sqlite3_stmt* statement);
    void Passo();

    std::shared_ptr<sqlite3> connessione_;
    sqlite3_stmt* statement_ = nullptr;
    bool fine_ = true;
};

/// One open database file. Statements are written in the catalogues' dialect (see dialetto.h); engine
/// failures are thrown as `Errore_DB`.
class Database {
  public:
    enum class Modo {
        Lettura,   ///< somebody else's file: defences on, nothing can change it
        Scrittura  ///< a file of our own
    };

    Database() = default;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    Database(Database&&) noexcept = default;
    Database& operator=(Database&&) noexcept = default;

    /// Opens a file with a connect string such as ";pwd=...;". Fails on a missing, damaged or foreign file
    /// and on a wrong password. An open database is replaced.
    void Apri(const QString& percorso, const QString& connessione, Modo modo = Modo::Lettura);
    void Chiudi();
    bool Aperto() const { return connessione_ != nullptr; }

    /// Runs a statement and stands on its first row.
    Recordset Apri_Recordset(const QString& sql) const;
    /// Runs a statement that gives no rows; returns the number of rows changed.
    int Esegui(const QString& sql) const;
    /// Called about every few milliseconds while a statement works, so that the window stays alive; empty for
    /// none.
    void Imposta_Respiro(std::function<void()> respiro);

  private:
    std::shared_ptr<sqlite3> connessione_;
    std::shared_ptr<std::function<void()>> respiro_;
};

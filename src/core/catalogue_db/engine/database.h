#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

#include "core/catalogue_db/engine/valore.h"

struct Connessione;
struct sqlite3_stmt;

/// The first bytes of a file of this engine.
inline const QByteArray INIZIO_DATABASE = QByteArrayLiteral("SQLite format 3\0");

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

/// A column of a table as it is declared.
struct Definizione_Colonna {
    QString Nome;
    QString Tipo;       ///< may be ""
    QString Confronto;  ///< how its texts compare: `NOCASE`, `BINARY`, ...

    bool operator==(const Definizione_Colonna&) const = default;
};

/// A name of a table or column for a statement, whatever letters it has.
QString Nome_SQL(QString nome);

/// One open database file. Statements are written in the catalogues' dialect (see dialetto.h); engine
/// failures are thrown as `Errore_DB`.
class Database {
  public:
    enum class Modo {
        Lettura,    ///< somebody else's file: defences on, nothing can change it
        Scrittura,  ///< a file of our own; it is made (for the user alone) when it isn't there
        Creazione   ///< made from scratch, in place of what is there; worth nothing before it is closed
    };

    Database() = default;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    Database(Database&&) noexcept = default;
    Database& operator=(Database&&) noexcept = default;

    /// Opens a file with a connect string such as ";pwd=...;". Fails on a missing, damaged or foreign file
    /// and on a wrong password; then no database is open. An open database is replaced.
    void Apri(const QString& percorso, const QString& connessione, Modo modo = Modo::Lettura);
    void Chiudi();
    bool Aperto() const { return connessione_ != nullptr; }

    /// Runs a statement and stands on its first row.
    Recordset Apri_Recordset(const QString& sql) const;
    /// Runs a statement that gives no rows; returns the number of rows changed.
    int Esegui(const QString& sql) const;
    /// A statement without rows, to be run many times.
    Statement Prepara(const QString& sql) const;

    /// Names of the tables, the engine's own left out, in the order in which they were made.
    QStringList Tabelle() const;
    /// Columns of a table in its order; none when there is no such table.
    std::vector<Definizione_Colonna> Colonne(const QString& tabella) const;
    /// All rows of a table in the order in which they stand.
    Recordset Leggi_Tabella(const QString& tabella) const;
    void Crea_Tabella(const QString& tabella, const std::vector<Definizione_Colonna>& colonne) const;
    /// A statement that adds a row to a table, with one value for each of its columns.
    Statement Inserimento(const QString& tabella) const;

    /// Called about every 20 ms while a statement works, so that the window stays alive; empty for none. What
    /// it runs can't use this database: that fails with `Errore_DB`.
    void Imposta_Respiro(std::function<void()> respiro);

  private:
    Connessione& Connessione_Aperta() const;

    std::shared_ptr<Connessione> connessione_;
    std::function<void()> respiro_;
};

/// What is written between its making and `Conferma` is there as a whole or not at all. Fails with
/// `Errore_DB` when another program goes on writing.
class Transazione {
  public:
    explicit Transazione(const Database& database);
    Transazione(const Transazione&) = delete;
    Transazione& operator=(const Transazione&) = delete;
    ~Transazione();
    void Conferma();

  private:
    const Database& database_;
    bool aperta_ = true;
};

#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "core/catalogue_db/engine/recordset.h"

/// The first bytes of a file of this engine.
inline const QByteArray INIZIO_DATABASE = QByteArrayLiteral("SQLite format 3\0");

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

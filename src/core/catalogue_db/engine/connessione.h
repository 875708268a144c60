#pragma once
// Internal to the engine: a SQLite connection with what its callbacks need.

#include <QElapsedTimer>
#include <QString>
#include <exception>
#include <functional>

#include "core/catalogue_db/engine/database.h"

struct sqlite3;
struct sqlite3_stmt;

struct Connessione {
    Connessione() = default;
    Connessione(const Connessione&) = delete;
    Connessione& operator=(const Connessione&) = delete;
    /// SQLite itself keeps the connection until its last statement is gone.
    ~Connessione();

    /// The statement of a text in the catalogues' dialect; exactly one statement, or it fails.
    sqlite3_stmt* Prepara(const QString& sql);
    /// Does a step; true when it stands on a row.
    bool Passo(sqlite3_stmt* statement);
    /// The engine's last failure in the user's words.
    Errore_DB Errore(int codice) const;
    /// Starts the calls of `respiro` and the limit on a step's time.
    void Sorveglia();

    sqlite3* db = nullptr;
    std::function<void()> respiro;

  private:
    static int Progresso(void* io);
    void Controlla_Libera() const;

    QElapsedTimer dal_respiro_, dal_passo_;
    bool passo_cronometrato_ = false;
    bool in_respiro_ = false;
    std::exception_ptr errore_respiro_;
};

/// Opens the file with the defences of its mode and checks it. Fails with `Errore_DB`. The password is not
/// looked at.
std::shared_ptr<Connessione> Connetti(const QString& percorso, Database::Modo modo);
/// From here on only reading statements are let through.
void Limita_A_Lettura(const Connessione& connessione);

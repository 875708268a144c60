#include "core/catalogue_db/engine/connessione.h"

#include <sqlite3.h>

#include <utility>

#include "core/catalogue_db/engine/dialetto.h"

namespace {
constexpr int OPERAZIONI_TRA_CONTROLLI = 1000;
constexpr qint64 MS_TRA_RESPIRI = 20;
/// No question to a catalogue takes this long; one that does comes from a file made to hang its reader.
constexpr qint64 MS_MASSIMI_PASSO = 60'000;

bool Solo_Blanchi(const char* testo, const char* fine) {
    for (; testo < fine; ++testo)
        if (*testo != ' ' && *testo != ';' && *testo != '\t' && *testo != '\r' && *testo != '\n')
            return false;
    return true;
}
}  // namespace

Connessione::~Connessione() {
    sqlite3_close_v2(db);
}

sqlite3_stmt* Connessione::Prepara(const QString& sql) {
    Controlla_Libera();
    const QByteArray testo = Traduci_Dialetto(sql).toUtf8();
    sqlite3_stmt* statement = nullptr;
    const char* resto = nullptr;
    const int codice =
        sqlite3_prepare_v2(db, testo.constData(), static_cast<int>(testo.size()) + 1, &statement, &resto);
    if (codice != SQLITE_OK)
        throw Errore(codice);
    if (statement == nullptr)
        throw Errore_DB(QStringLiteral("Invalid SQL statement."));
    if (!Solo_Blanchi(resto, testo.constData() + testo.size())) {
        sqlite3_finalize(statement);
        throw Errore_DB(QStringLiteral("Characters found after the end of the SQL statement."));
    }
    return statement;
}

bool Connessione::Passo(sqlite3_stmt* statement) {
    Controlla_Libera();
    passo_cronometrato_ = false;
    const int codice = sqlite3_step(statement);
    if (errore_respiro_)
        std::rethrow_exception(std::exchange(errore_respiro_, nullptr));
    if (codice == SQLITE_ROW)
        return true;
    if (codice == SQLITE_DONE)
        return false;
    throw Errore(codice);
}

void Connessione::Controlla_Libera() const {
    // The engine can't be entered again from its own callback, and what runs in `respiro` may try.
    if (in_respiro_)
        throw Errore_DB(QStringLiteral("The database is busy."));
}

void Connessione::Sorveglia() {
    dal_respiro_.start();
    sqlite3_progress_handler(db, OPERAZIONI_TRA_CONTROLLI, &Connessione::Progresso, this);
}

int Connessione::Progresso(void* io) {
    auto& questa = *static_cast<Connessione*>(io);
    if (!questa.passo_cronometrato_) {
        questa.dal_passo_.start();
        questa.passo_cronometrato_ = true;
    } else if (questa.dal_passo_.hasExpired(MS_MASSIMI_PASSO)) {
        return 1;
    }
    if (questa.respiro && !questa.in_respiro_ && questa.dal_respiro_.hasExpired(MS_TRA_RESPIRI)) {
        questa.in_respiro_ = true;
        try {
            questa.respiro();
        } catch (...) {  // it can't pass through the engine: the step ends, and then it goes on its way
            questa.errore_respiro_ = std::current_exception();
        }
        questa.in_respiro_ = false;
        questa.dal_respiro_.start();
        if (questa.errore_respiro_)
            return 1;
    }
    return 0;
}

Errore_DB Connessione::Errore(int codice) const {
    switch (codice & 0xff) {
        case SQLITE_NOTADB:
            return Errore_DB(QStringLiteral("The file isn't a catalogue database."));
        case SQLITE_CORRUPT:
        case SQLITE_FORMAT:
            return Errore_DB(QStringLiteral("The file is damaged."));
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
            return Errore_DB(QStringLiteral("The file can't be opened."));
        case SQLITE_IOERR:
            return Errore_DB(QStringLiteral("The file can't be read or written."));
        case SQLITE_FULL:
            return Errore_DB(QStringLiteral("The disk is full."));
        case SQLITE_READONLY:
            return Errore_DB(QStringLiteral("The database is read-only."));
        case SQLITE_INTERRUPT:
            return Errore_DB(QStringLiteral("The query takes too long."));
        case SQLITE_NOMEM:
            return Errore_DB(QStringLiteral("Out of memory."));
        default:
            return Errore_DB(QString::fromUtf8(sqlite3_errmsg(db)));
    }
}

// Opening a file that somebody else may have made.

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <array>

#include "core/catalogue_db/engine/connessione.h"
#include "core/catalogue_db/engine/dialetto.h"

namespace {
constexpr qint64 LUNGHEZZA_TESTATA = 100;
/// How long a file that another program writes at the moment is waited for.
constexpr int MS_ATTESA = 3000;

/// What the header says of itself must agree with the file: so a truncated one is found without reading it.
void Controlla_Testata(const QByteArray& testata, qint64 dimensione) {
    const Errore_DB danneggiato(QStringLiteral("The file is damaged."));
    if (testata.size() < LUNGHEZZA_TESTATA)
        throw danneggiato;
    const auto* byte = reinterpret_cast<const uchar*>(testata.constData());
    const quint32 scritta = qFromBigEndian<quint16>(byte + 16);
    const quint32 pagina = scritta == 1 ? 65536 : scritta;
    const bool potenza_di_due = pagina >= 512 && (pagina & (pagina - 1)) == 0;
    const quint32 codifica = qFromBigEndian<quint32>(byte + 56);
    if (!potenza_di_due || byte[20] > 32 || codifica > 3)
        throw danneggiato;
    // Write-ahead files would leave others beside the catalogue even when they are only read.
    if (byte[18] != 1 || byte[19] != 1)
        throw Errore_DB(QStringLiteral("The database is in a mode that can't be read here."));
    const bool pagine_valide = qFromBigEndian<quint32>(byte + 24) == qFromBigEndian<quint32>(byte + 92);
    const qint64 pagine = pagine_valide ? qFromBigEndian<quint32>(byte + 28) : 0;
    if (pagine * pagina > dimensione || dimensione < pagina)
        throw danneggiato;
}

void Imposta_Difese(sqlite3* db) {
    struct Scelta {
        int opzione, valore;
    };
    for (const auto& [opzione, valore] : {Scelta{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                          {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
                                          {SQLITE_DBCONFIG_WRITABLE_SCHEMA, 0},
                                          {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                          {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                          {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
                                          {SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0},
                                          {SQLITE_DBCONFIG_DQS_DML, 0},
                                          {SQLITE_DBCONFIG_DQS_DDL, 0}})
        sqlite3_db_config(db, opzione, valore, nullptr);
    for (const auto& [limite, valore] : {Scelta{SQLITE_LIMIT_ATTACHED, 0},
                                         {SQLITE_LIMIT_LENGTH, 16 << 20},
                                         {SQLITE_LIMIT_SQL_LENGTH, 1 << 20},
                                         {SQLITE_LIMIT_COLUMN, 1000},
                                         {SQLITE_LIMIT_EXPR_DEPTH, 1000},
                                         {SQLITE_LIMIT_COMPOUND_SELECT, 500},
                                         {SQLITE_LIMIT_VDBE_OP, 1'000'000},
                                         {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 1000},
                                         {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
                                         {SQLITE_LIMIT_WORKER_THREADS, 0}})
        sqlite3_limit(db, limite, valore);
}

void Esegui(Connessione& connessione, const char* sql) {
    const int codice = sqlite3_exec(connessione.db, sql, nullptr, nullptr, nullptr);
    if (codice != SQLITE_OK)
        throw connessione.Errore(codice);
}

bool Ha_Righe(Connessione& connessione, const char* sql) {
    sqlite3_stmt* statement = connessione.Prepara(QString::fromLatin1(sql));
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> custode(statement, &sqlite3_finalize);
    return connessione.Passo(statement);
}

/// A catalogue is tables and plain indexes. Anything that computes something on its own has no place in it.
void Controlla_Schema(Connessione& connessione) {
    for (const char* sql : {"SELECT 1 FROM sqlite_schema WHERE coalesce(type, '') NOT IN ('table', 'index') "
                            "OR typeof(rootpage) <> 'integer' OR rootpage < 1;",
                            "SELECT 1 FROM sqlite_schema AS s, pragma_table_xinfo(s.name) AS c "
                            "WHERE s.type = 'table' AND c.hidden <> 0;",
                            "SELECT 1 FROM sqlite_schema AS s, pragma_index_list(s.name) AS i "
                            "WHERE s.type = 'table' AND i.partial <> 0;",
                            "SELECT 1 FROM sqlite_schema AS s, pragma_index_xinfo(s.name) AS c "
                            "WHERE s.type = 'index' AND c.cid = -2;"})
        if (Ha_Righe(connessione, sql))
            throw Errore_DB(QStringLiteral("The database holds more than tables and plain indexes."));
}

/// What a reading statement may do: read, and call functions whose cost and result are bounded. Texts of the
/// catalogue end up inside statements, so this is a defence too.
int Autorizza_Lettura(void*, int azione, const char* primo, const char* secondo, const char*, const char*) {
    static constexpr std::array FUNZIONI = {"like", "count", "min",    "max",    "sum",    "total",
                                            "avg",  "abs",   "round",  "length", "lower",  "upper",
                                            "trim", "ltrim", "rtrim",  "substr", "typeof", "coalesce",
                                            "iif",  "instr", "ifnull", "nullif"};
    static constexpr std::array PRAGMA = {"table_info", "index_list", "index_info"};
    const auto una_di = [](const char* nome, const auto& nomi) {
        for (const char* uno : nomi)
            if (nome != nullptr && sqlite3_stricmp(nome, uno) == 0)
                return SQLITE_OK;
        return SQLITE_DENY;
    };
    switch (azione) {
        case SQLITE_SELECT:
        case SQLITE_READ:
            return SQLITE_OK;
        case SQLITE_FUNCTION:
            return una_di(secondo, FUNZIONI);
        case SQLITE_PRAGMA:
            return una_di(primo, PRAGMA);
        default:
            return SQLITE_DENY;
    }
}

/// What can be told of a file without opening it as a database.
void Controlla_File(const QString& percorso) {
    const QFileInfo info(percorso);
    const Errore_DB estraneo(QStringLiteral("The file isn't a catalogue database."));
    if (!info.exists())
        throw Errore_DB(QStringLiteral("The file doesn't exist."));
    if (!info.isFile())  // a pipe would never answer
        throw estraneo;
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        throw Errore_DB(QStringLiteral("The file can't be opened."));
    const QByteArray testata = file.read(LUNGHEZZA_TESTATA);
    if (!testata.startsWith(INIZIO_DATABASE))
        throw estraneo;
    Controlla_Testata(testata, file.size());
}

/// A new file of our own belongs to the user alone.
void Crea_File(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        throw Errore_DB(QStringLiteral("The file can't be created."));
}
}  // namespace

std::shared_ptr<Connessione> Connetti(const QString& percorso, Database::Modo modo) {
    const bool lettura = modo == Database::Modo::Lettura, creazione = modo == Database::Modo::Creazione;
    const QFileInfo file(percorso);
    if (creazione)
        QFile::remove(percorso);
    if (creazione || (!lettura && !file.exists()))
        Crea_File(percorso);
    const bool nuovo = !lettura && QFileInfo(percorso).isFile() && QFileInfo(percorso).size() == 0;
    if (!nuovo)
        Controlla_File(percorso);

    auto connessione = std::make_shared<Connessione>();
    // An absolute path: nothing in it can be read as an address or a memory database.
    const QByteArray nome = file.absoluteFilePath().toUtf8();
    const int apertura = sqlite3_open_v2(
        nome.constData(), &connessione->db,
        (lettura ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX, nullptr);
    if (apertura != SQLITE_OK)
        throw connessione->db == nullptr ? Errore_DB(QStringLiteral("The file can't be opened."))
                                         : connessione->Errore(apertura);
    sqlite3_busy_timeout(connessione->db, MS_ATTESA);
    Imposta_Difese(connessione->db);
    Registra_Like(connessione->db);
    connessione->Sorveglia();
    Esegui(*connessione, "PRAGMA mmap_size=0; PRAGMA cell_size_check=ON; PRAGMA cache_size=-32000;");
    if (lettura)
        Esegui(*connessione, "PRAGMA query_only=ON;");
    if (creazione)
        Esegui(*connessione,
               "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;");
    if (!nuovo)
        Controlla_Schema(*connessione);
    return connessione;
}

void Limita_A_Lettura(const Connessione& connessione) {
    sqlite3_set_authorizer(connessione.db, &Autorizza_Lettura, nullptr);
}

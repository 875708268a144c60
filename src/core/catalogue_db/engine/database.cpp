#include "core/catalogue_db/engine/database.h"

#include <sqlite3.h>

#include "core/catalogue_db/engine/connessione.h"
#include "core/catalogue_db/engine/protezione.h"

QString Nome_SQL(QString nome) {
    return u'`' + nome.replace(u'`', QStringLiteral("``")) + u'`';
}

void Database::Apri(const QString& percorso, const QString& connessione, Modo modo) {
    Chiudi();
    Database nuovo;
    nuovo.connessione_ = Connetti(percorso, modo);
    Verifica_Password(nuovo, connessione);
    if (modo == Modo::Lettura)
        Limita_A_Lettura(*nuovo.connessione_);
    connessione_ = std::move(nuovo.connessione_);
    connessione_->respiro = respiro_;
}

void Database::Chiudi() {
    connessione_.reset();
}

Connessione& Database::Connessione_Aperta() const {
    if (!connessione_)
        throw Errore_DB(QStringLiteral("No database is open."));
    return *connessione_;
}

Recordset Database::Apri_Recordset(const QString& sql) const {
    Recordset righe(connessione_, Connessione_Aperta().Prepara(sql));
    if (righe.Count() == 0)
        throw Errore_DB(QStringLiteral("The statement gives no rows."));
    righe.MoveFirst();
    return righe;
}

int Database::Esegui(const QString& sql) const {
    Statement statement = Prepara(sql);
    const auto prima = sqlite3_total_changes64(connessione_->db);
    statement.Esegui({});
    return static_cast<int>(sqlite3_total_changes64(connessione_->db) - prima);
}

Statement Database::Prepara(const QString& sql) const {
    return Statement(connessione_, Connessione_Aperta().Prepara(sql));
}

QStringList Database::Tabelle() const {
    QStringList nomi;
    for (auto righe = Apri_Recordset(QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table' "
                                                    "AND NOT name LIKE 'sqlite_*' ORDER BY rowid;"));
         !righe.EOF_(); righe.MoveNext())
        nomi += righe.Campo(0).Testo();
    return nomi;
}

std::vector<Definizione_Colonna> Database::Colonne(const QString& tabella) const {
    std::vector<Definizione_Colonna> colonne;
    for (auto righe = Apri_Recordset(QStringLiteral("PRAGMA table_info(%1);").arg(Nome_SQL(tabella)));
         !righe.EOF_(); righe.MoveNext()) {
        const QString nome = righe.Campo(u"name").Testo();
        const char* confronto = nullptr;
        sqlite3_table_column_metadata(connessione_->db, "main", tabella.toUtf8().constData(),
                                      nome.toUtf8().constData(), nullptr, &confronto, nullptr, nullptr,
                                      nullptr);
        colonne.push_back({nome, righe.Campo(u"type").Testo(), QString::fromUtf8(confronto).toUpper()});
    }
    return colonne;
}

Recordset Database::Leggi_Tabella(const QString& tabella) const {
    const QString sql = QStringLiteral("SELECT * FROM ") + Nome_SQL(tabella);
    // A column may bear one of the names that stand for the row's number.
    QStringList numeri{QStringLiteral("rowid"), QStringLiteral("oid"), QStringLiteral("_rowid_")};
    for (const Definizione_Colonna& colonna : Colonne(tabella))
        numeri.removeAll(colonna.Nome.toLower());
    try {
        if (!numeri.isEmpty())
            return Apri_Recordset(sql + QStringLiteral(" ORDER BY ") + numeri.first());
    } catch (const Errore_DB&) {
        // a table without such a number stands in the order of its key
    }
    return Apri_Recordset(sql);
}

void Database::Crea_Tabella(const QString& tabella, const std::vector<Definizione_Colonna>& colonne) const {
    QStringList definizioni;
    for (const Definizione_Colonna& colonna : colonne) {
        const bool binario = colonna.Confronto.isEmpty() || colonna.Confronto == u"BINARY";
        definizioni += Nome_SQL(colonna.Nome) + u' ' + colonna.Tipo +
                       (binario ? QString() : QStringLiteral(" COLLATE ") + colonna.Confronto);
    }
    Esegui(QStringLiteral("CREATE TABLE %1 (%2)").arg(Nome_SQL(tabella), definizioni.join(u',')));
}

Statement Database::Inserimento(const QString& tabella) const {
    QStringList valori;
    valori.fill(QStringLiteral("?"), static_cast<qsizetype>(Colonne(tabella).size()));
    return Prepara(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(Nome_SQL(tabella), valori.join(u',')));
}

void Database::Imposta_Respiro(std::function<void()> respiro) {
    respiro_ = std::move(respiro);
    if (connessione_)
        connessione_->respiro = respiro_;
}

Transazione::Transazione(const Database& database) : database_(database) {
    database_.Esegui(QStringLiteral("BEGIN IMMEDIATE"));
}

void Transazione::Conferma() {
    database_.Esegui(QStringLiteral("COMMIT"));
    aperta_ = false;
}

Transazione::~Transazione() {
    if (!aperta_)
        return;
    try {
        database_.Esegui(QStringLiteral("ROLLBACK"));
    } catch (const Errore_DB&) {
        // the engine has given it up already, or does when the file is closed
    }
}

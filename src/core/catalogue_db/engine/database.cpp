#include "core/catalogue_db/engine/database.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "core/catalogue_db/engine/connessione.h"
#include "core/catalogue_db/engine/protezione.h"

namespace {
const QByteArray INIZIO_SQLITE = QByteArrayLiteral("SQLite format 3\0");

/// The first bytes choose the reader: other engines' files would be told apart here.
std::shared_ptr<Connessione> Scegli_Lettore(const QString& percorso, Database::Modo modo) {
    const QFileInfo info(percorso);
    if (modo == Database::Modo::Scrittura && (!info.exists() || (info.isFile() && info.size() == 0)))
        return Connetti_SQLite(percorso, modo);
    if (!info.exists())
        throw Errore_DB(QStringLiteral("The file doesn't exist."));
    QFile file(percorso);
    if (!info.isFile())
        throw Errore_DB(QStringLiteral("The file isn't a catalogue database."));
    if (!file.open(QIODevice::ReadOnly))
        throw Errore_DB(QStringLiteral("The file can't be opened."));
    if (file.read(INIZIO_SQLITE.size()) == INIZIO_SQLITE)
        return Connetti_SQLite(percorso, modo);
    throw Errore_DB(QStringLiteral("The file isn't a catalogue database."));
}
}  // namespace

void Database::Apri(const QString& percorso, const QString& connessione, Modo modo) {
    Chiudi();
    Database nuovo;
    nuovo.connessione_ = Scegli_Lettore(percorso, modo);
    Verifica_Password(nuovo, connessione);
    if (modo == Modo::Lettura)
        Limita_A_Lettura(nuovo.connessione_->db);
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
    for (auto righe = Apri_Recordset(QStringLiteral("PRAGMA table_info([%1]);").arg(tabella)); !righe.EOF_();
         righe.MoveNext())
        colonne.push_back({righe.Campo(u"name").Testo(), righe.Campo(u"type").Testo()});
    return colonne;
}

void Database::Imposta_Respiro(std::function<void()> respiro) {
    respiro_ = std::move(respiro);
    if (connessione_)
        connessione_->respiro = respiro_;
}

#include "tzf/package/database_reader.h"

#include "core/catalogue_db/engine/protezione.h"
#include "core/conversione/conversione.h"
#include "tzf/tool_error.h"

namespace {
constexpr const char* READING = "the database can't be read: ";
}

bool TableReader::next() {
    return onDatabase(READING, [this] {
        if (row_++ > 0)
            rows_.MoveNext();
        return !rows_.EOF_();
    });
}

DatabaseReader::DatabaseReader(const QString& path) {
    const auto open = [&] {
        Converti_Database(path);
        database_.Apri(path, CONNESSIONE_DB);
        tables_ = database_.Tabelle();
        protected_ = tables_.removeIf([](const QString& table) {
            return table.compare(TABELLA_PROTEZIONE, Qt::CaseInsensitive) == 0;
        }) > 0;
        tables_.sort();
    };
    onDatabase("the database can't be opened: ", open);
}

std::vector<Definizione_Colonna> DatabaseReader::columns(const QString& table) const {
    return onDatabase(READING, [&] { return database_.Colonne(table); });
}

TableReader DatabaseReader::read(const QString& table) const {
    return onDatabase(READING, [&] { return TableReader(database_.Leggi_Tabella(table)); });
}

qint64 DatabaseReader::rows(const QString& table) const {
    const auto count = [&] {
        return database_.Apri_Recordset(QStringLiteral("SELECT count(*) FROM ") + Nome_SQL(table))
            .Campo(0)
            .Intero();
    };
    return hasTable(table) ? onDatabase(READING, count) : 0;
}

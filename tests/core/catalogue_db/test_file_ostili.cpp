// Files that aren't what they say, or that want to do more than hold data.

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "core/catalogue_db/engine/database.h"

namespace {

/// "" when the file opens and all its rows can be read, else the reason.
std::string Leggi_Tutto(const QString& percorso) {
    try {
        Database db;
        db.Apri(percorso, {});
        for (const QString& tabella : db.Tabelle())
            for (auto righe = db.Apri_Recordset("SELECT * FROM [" + tabella + "] ORDER BY 1"); !righe.EOF_();
                 righe.MoveNext())
                for (int i = 0; i < righe.Count(); ++i)
                    righe.Campo(i).Testo();
    } catch (const Errore_DB& errore) {
        return errore.Descrizione().toStdString();
    }
    return {};
}

class File_Ostili : public testing::Test {
  protected:
    /// A file made by the bare engine, with whatever it lets in.
    QString Grezzo(const std::vector<std::string>& istruzioni) {
        const QString percorso = cartella_.filePath(QString("grezzo%1.db").arg(++numero_));
        sqlite3* db = nullptr;
        EXPECT_EQ(sqlite3_open(percorso.toUtf8().constData(), &db), SQLITE_OK);
        sqlite3_exec(db, "PRAGMA synchronous=OFF", nullptr, nullptr, nullptr);
        for (const auto& sql : istruzioni)
            EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
                << sql << ": " << sqlite3_errmsg(db);
        sqlite3_close(db);
        return percorso;
    }

    QByteArray Buono() {
        QFile file(Grezzo({"CREATE TABLE T (a TEXT, b TEXT)", "CREATE INDEX i ON T (a)",
                           "WITH RECURSIVE c(x) AS (VALUES(1) UNION ALL SELECT x+1 FROM c WHERE x < 500) "
                           "INSERT INTO T SELECT 'riga ' || x, hex(randomblob(40)) FROM c"}));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString Scritto(const QByteArray& contenuto) {
        QFile file(cartella_.filePath("scritto.db"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contenuto);
        return file.fileName();
    }

    QTemporaryDir cartella_;
    int numero_ = 0;
};

TEST_F(File_Ostili, CioCheNonEUnCatalogo) {
    const std::string estraneo = "The file isn't a catalogue database.";
    for (const char* percorso : {"manca.db", "", ":memory:"})
        EXPECT_EQ(Leggi_Tutto(percorso), "The file doesn't exist.") << percorso;
    EXPECT_EQ(Leggi_Tutto(cartella_.path()), estraneo);
    for (const QByteArray& contenuto : {QByteArray(), QByteArray("SQLite"), QByteArray(100'000, 'x')})
        EXPECT_EQ(Leggi_Tutto(Scritto(contenuto)), estraneo) << contenuto.left(20).constData();
    const QString coda = cartella_.filePath("coda");
    ASSERT_EQ(mkfifo(coda.toUtf8().constData(), 0600), 0);
    EXPECT_EQ(Leggi_Tutto(coda), estraneo) << "a pipe would never answer";
}

TEST_F(File_Ostili, FileTroncatiOGuastiNellaTestata) {
    const QByteArray buono = Buono();
    const std::string danneggiato = "The file is damaged.";
    ASSERT_EQ(Leggi_Tutto(Scritto(buono)), "");
    for (const qsizetype lunghezza : {qsizetype{99}, qsizetype{100}, buono.size() - 1})
        EXPECT_EQ(Leggi_Tutto(Scritto(buono.left(lunghezza))), danneggiato) << lunghezza;
    EXPECT_EQ(Leggi_Tutto(Scritto(buono.left(100) + QByteArray(buono.size() - 100, '\xff'))), danneggiato);
    for (const int byte : {16, 17, 20, 56}) {
        QByteArray guasto = buono;
        guasto[byte] = '\x7b';
        EXPECT_EQ(Leggi_Tutto(Scritto(guasto)), danneggiato) << byte;
    }
}

TEST_F(File_Ostili, GuastiSparsiSonoErroriONienteMaiAltro) {
    const QByteArray buono = Buono();
    int errori = 0;
    std::mt19937 caso(7);
    for (int prova = 0; prova < 200; ++prova) {
        QByteArray guasto = buono;
        for (int i = 0; i < 20; ++i)
            guasto[100 + static_cast<qsizetype>(caso()) % (guasto.size() - 100)] = static_cast<char>(caso());
        errori += Leggi_Tutto(Scritto(guasto)).empty() ? 0 : 1;
    }
    EXPECT_GT(errori, 20) << "damage met while reading is told";
    EXPECT_LT(errori, 200) << "a changed letter of a text is no damage";
}

TEST_F(File_Ostili, SoloTabelleEIndici) {
    const std::string di_piu = "The database holds more than tables and plain indexes.";
    const std::string tabella = "CREATE TABLE T (a TEXT, b TEXT)";
    for (const std::string altro :
         {"CREATE VIEW V AS SELECT * FROM T", "CREATE TRIGGER G AFTER INSERT ON T BEGIN DELETE FROM T; END",
          "CREATE VIRTUAL TABLE F USING fts5(x)", "CREATE TABLE U (a, b AS (upper(a)))",
          "CREATE INDEX i ON T (lower(a))", "CREATE INDEX i ON T (a) WHERE b LIKE 'x'"})
        EXPECT_EQ(Leggi_Tutto(Grezzo({tabella, altro})), di_piu) << altro;
    for (const std::string modulo : {"rtree(id, a, b)", "fts5(x)"})
        EXPECT_EQ(Leggi_Tutto(
                      Grezzo({tabella, "CREATE VIRTUAL TABLE F USING " + modulo, "PRAGMA writable_schema=ON",
                              "UPDATE sqlite_schema SET rootpage=2 WHERE name='F'"})),
                  di_piu)
            << modulo;
    EXPECT_EQ(
        Leggi_Tutto(Grezzo({tabella, "CREATE TABLE U (a TEXT PRIMARY KEY, n INTEGER UNIQUE) WITHOUT ROWID",
                            "CREATE INDEX i ON T (a COLLATE NOCASE, b DESC)", "ANALYZE"})),
        "");
    EXPECT_EQ(Leggi_Tutto(Grezzo({tabella, "PRAGMA writable_schema=ON",
                                  "UPDATE sqlite_schema SET sql='CREATE TABLE T (a, a, a'"})),
              "The file is damaged.");
    EXPECT_NE(Leggi_Tutto(Grezzo({"PRAGMA journal_mode=WAL", tabella})), "");
}

}  // namespace

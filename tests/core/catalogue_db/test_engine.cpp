#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "core/catalogue_db/engine/database.h"
#include "core/catalogue_db/engine/protezione.h"

namespace {

using testing::ElementsAre;

std::string Errore_Di(const std::function<void()>& lavoro) {
    try {
        lavoro();
    } catch (const Errore_DB& errore) {
        return errore.Descrizione().toStdString();
    }
    return {};
}

class Motore : public testing::Test {
  protected:
    Motore() {
        db_.Apri(percorso_, {}, Database::Modo::Scrittura);
        db_.Esegui("PRAGMA synchronous=OFF");
    }

    void Numeri() {
        db_.Esegui("CREATE TABLE T (n INTEGER)");
        db_.Esegui("INSERT INTO T VALUES (1), (2)");
    }

    QTemporaryDir cartella_;
    QString percorso_ = cartella_.filePath("prova.db");
    Database db_;
};

TEST_F(Motore, UnFileNuovoESoloDellUtente) {
    db_.Esegui("CREATE TABLE T (a)");
    EXPECT_FALSE(QFileInfo(percorso_).permissions().testAnyFlags(
        QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther | QFile::ExeOwner));
}

TEST_F(Motore, LeRigheSiLeggonoInAvantiEDaCapo) {
    Numeri();
    auto righe = db_.Apri_Recordset("SELECT n FROM T ORDER BY n");
    EXPECT_EQ(righe.Campo(0).Intero(), 1);
    righe.MoveNext();
    righe.MoveNext();
    EXPECT_TRUE(righe.EOF_());
    EXPECT_EQ(Errore_Di([&] { righe.MoveNext(); }), "No current record.");
    EXPECT_EQ(Errore_Di([&] { righe.Campo(0); }), "No current record.");
    db_.Esegui("INSERT INTO T VALUES (0)");
    righe.MoveFirst();
    EXPECT_EQ(righe.Campo(0).Intero(), 0) << "the statement is run again";
}

TEST_F(Motore, INomiDeiCampi) {
    db_.Esegui("CREATE TABLE Prodotti (Key_Prodotto TEXT, Codice TEXT)");
    db_.Esegui("INSERT INTO Prodotti VALUES ('P_1', 'c')");
    EXPECT_THAT(
        db_.Apri_Recordset("SELECT Prodotti.Key_Prodotto, Codice as [Il codice] FROM Prodotti").Campi(),
        ElementsAre("Key_Prodotto", "Il codice"));
    const Recordset riga = db_.Apri_Recordset("SELECT *,'-#-' as Key_Prodotto,NULL as Vuoto FROM Prodotti");
    EXPECT_EQ(riga.Campo(u"KEY_PRODOTTO").Testo(), "P_1") << "the first of two";
    EXPECT_TRUE(riga.Campo(u"vuoto").E_Nullo());
    EXPECT_EQ(Errore_Di([&] { riga.Campo(u"manca"); }), "Item not found in this collection: manca");
    EXPECT_NE(Errore_Di([&] { riga.Campo(4); }), "");
}

TEST_F(Motore, EseguiContaLeRighe) {
    Numeri();
    Statement inserisci = db_.Prepara("INSERT INTO T (n) VALUES (?)");
    inserisci.Esegui({Valore(4.5)});
    EXPECT_THROW(inserisci.Esegui({}), Errore_DB);
    EXPECT_EQ(db_.Esegui("DELETE * FROM T"), 3);
    EXPECT_THAT(db_.Tabelle(), ElementsAre("T"));
    EXPECT_TRUE(db_.Colonne("Manca").empty());
}

TEST_F(Motore, ChiusoNonRisponde) {
    Numeri();
    auto righe = db_.Apri_Recordset("SELECT n FROM T ORDER BY n");
    db_.Chiudi();
    EXPECT_FALSE(db_.Aperto());
    EXPECT_EQ(Errore_Di([&] { db_.Esegui("SELECT 1"); }), "No database is open.");
    righe.MoveNext();
    EXPECT_EQ(righe.Campo(0).Intero(), 2) << "rows handed out before live on";
}

TEST_F(Motore, InLetturaNullaCambia) {
    Numeri();
    db_.Apri(percorso_, {});
    for (const char* sql :
         {"INSERT INTO T VALUES (1)", "DELETE * FROM T", "CREATE TABLE U (a)", "DROP TABLE T",
          "CREATE TEMP TABLE U (a)", "ATTACH 'altro.db' AS altro", "PRAGMA query_only=OFF",
          "PRAGMA writable_schema=ON", "PRAGMA journal_mode=WAL", "VACUUM INTO 'copia.db'", "BEGIN",
          "SELECT load_extension('x')", "SELECT randomblob(100000000)", "SELECT printf('%1000000d', 1)",
          "WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) SELECT count(*) FROM c"})
        EXPECT_NE(Errore_Di([&] { db_.Esegui(sql); }), "") << sql;
    EXPECT_EQ(db_.Apri_Recordset("SELECT count(*) FROM T").Campo(0).Intero(), 2);
}

TEST_F(Motore, ApreSoloConLaPassword) {
    db_.Esegui("CREATE TABLE T (n INTEGER)");
    for (const QString& sql : Istruzioni_Protezione(PASSWORD_DB))
        db_.Esegui(sql);
    for (const auto& [connessione, apre] : {std::pair(";pwd=TZ_07_QR;", true),
                                            {" ; PWD = TZ_07_QR ", true},
                                            {"pwd=TZ_07_QR", true},
                                            {"", false},
                                            {";pwd=tz_07_qr;", false},
                                            {"TZ_07_QR", false}})
        for (const auto modo : {Database::Modo::Lettura, Database::Modo::Scrittura}) {
            EXPECT_EQ(Errore_Di([&] { db_.Apri(percorso_, connessione, modo); }),
                      apre ? "" : "Not a valid password.")
                << connessione;
            EXPECT_EQ(db_.Aperto(), apre) << connessione;
        }
}

TEST_F(Motore, ChiApreVaPerLaTabellaDellaProtezione) {
    Numeri();
    EXPECT_EQ(Errore_Di([&] { db_.Apri(percorso_, ";pwd=x;", Database::Modo::Scrittura); }), "")
        << "no table";
    EXPECT_NE(Istruzioni_Protezione("a"), Istruzioni_Protezione("a")) << "each has a salt of its own";
    db_.Esegui("CREATE TABLE Protezione (Sale TEXT, Impronta TEXT)");
    EXPECT_EQ(Errore_Di([&] { db_.Apri(percorso_, {}); }), "Not a valid password.") << "an empty table";
    db_.Apri(cartella_.filePath("b.db"), {}, Database::Modo::Scrittura);
    db_.Esegui("CREATE TABLE protezione (x)");
    EXPECT_NE(Errore_Di([&] { db_.Apri(cartella_.filePath("b.db"), {}); }), "") << "a table of another form";
}

TEST_F(Motore, IValoriTornanoComErano) {
    const std::vector<Valore> valori{Valore(),
                                     Valore(qint64{-9223372036854775807}),
                                     Valore(0.1),
                                     Valore(QString()),
                                     Valore(QString("l'\"ò\"\n") + QChar(0) + 'x'),
                                     Valore(QString("\uFFFD")),
                                     Valore::Da_Testo("\xEF\xBB\xBFmark"),
                                     Valore::Da_Testo("not \xC3\x28 utf"),
                                     Valore::Da_Byte({}),
                                     Valore::Da_Byte("text")};
    db_.Crea_Tabella("T", {{"V", "", ""}});
    Statement aggiungi = db_.Inserimento("T");
    for (const Valore& valore : valori)
        aggiungi.Esegui({valore});
    std::vector<Valore> letti;
    for (auto righe = db_.Leggi_Tabella("T"); !righe.EOF_(); righe.MoveNext())
        letti.push_back(righe.Campo(0));
    EXPECT_EQ(letti, valori);
    EXPECT_TRUE(letti[7].E_Testo() && letti[9].E_Byte() && !letti[9].E_Testo());
    EXPECT_EQ(letti[7].Byte(), "not \xC3\x28 utf");
    EXPECT_EQ(letti[9].Testo() + letti[6].Testo(), "textmark");
}

TEST_F(Motore, TabelleDiOgniNomeETipo) {
    const std::vector<Definizione_Colonna> colonne{
        {"a`b]\"c'", "TEXT", "NOCASE"}, {"Index", "DECIMAL(10, 2)", "BINARY"}, {"rowid", "", "RTRIM"}};
    db_.Crea_Tabella("x`y]z", colonne);
    EXPECT_EQ(db_.Colonne("x`y]z"), colonne);
    db_.Inserimento("x`y]z").Esegui({Valore(QString("A")), Valore(2.5), Valore()});
    EXPECT_EQ(db_.Leggi_Tabella("x`y]z").Campo(1).Numero(), 2.5);
}

TEST_F(Motore, LeRigheStannoComeFuronoScritte) {
    db_.Esegui("CREATE TABLE T (a TEXT)");
    db_.Esegui("CREATE INDEX i ON T (a)");
    db_.Esegui("CREATE TABLE K (a TEXT PRIMARY KEY) WITHOUT ROWID");
    for (const char* tabella : {"T", "K"}) {
        db_.Esegui(QString("INSERT INTO %1 VALUES ('z'), ('b'), ('c')").arg(tabella));
        QString letti;
        for (auto righe = db_.Leggi_Tabella(tabella); !righe.EOF_(); righe.MoveNext())
            letti += righe.Campo(0).Testo();
        EXPECT_EQ(letti, *tabella == 'T' ? "zbc" : "bcz");
    }
}

TEST_F(Motore, UnaTransazioneETuttaONulla) {
    db_.Esegui("CREATE TABLE T (a)");
    for (const bool conferma : {false, true}) {
        Transazione transazione(db_);
        db_.Esegui("INSERT INTO T VALUES (1), (2)");
        Database altro;
        altro.Apri(percorso_, {});
        EXPECT_TRUE(altro.Leggi_Tabella("T").EOF_()) << "nobody sees it before";
        if (conferma)
            transazione.Conferma();
    }
    EXPECT_EQ(db_.Apri_Recordset("SELECT count(*) FROM T").Campo(0).Intero(), 2);
}

TEST_F(Motore, UnFileCreatoNeSostituisceUnAltro) {
    db_.Esegui("CREATE TABLE T (a)");
    db_.Apri(percorso_, {}, Database::Modo::Creazione);
    EXPECT_TRUE(db_.Tabelle().isEmpty());
    EXPECT_THROW(Database().Apri(cartella_.path(), {}, Database::Modo::Creazione), Errore_DB);
}

TEST_F(Motore, RespiraDuranteIlLavoro) {
    Numeri();
    for (int i = 0; i < 10; ++i)
        db_.Esegui("INSERT INTO T SELECT n FROM T");
    const QString lenta = "SELECT count(*) FROM T AS a, T AS b WHERE a.n + b.n > 0";
    int respiri = 0;
    std::string rientro;
    db_.Imposta_Respiro([&] {
        ++respiri;
        rientro = Errore_Di([&] { db_.Apri_Recordset("SELECT 1"); });
    });
    QElapsedTimer orologio;
    orologio.start();
    EXPECT_EQ(db_.Apri_Recordset(lenta).Campo(0).Intero(), 2048 * 2048);
    const qint64 ms = orologio.elapsed();
    EXPECT_LE(respiri, ms / 20 + 1);
    if (ms > 60) {
        EXPECT_GE(respiri, 1);
        EXPECT_EQ(rientro, "The database is busy.");
        db_.Imposta_Respiro([] { throw std::runtime_error("stop"); });
        EXPECT_THROW(db_.Apri_Recordset(lenta), std::runtime_error);
    }
}

TEST(ValoreDelCampo, TestoNumeroIntero) {
    const auto testo = [](const char* t) { return Valore(QString(t)); };
    const std::tuple<Valore, const char*, double, qint64> casi[] = {{Valore(), "", 0, 0},
                                                                    {Valore(qint64{-12}), "-12", -12, -12},
                                                                    {Valore(1e6), "1000000", 1e6, 1000000},
                                                                    {Valore(2.5), "2.5", 2.5, 2},
                                                                    {Valore(1e300), "1e+300", 1e300, 0},
                                                                    {testo(" 12 "), " 12 ", 12, 12},
                                                                    {testo("+3.5"), "+3.5", 3.5, 4},
                                                                    {testo("12abc"), "12abc", 12, 0},
                                                                    {testo("-.5x"), "-.5x", -0.5, 0}};
    for (const auto& [valore, come_testo, numero, intero] : casi) {
        EXPECT_EQ(valore.Testo(), come_testo);
        EXPECT_EQ(valore.Numero(), numero) << come_testo;
        EXPECT_EQ(valore.Intero(), intero) << come_testo;
    }
    for (const char* nessun_numero : {"nan", "inf", "-", "1e400"})
        EXPECT_EQ(testo(nessun_numero).Numero(), 0) << nessun_numero;
}

}  // namespace

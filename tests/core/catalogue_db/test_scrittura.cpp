// Values and tables as they are written, and read again.

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "core/catalogue_db/engine/database.h"

namespace {

class Scrittura : public testing::Test {
  protected:
    Scrittura() { db_.Apri(percorso_, {}, Database::Modo::Creazione); }
    QTemporaryDir cartella_;
    QString percorso_ = cartella_.filePath("a.db");
    Database db_;
};

TEST_F(Scrittura, ValuesComeBackAsTheyWere) {
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

TEST_F(Scrittura, TablesOfAnyNameAndType) {
    const std::vector<Definizione_Colonna> colonne{
        {"a`b]\"c'", "TEXT", "NOCASE"}, {"Index", "DECIMAL(10, 2)", "BINARY"}, {"rowid", "", "RTRIM"}};
    db_.Crea_Tabella("x`y]z", colonne);
    EXPECT_EQ(db_.Colonne("x`y]z"), colonne);
    db_.Inserimento("x`y]z").Esegui({Valore(QString("A")), Valore(2.5), Valore()});
    EXPECT_EQ(db_.Leggi_Tabella("x`y]z").Campo(1).Numero(), 2.5);
}

TEST_F(Scrittura, RowsStandAsTheyWereWrittenWhateverTheIndexes) {
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

TEST_F(Scrittura, ATransactionIsDoneAsAWholeOrNotAtAll) {
    db_.Esegui("CREATE TABLE T (a)");
    db_.Chiudi();
    db_.Apri(percorso_, {}, Database::Modo::Scrittura);
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

TEST_F(Scrittura, AFileMadeFromScratchReplacesAnother) {
    db_.Esegui("CREATE TABLE T (a)");
    db_.Apri(percorso_, {}, Database::Modo::Creazione);
    EXPECT_TRUE(db_.Tabelle().isEmpty());
    EXPECT_THROW(Database().Apri(cartella_.path(), {}, Database::Modo::Creazione), Errore_DB);
}

}  // namespace

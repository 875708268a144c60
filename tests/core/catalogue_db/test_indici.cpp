#include "core/catalogue_db/indici.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

using testing::ElementsAre;

namespace {

QStringList Righe(const Database& db, const QString& sql) {
    QStringList righe;
    for (Recordset r = db.Apri_Recordset(sql); !r.EOF_(); r.MoveNext()) {
        QStringList campi;
        for (int i = 0; i < r.Count(); ++i)
            campi << r.Campo(i).Testo();
        righe << campi.join(u'|');
    }
    return righe;
}

QStringList Indici(const Database& db) {
    return Righe(db, "SELECT name FROM sqlite_schema WHERE type = 'index' ORDER BY name;");
}

class Indici_Di_Prova : public testing::Test {
  protected:
    Indici_Di_Prova() { db_.Apri(cartella_.filePath("a.db"), {}, Database::Modo::Scrittura); }
    QTemporaryDir cartella_;
    Database db_;
};

TEST_F(Indici_Di_Prova, OnlyWhatIsMissingAndPossible) {
    db_.Esegui("CREATE TABLE Prodotti (Key_Prodotto TEXT PRIMARY KEY, Codice TEXT)");
    db_.Esegui("CREATE TABLE Albero (Altro TEXT)");
    db_.Esegui("CREATE TABLE Componenti_Web (Ordine INTEGER, key_prodotto TEXT, Codice_Componente TEXT)");
    db_.Esegui("CREATE INDEX mine ON Componenti_Web (Codice_Componente, Ordine)");
    db_.Esegui("CREATE TABLE Traduzioni_Componenti_Mappe ([Key] TEXT)");
    Crea_Indici(db_);
    const QStringList indici = Indici(db_);
    EXPECT_THAT(indici, ElementsAre("IX_Componenti_Web_Key_Prodotto", "IX_Traduzioni_Componenti_Mappe_Key",
                                    "mine", "sqlite_autoindex_Prodotti_1"));
    Crea_Indici(db_);
    EXPECT_EQ(Indici(db_), indici);
}

/// Rows in no order of their own, keys that differ in case only, several rows for one key: every statement on
/// the indexed columns answers the same rows in the same order with the indexes as without.
TEST_F(Indici_Di_Prova, ChangeNoAnswer) {
    db_.Crea_Tabella(
        "Componenti_Web",
        {{"Ordine", "INTEGER", ""}, {"Key_Prodotto", "TEXT", "NOCASE"}, {"Codice_Componente", "TEXT", ""}});
    db_.Esegui(
        "WITH RECURSIVE c(i) AS (VALUES(0) UNION ALL SELECT i+1 FROM c WHERE i < 199) "
        "INSERT INTO Componenti_Web SELECT i*31%50, iif(i%2, 'P_', 'p_')||(i*7%40), i*13%11 FROM c");
    const QString domande[] = {"SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='P_7' ) ORDER BY Ordine ;",
                               "SELECT Key_Prodotto FROM Componenti_Web WHERE Codice_Componente = '3' ;"};
    const QStringList senza[] = {Righe(db_, domande[0]), Righe(db_, domande[1])};
    Crea_Indici(db_);
    ASSERT_EQ(Indici(db_).size(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(senza[i].isEmpty());
        EXPECT_EQ(Righe(db_, domande[i]), senza[i]);
    }
}

}  // namespace

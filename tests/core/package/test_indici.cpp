#include "core/package/indici.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "core/catalogue_db/engine/protezione.h"
#include "core/package/class_progetto_aperto.h"
#include "support/fakes.h"
#include "zip_di_prova.h"

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
    const char* tabelle[] = {
        "Componenti_Web (Ordine INTEGER, Key_Prodotto%, Codice_Componente%, Key_Riferimento%)",
        "Prodotti (Key_Prodotto%, Key_Associazione%)",
        "Albero_Web (Key_Prodotto%, Key_Padre%, Ordine INTEGER, Profondita_Nodo INTEGER)",
        "Matricola_Nodo (Key_Prodotto%, Matricola%)",
        "Traduzioni_Viewer_System (Form%, Name_Object%, Traduzione_1%)"};
    for (const QString tabella : tabelle)
        db_.Esegui("CREATE TABLE " + QString(tabella).replace("%", " TEXT COLLATE NOCASE"));
    db_.Esegui("BEGIN");
    for (int i = 0; i < 600; ++i) {
        const QString chiave = QString(i % 2 ? "P_%1" : "p_%1").arg(i * 7 % 40),
                      form = i % 3 ? "Form_Main" : "DESCRIZIONE";
        for (const char* valori :
             {"Componenti_Web VALUES (%3, '%1', '%2', '%3')", "Prodotti VALUES ('%1', '%2')",
              "Albero_Web VALUES ('%1', '%2', %3, 1)", "Matricola_Nodo VALUES ('%1', '%3')",
              "Traduzioni_Viewer_System VALUES ('%4', 'o%5', '%6')"})
            db_.Esegui(QString("INSERT INTO ")
                           .append(valori)
                           .replace("%1", chiave)
                           .replace("%2", QString::number(i * 13 % 11))
                           .replace("%3", QString::number(i * 31 % 50))
                           .replace("%4", form)
                           .replace("%5", QString::number(i * 17 % 90))
                           .replace("%6", QString::number(i)));
    }
    db_.Esegui("COMMIT");

    const QStringList domande{
        "SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='P_7' ) ORDER BY Ordine ;",
        "SELECT * FROM Componenti_Web WHERE ( Key_Prodotto='P_7' ) AND ( Codice_Componente = '3' ) ORDER BY "
        "Ordine ;",
        "SELECT * FROM Componenti_Web WHERE ( Codice_Componente = '3' ) ORDER BY Ordine ;",
        "SELECT Key_Prodotto FROM Componenti_Web WHERE Codice_Componente = '3' ;",
        "SELECT * FROM Componenti_Web ORDER BY Ordine ;",
        "SELECT * FROM Prodotti WHERE Key_Prodotto = 'p_9';",
        "SELECT Prodotti.Key_Prodotto FROM Prodotti,Albero_Web WHERE Key_Associazione = '4' AND "
        "Prodotti.Key_Prodotto = Albero_Web.Key_Prodotto AND Albero_Web.Key_Padre = '5' ; ",
        "SELECT * FROM Albero_Web ORDER BY Profondita_nodo ASC,Ordine ASC ;",
        "SELECT * FROM Matricola_Nodo WHERE Key_Prodotto = 'P_7' AND (Matricola = '20' OR Matricola <= '3');",
        "SELECT Name_Object,Traduzione_1 FROM Traduzioni_Viewer_System WHERE Form = 'DESCRIZIONE' ;",
        "SELECT Traduzione_1 FROM Traduzioni_Viewer_System WHERE Form ='Form_Main' AND Name_Object='o10' ;",
    };
    QHash<QString, QStringList> senza;
    for (const QString& sql : domande)
        senza[sql] = Righe(db_, sql);
    Crea_Indici(db_);
    ASSERT_GE(Indici(db_).size(), 6);
    for (const QString& sql : domande) {
        EXPECT_FALSE(senza[sql].isEmpty()) << sql.toStdString();
        EXPECT_EQ(Righe(db_, sql), senza[sql]) << sql.toStdString();
    }
}

TEST_F(Indici_Di_Prova, AreMadeWhenAPackageCameWithout) {
    for (const QString& sql :
         QStringList{
             "CREATE TABLE SYSTEM (KEY TEXT, VALORE TEXT)", "INSERT INTO SYSTEM VALUES ('VERSIONE', '4.3')",
             "CREATE TABLE Lingue (ID INTEGER, Descrizione_Lingua TEXT, Descrizione_Mercato TEXT)",
             "INSERT INTO Lingue VALUES (1, 'Italiano', 'Italia')",
             "CREATE TABLE Albero_Web (Key_Prodotto TEXT, Key_Padre TEXT, Testo_Visualizzato_1 TEXT, "
             "Percorso TEXT, Profondita_Nodo INTEGER, Ordine INTEGER, Key_Mercato TEXT, Key_Gruppo TEXT)"} +
             Istruzioni_Protezione(PASSWORD_DB))
        db_.Esegui(sql);
    db_.Chiudi();
    const QString pacchetto = Scrivi_Zip(cartella_.filePath("a.TZF"),
                                         {{NOME_DATABASE.toUtf8(), Leggi_Tutto(cartella_.filePath("a.db"))}});
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    Class_Progetto_Aperto progetto({impostazioni, messaggi, sistema});
    ASSERT_EQ(progetto.Apri_Progetto_TZF(pacchetto), 1) << messaggi.Testi().join(u' ').toStdString();

    Database copia;
    copia.Apri(progetto.Percorso_Database, CONNESSIONE_DB);
    EXPECT_THAT(Indici(copia), ElementsAre("IX_Albero_Web_Key_Prodotto"));
}

}  // namespace

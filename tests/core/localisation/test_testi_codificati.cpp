#include <gtest/gtest.h>

#include "finestra_finta.h"

namespace {

class Testi_Codificati : public Testi {
  protected:
    /// Loads language 2 from these rows: SQL of form, key and text.
    void Carica(const QString& valori) {
        database.Esegui("INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, Traduzione_2) VALUES " +
                        valori);
        testi.Carica_Testi_Codificati("2");
    }
};

TEST_F(Testi_Codificati, AreLoadedByKeyTheLaterRowWinning) {
    Carica(
        R"(('DESCRIZIONE','MSG_01','first'), ('DESCRIZIONE','MSG_02',NULL), ('DESCRIZIONE',NULL,'without key'),
              ('DESCRIZIONE','MSG_01','second'), ('DESCRIZIONE','MSG_03','kept'), ('DESCRIZIONE','MSG_03',NULL),
              ('Form_Main','Label1','a control'))");
    EXPECT_EQ(testi.Count(), 3);
    EXPECT_EQ(testi.Item("MSG_01").Testo, "second");
    EXPECT_EQ(testi.Item("MSG_02").Testo, "");
    EXPECT_EQ(testi.Item("MSG_03").Testo, "kept");
}

TEST_F(Testi_Codificati, LoseOneLineEnd) {
    Carica("('DESCRIZIONE','A',' a\r\nb \r\n\r\n'), ('DESCRIZIONE','B','text\n')");
    EXPECT_EQ(testi.Item("A").Testo, " a\r\nb \r\n");
    EXPECT_EQ(testi.Item("B").Testo, "text\n");
}

TEST_F(Testi_Codificati, AreReplacedWithTheLanguageAndStayAfterTheDatabaseIsClosed) {
    Carica("('DESCRIZIONE','MSG_01','two')");
    testi.Carica_Testi_Codificati("1");
    EXPECT_EQ(testi.Item("MSG_01").Testo, "") << "a NULL has no other language behind it";
    testi.Carica_Testi_Codificati("");
    EXPECT_EQ(testi.Count(), 0);
    testi.Carica_Testi_Codificati("2");
    EXPECT_TRUE(testi.Chiudi_Database_Traduzioni());
    EXPECT_EQ(testi.Item("MSG_01").Testo, "two");
    EXPECT_THROW(testi.Carica_Testi_Codificati("2"), Errore_DB);
    EXPECT_THROW(testi.Apri_Database_Traduzioni(percorso + "x"), Errore_DB);
}

TEST_F(Testi_Codificati, AMissingKeyGivesWhatItCarries) {
    Carica("('DESCRIZIONE','MSG_01','x')");
    for (const auto& [key, testo] : {std::pair("MSG_99", "MSG_99"), {"A/b/c", "b"}, {"MSG_99/", "MSG_99/"}}) {
        EXPECT_EQ(testi.Item(key).Testo, testo);
        EXPECT_EQ(testi.Item(key).Key + testi.Restituisci_Testo(key), "") << key;
    }
    EXPECT_EQ(testi.Restituisci_Testo("MSG_01"), "x");
}

TEST_F(Testi_Codificati, ReverseLookup) {
    Carica(
        R"(('DESCRIZIONE','PAGAMENTO/BONIFICO','Bank transfer'), ('DESCRIZIONE','PAGAMENTO/RIBA','Receipt'),
              ('DESCRIZIONE','ALTRO/RIBA_2','Receipt'), ('DESCRIZIONE','VUOTO/','Nothing'))");
    for (const QStringList& riga : ::Righe(
             "BONIFICO=Bank transfer=BONIFICO|=Bank transfer=BONIFICO|RIBA=Receipt=RIBA|RIBA_=Receipt=RIBA_2"
             "|BONIFICO=Receipt=Receipt|BONIFICO=bank transfer=bank transfer|=Nothing=Nothing"))
        EXPECT_EQ(testi.Restituisci_Key(riga[0], riga[1]), riga[2]) << qPrintable(riga.join('='));
}

TEST_F(Testi_Codificati, BaseTextsStandBesideTheOthers) {
    Carica("('DESCRIZIONE','MSG_01','two')");
    database.Esegui(
        "INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, Tipo, Traduzione_1) VALUES "
        "('X','MSG_01','DESCRIZIONE','one\r\n')");
    testi.Carica_Testi_Base();
    EXPECT_EQ(testi.Item("MSG_01").Testo, "two");
    EXPECT_EQ(testi.Item("#TR#MSG_01").Testo, "one");
}

}  // namespace

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
              ('DESCRIZIONE','MSG_04',''), ('Form_Main','Label1','a control'))");
    EXPECT_EQ(testi.Count(), 4);
    EXPECT_EQ(testi.Item("MSG_01").Testo, "second");
    EXPECT_EQ(testi.Item("MSG_01").Key, "MSG_01");
    EXPECT_EQ(testi.Item("MSG_02").Testo, "");
    EXPECT_EQ(testi.Item("MSG_03").Testo, "kept");
    EXPECT_TRUE(testi.Esiste_Key("MSG_02"));
    EXPECT_FALSE(testi.Esiste_Key(""));
}

TEST_F(Testi_Codificati, LoseOneLineEnd) {
    Carica(
        "('DESCRIZIONE','A','text\r\n'), ('DESCRIZIONE','B','text\r\n\r\n'), ('DESCRIZIONE','C','text\n'), "
        "('DESCRIZIONE','D',' a\r\nb ')");
    EXPECT_EQ(testi.Item("A").Testo, "text");
    EXPECT_EQ(testi.Item("B").Testo, "text\r\n");
    EXPECT_EQ(testi.Item("C").Testo, "text\n");
    EXPECT_EQ(testi.Item("D").Testo, " a\r\nb ");
}

TEST_F(Testi_Codificati, AreReplacedWithTheLanguageAndStayAfterTheDatabaseIsClosed) {
    Carica("('DESCRIZIONE','MSG_01','two')");
    testi.Carica_Testi_Codificati("1");
    EXPECT_EQ(testi.Item("MSG_01").Testo, "") << "a NULL has no other language behind it";
    testi.Carica_Testi_Codificati("");
    EXPECT_EQ(testi.Count(), 0);
    EXPECT_THROW(testi.Carica_Testi_Codificati("12"), Errore_DB);
    testi.Carica_Testi_Codificati("2");
    EXPECT_TRUE(testi.Chiudi_Database_Traduzioni());
    EXPECT_EQ(testi.Item("MSG_01").Testo, "two");
    EXPECT_THROW(testi.Carica_Testi_Codificati("2"), Errore_DB);
    EXPECT_THROW(testi.Apri_Database_Traduzioni(percorso + "x"), Errore_DB);
    EXPECT_EQ(testi.Nome_Data_DB_Supporto(), "TRADUZIONI.QLD");
}

TEST_F(Testi_Codificati, AMissingKeyGivesWhatItCarries) {
    Carica("('DESCRIZIONE','MSG_01','x')");
    const std::pair<const char*, const char*> casi[] = {{"MSG_99", "MSG_99"},
                                                        {"MSG_99/Not found", "Not found"},
                                                        {"A/b/c", "b"},
                                                        {"MSG_99/", "MSG_99/"},
                                                        {"", ""}};
    for (const auto& [key, testo] : casi) {
        EXPECT_EQ(testi.Item(key).Testo, testo);
        EXPECT_EQ(testi.Item(key).Key + testi.Restituisci_Testo(key), "") << key;
    }
    EXPECT_EQ(testi.Restituisci_Testo("MSG_01"), "x");
    EXPECT_EQ(testi.Count(), 1);
}

TEST_F(Testi_Codificati, ReverseLookup) {
    Carica(
        R"(('DESCRIZIONE','PAGAMENTO/BONIFICO','Bank transfer'), ('DESCRIZIONE','PAGAMENTO/RIBA','Receipt'),
              ('DESCRIZIONE','ALTRO/RIBA_2','Receipt'), ('DESCRIZIONE','VUOTO/','Nothing'),
              ('DESCRIZIONE','SENZA','Plain'))");
    // "suffix=text=answer" between "|".
    for (const QString& caso :
         QString("BONIFICO=Bank transfer=BONIFICO|=Bank transfer=BONIFICO|RIBA=Receipt=RIBA|"
                 "RIBA_=Receipt=RIBA_2|BONIFICO=Receipt=Receipt|"
                 "BONIFICO=bank transfer=bank transfer|=Nothing=Nothing|=Plain=Plain")
             .split('|')) {
        const QStringList campi = caso.split('=');
        EXPECT_EQ(testi.Restituisci_Key(campi[0], campi[1]), campi[2]) << qPrintable(caso);
    }
}

TEST_F(Testi_Codificati, BaseTextsStandBesideTheOthers) {
    Carica("('DESCRIZIONE','MSG_01','two')");
    database.Esegui(
        "INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, Tipo, Traduzione_1) VALUES "
        "('X','MSG_01','DESCRIZIONE','one\r\n'), ('X','MSG_02','DESCRIZIONE',NULL)");
    testi.Carica_Testi_Base();
    EXPECT_EQ(testi.Count(), 3);
    EXPECT_EQ(testi.Item("MSG_01").Testo, "two");
    EXPECT_EQ(testi.Item("#TR#MSG_01").Testo, "one");
    EXPECT_TRUE(testi.Esiste_Key("#TR#MSG_02"));
}

}  // namespace

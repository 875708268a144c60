#include <gtest/gtest.h>

#include "finestra_finta.h"
#include "support/fakes.h"

namespace {

class Testi_Codificati : public testing::Test {
  protected:
    Testi_Codificati() { testi.Apri_Database_Traduzioni(sorgente.Percorso()); }
    void Codificato(const char* key, const char* testo) {
        sorgente.Riga(u"'DESCRIZIONE'"_qs, QString::fromUtf8(key), u"NULL"_qs, QString::fromUtf8(testo));
    }
    Database_Testi sorgente;
    Messaggi_Finti messaggi;
    Collection_Traduzioni testi{messaggi};
};

TEST_F(Testi_Codificati, AreLoadedByKeyTheLaterRowWinning) {
    Codificato("'MSG_01'", "'first'");
    Codificato("'MSG_02'", "NULL");
    Codificato("NULL", "'without key'");
    Codificato("'MSG_01'", "'second'");
    Codificato("'MSG_03'", "'kept'");
    Codificato("'MSG_03'", "NULL");
    Codificato("'MSG_04'", "''");
    sorgente.Riga(u"'Form_Main'"_qs, u"'Label1'"_qs, u"NULL"_qs, u"'a control'"_qs);

    testi.Carica_Testi_Codificati(u"2"_qs);
    EXPECT_EQ(testi.Count(), 4);
    EXPECT_EQ(testi.Item(u"MSG_01"_qs).Testo, u"second"_qs);
    EXPECT_EQ(testi.Item(u"MSG_01"_qs).Key, u"MSG_01"_qs);
    EXPECT_EQ(testi.Item(u"MSG_02"_qs).Testo, u""_qs);
    EXPECT_EQ(testi.Item(u"MSG_03"_qs).Testo, u"kept"_qs);
    EXPECT_TRUE(testi.Esiste_Key(u"MSG_02"_qs));
    EXPECT_FALSE(testi.Esiste_Key(u"Label1"_qs));
    EXPECT_FALSE(testi.Esiste_Key(u""_qs));
}

TEST_F(Testi_Codificati, LoseOneLineEnd) {
    sorgente.Esegui(
        u"INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, Traduzione_2) VALUES "
        "('DESCRIZIONE','A','text\r\n'), ('DESCRIZIONE','B','text\r\n\r\n'), "
        "('DESCRIZIONE','C','text\n'), ('DESCRIZIONE','D',' a\r\nb ')"_qs);
    testi.Carica_Testi_Codificati(u"2"_qs);
    EXPECT_EQ(testi.Item(u"A"_qs).Testo, u"text"_qs);
    EXPECT_EQ(testi.Item(u"B"_qs).Testo, u"text\r\n"_qs);
    EXPECT_EQ(testi.Item(u"C"_qs).Testo, u"text\n"_qs);
    EXPECT_EQ(testi.Item(u"D"_qs).Testo, u" a\r\nb "_qs);
}

TEST_F(Testi_Codificati, AreReplacedWithTheLanguage) {
    Codificato("'MSG_01'", "'two'");
    testi.Carica_Testi_Codificati(u"2"_qs);
    ASSERT_EQ(testi.Item(u"MSG_01"_qs).Testo, u"two"_qs);
    testi.Carica_Testi_Codificati(u"1"_qs);
    EXPECT_EQ(testi.Item(u"MSG_01"_qs).Testo, u""_qs) << "a NULL has no other language behind it";
    testi.Carica_Testi_Codificati(QString());
    EXPECT_EQ(testi.Count(), 0);
    EXPECT_THROW(testi.Carica_Testi_Codificati(u"12"_qs), Errore_DB);
}

TEST_F(Testi_Codificati, AMissingKeyGivesWhatItCarries) {
    const std::pair<QString, QString> casi[] = {
        {u"MSG_99"_qs, u"MSG_99"_qs},
        {u"MSG_99/Not found"_qs, u"Not found"_qs},
        {u"A/b/c"_qs, u"b"_qs},
        {u"MSG_99/"_qs, u"MSG_99/"_qs},
        {u""_qs, u""_qs},
    };
    Codificato("'MSG_01'", "'x'");
    testi.Carica_Testi_Codificati(u"2"_qs);
    for (const auto& [key, testo] : casi) {
        EXPECT_EQ(testi.Item(key).Testo, testo) << key.toStdString();
        EXPECT_EQ(testi.Item(key).Key, QString());
        EXPECT_EQ(testi.Restituisci_Testo(key), QString());
    }
    EXPECT_EQ(testi.Restituisci_Testo(u"MSG_01"_qs), u"x"_qs);
    EXPECT_EQ(testi.Count(), 1);
}

TEST_F(Testi_Codificati, ReverseLookup) {
    Codificato("'PAGAMENTO/BONIFICO'", "'Bank transfer'");
    Codificato("'PAGAMENTO/RIBA'", "'Receipt'");
    Codificato("'ALTRO/RIBA_2'", "'Receipt'");
    Codificato("'VUOTO/'", "'Nothing'");
    Codificato("'SENZA'", "'Plain'");
    testi.Carica_Testi_Codificati(u"2"_qs);
    struct Caso {
        const char* suffisso;
        const char* testo;
        const char* atteso;
    };
    const Caso casi[] = {
        {"BONIFICO", "Bank transfer", "BONIFICO"},
        {"", "Bank transfer", "BONIFICO"},
        {"RIBA", "Receipt", "RIBA"},
        {"RIBA_", "Receipt", "RIBA_2"},
        {"BONIFICO", "Receipt", "Receipt"},
        {"BONIFICO", "bank transfer", "bank transfer"},
        {"", "Nothing", "Nothing"},
        {"", "Plain", "Plain"},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(testi.Restituisci_Key(QString::fromUtf8(caso.suffisso), QString::fromUtf8(caso.testo)),
                  QString::fromUtf8(caso.atteso))
            << caso.suffisso << ", " << caso.testo;
}

TEST_F(Testi_Codificati, BaseTextsStandBesideTheOthers) {
    Codificato("'MSG_01'", "'two'");
    sorgente.Esegui(
        u"INSERT INTO Traduzioni_Viewer_System (Form, Name_Object, Tipo, Traduzione_1) VALUES "
        "('X','MSG_01','DESCRIZIONE','one\r\n'), ('X','MSG_02','DESCRIZIONE',NULL)"_qs);
    testi.Carica_Testi_Codificati(u"2"_qs);
    testi.Carica_Testi_Base();
    EXPECT_EQ(testi.Count(), 3);
    EXPECT_EQ(testi.Item(u"MSG_01"_qs).Testo, u"two"_qs);
    EXPECT_EQ(testi.Item(u"#TR#MSG_01"_qs).Testo, u"one"_qs);
    EXPECT_TRUE(testi.Esiste_Key(u"#TR#MSG_02"_qs));
}

TEST_F(Testi_Codificati, StayAfterTheDatabaseIsClosed) {
    Codificato("'MSG_01'", "'two'");
    testi.Carica_Testi_Codificati(u"2"_qs);
    EXPECT_TRUE(testi.Chiudi_Database_Traduzioni());
    EXPECT_EQ(testi.Item(u"MSG_01"_qs).Testo, u"two"_qs);
    EXPECT_THROW(testi.Carica_Testi_Codificati(u"2"_qs), Errore_DB);
    EXPECT_THROW(testi.Apri_Database_Traduzioni(sorgente.Percorso() + u"x"_qs), Errore_DB);
    EXPECT_EQ(testi.Nome_Data_DB_Supporto(), u"TRADUZIONI.QLD"_qs);
}

}  // namespace

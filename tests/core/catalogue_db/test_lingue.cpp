#include <gmock/gmock.h>

#include "database_di_prova.h"

namespace {

QStringList Tabella_Lingue(const QStringList& righe) {
    QStringList istruzioni{
        "CREATE TABLE Lingue (ID INTEGER, Chiave TEXT COLLATE NOCASE, Descrizione_Lingua TEXT COLLATE "
        "NOCASE, "
        "Descrizione_Mercato TEXT COLLATE NOCASE, Immagine TEXT, Attiva_Lingua TEXT COLLATE NOCASE, "
        "Attiva_Mercato TEXT COLLATE NOCASE)"};
    for (const QString& riga : righe)
        istruzioni += "INSERT INTO Lingue VALUES (" + riga + ")";
    return istruzioni;
}

class Lingue : public testing::Test {
  protected:
    // Written out of order: every question goes by ID.
    Database_Di_Prova prova_{Tabella_Lingue({
        "3, 'FR', 'Français', 'France', 'fr.png', 'FALSE', 'TRUE'",
        "2, 'UK', 'English', 'United Kingdom', NULL, 'TRUE', 'FALSE'",
        "1, 'IT', 'Italiano', 'Italia', 'it.png', 'FALSE', 'FALSE'",
        "NULL, 'XX', 'Senza numero', 'Senza numero', NULL, 'TRUE', 'TRUE'",
        "4, 'DE', NULL, NULL, NULL, 'TRUE', 'TRUE'",
        "5, NULL, 'Español', 'España', NULL, 'TRUE', 'TRUE'",
        "6, 'PT', 'Português', 'Portugal', 'pt.png', 'TRUE', 'TRUE'",
        "7, 'P2', 'Português', 'Portugal', 'pt.png', 'true', 'true'",
    })};
    const Class_DBOper& db_ = prova_.DB;
};

TEST_F(Lingue, NumeroDaDescrizione) {
    EXPECT_EQ(db_.Restituisci_ID_Lingua("English"), 2);
    EXPECT_EQ(db_.Restituisci_ID_Lingua("Français"), 3) << "active or not";
    EXPECT_EQ(db_.Restituisci_ID_Lingua("Português"), 6) << "the first of two";
    EXPECT_EQ(db_.Restituisci_ID_Lingua("english"), 1) << "compared exactly";
    EXPECT_EQ(db_.Restituisci_ID_Lingua("Klingon"), 1) << "unknown: the first number";
    EXPECT_EQ(db_.Restituisci_ID_Lingua("Senza numero"), 1);
    EXPECT_EQ(db_.Restituisci_ID_Lingua(""), 1) << "NULL is no description";
    EXPECT_EQ(db_.Restituisci_ID_Mercato("France"), 3);
    EXPECT_EQ(db_.Restituisci_ID_Mercato("Français"), 1);
    EXPECT_EQ(db_.SQL(), "SELECT * FROM Lingue ORDER BY ID ;");
}

TEST_F(Lingue, NumeroDaChiave) {
    EXPECT_EQ(db_.Restituisci_ID_Lingua_o_Mercato_da_Key("FR"), 3) << "active as a market";
    EXPECT_EQ(db_.Restituisci_ID_Lingua_o_Mercato_da_Key("UK"), 2);
    EXPECT_EQ(db_.Restituisci_ID_Lingua_o_Mercato_da_Key("IT"), 2) << "not active: the first active row";
    EXPECT_EQ(db_.Restituisci_ID_Lingua_o_Mercato_da_Key("ZZ"), 2);
}

TEST_F(Lingue, ChiaveDaDescrizione) {
    EXPECT_EQ(db_.Restituisci_Key_Lingua("English"), "UK");
    EXPECT_EQ(db_.Restituisci_Key_Lingua("Français"), "") << "no active language";
    EXPECT_EQ(db_.Restituisci_Key_Lingua("Español"), "") << "its key is NULL";
    EXPECT_EQ(db_.Restituisci_Key_Mercato("France"), "FR");
    EXPECT_EQ(db_.Restituisci_Key_Mercato("United Kingdom"), "") << "no active market";
}

TEST_F(Lingue, ChiaveDaNumero) {
    EXPECT_EQ(db_.Restituisci_Key_Lingua_o_Mercato_ID(3), "FR");
    EXPECT_EQ(db_.Restituisci_Key_Lingua_o_Mercato_ID(1), "");
    EXPECT_EQ(db_.Restituisci_Key_Lingua_o_Mercato_ID(7), "") << "the flag is compared exactly";
    EXPECT_EQ(db_.Restituisci_Key_Lingua_Mercato(1), "IT");
    EXPECT_EQ(db_.Restituisci_Key_Lingua_Mercato(0), "");
}

TEST_F(Lingue, EsistenzaEDescrizione) {
    EXPECT_TRUE(db_.Esiste_Lingua(2));
    EXPECT_FALSE(db_.Esiste_Lingua(3));
    EXPECT_FALSE(db_.Esiste_Lingua(0)) << "a row without a number is no number 0";
    EXPECT_TRUE(db_.Esiste_Mercato(3));
    EXPECT_FALSE(db_.Esiste_Mercato(2));
    EXPECT_EQ(db_.Restituisci_Descrizione_Lingua(2), "English");
    EXPECT_EQ(db_.Restituisci_Descrizione_Lingua(3), "");
    EXPECT_EQ(db_.Restituisci_Descrizione_Mercato(2), "United Kingdom") << "an active language, no market";
    EXPECT_EQ(db_.Restituisci_Descrizione_Mercato(3), "") << "an active market, no active language";
}

QString Elenco(const std::vector<Voce_Lingua>& voci) {
    QStringList testi;
    for (const auto& voce : voci)
        testi += voce.Chiave + ":" + voce.Descrizione + ":" + voce.Immagine;
    return testi.join(' ');
}

TEST_F(Lingue, Elenchi) {
    EXPECT_EQ(Elenco(db_.Restituisci_Lingue_Disponibili()),
              "XX:Senza numero: UK:English: PT:Português:pt.png");
    EXPECT_EQ(Elenco(db_.Restituisci_Mercati_Disponibili()),
              "XX:Senza numero: FR:France:fr.png PT:Portugal:pt.png");
    EXPECT_EQ(db_.Restituisci_Lingue_Catalogate().size(), 6u) << "all but the two without key or name";
}

TEST_F(Lingue, ColonneTraduzioni) {
    EXPECT_EQ(db_.Restitusici_Colonne_Traduzioni(),
              "[Traduzione_2] as [Traduzione_ _English],[Traduzione_5] as [Traduzione_ _Español],"
              "[Traduzione_6] as [Traduzione_ _Português]");
}

TEST(LingueVuote, NessunaRisposta) {
    for (const QStringList& istruzioni : {Tabella_Lingue({}), QStringList{"CREATE TABLE T (a)"}}) {
        const Database_Di_Prova prova(istruzioni);
        EXPECT_EQ(prova.DB.Restituisci_ID_Lingua("English"), 0);
        EXPECT_EQ(prova.DB.Restituisci_Key_Lingua_Mercato(1), "");
        EXPECT_FALSE(prova.DB.Esiste_Lingua(1));
        EXPECT_TRUE(prova.DB.Restituisci_Lingue_Catalogate().empty());
        EXPECT_EQ(prova.DB.Restitusici_Colonne_Traduzioni(), "");
    }
}

TEST(LingueGuaste, ValeCioCheSiEVisto) {
    const Database_Di_Prova prova(
        Tabella_Lingue({"2, 'UK', 'English', 'United Kingdom', NULL, 'TRUE', 'TRUE'",
                        "70000, 'IT', 'Italiano', 'Italia', NULL, 'TRUE', 'TRUE'"}));
    EXPECT_EQ(prova.DB.Restituisci_ID_Lingua("Italiano"), 2) << "70000 isn't a 16-bit number: the scan ends";
    EXPECT_FALSE(prova.DB.Esiste_Lingua(4464));
}

}  // namespace

#include <gmock/gmock.h>

#include "database_di_prova.h"

namespace {

QStringList Tabella_Lingue(const QString& righe) {
    QStringList istruzioni{R"(CREATE TABLE Lingue (ID INTEGER, Chiave TEXT COLLATE NOCASE,
        Descrizione_Lingua TEXT COLLATE NOCASE, Descrizione_Mercato TEXT COLLATE NOCASE, Immagine TEXT,
        Attiva_Lingua TEXT COLLATE NOCASE, Attiva_Mercato TEXT COLLATE NOCASE))"};
    if (!righe.isEmpty())
        istruzioni += "INSERT INTO Lingue VALUES " + righe;
    return istruzioni;
}

class Lingue : public testing::Test {
  protected:
    // Written out of order: every question goes by ID.
    Database_Di_Prova prova_{Tabella_Lingue(R"(
        (3, 'FR', 'Français', 'France', 'fr.png', 'FALSE', 'TRUE'),
        (2, 'UK', 'English', 'United Kingdom', NULL, 'TRUE', 'FALSE'),
        (1, 'IT', 'Italiano', 'Italia', 'it.png', 'FALSE', 'FALSE'),
        (NULL, 'XX', 'Senza numero', 'Senza numero', NULL, 'TRUE', 'TRUE'),
        (4, 'DE', NULL, NULL, NULL, 'TRUE', 'TRUE'),
        (5, NULL, 'Español', 'España', NULL, 'TRUE', 'TRUE'),
        (6, 'PT', 'Português', 'Portugal', 'pt.png', 'TRUE', 'TRUE'),
        (7, 'P2', 'Português', 'Portugal', 'pt.png', 'true', 'true'))")};
    const Class_DBOper& db_ = prova_.DB;
};

TEST_F(Lingue, NumeroEChiave) {
    // Active or not; of two the first; compared exactly; else the first number, for NULL is no description.
    for (const QStringList& riga :
         Righe("English=2|Français=3|Português=6|english=1|Klingon=1|Senza numero=1|=1"))
        EXPECT_EQ(db_.Restituisci_ID_Lingua(riga[0]), riga[1].toInt()) << qPrintable(riga[0]);
    EXPECT_EQ(db_.Restituisci_ID_Mercato("France"), 3);
    EXPECT_EQ(db_.Restituisci_ID_Mercato("Français"), 1);
    EXPECT_EQ(db_.Restituisci_Key_Lingua_Mercato(1), "IT");
}

TEST_F(Lingue, EsistenzaEDescrizione) {
    EXPECT_TRUE(db_.Esiste_Lingua(2));
    EXPECT_FALSE(db_.Esiste_Lingua(3) || db_.Esiste_Lingua(7)) << "the flag is compared exactly";
    EXPECT_FALSE(db_.Esiste_Lingua(0)) << "a row without a number is no number 0";
    EXPECT_TRUE(db_.Esiste_Mercato(3));
    EXPECT_FALSE(db_.Esiste_Mercato(2));
    EXPECT_EQ(db_.Restituisci_Descrizione_Lingua(2), "English");
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

TEST(LingueVuote, NessunaRisposta) {
    for (const QStringList& istruzioni : {Tabella_Lingue(""), Tabella("T", "a")}) {
        const Database_Di_Prova prova(istruzioni);
        EXPECT_EQ(prova.DB.Restituisci_ID_Lingua("English"), 0);
        EXPECT_TRUE(prova.DB.Restituisci_Lingue_Catalogate().empty());
    }
}

TEST(LingueGuaste, ValeCioCheSiEVisto) {
    const Database_Di_Prova prova(Tabella_Lingue(R"(
        (2, 'UK', 'English', 'United Kingdom', NULL, 'TRUE', 'TRUE'),
        (70000, 'IT', 'Italiano', 'Italia', NULL, 'TRUE', 'TRUE'))"));
    EXPECT_EQ(prova.DB.Restituisci_ID_Lingua("Italiano"), 2) << "70000 isn't a 16-bit number: the scan ends";
}

}  // namespace

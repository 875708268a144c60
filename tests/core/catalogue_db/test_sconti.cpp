// Discount strings, keys of a user, chains of discounts.

#include <gmock/gmock.h>

#include "core/catalogue_db/class_sconto.h"
#include "database_di_prova.h"

namespace {

struct Contesto {
    explicit Contesto(QChar separatore = u'.') { sistema.Separatore = separatore; }
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Class_Sconto sconto{numeri};
};

TEST(Sconto, GeneralString) {
    Contesto c;
    struct Caso {
        const char* testo;
        qint16 mercato;
        std::optional<float> atteso;  // none: it fails
    };
    const Caso casi[] = {
        {"1/10|2/20", 1, 10.0f},     {"1/10|2/20", 2, 20.0f},
        {"1/10|2/20", 3, 0.0f},      {"", 1, 0.0f},
        {"1/10|1/20", 1, 10.0f},     {"|1/10", 1, 10.0f},
        {"x/9|1/10", 1, 10.0f},      {"1/7.5", 1, 7.5f},
        {"1/7,5", 1, 75.0f},         {"1", 1, std::nullopt},
        {"1/", 1, std::nullopt},     {"1/x|1/10", 1, std::nullopt},
        {"1/10/5/9", 1, 10.0f},      {"1,0/10", 1, 10.0f},
        {"01/10", 1, 10.0f},         {"11/10", 1, 0.0f},
        {"/10", 0, 10.0f},           {"1/-5", 1, -5.0f},
        {"1/10 %", 1, std::nullopt},
    };
    for (const Caso& caso : casi) {
        if (caso.atteso)
            EXPECT_EQ(c.sconto.Restituisci_ScontoGenerale_Mercato(caso.testo, caso.mercato), *caso.atteso)
                << caso.testo;
        else
            EXPECT_ANY_THROW(c.sconto.Restituisci_ScontoGenerale_Mercato(caso.testo, caso.mercato))
                << caso.testo;
    }
    EXPECT_EQ(Contesto(u',').sconto.Restituisci_ScontoGenerale_Mercato("1/7.5", 1), 75.0f);
}

TEST(Sconto, StringOfRanges) {
    Contesto c;
    float minimo = -1, massimo = -2;
    EXPECT_EQ(c.sconto.Restituisci_ScontoRange_Mercato("1/5/10/49|2/8/50/99", 2, minimo, massimo), 8);
    EXPECT_EQ(minimo, 50);
    EXPECT_EQ(massimo, 99);
    EXPECT_EQ(c.sconto.Restituisci_ScontoRange_Mercato("1/5/10/49", 3, minimo, massimo), 0);
    EXPECT_EQ(minimo, 50);
    EXPECT_EQ(c.sconto.Restituisci_ScontoRange_Mercato("1/5/1,5/2.5", 1, minimo, massimo), 5);
    EXPECT_EQ(minimo, 1.5f);
    EXPECT_EQ(massimo, 2.5f);
    EXPECT_EQ(c.sconto.Restituisci_ScontoRange_Mercato("1/5", 1, minimo, massimo), 5);
    EXPECT_EQ(minimo, 0);
    EXPECT_EQ(massimo, 0);
    minimo = 7;
    EXPECT_ANY_THROW(c.sconto.Restituisci_ScontoRange_Mercato("1//1/2", 1, minimo, massimo));
    EXPECT_EQ(minimo, 7);
}

TEST(Sconto, KeysOfAUser) {
    Database_Di_Prova prova(
        {Crea_Tabella("Anagrafico", {"Login", "Key_Gruppo", "Key_Sconto"}),
         Crea_Tabella("Gruppi_Utenti", {"Key_Gruppo", "Ordine", "Key_Sconto"}),
         Crea_Tabella("SYSTEM", {"KEY", "VALORE"}),
         "INSERT INTO Anagrafico VALUES ('rossi', '/B/A/', '/X/'), ('verdi', NULL, NULL), "
         "('d''este', '/A/', '/Y/')",
         "INSERT INTO Gruppi_Utenti VALUES ('A', '2', '/1/'), ('B', '3', NULL), "
         "('A', '1', '/0/'), ('a', '4', '/9/')",
         "INSERT INTO SYSTEM VALUES ('GRUPPI_SCONTO_START', ' /Z/ ')"});
    const Class_DBOper& db = prova.DB;
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Utente("rossi"), u"/X/");
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Utente("ROSSI"), u"/X/");
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Utente("d''este"), u"/Y/");
    for (const char* login : {"verdi", "nessuno", "", "d'este"})
        EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Utente(login), QString()) << login;

    // One list behind the other; the names of groups count letter by letter.
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Gruppo("rossi", ""), u"/0//1/");
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Gruppo("", "/A/"), u"/0//1/");
    EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Gruppo("", "/B/"), QString());
    for (const char* login : {"verdi", "nessuno", "d'este"})
        EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Gruppo(login, "/A/"), QString()) << login;
    EXPECT_EQ(db.Restituisci_Sconto_Default(), u"/Z/");
}

class Catena : public testing::Test {
  protected:
    /// Factor and text of some keys, as "factor text".
    QString Calcola(const QString& chiavi, qint16 mercato = 1, float quantita = 1, float totale = 100,
                    QChar separatore = u'.') {
        Contesto c(separatore);
        QString descrizione = "prima";
        const float fattore =
            prova.DB.Restituisci_Sconto_Calcolato(c.sconto, chiavi, mercato, quantita, totale, descrizione);
        return QString::number(static_cast<double>(fattore), 'g', 6) + ' ' + descrizione;
    }

    Database_Di_Prova prova{
        {Crea_Tabella("Sconti", {"Key_Sconto", "Ordine", "Tipo_Sconto", "Sconto_Generale", "Sconto_Qta",
                                 "Sconto_Totale"}),
         "INSERT INTO Sconti VALUES "
         "('A', '1', 'I', '1/10', NULL, NULL), ('B', '2', 'I', '1/5', NULL, NULL), "
         "('C', '3', 'I', '1/2', NULL, NULL), ('ABC', '4', 'I', '1/10', '1/5/1/9', '1/2/50/100'), "
         "('Q', '5', 'I', NULL, '1/5/10/49', NULL), ('T', '6', 'I', NULL, NULL, '1/50/100/100'), "
         "('F', '7', 'F', '1/10', NULL, NULL), ('F', '8', 'I', '1/20', NULL, NULL), "
         "('f', '9', 'I', '1/30', NULL, NULL), ('X', '90', 'I', '1/x', NULL, NULL), "
         "('', '91', 'I', '1/1', NULL, NULL), (NULL, '92', 'I', '1/50', NULL, NULL), "
         "('M', '93', 'I', '1/2.5', NULL, NULL), ('N', '94', 'I', '1/-10', '1/0/0/9', NULL), "
         "('S', '96', 'I', '1/20', NULL, NULL), ('S', '95', 'I', '1/10', NULL, NULL), "
         "('CENTO', '97', 'I', '1/100', NULL, NULL)"}};
};

TEST_F(Catena, MultipliesInTheOrderOfTheKeys) {
    struct Caso {
        const char *chiavi, *atteso;
        float quantita, totale;
    };
    const Caso casi[] = {
        {"/A/B/C/", "0.829521 1+10+5+2", 1, 1},
        {"A/B/C", "0.8379 10+5+2", 1, 1},
        {"ABC", "0.8379 10+5+2", 5, 50},
        {"ABC", "0.855 10+5", 9, 49.9f},
        {"ABC", "0.9 10", 9.5f, 101},
        // Only a row with a general discount is described.
        {"Q", "0.95 0", 10, 1},
        {"Q", "0.95 0", 49, 1},
        {"Q", "0 0", 9.99f, 1},
        {"Q", "0 0", 49.01f, 1},
        {"T", "0.5 0", 1, 100},
        {"Q/A", "0.855 10", 10, 1},
        // "F" ends the rows of its key, and no other's; keys count letter by letter.
        {"F", "0.9 10", 1, 1},
        {"f", "0.7 30", 1, 1},
        {"F/A", "0.81 10+10", 1, 1},
        {"S", "0.72 10+20", 1, 1},
        // An empty token finds the rows with an empty key, not those without one.
        {"/", "0.99 1", 1, 1},
        {"/A/", "0.891 1+10", 1, 1},
        {"", "0 0", 1, 1},
        {"NIENTE", "0 0", 1, 1},
        {"N", "0 0", 1, 1},
        {"CENTO", "0 100", 1, 1},
        {"CENTO/A", "0.9 100+10", 1, 1},
        // What can't be read ends it.
        {"A/X/B", "0.9 10", 1, 1},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Calcola(caso.chiavi, 1, caso.quantita, caso.totale), caso.atteso) << caso.chiavi;
    }
    EXPECT_EQ(Calcola("A", 2), u"0 0");
}

TEST_F(Catena, ReadsPercentagesByTheLocale) {
    EXPECT_EQ(Calcola("M"), u"0.975 2.5");
    EXPECT_EQ(Calcola("M", 1, 1, 1, u','), u"0.75 25");
    EXPECT_EQ(Calcola("A/B", 1, 1, 1, u','), u"0.855 10+5");
}

TEST_F(Catena, WithoutTheTableThereIsNoDiscount) {
    Database_Di_Prova vuota({Crea_Tabella("SYSTEM", {"KEY", "VALORE"})});
    Contesto c;
    QString descrizione = "prima";
    EXPECT_EQ(vuota.DB.Restituisci_Sconto_Calcolato(c.sconto, "A", 1, 1, 1, descrizione), 0);
    EXPECT_EQ(descrizione, u"0");
}

}  // namespace

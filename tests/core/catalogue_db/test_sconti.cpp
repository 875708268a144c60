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
    // The string with "+" for its "|", the market, the percentage.
    for (
        const QStringList& riga : Righe(
            R"(1/10+2/20=1=10|1/10+2/20=2=20|1/10+2/20=3=0|=1=0|1/10+1/20=1=10|+1/10=1=10|x/9+1/10=1=10|1/7.5=1=7.5
|1/7,5=1=75|1/10/5/9=1=10|1,0/10=1=10|01/10=1=10|11/10=1=0|/10=0=10|1/-5=1=-5)"))
        EXPECT_EQ(c.sconto.Restituisci_ScontoGenerale_Mercato(QString(riga[0]).replace('+', '|'),
                                                              riga[1].toShort()),
                  riga[2].toFloat())
            << qPrintable(riga[0]);
    for (const char* testo : {"1", "1/", "1/x|1/10", "1/10 %"})
        EXPECT_ANY_THROW(c.sconto.Restituisci_ScontoGenerale_Mercato(testo, 1)) << testo;
    EXPECT_EQ(Contesto(u',').sconto.Restituisci_ScontoGenerale_Mercato("1/7.5", 1), 75.0f);
}

TEST(Sconto, StringOfRanges) {
    Contesto c;
    float minimo = -1, massimo = -2;
    const std::tuple<const char*, qint16, float, float, float> casi[] = {
        {"1/5/10/49", 3, 0, -1, -2},
        {"1/5/10/49|2/8/50/99", 2, 8, 50, 99},
        {"1/5/1,5/2.5", 1, 5, 1.5f, 2.5f},
        {"1/5", 1, 5, 0, 0}};
    for (const auto& [testo, mercato, atteso, minimo_atteso, massimo_atteso] : casi) {
        EXPECT_EQ(c.sconto.Restituisci_ScontoRange_Mercato(testo, mercato, minimo, massimo), atteso) << testo;
        EXPECT_EQ(minimo, minimo_atteso) << testo;
        EXPECT_EQ(massimo, massimo_atteso) << testo;
    }
    minimo = 7;
    EXPECT_ANY_THROW(c.sconto.Restituisci_ScontoRange_Mercato("1//1/2", 1, minimo, massimo));
    EXPECT_EQ(minimo, 7);
}

TEST(Sconto, KeysOfAUser) {
    Database_Di_Prova prova(
        Tabella("Anagrafico", "Login Key_Gruppo Key_Sconto",
                "('rossi', '/B/A/', '/X/'), ('verdi', NULL, NULL), ('d''este', '/A/', '/Y/')") +
        Tabella("Gruppi_Utenti", "Key_Gruppo Ordine Key_Sconto",
                "('A', '2', '/1/'), ('B', '3', NULL), ('A', '1', '/0/'), ('a', '4', '/9/')") +
        Tabella("SYSTEM", "KEY VALORE", "('GRUPPI_SCONTO_START', ' /Z/ ')"));
    const Class_DBOper& db = prova.DB;
    for (const QStringList& riga : Righe("rossi=/X/|ROSSI=/X/|d''este=/Y/|verdi=|nessuno=|=|d'este="))
        EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Utente(riga[0]), riga[1]) << qPrintable(riga[0]);
    // One list behind the other; the names of groups count letter by letter.
    for (const QStringList& riga :
         Righe("rossi==/0//1/|=/A/=/0//1/|=/B/=|verdi=/A/=|nessuno=/A/=|d'este=/A/="))
        EXPECT_EQ(db.Restituisci_Sconto_Appartenneza_Gruppo(riga[0], riga[1]), riga[2])
            << qPrintable(riga.join(' '));
    EXPECT_EQ(db.Restituisci_Sconto_Default(), "/Z/");
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
        Tabella("Sconti", "Key_Sconto Ordine Tipo_Sconto Sconto_Generale Sconto_Qta Sconto_Totale", R"(
            ('A', '1', 'I', '1/10', NULL, NULL), ('B', '2', 'I', '1/5', NULL, NULL), ('C', '3', 'I', '1/2', NULL, NULL),
            ('ABC', '4', 'I', '1/10', '1/5/1/9', '1/2/50/100'), ('Q', '5', 'I', NULL, '1/5/10/49', NULL),
            ('T', '6', 'I', NULL, NULL, '1/50/100/100'), ('F', '7', 'F', '1/10', NULL, NULL),
            ('F', '8', 'I', '1/20', NULL, NULL), ('f', '9', 'I', '1/30', NULL, NULL), ('X', '90', 'I', '1/x', NULL, NULL),
            ('', '91', 'I', '1/1', NULL, NULL), (NULL, '92', 'I', '1/50', NULL, NULL), ('M', '93', 'I', '1/2.5', NULL, NULL),
            ('N', '94', 'I', '1/-10', '1/0/0/9', NULL), ('S', '96', 'I', '1/20', NULL, NULL),
            ('S', '95', 'I', '1/10', NULL, NULL), ('CENTO', '97', 'I', '1/100', NULL, NULL))")};
};

TEST_F(Catena, MultipliesInTheOrderOfTheKeys) {
    // Keys, factor and text, and quantity and total where they aren't 1. Only a row with a general discount
    // is described. "F" ends the rows of its key, and no other's; keys count letter by letter. An empty token
    // finds the rows with an empty key, not those without one. What can't be read ends it.
    for (const QStringList& riga :
         Righe(R"(/A/B/C/=0.829521 1+10+5+2|A/B/C=0.8379 10+5+2|ABC=0.8379 10+5+2=5=50
|ABC=0.855 10+5=9=49.9|ABC=0.9 10=9.5=101|Q=0.95 0=10|Q=0.95 0=49|Q=0 0=9.99|Q=0 0=49.01|T=0.5 0=1=100|Q/A=0.855 10=10
|F=0.9 10|f=0.7 30|F/A=0.81 10+10|S=0.72 10+20|/=0.99 1|/A/=0.891 1+10|=0 0|NIENTE=0 0|N=0 0|CENTO=0 100
|CENTO/A=0.9 100+10|A/X/B=0.9 10)"))
        EXPECT_EQ(Calcola(riga[0], 1, riga.value(2, "1").toFloat(), riga.value(3, "1").toFloat()), riga[1])
            << qPrintable(riga.join(' '));
    EXPECT_EQ(Calcola("A", 2), u"0 0");
}

TEST_F(Catena, ReadsPercentagesByTheLocale) {
    EXPECT_EQ(Calcola("M"), u"0.975 2.5");
    EXPECT_EQ(Calcola("M", 1, 1, 1, u','), u"0.75 25");
    EXPECT_EQ(Calcola("A/B", 1, 1, 1, u','), u"0.855 10+5");
}

TEST_F(Catena, WithoutTheTableThereIsNoDiscount) {
    Database_Di_Prova vuota(Tabella("SYSTEM", "KEY VALORE"));
    Contesto c;
    QString descrizione = "prima";
    EXPECT_EQ(vuota.DB.Restituisci_Sconto_Calcolato(c.sconto, "A", 1, 1, 1, descrizione), 0);
    EXPECT_EQ(descrizione, u"0");
}

}  // namespace

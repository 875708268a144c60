#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/base/numeri.h"
#include "core/base/testo.h"
#include "support/fakes.h"

namespace {

class Numeri_Test : public testing::Test {
  protected:
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
};

TEST_F(Numeri_Test, ConvertsWithEitherSeparatorUnderEveryLocale) {
    struct Caso {
        const char* testo;
        float atteso;
    };
    const Caso casi[] = {
        {"", 0},
        {".", 0},
        {",", 0},
        {"-", 0},
        {"abc", 0},
        {"0", 0},
        {"7", 7},
        {"007", 7},
        {"1,5", 1.5f},
        {"1.5", 1.5f},
        {".5", 0.5f},
        {"5,", 5},
        {"-2,25", -2.25f},
        {"-,5", -0.5f},
        {"1.234,5", 1.2345f},
        {"1,2,3", 1.23f},
        {"+3", -3},
        {" +3", 3},
        {" -3", 3},
        {"12abc34", 12},
        {"abc34", 34},
        {"12 34", 12},
        {"12abc.5", 12},
        {"1-2", 12},
        {"5E2", 500},
        {"5e2", 5},
        {"5E+2", 500},
        {"5E-2", 0.05f},
        {"1,5E1", 15},
        {"12abc34E1", 120},
        {"5E2x9", 500},
        {"5E", 5},
        {"5Ex2", 5},
        {"1-2E3", 0.012f},
        {"2E1.5", 2e15f},
        {"E", 0},
        {"EUR 12,50", 0},
        {"ca. 12", 0.12f},
        {"$ 12,50", 12.5f},
        {"0.1", 0.1f},
        {"16777217", 16777216},
        {"1E-60", 0},
        {"3.4E38", 3.4e38f},
        {"-3.4E38", -3.4e38f},
    };
    for (const QChar separatore : {u',', u'.'}) {
        sistema.Separatore = separatore;
        const Numeri altri(sistema, messaggi);
        for (const Caso& caso : casi)
            EXPECT_FLOAT_EQ(altri.Converti_Numero(QString::fromUtf8(caso.testo)), caso.atteso)
                << '"' << caso.testo << '"';
    }
    EXPECT_EQ(numeri.Converti_Numero(FINE_TOKEN), 0);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Numeri_Test, TellsOfWhatCantBeConverted) {
    const QString intestazione = QStringLiteral("Errore durante la conversione dei numeri ");
    struct Caso {
        QString testo;
        const char* descrizione;
    };
    const Caso casi[] = {
        {u"1E39"_qs, "Overflow"},      {u"-1E39"_qs, "Overflow"},       {u"1E999"_qs, "Overflow"},
        {u"1E99999"_qs, "Overflow"},   {QString(60, u'9'), "Overflow"}, {QString(500, u'9'), "Overflow"},
        {u"n.d."_qs, "Type mismatch"}, {u"-."_qs, "Type mismatch"},     {u"E5"_qs, "Type mismatch"},
    };
    for (const Caso& caso : casi) {
        messaggi.Mostrati.clear();
        EXPECT_EQ(numeri.Converti_Numero(caso.testo), 0) << caso.testo.toStdString();
        ASSERT_EQ(messaggi.Testi(), QStringList{intestazione + QString::fromLatin1(caso.descrizione)})
            << caso.testo.toStdString();
    }
}

TEST_F(Numeri_Test, WritesNumbersForStatements) {
    const std::pair<const char*, const char*> casi[] = {
        {"", "0"},
        {".", "0"},
        {",", "0"},
        {"-", "0"},
        {"abc", "0"},
        {"n.d.", "0"},
        {"1,5", "1.5"},
        {"1.5", "1.5"},
        {"1.234,5", "1.2345"},
        {"-2,5", "-2.5"},
        {"+3", "-3"},
        {"12abc34", "12"},
        {"5E2", "500"},
        {"1,5E3", "1500"},
        {"5E-1", "0.5"},
        {"E5", "0"},
        {"1E999", "0"},
        {"1'; DROP", "1"},
        {"123456789012", "123456789012"},
    };
    for (const auto& [testo, atteso] : casi)
        EXPECT_EQ(numeri.Numero_Per_SQL(QString::fromUtf8(testo)), QString::fromUtf8(atteso)) << testo;
    EXPECT_EQ(numeri.Numero_Per_SQL(FINE_TOKEN), u"0"_qs);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Numeri_Test, AsksTheSeparatorOnce) {
    EXPECT_EQ(numeri.Restituisci_Separatore_Decimale(), u',');
    sistema.Separatore = u'.';
    EXPECT_EQ(numeri.Restituisci_Separatore_Decimale(), u',');
}

TEST_F(Numeri_Test, FormatsWithAMask) {
    struct Caso {
        const char* testo;
        const char* maschera;
        const char* atteso;
    };
    const Caso casi[] = {
        {"", "0.00", ""},
        {"0", "0.00", "0,00"},
        {"5", "0.00", "5,00"},
        {"5", "0", "5"},
        {"1234567.895", "0.00", "1234567,90"},
        {"1234567,895", "0.00", "1234567,90"},
        {"12345678901234567890.125", "0.00", "12345678901234567890,13"},
        {"0.125", "0.00", "0,13"},
        {"-0.125", "0.00", "-0,13"},
        {"0.1249999999999999999", "0.00", "0,12"},
        {"1.005", "0.00", "1,01"},
        {"2.5", "0", "3"},
        {"-2.5", "0", "-3"},
        {"0.5", "0", "1"},
        {"0.49", "0", "0"},
        {"-0.001", "0.00", "0,00"},
        {"9.999", "0.00", "10,00"},
        {"999.5", "0", "1000"},
        {"0.006", "0.00", "0,01"},
        {".5", "0.00", "0,50"},
        {"5.", "0.00", "5,00"},
        {"+5", "0.0", "5,0"},
        {" 5 ", "0.0", "5,0"},
        {"007", "0", "7"},
        {"1.5E3", "0.00", "1500,00"},
        {"1.5e+03", "0.00", "1500,00"},
        {"6E-3", "0.00", "0,01"},
        {"5E-3", "0.00", "0,01"},
        {"4E-3", "0.00", "0,00"},
        {"9E-999", "0.00", "0,00"},
        {"1.5", "#0", "2"},
        {"0", "#0", "0"},
        {"0", "#0.00", "0,00"},
        {"12.345", "#0.00", "12,35"},
        {"12", "###", "12"},
        {"1234", "###", "1234"},
        {"007", "###", "7"},
        {"0", "###", ""},
        {"0.4", "###", ""},
        {"-3", "###", "-3"},
        {"7", "000", "007"},
        {"1.5", "0.0##", "1,5"},
        {"12A", "###", "12A"},
        {"A12", "###", "A12"},
        {"12-3", "###", "12-3"},
        {"1.234,50", "0.00", "1.234,50"},
        {"1 234", "0.00", "1 234"},
        {".", "0.00", "."},
        {"-", "0.00", "-"},
        {"E5", "0.00", "E5"},
        {"1E", "0.00", "1E"},
        {"1E+", "0.00", "1E+"},
        {"1E5x", "0.00", "1E5x"},
        {"1E999", "0.00", "1E999"},
        {"1E99999999999", "0.00", "1E99999999999"},
        {"  ", "0.00", "  "},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(numeri.Formatta(QString::fromUtf8(caso.testo), QString::fromUtf8(caso.maschera)),
                  QString::fromUtf8(caso.atteso))
            << '"' << caso.testo << "\" with " << caso.maschera;

    sistema.Separatore = u'.';
    EXPECT_EQ(Numeri(sistema, messaggi).Formatta(u"3,5"_qs, u"0.00"), u"3.50"_qs);
}

TEST_F(Numeri_Test, ReadsBackWhatItFormatted) {
    for (const char* testo : {"0.125", "12,30", "-7.005", "99999.995"}) {
        const QString cella = numeri.Formatta(QString::fromUtf8(testo), Formato_Decimali(2));
        EXPECT_NEAR(numeri.Converti_Numero(cella), numeri.Converti_Numero(QString::fromUtf8(testo)), 0.0101)
            << testo;
    }
}

}  // namespace

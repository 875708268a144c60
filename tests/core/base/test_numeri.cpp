#include <gmock/gmock.h>

#include <limits>

#include "core/base/numeri.h"
#include "core/base/testo.h"
#include "righe.h"
#include "support/fakes.h"

namespace {

class Numeri_Test : public testing::Test {
  protected:
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
};

TEST_F(Numeri_Test, ConvertsByTheLocaleAlone) {
    // The text, its number where the separator is "," and where it is "."; "!" fails.
    const auto righe =
        Righe(R"(7=7=7| -7 =-7=-7|+7=7=7|2,5=2.5=25|2.5=25=2.5|1.234,5=1234.5=!|1,234.5=!=1234.5
|5,=5=5|1E2=100=100|1e-2=0.01=0.01|=!=!|-=!=!|,=!=!|1E=!=!|E5=!=!|dieci=!=!|10 %=!=!|٣=3=3|inf=!=!|1E40=!=!)");
    for (const int colonna : {1, 2}) {
        Sistema_Finto altro;
        altro.Separatore = colonna == 1 ? u',' : u'.';
        const Numeri n(altro, messaggi);
        for (const QStringList& riga : righe) {
            if (riga[colonna] == "!")
                EXPECT_ANY_THROW(n.Conversione_Semplice(riga[0])) << qPrintable(riga[0]);
            else
                EXPECT_EQ(n.Conversione_Semplice(riga[0]), riga[colonna].toFloat()) << qPrintable(riga[0]);
        }
    }
}

TEST_F(Numeri_Test, WritesSinglesInTheirSevenDigits) {
    const std::pair<float, const char*> casi[] = {
        {0.0f, "0"},      {2.5f, "2,5"},        {-10.4f, "-10,4"},
        {0.1f, "0,1"},    {1e9f, "1000000000"}, {16777216.0f, "16777216"},
        {1e20f, "1E+20"}, {1e-9f, "1E-09"},     {100.0f, "100"}};
    EXPECT_EQ(numeri.Testo(2.3f * 3), u"6,9");  // 6.8999996 in single precision
    for (const auto& [numero, testo] : casi) {
        EXPECT_EQ(numeri.Testo(numero), testo);
        EXPECT_EQ(numeri.Converti_Numero(numeri.Testo(numero)), numero) << testo;
    }
    EXPECT_EQ(numeri.Formatta(1.005f, u"0.00"), u"1,01");
    EXPECT_THROW(numeri.Formatta(std::numeric_limits<float>::infinity(), u"0"), std::overflow_error);
}

TEST_F(Numeri_Test, RoundsToWholeNumbersHalvesToTheEvenOne) {
    for (const auto& [numero, intero] :
         {std::pair(2.5f, 2), {3.5f, 4}, {-2.5f, -2}, {7.49f, 7}, {32767.0f, 32767}})
        EXPECT_EQ(Numeri::In_Intero<qint16>(numero), intero);
    EXPECT_THROW(Numeri::In_Intero<qint16>(32768.0f), std::overflow_error);
    EXPECT_THROW(Numeri::In_Intero<qint32>(std::numeric_limits<float>::quiet_NaN()), std::overflow_error);
}

TEST_F(Numeri_Test, ConvertsWithEitherSeparatorUnderEveryLocale) {
    const auto righe =
        Righe(R"(=0|.=0|,=0|-=0|abc=0|0=0|7=7|007=7|1,5=1.5|1.5=1.5|.5=0.5|5,=5|-2,25=-2.25|-,5=-0.5
|1.234,5=1.2345|1,2,3=1.23|+3=-3| +3=3| -3=3|12abc34=12|abc34=34|12 34=12|12abc.5=12|1-2=12
|5E2=500|5e2=5|5E+2=500|5E-2=0.05|1,5E1=15|12abc34E1=120|5E2x9=500|5E=5|5Ex2=5|1-2E3=0.012|2E1.5=2e15|E=0
|EUR 12,50=0|ca. 12=0.12|$ 12,50=12.5|0.1=0.1|16777217=16777216|1E-60=0|3.4E38=3.4e38|-3.4E38=-3.4e38)");
    for (const QChar separatore : {u',', u'.'}) {
        sistema.Separatore = separatore;
        const Numeri altri(sistema, messaggi);
        for (const QStringList& riga : righe)
            EXPECT_FLOAT_EQ(altri.Converti_Numero(riga[0]), riga[1].toFloat()) << qPrintable(riga[0]);
    }
    EXPECT_EQ(numeri.Converti_Numero(FINE_TOKEN), 0);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Numeri_Test, ReadsDigitsAndSeparatorsOfAnyAlphabet) {
    for (const char* nome : {"ar_EG", "fa_IR", "de_CH", "it_IT"}) {
        const QLocale locale(nome);
        for (const QChar separatore : {locale.decimalPoint().front(), Separatore_Per_Cifre_Latine(locale)}) {
            sistema.Separatore = separatore;
            const Numeri altri(sistema, messaggi);
            const QString scritto = altri.Formatta(300.26f, u"0.00");
            EXPECT_EQ(scritto, QString("300%1").arg(separatore) + "26") << nome;
            EXPECT_EQ(altri.Converti_Numero(scritto), 300.26f) << nome;
            EXPECT_EQ(altri.Converti_Numero(locale.toString(12.5)), 12.5f) << nome;
            EXPECT_EQ(altri.Numero_Per_SQL(locale.toString(12.5)), "12.5") << nome;
            EXPECT_EQ(altri.Conversione_Semplice(scritto), 300.26f) << nome;
        }
    }
    sistema.Separatore = u'٫';
    EXPECT_EQ(Numeri(sistema, messaggi).Conversione_Semplice("10.5"), 10.5f);
}

TEST_F(Numeri_Test, TellsOfWhatCantBeConverted) {
    const std::pair<QString, const char*> casi[] = {
        {"1E39", "Overflow"},      {"1E99999", "Overflow"}, {QString(500, u'9'), "Overflow"},
        {"n.d.", "Type mismatch"}, {"-.", "Type mismatch"}, {"E5", "Type mismatch"}};
    for (const auto& [testo, descrizione] : casi) {
        messaggi.Mostrati.clear();
        EXPECT_EQ(numeri.Converti_Numero(testo), 0) << qPrintable(testo);
        EXPECT_EQ(messaggi.Testi(),
                  QStringList(QString("Errore durante la conversione dei numeri ") + descrizione))
            << qPrintable(testo);
    }
}

TEST_F(Numeri_Test, WritesNumbersForStatements) {
    for (const QStringList& riga : Righe(
             R"(=0|.=0|,=0|-=0|abc=0|n.d.=0|1,5=1.5|1.5=1.5|1.234,5=1.2345|-2,5=-2.5|+3=-3|12abc34=12|5E2=500
|1,5E3=1500|5E-1=0.5|E5=0|1E999=0|1'; DROP=1|123456789012=123456789012)"))
        EXPECT_EQ(numeri.Numero_Per_SQL(riga[0]), riga[1]) << qPrintable(riga[0]);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Numeri_Test, FormatsWithAMask) {
    const std::pair<const char*, const char*> maschere[] = {
        {"0.00", R"(=|0=0,00|5=5,00|1234567.895=1234567,90|1234567,895=1234567,90
|12345678901234567890.125=12345678901234567890,13|0.125=0,13|-0.125=-0,13|0.1249999999999999999=0,12|1.005=1,01
|-0.001=0,00|9.999=10,00|0.006=0,01|.5=0,50|5.=5,00|1.5E3=1500,00|1.5e+03=1500,00|6E-3=0,01|5E-3=0,01|4E-3=0,00
|9E-999=0,00|1.234,50=1.234,50|1 234=1 234|.=.|-=-|E5=E5|1E=1E|1E+=1E+|1E5x=1E5x|1E999=1E999
|1E99999999999=1E99999999999|  =  )"},
        {"0", "5=5|2.5=3|-2.5=-3|0.5=1|0.49=0|999.5=1000|007=7"},
        {"0.0", "+5=5,0| 5 =5,0"},
        {"#0", "1.5=2|0=0"},
        {"#0.00", "0=0,00|12.345=12,35"},
        {"###", "12=12|1234=1234|007=7|0=|0.4=|-3=-3|12A=12A|A12=A12|12-3=12-3"},
        {"000", "7=007"},
        {"0.0##", "1.5=1,5"}};
    for (const auto& [maschera, tabella] : maschere)
        for (const QStringList& riga : Righe(tabella))
            EXPECT_EQ(numeri.Formatta(riga[0], QString(maschera)), riga[1])
                << '"' << qPrintable(riga[0]) << "\" with " << maschera;

    sistema.Separatore = u'.';
    EXPECT_EQ(Numeri(sistema, messaggi).Formatta("3,5", u"0.00"), "3.50");
}

}  // namespace

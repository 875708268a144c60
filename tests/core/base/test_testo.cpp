#include <gtest/gtest.h>

#include "core/base/testo.h"
#include "righe.h"

namespace {

TEST(Testo, TokensOfAText) {
    struct Caso {
        const char *testo, *separatore;
        QStringList token;
    };
    const Caso casi[] = {{"", "/", {}},
                         {"   ", "/", {}},
                         {"/a/b/", "/", {"", "a", "b"}},
                         {"a//b", "/", {"a", "", "b"}},
                         {"//", "/", {"", ""}},
                         {"  a / b  ", "/", {"a ", " b"}},
                         {"CODICI#$#12#$#x", "#$#", {"CODICI", "12", "x"}},
                         {"aXbxc", "x", {"aXb", "c"}},
                         {"abc", "", {"abc"}}};
    for (const auto& [testo, separatore, token] : casi) {
        EXPECT_EQ(Token(QString(testo), QString(separatore)), token) << testo;
        for (int n = -1; n <= token.size() + 2; ++n)
            EXPECT_EQ(Estrai_Token(QString(testo), n, QString(separatore)),
                      n >= 1 && n <= token.size() ? token[n - 1] : FINE_TOKEN)
                << testo << " token " << n;
    }
    EXPECT_EQ(Estrai_Token_Barra(u"a/b", 2), "b");
}

TEST(Testo, TrimTakesBlanksOnly) {
    EXPECT_EQ(Trim(u"  a b \r\n"), "a b \r\n");
    EXPECT_EQ(Trim(u"\ta "), "\ta");
}

TEST(Testo, DoublesQuotesInPlace) {
    const std::pair<const char*, const char*> casi[] = {
        {"", ""}, {"olio", "olio"}, {"l'olio", "l''olio"}, {"''", "''''"}, {"'a'", "''a''"}};
    for (const auto& [testo, atteso] : casi) {
        QString stesso = testo;
        EXPECT_EQ(Apici_Raddoppiati(stesso), atteso);
        EXPECT_EQ(stesso, atteso);
        EXPECT_EQ(Con_Apici_Raddoppiati(testo), atteso);
    }
}

TEST(Testo, NodesAndHotspots) {
    for (
        const QStringList& riga : Righe(
            R"(PRODOTTO#$#P_1=P_1=4|SOTTO_PRODOTTO#$#P_1##7=P_1##7=5|CODICI#$#A-1#$#x=A-1=1|ASSOCIAZIONE#$#9=9=2
|prodotto#$#P_1=P_1=0|ALTRO#$#P_1=P_1=0|G_1##P_2=P_2=4|P_1=P_1=0|==0)")) {
        EXPECT_EQ(Key_Da_Nodo(riga[0]), riga[1]) << qPrintable(riga[0]);
        EXPECT_EQ(Tipo_Nodo(riga[0]), riga[2].toInt()) << qPrintable(riga[0]);
    }
    EXPECT_EQ(Key_Da_Nodo("CODICI#$#"), FINE_TOKEN);
    for (const auto& [key, prodotto] :
         {std::pair("P_1", true), {"X_1", true}, {"p_1", false}, {"G_P_1", false}, {"R", false}})
        EXPECT_EQ(E_Prodotto(key), prodotto) << key;
}

TEST(Testo, MaskForDecimals) {
    for (const auto& [decimali, maschera] : {std::pair(-1, "#0"), {0, "#0"}, {3, "#0.000"}})
        EXPECT_EQ(Formato_Decimali(decimali), maschera);
}

TEST(Testo, FitsAPictureIntoABox) {
    struct Caso {
        double w, h, scala, larghezza, altezza;
    };
    // The box is 3750 x 3000.
    const Caso casi[] = {{400, 100, 1, 3750, 937.5}, {100, 400, 1, 750, 3000},   {375, 300, 1, 3750, 3000},
                         {10, 8, 2, 7500, 6000},     {100, 400, 0.5, 375, 1500}, {0, 100, 2, 3750, 3000}};
    for (const Caso& caso : casi) {
        double larghezza = 3750, altezza = 3000;
        Adatta_Immagine(caso.w, caso.h, larghezza, altezza, caso.scala);
        EXPECT_DOUBLE_EQ(larghezza, caso.larghezza) << caso.w << " x " << caso.h;
        EXPECT_DOUBLE_EQ(altezza, caso.altezza) << caso.w << " x " << caso.h;
    }
}

}  // namespace

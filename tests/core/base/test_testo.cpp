#include <gtest/gtest.h>

#include "core/base/testo.h"

namespace {

TEST(Testo, TokensOfAText) {
    struct Caso {
        QString testo;
        QString separatore;
        QStringList token;
    };
    const Caso casi[] = {
        {u""_qs, u"/"_qs, {}},
        {u"   "_qs, u"/"_qs, {}},
        {u"a"_qs, u"/"_qs, {u"a"_qs}},
        {u"/a/b/"_qs, u"/"_qs, {u""_qs, u"a"_qs, u"b"_qs}},
        {u"a//b"_qs, u"/"_qs, {u"a"_qs, u""_qs, u"b"_qs}},
        {u"/"_qs, u"/"_qs, {u""_qs}},
        {u"//"_qs, u"/"_qs, {u""_qs, u""_qs}},
        {u"  a / b  "_qs, u"/"_qs, {u"a "_qs, u" b"_qs}},
        {u"a\r\n"_qs, u"/"_qs, {u"a\r\n"_qs}},
        {u"CODICI#$#12#$#x"_qs, u"#$#"_qs, {u"CODICI"_qs, u"12"_qs, u"x"_qs}},
        {u"aaa"_qs, u"aa"_qs, {u""_qs, u"a"_qs}},
        {u"a|b"_qs, u"/"_qs, {u"a|b"_qs}},
        {u"aXbxc"_qs, u"x"_qs, {u"aXb"_qs, u"c"_qs}},
        {u"abc"_qs, u""_qs, {u"abc"_qs}},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Token(caso.testo, caso.separatore), caso.token) << caso.testo.toStdString();
        for (int n = -1; n <= caso.token.size() + 2; ++n) {
            const bool esiste = n >= 1 && n <= caso.token.size();
            EXPECT_EQ(Estrai_Token(caso.testo, n, caso.separatore), esiste ? caso.token[n - 1] : FINE_TOKEN)
                << caso.testo.toStdString() << " token " << n;
        }
    }
}

TEST(Testo, TheMarkerIsNeitherEmptyNorAToken) {
    EXPECT_EQ(FINE_TOKEN.size(), 1);
    EXPECT_EQ(FINE_TOKEN[0], QChar(0));
    EXPECT_NE(Estrai_Token_Barra(u"a//b", 2), FINE_TOKEN);
    EXPECT_EQ(Estrai_Token_Barra(u"a/b", 2), u"b"_qs);
}

TEST(Testo, TrimTakesBlanksOnly) {
    EXPECT_EQ(Trim(u"  a b \r\n"), u"a b \r\n"_qs);
    EXPECT_EQ(Trim(u"\ta "), u"\ta"_qs);
    EXPECT_EQ(Trim(u"  "), u""_qs);
}

TEST(Testo, DoublesQuotesInPlace) {
    const std::pair<QString, QString> casi[] = {{u""_qs, u""_qs},
                                                {u"olio"_qs, u"olio"_qs},
                                                {u"l'olio"_qs, u"l''olio"_qs},
                                                {u"''"_qs, u"''''"_qs},
                                                {u"'a'"_qs, u"''a''"_qs}};
    for (const auto& [testo, atteso] : casi) {
        QString stesso = testo;
        EXPECT_EQ(Apici_Raddoppiati(stesso), atteso);
        EXPECT_EQ(stesso, atteso);
        EXPECT_EQ(Con_Apici_Raddoppiati(testo), atteso);
    }
}

TEST(Testo, NodesAndHotspots) {
    struct Caso {
        QString key;
        QString valore;
        int tipo;
    };
    const Caso casi[] = {
        {u"PRODOTTO#$#P_1"_qs, u"P_1"_qs, 4},
        {u"SOTTO_PRODOTTO#$#P_1##7"_qs, u"P_1##7"_qs, 5},
        {u"CODICI#$#A-1#$#x"_qs, u"A-1"_qs, 1},
        {u"ASSOCIAZIONE#$#9"_qs, u"9"_qs, 2},
        {u"prodotto#$#P_1"_qs, u"P_1"_qs, 0},
        {u"ALTRO#$#P_1"_qs, u"P_1"_qs, 0},
        {u"G_1##P_2"_qs, u"P_2"_qs, 4},
        {u"P_1"_qs, u"P_1"_qs, 0},
        {u""_qs, u""_qs, 0},
        {u"CODICI#$#"_qs, FINE_TOKEN, 1},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Key_Da_Nodo(caso.key), caso.valore) << caso.key.toStdString();
        EXPECT_EQ(Tipo_Nodo(caso.key), caso.tipo) << caso.key.toStdString();
    }
    EXPECT_TRUE(E_Prodotto(u"P_1"_qs));
    EXPECT_TRUE(E_Prodotto(u"X_1"_qs));
    EXPECT_FALSE(E_Prodotto(u"p_1"_qs));
    EXPECT_FALSE(E_Prodotto(u"G_P_1"_qs));
    EXPECT_FALSE(E_Prodotto(u"R"_qs));
}

TEST(Testo, MaskForDecimals) {
    EXPECT_EQ(Formato_Decimali(-1), u"#0"_qs);
    EXPECT_EQ(Formato_Decimali(0), u"#0"_qs);
    EXPECT_EQ(Formato_Decimali(3), u"#0.000"_qs);
}

TEST(Testo, FitsAPictureIntoABox) {
    struct Caso {
        double w, h, scala, larghezza, altezza;
    };
    // The box is 3750 x 3000.
    const Caso casi[] = {{400, 100, 1, 3750, 937.5}, {100, 400, 1, 750, 3000},   {375, 300, 1, 3750, 3000},
                         {10, 8, 2, 7500, 6000},     {100, 400, 0.5, 375, 1500}, {0, 100, 2, 3750, 3000}};
    for (const Caso& caso : casi) {
        double larghezza = 3750;
        double altezza = 3000;
        Adatta_Immagine(caso.w, caso.h, larghezza, altezza, caso.scala);
        EXPECT_DOUBLE_EQ(larghezza, caso.larghezza) << caso.w << " x " << caso.h;
        EXPECT_DOUBLE_EQ(altezza, caso.altezza) << caso.w << " x " << caso.h;
    }
}

}  // namespace

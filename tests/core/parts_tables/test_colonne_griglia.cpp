#include <gmock/gmock.h>

#include "core/parts_tables/distinta.h"
#include "support/fakes.h"

namespace {

class Colonne : public testing::Test {
  protected:
    void Imposta(const std::vector<Colonna_Griglia>& colonne) {
        Imposta_Colonne_Griglia(colonne, numeri, griglia);
    }
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Griglia griglia;
};

TEST_F(Colonne, WidthAndAlignmentGoByTheKind) {
    using enum Allineamento;
    struct Caso {
        QString tipo, size;
        int caratteri;
        Allineamento allineamento;
    };
    const Caso casi[] = {
        {u"Number"_qs, u"3"_qs, 10, Destra},        {u"Price"_qs, u"2"_qs, 10, Destra},
        {u"Price_Totale"_qs, u"12"_qs, 12, Destra}, {u"Discount"_qs, u"7"_qs, 7, Destra},
        {u"Document"_qs, u"50"_qs, 5, Centro},      {u"Image"_qs, u""_qs, 5, Centro},
        {u"Riferimento"_qs, u"6"_qs, 6, Centro},    {u"Aggiungi"_qs, u"6"_qs, 6, Sinistra},
        {u"Elimina"_qs, u"50"_qs, 5, Sinistra},     {u"Prodotto"_qs, u"40"_qs, 40, Sinistra},
        {u"Qta"_qs, u"50"_qs, 10, Sinistra},        {u"Quantity"_qs, u"50"_qs, 10, Sinistra},
        {u"Dett_Codice"_qs, u"0"_qs, 10, Sinistra}, {u"Testo"_qs, u"40"_qs, 40, Sinistra},
        {u"Memo"_qs, u"1,5E1"_qs, 15, Sinistra},    {u"number"_qs, u"30"_qs, 30, Sinistra},
    };
    // A column of ten characters beside it gives the scale: with these widths one character is 100 twips.
    for (const Caso& caso : casi) {
        griglia.Width = 300 + (caso.caratteri + 10) * 100;
        Imposta({{u""_qs, u""_qs, caso.tipo, caso.size}, {u""_qs, u""_qs, u"Number"_qs, u""_qs}});
        EXPECT_EQ(griglia.ColWidth(0), caso.caratteri * 100) << qPrintable(caso.tipo);
        EXPECT_EQ(griglia.ColWidth(1), 1000) << qPrintable(caso.tipo);
        EXPECT_EQ(griglia.ColAlignment(0), caso.allineamento) << qPrintable(caso.tipo);
    }
}

TEST_F(Colonne, AColumnOfNotesNarrowsWideTexts) {
    griglia.Width = 300 + 6 * 25 * 100;
    Imposta({{u""_qs, u""_qs, u"Note"_qs, u"99"_qs},
             {u""_qs, u""_qs, u"Testo"_qs, u"26"_qs},
             {u""_qs, u""_qs, u"Testo"_qs, u"100"_qs},
             {u""_qs, u""_qs, u"Testo"_qs, u"25"_qs},
             {u""_qs, u""_qs, u"Prodotto"_qs, u"50"_qs}});
    EXPECT_EQ(griglia.ColWidth(0), 2500);
    EXPECT_EQ(griglia.ColWidth(1), 2500);
    EXPECT_EQ(griglia.ColWidth(2), 2500);
    EXPECT_EQ(griglia.ColWidth(3), 2500);
    EXPECT_EQ(griglia.ColWidth(4), 5000) << "other kinds aren't narrowed";
}

TEST_F(Colonne, HeadersAreTextsOrPicturesAndWidenTheirColumn) {
    griglia.Cols(3);
    griglia.TextMatrix(1, 2, u"riga"_qs);
    griglia.At(0, 2).Picture = u"vecchia.bmp"_qs;
    griglia.Width = 300 + 4500;
    Imposta({{u"IMMAGINE##||##Riferimenti.GIF"_qs, u""_qs, u"Riferimento"_qs, u"5"_qs},
             {u"IMMAGINE##||##"_qs, u""_qs, u"Aggiungi"_qs, u"5"_qs},
             {u"Un titolo di ventinove lettere e sei"_qs.first(35), u""_qs, u"Testo"_qs, u"-4"_qs}});
    EXPECT_EQ(griglia.At(0, 0).Text, QString());
    EXPECT_EQ(griglia.At(0, 0).Picture, u"Riferimenti.GIF");
    EXPECT_EQ(griglia.At(0, 0).PictureAlignment, Allineamento::Centro);
    EXPECT_EQ(griglia.At(0, 1).Picture, QString());
    EXPECT_EQ(griglia.At(0, 2).Text.size(), 35);
    EXPECT_EQ(griglia.At(0, 2).Picture, QString());
    EXPECT_EQ(griglia.ColWidth(0), 500);
    EXPECT_EQ(griglia.ColWidth(2), 3500);
    EXPECT_EQ(griglia.TextMatrix(1, 2), u"riga");
}

TEST_F(Colonne, WidthsFillTheGrid) {
    for (const int larghezza : {9000, 12345, 301, 300, 100}) {
        griglia.Width = larghezza;
        griglia.Larghezza_Spazio = 43.7;
        Imposta({{u"a"_qs, u""_qs, u"Testo"_qs, u"17"_qs},
                 {u"b"_qs, u""_qs, u"Testo"_qs, u"1E30"_qs},
                 {u"c"_qs, u""_qs, u"Price"_qs, u"2"_qs}});
        int somma = 0;
        for (int c = 0; c < 3; ++c)
            somma += griglia.ColWidth(c);
        EXPECT_NEAR(somma, std::max(larghezza - 300, 0), 2) << larghezza;
    }
    EXPECT_TRUE(messaggi.Mostrati.empty());
    Imposta({{u""_qs, u""_qs, u"Testo"_qs, u"0"_qs}});
    EXPECT_EQ(griglia.ColWidth(0), 0) << "nothing to divide by";
    Imposta({});
    EXPECT_EQ(griglia.Cols(), 0);
}

}  // namespace

#include <gmock/gmock.h>

#include "core/griglia/colonne_griglia.h"
#include "support/fakes.h"

namespace {

class Colonne : public testing::Test {
  protected:
    /// Columns between blanks, each "title/kind/size".
    void Imposta(const QString& colonne) {
        std::vector<Colonna_Griglia> tutte;
        for (const QString& colonna : colonne.split(u' ', Qt::SkipEmptyParts)) {
            const QStringList campi = colonna.split(u'/');
            tutte.push_back({campi[0], "", campi[1], campi[2]});
        }
        Imposta_Colonne_Griglia(tutte, numeri, griglia);
    }
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Griglia griglia;
};

TEST_F(Colonne, WidthAndAlignmentGoByTheKind) {
    using enum Allineamento;
    const std::tuple<const char*, int, Allineamento> casi[] = {
        {"Number/3", 10, Destra},      {"Price/2", 10, Destra},         {"Price_Totale/12", 12, Destra},
        {"Discount/7", 7, Destra},     {"Document/50", 5, Centro},      {"Image/", 5, Centro},
        {"Riferimento/6", 6, Centro},  {"Elimina/50", 5, Sinistra},     {"Qta/50", 10, Sinistra},
        {"Quantity/50", 10, Sinistra}, {"Dett_Codice/0", 10, Sinistra}, {"Memo/1,5E1", 15, Sinistra}};
    // A column of ten characters beside it gives the scale: with these widths one character is 100 twips.
    for (const auto& [colonna, caratteri, allineamento] : casi) {
        griglia.Width = 300 + (caratteri + 10) * 100;
        Imposta(QString("/%1 /Number/").arg(colonna));
        EXPECT_EQ(griglia.ColWidth(0), caratteri * 100) << colonna;
        EXPECT_EQ(griglia.ColAlignment(0), allineamento) << colonna;
    }
}

TEST_F(Colonne, AColumnOfNotesNarrowsWideTextsAndNoOtherKind) {
    griglia.Width = 300 + 6 * 25 * 100;
    Imposta("/Note/99 /Testo/26 /Testo/100 /Testo/25 /Prodotto/50");
    for (int c = 0; c < 5; ++c)
        EXPECT_EQ(griglia.ColWidth(c), c < 4 ? 2500 : 5000) << c;
}

TEST_F(Colonne, HeadersAreTextsOrPicturesAndWidenTheirColumn) {
    griglia.Cols(3);
    griglia.TextMatrix(1, 2, "riga");
    griglia.At(0, 2).Picture = "vecchia.bmp";
    griglia.Width = 300 + 4500;
    const QString titolo(35, u'x');
    Imposta("IMMAGINE##||##Riferimenti.GIF/Riferimento/5 IMMAGINE##||##/Aggiungi/5 " + titolo + "/Testo/-4");
    EXPECT_EQ(griglia.At(0, 0).Text + griglia.At(0, 0).Picture, "Riferimenti.GIF");
    EXPECT_EQ(griglia.At(0, 1).Picture + griglia.At(0, 2).Picture, "");
    EXPECT_EQ(griglia.At(0, 2).Text, titolo);
    EXPECT_EQ(griglia.ColWidth(2), 3500);
    EXPECT_EQ(griglia.TextMatrix(1, 2), "riga");
}

TEST_F(Colonne, WidthsFillTheGrid) {
    griglia.Larghezza_Spazio = 43.7;
    for (const int larghezza : {9000, 12345, 301, 300, 100}) {
        griglia.Width = larghezza;
        Imposta("a/Testo/17 b/Testo/1E30 c/Price/2");
        EXPECT_NEAR(griglia.ColWidth(0) + griglia.ColWidth(1) + griglia.ColWidth(2),
                    std::max(larghezza - 300, 0), 2);
    }
    Imposta("/Testo/0");
    EXPECT_EQ(griglia.ColWidth(0), 0) << "nothing to divide by";
}

}  // namespace

#include <gmock/gmock.h>

#include "core/griglia/colonne_griglia.h"
#include "support/fakes.h"

namespace {

using enum Genere_Colonna;

class Colonne : public testing::Test {
  protected:
    struct Prova {
        Genere_Colonna genere;
        const char* size = "";
        QString titolo = {};
    };
    void Imposta(const std::vector<Prova>& prove) {
        std::vector<Colonna_Griglia> colonne;
        for (const Prova& prova : prove)
            colonne.push_back({prova.genere, prova.titolo, {}, {}, prova.size});
        Imposta_Colonne_Griglia(colonne, numeri, griglia);
    }
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Griglia griglia;
};

TEST_F(Colonne, WidthAndAlignmentGoByTheKind) {
    using enum Allineamento;
    const std::tuple<std::vector<Genere_Colonna>, const char*, int, Allineamento> casi[] = {
        {{Number, Price}, "3", 10, Destra},
        {{Price_Totale, Discount}, "12", 12, Destra},
        {{Document, Image}, "50", 5, Centro},
        {{Riferimento}, "6", 6, Centro},
        {{Qta, Quantity, Dett_Codice}, "50", 10, Sinistra},
        {{Elimina}, "50", 5, Sinistra},
        {{Testo, Aggiungi, Prodotto}, "1,5E1", 15, Sinistra}};
    // A column of ten characters beside it gives the scale: with these widths one character is 100 twips.
    for (const auto& [generi, size, caratteri, allineamento] : casi)
        for (const Genere_Colonna genere : generi) {
            griglia.Width = 300 + (caratteri + 10) * 100;
            Imposta({{genere, size}, {Number}});
            EXPECT_EQ(griglia.ColWidth(0), caratteri * 100) << static_cast<int>(genere);
            EXPECT_EQ(griglia.ColAlignment(0), allineamento) << static_cast<int>(genere);
        }
    griglia.Width = 300 + 6 * 25 * 100;
    Imposta({{Note, "99"}, {Testo, "26"}, {Testo, "100"}, {Testo, "25"}, {Prodotto, "50"}});
    for (int c = 0; c < 5; ++c)
        EXPECT_EQ(griglia.ColWidth(c), c < 4 ? 2500 : 5000) << "beside notes " << c;
}

TEST_F(Colonne, HeadersAreTextsOrPicturesAndWidenTheirColumn) {
    griglia.Cols(3);
    griglia.TextMatrix(1, 2, "riga");
    griglia.At(0, 2).Picture = "vecchia.bmp";
    griglia.Width = 300 + 4500;
    const QString titolo(35, u'x');
    Imposta({{Riferimento, "5", Colonna_Fissa(Riferimento, {}, {}).Titolo},
             {Aggiungi, "5", "IMMAGINE##||##"},
             {Testo, "-4", titolo}});
    EXPECT_EQ(griglia.At(0, 0).Text + griglia.At(0, 0).Picture, "Riferimenti.GIF");
    EXPECT_EQ(griglia.At(0, 1).Picture + griglia.At(0, 2).Picture, "");
    EXPECT_EQ(griglia.At(0, 2).Text + griglia.TextMatrix(1, 2), titolo + "riga");
    EXPECT_EQ(griglia.ColWidth(2), 3500);
}

TEST_F(Colonne, WidthsFillTheGrid) {
    griglia.Larghezza_Spazio = 43.7;
    for (const int larghezza : {9000, 12345, 300, 100}) {
        griglia.Width = larghezza;
        Imposta({{Testo, "17"}, {Testo, "1E30"}, {Price, "2"}});
        EXPECT_NEAR(griglia.ColWidth(0) + griglia.ColWidth(1) + griglia.ColWidth(2),
                    std::max(larghezza - 300, 0), 2);
    }
    Imposta({{Testo, "0"}});
    EXPECT_EQ(griglia.ColWidth(0), 0) << "nothing to divide by";
}

}  // namespace

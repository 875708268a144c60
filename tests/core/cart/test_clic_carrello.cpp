#include <gmock/gmock.h>

#include "../base/righe.h"
#include "core/cart/clic_carrello.h"

namespace {

/// Of each cell of a row what a click does and the pointer: a letter each, from beside the columns on.
QString Celle(const Griglia& griglia, const Tag_Griglia& tag, Faccia faccia, int riga) {
    QString celle;
    for (int c = -1; c < griglia.Cols(); ++c) {
        celle += "-VIDAXQN"[static_cast<int>(Clic_Carrello(griglia, tag, faccia, riga, c).Tipo)];
        celle += QString::number(static_cast<int>(Puntatore_Carrello(griglia, tag, faccia, riga, c)));
    }
    return celle;
}

TEST(Clic_Carrello, ALinesCellsAreLiveAndThoseOfTotalsAndLinkedPartsAreNot) {
    // The column of the product is the order screen's alone.
    const std::tuple<Faccia, const char*, std::vector<const char*>> casi[] = {
        {Faccia::Prodotto,
         "Elimina/A==Image/a.png=Document/a.pdf=Qta/A=Note/A|====Qta/=Note/",
         {"-1-1-1-1-1-1-1", "-1X99V1I99D99Q3N3", "-1-1-1-1-1-3-3", "-1-1-1-1-1-1-1"}},
        {Faccia::Ordine,
         "Elimina/A=Prodotto/P_1==Document/a.pdf=Qta/A=Note/A|=Prodotto/P_1===Qta/=Note/",
         {"-0-0-0-0-0-0-0", "-0X99-99-0D99Q3N3", "-0-0-99-0-0-3-3", "-0-0-0-0-0-0-0"}}};
    for (const auto& [faccia, tag_righe, attese] : casi) {
        Griglia griglia;
        Tag_Griglia tag(20);
        griglia.Cols(6);
        griglia.RemoveItem(1);
        const auto righe = Righe(tag_righe);
        for (int r = 1; r <= 2; ++r) {
            griglia.AddItem({" ", "7", "8"});
            for (int c = 0; c < 6; ++c)
                tag.Imposta(r, c, QString(righe[static_cast<size_t>(r - 1)][c]).replace('/', '|'));
        }
        griglia.RemoveItem(1);
        for (int r = 0; r < 4; ++r)
            EXPECT_EQ(Celle(griglia, tag, faccia, r), attese[static_cast<size_t>(r)]) << r;
        const bool ordine = faccia == Faccia::Ordine;
        const Azione_Cella azione = Clic_Carrello(griglia, tag, faccia, 1, 5);
        EXPECT_EQ(azione.Codice + azione.Riferimento + azione.Prodotto, ordine ? "A8P_1" : "A7");
        tag.Imposta(1, 1, "");
        EXPECT_EQ(Clic_Carrello(griglia, tag, faccia, 1, 5).Tipo == Azione_Cella::Genere::Nessuna, ordine);
    }
}

}  // namespace

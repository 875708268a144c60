#include <gmock/gmock.h>

#include "core/parts_tables/clic_griglia.h"

namespace {

using Genere = Azione_Cella::Genere;

class Clic : public testing::Test {
  protected:
    Clic() {
        griglia.Cols(5);
        griglia.AddItem("2");
        griglia.MousePointer = 1;
        tag.Imposta(1, 1, "Add_Componente|C 1|P_1|-");
        tag.Imposta(1, 2, "Image|foto.png");
        tag.Imposta(1, 3, "Document|guida.pdf|resto");
        tag.Imposta(2, 3, "GO_Prodotto|C 2|P_1|4");
    }
    Griglia griglia;
    Tag_Griglia tag{10};
};

TEST_F(Clic, TheTagSaysWhatAClickDoes) {
    // Row, column, kind, entry; code, product and reference.
    const std::tuple<int, int, Genere, const char*, const char*> casi[] = {
        {1, 1, Genere::Add_Componente, "", "C 1|P_1|-"},
        {1, 2, Genere::Image, "foto.png", "||"},
        {1, 3, Genere::Document, "guida.pdf", "||"},
        {1, 4, Genere::Evidenzia, "", "C 1|P_1|-"},
        {1, 0, Genere::Nessuna, "", "||"},  // the reference
        {0, 1, Genere::Nessuna, "", "||"},
        {1, 26, Genere::Nessuna, "", "||"},           // beyond the tags   // the header
        {2, 3, Genere::Nessuna, "", "||"},            // a kind of other grids
        {3, 1, Genere::Add_Componente, "", "|P_2|"},  // fields that the tag lacks
    };
    tag.Imposta(3, 1, "Add_Componente||P_2|");
    for (const auto& [riga, colonna, genere, voce, componente] : casi) {
        griglia.MouseRow = riga;
        griglia.MouseCol = colonna;
        const Azione_Cella azione = Clic_Griglia(griglia, tag);
        EXPECT_EQ(azione.Tipo, genere) << riga << ',' << colonna;
        EXPECT_EQ(azione.Voce, voce) << riga << ',' << colonna;
        EXPECT_EQ(azione.Codice + '|' + azione.Prodotto + '|' + azione.Riferimento, componente) << riga;
        EXPECT_TRUE(azione.Sopra_Righe);
    }
    griglia.MousePointer = 0;  // below the last row
    EXPECT_FALSE(Clic_Griglia(griglia, tag).Sopra_Righe);
}

TEST_F(Clic, ThePointerTellsLiveCells) {
    griglia.RowHeight = 300;  // three rows: they end at 900
    // row, column, y, pointer
    const int casi[][4] = {{1, 1, 450, 99}, {1, 4, 450, 1}, {0, 1, 10, 1},
                           {2, 3, 900, 99}, {2, 3, 901, 0}, {1, 26, 450, 1}};
    for (const auto& [riga, colonna, y, puntatore] : casi) {
        griglia.MouseRow = riga;
        griglia.MouseCol = colonna;
        Mouse_Move(griglia, tag, y);
        EXPECT_EQ(griglia.MousePointer, puntatore) << riga << ',' << colonna << ',' << y;
    }
}

}  // namespace

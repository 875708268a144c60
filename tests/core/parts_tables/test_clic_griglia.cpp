#include <gmock/gmock.h>

#include "core/parts_tables/clic_griglia.h"

namespace {

using Genere = Azione_Cella::Genere;

class Clic : public testing::Test {
  protected:
    void SetUp() override {
        griglia.Cols(5);
        griglia.AddItem(u"2"_qs);
        griglia.MousePointer = 1;
        tag.Imposta(1, 1, u"Add_Componente|C 1|P_1|-"_qs);
        tag.Imposta(1, 2, u"Image|foto.png"_qs);
        tag.Imposta(1, 3, u"Document|guida.pdf|resto"_qs);
        tag.Imposta(2, 2, u"Image|altra.png"_qs);
        tag.Imposta(2, 3, u"GO_Prodotto|C 2|P_1|4"_qs);
    }
    Griglia griglia;
    Tag_Griglia tag{10};
};

TEST_F(Clic, TheTagSaysWhatAClickDoes) {
    struct Caso {
        int riga, colonna;
        Genere genere;
        QString voce, codice;
    };
    const Caso casi[] = {
        {1, 1, Genere::Add_Componente, u""_qs, u"C 1"_qs},
        {1, 2, Genere::Image, u"foto.png"_qs, u""_qs},
        {1, 3, Genere::Document, u"guida.pdf"_qs, u""_qs},
        {1, 4, Genere::Evidenzia, u""_qs, u"C 1"_qs},
        {1, 25, Genere::Evidenzia, u""_qs, u"C 1"_qs},
        {1, 0, Genere::Nessuna, u""_qs, u""_qs},   // the reference
        {0, 1, Genere::Nessuna, u""_qs, u""_qs},   // the header
        {2, 1, Genere::Nessuna, u""_qs, u""_qs},   // a row that adds nothing
        {2, 3, Genere::Nessuna, u""_qs, u""_qs},   // a kind of other grids
        {11, 1, Genere::Nessuna, u""_qs, u""_qs},  // beyond the tags
        {1, 26, Genere::Nessuna, u""_qs, u""_qs},
    };
    for (const Caso& caso : casi) {
        griglia.MouseRow = caso.riga;
        griglia.MouseCol = caso.colonna;
        const Azione_Cella azione = Clic_Griglia(griglia, tag);
        EXPECT_EQ(azione.Tipo, caso.genere) << caso.riga << ',' << caso.colonna;
        EXPECT_EQ(azione.Voce, caso.voce) << caso.riga << ',' << caso.colonna;
        EXPECT_EQ(azione.Codice, caso.codice) << caso.riga << ',' << caso.colonna;
        EXPECT_EQ(azione.Prodotto, caso.codice.isEmpty() ? u""_qs : u"P_1"_qs);
        EXPECT_EQ(azione.Riferimento, caso.codice.isEmpty() ? u""_qs : u"-"_qs);
        EXPECT_TRUE(azione.Sopra_Righe);
    }
}

TEST_F(Clic, NothingHappensBelowTheLastRow) {
    griglia.MouseRow = griglia.MouseCol = 1;
    griglia.MousePointer = 0;
    const Azione_Cella azione = Clic_Griglia(griglia, tag);
    EXPECT_EQ(azione.Tipo, Genere::Nessuna);
    EXPECT_FALSE(azione.Sopra_Righe);
}

TEST_F(Clic, AMissingFieldOfATagIsEmpty) {
    tag.Imposta(2, 1, u"Add_Componente||P_2|"_qs);
    griglia.MouseRow = 2;
    griglia.MouseCol = 1;
    const Azione_Cella azione = Clic_Griglia(griglia, tag);
    EXPECT_EQ(azione.Codice, QString());
    EXPECT_EQ(azione.Prodotto, u"P_2");
    EXPECT_EQ(azione.Riferimento, QString());
}

TEST_F(Clic, ThePointerTellsLiveCells) {
    griglia.RowHeight = 300;  // three rows: they end at 900
    struct Caso {
        int riga, colonna, y, puntatore;
    };
    const Caso casi[] = {{1, 1, 450, 99}, {1, 4, 450, 1}, {0, 1, 10, 1},   {1, 0, 450, 1},
                         {2, 2, 900, 99}, {2, 2, 901, 0}, {11, 1, 800, 1}, {1, 26, 450, 1}};
    for (const Caso& caso : casi) {
        griglia.MouseRow = caso.riga;
        griglia.MouseCol = caso.colonna;
        Mouse_Move(griglia, tag, caso.y);
        EXPECT_EQ(griglia.MousePointer, caso.puntatore) << caso.riga << ',' << caso.colonna << ',' << caso.y;
    }
}

}  // namespace

#include <gmock/gmock.h>

#include <stdexcept>

#include "core/griglia/griglia.h"

namespace {

/// The texts of a row, between "|".
QString Riga(const Griglia& griglia, int riga) {
    return Testo_Celle(griglia, riga, 0, riga, griglia.Cols() - 1).replace('\t', '|');
}

TEST(Griglia, RowsComeAndGo) {
    Griglia griglia;
    griglia.Cols(3);
    for (const char* riga : {"a\tb\tc\td", "e\t\t", "f"})
        griglia.AddItem(riga);
    EXPECT_EQ(Riga(griglia, 2), "a|b|c") << "a cell too many is dropped";
    EXPECT_EQ(Riga(griglia, 4), "f||");

    for (const int riga : {1, 2, 2})
        griglia.RemoveItem(riga);
    EXPECT_EQ(Riga(griglia, 1), "a|b|c");
    griglia.RemoveItem(1);
    EXPECT_EQ(Riga(griglia, 1), "||") << "the last row stays, empty";
    for (const int riga : {-1, 0, 2})
        EXPECT_THROW(griglia.RemoveItem(riga), std::out_of_range) << riga;
}

TEST(Griglia, ColumnsKeepTheirContentWhenTheirNumberChanges) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.TextMatrix(1, 1, "x");
    griglia.Cols(4);
    EXPECT_EQ(Riga(griglia, 1), "|x||");
}

TEST(Griglia, ClearEmptiesCellsAndKeepsRows) {
    Griglia griglia;
    griglia.AddItem("a");
    griglia.At(0, 0) = {"h", "p.bmp", Allineamento::Centro, true, 0xff0000};
    griglia.Clear();
    EXPECT_EQ(griglia.Rows(), 3);
    EXPECT_EQ(griglia.TextMatrix(2, 0) + griglia.At(0, 0).Text + griglia.At(0, 0).Picture, "");
}

TEST(Tag_Griglia, IsFixedInSize) {
    Tag_Griglia tag(100);
    tag.Imposta(100, 25, "a");
    EXPECT_EQ(tag.At(100, 25) + tag.At(0, 0), "a");
    for (const auto& [riga, colonna] : {std::pair{101, 0}, {0, 26}, {-1, 0}, {0, -1}})
        EXPECT_THROW(tag.At(riga, colonna), std::out_of_range) << riga << ',' << colonna;
    EXPECT_THROW(tag.Imposta(101, 0, "x"), std::out_of_range);
}

TEST(Testo_Celle, CopiesARangeForSpreadsheets) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.AddItem("a");
    griglia.TextMatrix(1, 0, "vite 3\"");
    griglia.TextMatrix(1, 1, "due\nrighe");
    griglia.TextMatrix(2, 1, "tab\tqui");
    EXPECT_EQ(Testo_Celle(griglia, 1, 0, 2, 1), "\"vite 3\"\"\"\t\"due\nrighe\"\na\t\"tab\tqui\"");
    EXPECT_EQ(Testo_Celle(griglia, 2, 1, 1, 0), Testo_Celle(griglia, 1, 0, 2, 1));
}

}  // namespace

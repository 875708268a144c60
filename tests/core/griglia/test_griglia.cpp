#include <gmock/gmock.h>

#include <QStringList>

#include <stdexcept>

#include "core/griglia/griglia.h"

namespace {

/// The texts of a row, between "|".
QString Riga(const Griglia& griglia, int riga) {
    QStringList celle;
    for (int c = 0; c < griglia.Cols(); ++c)
        celle.append(griglia.TextMatrix(riga, c));
    return celle.join(u'|');
}

TEST(Griglia, RowsComeAndGo) {
    Griglia griglia;
    griglia.Cols(3);
    for (const char* riga : {"a\tb\tc\td", "e\t\t", "f"})
        griglia.AddItem(riga);
    EXPECT_EQ(griglia.Rows(), 5);
    EXPECT_EQ(Riga(griglia, 2), "a|b|c") << "a cell too many is dropped";
    EXPECT_EQ(Riga(griglia, 4), "f||");

    griglia.RemoveItem(1);
    griglia.RemoveItem(2);
    EXPECT_EQ(Riga(griglia, 1) + Riga(griglia, 2), "a|b|cf||");
    griglia.RemoveItem(2);
    griglia.RemoveItem(1);
    EXPECT_EQ(griglia.Rows(), 2);
    EXPECT_EQ(Riga(griglia, 1), "||") << "the last row stays, empty";
    for (const int riga : {-1, 0, 2})
        EXPECT_THROW(griglia.RemoveItem(riga), std::out_of_range) << riga;
}

TEST(Griglia, ColumnsKeepTheirContentWhenTheirNumberChanges) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.TextMatrix(1, 1, "x");
    griglia.ColWidth(1, 700);
    griglia.Cols(4);
    EXPECT_EQ(Riga(griglia, 1), "|x||");
    EXPECT_EQ(griglia.ColWidth(1), 700);
    griglia.Cols(1);
    EXPECT_THROW(griglia.TextMatrix(1, 1), std::out_of_range);
    EXPECT_THROW(griglia.ColWidth(1), std::out_of_range);
    EXPECT_THROW(griglia.TextMatrix(-1, 0), std::out_of_range);
}

TEST(Griglia, ClearEmptiesCellsAndKeepsRows) {
    Griglia griglia;
    griglia.AddItem("a");
    griglia.At(0, 0) = {"h", "p.bmp", Allineamento::Centro, true, 0xff0000};
    griglia.Clear();
    EXPECT_EQ(griglia.Rows(), 3);
    EXPECT_EQ(griglia.TextMatrix(2, 0) + griglia.At(0, 0).Text + griglia.At(0, 0).Picture, "");
    EXPECT_FALSE(griglia.At(0, 0).Bold);
}

TEST(Tag_Griglia, IsFixedInSize) {
    Tag_Griglia tag(100);
    tag.Imposta(100, 25, "a");
    EXPECT_EQ(tag.At(100, 25) + tag.At(0, 0), "a");
    for (const auto& [riga, colonna] : {std::pair{101, 0}, {0, 26}, {-1, 0}, {0, -1}}) {
        EXPECT_THROW(tag.Imposta(riga, colonna, "x"), std::out_of_range) << riga << ',' << colonna;
        EXPECT_THROW(tag.At(riga, colonna), std::out_of_range);
    }
}

TEST(Testo_Celle, CopiesARangeForSpreadsheets) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.AddItem("a");
    griglia.TextMatrix(0, 0, "Codice");
    griglia.TextMatrix(1, 0, "vite 3\"");
    griglia.TextMatrix(1, 1, "due\nrighe");
    griglia.TextMatrix(2, 1, "tab\tqui");
    EXPECT_EQ(Testo_Celle(griglia, 1, 0, 2, 1), "\"vite 3\"\"\"\t\"due\nrighe\"\na\t\"tab\tqui\"");
    EXPECT_EQ(Testo_Celle(griglia, 2, 1, 1, 0), Testo_Celle(griglia, 1, 0, 2, 1));
    EXPECT_EQ(Testo_Celle(griglia, 0, 0, 0, 1), "Codice\t");
    EXPECT_EQ(Testo_Celle(griglia, 2, 0, 2, 0), "a");
    EXPECT_THROW(Testo_Celle(griglia, 1, 0, 3, 0), std::out_of_range);
}

}  // namespace

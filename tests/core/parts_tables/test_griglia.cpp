#include <gmock/gmock.h>

#include <QStringList>

#include <stdexcept>

#include "core/parts_tables/griglia.h"

namespace {

QStringList Riga(const Griglia& griglia, int riga) {
    QStringList celle;
    for (int c = 0; c < griglia.Cols(); ++c)
        celle.append(griglia.TextMatrix(riga, c));
    return celle;
}

TEST(Griglia, RowsComeAndGo) {
    Griglia griglia;
    EXPECT_EQ(griglia.Rows(), 2);
    griglia.Cols(3);
    griglia.AddItem(u"a\tb\tc\td"_qs);
    griglia.AddItem(u"e\t\t"_qs);
    griglia.AddItem(u"f"_qs);
    EXPECT_EQ(griglia.Rows(), 5);
    EXPECT_EQ(Riga(griglia, 2), QStringList({u"a"_qs, u"b"_qs, u"c"_qs})) << "a cell too many is dropped";
    EXPECT_EQ(Riga(griglia, 4), QStringList({u"f"_qs, u""_qs, u""_qs}));

    griglia.RemoveItem(1);
    griglia.RemoveItem(2);
    EXPECT_EQ(griglia.Rows(), 3);
    EXPECT_EQ(griglia.TextMatrix(1, 0), u"a");
    EXPECT_EQ(griglia.TextMatrix(2, 0), u"f");
    griglia.RemoveItem(2);
    griglia.RemoveItem(1);
    EXPECT_EQ(griglia.Rows(), 2) << "the last row stays, empty";
    EXPECT_EQ(griglia.TextMatrix(1, 0), QString());
    for (const int riga : {-1, 0, 2})
        EXPECT_THROW(griglia.RemoveItem(riga), std::out_of_range) << riga;
}

TEST(Griglia, ColumnsKeepTheirContentWhenTheirNumberChanges) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.TextMatrix(1, 1, u"x"_qs);
    griglia.ColWidth(1, 700);
    griglia.Cols(4);
    EXPECT_EQ(Riga(griglia, 1), QStringList({u""_qs, u"x"_qs, u""_qs, u""_qs}));
    EXPECT_EQ(griglia.ColWidth(1), 700);
    griglia.Cols(1);
    EXPECT_THROW(griglia.TextMatrix(1, 1), std::out_of_range);
    EXPECT_THROW(griglia.ColWidth(1), std::out_of_range);
    EXPECT_THROW(griglia.TextMatrix(-1, 0), std::out_of_range);
}

TEST(Griglia, ClearEmptiesCellsAndKeepsRows) {
    Griglia griglia;
    griglia.AddItem(u"a"_qs);
    griglia.At(0, 0) = {u"h"_qs, u"p.bmp"_qs, Allineamento::Centro, true, 0xff0000};
    griglia.Clear();
    EXPECT_EQ(griglia.Rows(), 3);
    EXPECT_EQ(griglia.TextMatrix(2, 0), QString());
    EXPECT_EQ(griglia.At(0, 0).Text, QString());
    EXPECT_EQ(griglia.At(0, 0).Picture, QString());
    EXPECT_FALSE(griglia.At(0, 0).Bold);
}

TEST(Tag_Griglia, IsFixedInSize) {
    Tag_Griglia tag(100);
    tag.Imposta(100, 25, u"a"_qs);
    EXPECT_EQ(tag.At(100, 25), u"a");
    EXPECT_EQ(tag.At(0, 0), QString());
    for (const auto& [riga, colonna] : {std::pair{101, 0}, {0, 26}, {-1, 0}, {0, -1}}) {
        EXPECT_THROW(tag.Imposta(riga, colonna, u"x"_qs), std::out_of_range) << riga << ',' << colonna;
        EXPECT_THROW(tag.At(riga, colonna), std::out_of_range);
    }
}

TEST(Testo_Celle, CopiesARangeForSpreadsheets) {
    Griglia griglia;
    griglia.Cols(2);
    griglia.TextMatrix(0, 0, u"Codice"_qs);
    griglia.TextMatrix(1, 0, u"vite 3\""_qs);
    griglia.TextMatrix(1, 1, u"due\nrighe"_qs);
    griglia.AddItem(u"a"_qs);
    griglia.TextMatrix(2, 1, u"tab\tqui"_qs);
    EXPECT_EQ(Testo_Celle(griglia, 1, 0, 2, 1), u"\"vite 3\"\"\"\t\"due\nrighe\"\na\t\"tab\tqui\"");
    EXPECT_EQ(Testo_Celle(griglia, 2, 1, 1, 0), Testo_Celle(griglia, 1, 0, 2, 1));
    EXPECT_EQ(Testo_Celle(griglia, 0, 0, 0, 1), u"Codice\t");
    EXPECT_EQ(Testo_Celle(griglia, 2, 0, 2, 0), u"a");
    EXPECT_THROW(Testo_Celle(griglia, 1, 0, 3, 0), std::out_of_range);
}

}  // namespace

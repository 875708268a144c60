#include <gmock/gmock.h>

#include <stdexcept>

#include "core/griglia/griglia.h"

namespace {

/// The texts of a row, between "|".
QString Riga(const Griglia& griglia, int riga) {
    QStringList celle;
    for (int c = 0; c < griglia.Cols(); ++c)
        celle += griglia.TextMatrix(riga, c);
    return celle.join('|');
}

TEST(Griglia, RowsComeAndGo) {
    Griglia griglia;
    griglia.Cols(3);
    const std::pair<QStringList, const char*> casi[] = {{{"a", "b", "c", "d"}, "a|b|c"},
                                                        {{"a\tb", "c\r\nd", ""}, "a\tb|c\r\nd|"},
                                                        {{"", "", "e", "", "f"}, "e||f"},
                                                        {{"", "g"}, "g||"}};
    for (const auto& [celle, attesa] : casi) {
        griglia.AddItem(celle);
        EXPECT_EQ(Riga(griglia, griglia.Rows() - 1), attesa);
    }
    griglia.AddItem({"", "", ""});
    EXPECT_EQ(griglia.Rows(), 6) << "nothing to be written is no row";

    for (const int riga : {1, 2, 3, 2})
        griglia.RemoveItem(riga);
    EXPECT_EQ(Riga(griglia, 1), "a|b|c");
    griglia.Cols(4);
    EXPECT_EQ(Riga(griglia, 1), "a|b|c|");
    griglia.RemoveItem(1);
    EXPECT_EQ(Riga(griglia, 1), "|||") << "the last row stays, empty";
    for (const int riga : {-1, 0, 2})
        EXPECT_THROW(griglia.RemoveItem(riga), std::out_of_range) << riga;
}

TEST(Tag_Griglia, IsFixedInSizeOrGrows) {
    Tag_Griglia cresce;
    EXPECT_FALSE(cresce.Contiene(0, 0));
    cresce.Imposta(2000, 40, "b");
    EXPECT_EQ(cresce.At(2000, 40) + cresce.At(2000, 0), "b");
    EXPECT_FALSE(cresce.Contiene(1999, 0));
    EXPECT_THROW(cresce.Imposta(-1, 0, "x"), std::out_of_range);
    Tag_Griglia tag(100);
    tag.Imposta(100, 25, "a");
    EXPECT_EQ(tag.At(100, 25) + tag.At(0, 0), "a");
    for (const auto& [riga, colonna] : {std::pair{101, 0}, {0, 26}, {-1, 0}, {0, -1}})
        EXPECT_THROW(tag.Imposta(riga, colonna, "x"), std::out_of_range) << riga << ',' << colonna;
}

TEST(Testo_Celle, CopiesARangeForSpreadsheets) {
    Griglia griglia;
    griglia.RemoveItem(1);
    for (const QStringList& riga : {QStringList{"vite 3\"", "due\nrighe"}, {"a", "tab\tqui"}})
        griglia.AddItem(riga);
    EXPECT_EQ(Testo_Celle(griglia, 2, 0, 3, 1), "\"vite 3\"\"\"\t\"due\nrighe\"\na\t\"tab\tqui\"");
    EXPECT_EQ(Testo_Celle(griglia, 3, 1, 2, 0), Testo_Celle(griglia, 2, 0, 3, 1));
}

}  // namespace

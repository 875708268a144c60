#include "core/parts_tables/evidenza.h"

#include <gmock/gmock.h>

namespace {

TEST(Evidenza, MarksEveryMatchingRowAndNoOther) {
    Griglia griglia;
    griglia.Cols(3);
    for (const char* riga : {"1 C1 Dado", "2 C2 Vite", "2 C3 C2", "3 C2 Vite"})
        griglia.AddItem(QString(riga).split(' '));
    griglia.RemoveItem(1);
    griglia.Cambiata = [] { ADD_FAILURE() << "no row has changed"; };
    QString detto;
    griglia.Evidenziata = [&](const std::vector<int>& righe) {
        for (const int riga : righe)
            detto += QString::number(riga) + ' ';
        detto += '.';
    };
    // Column, key, rows; whether and of which rows the view is told.
    const std::tuple<int, const char*, const char*, const char*> casi[] = {
        {1, "C2", "2 4 ", "2 4 ."}, {1, "C2", "2 4 ", "2 4 ."}, {1, "c3", "", "."},
        {1, "C3 ", "", ""},         {2, "C2", "3 ", "3 ."},     {1, "", "", "."},
        {0, "1", "1 ", "1 ."},      {-1, "1", "", "."},         {3, "1", "", ""}};
    for (const auto& [colonna, key, righe, attese] : casi) {
        detto.clear();
        Evidenzia_Componente_in_distinta(griglia, colonna, key);
        QString grasse;
        for (int r = 0; r < griglia.Rows(); ++r)
            grasse += griglia.At(r, 0).Bold && griglia.At(r, 2).Bold ? QString::number(r) + ' ' : "";
        EXPECT_EQ(grasse, righe) << colonna << ' ' << key;
        EXPECT_EQ(detto, attese) << colonna << ' ' << key;
    }
}

}  // namespace

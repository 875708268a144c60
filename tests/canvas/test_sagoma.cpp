#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "canvas/sagoma.h"

namespace {

/// Cells drawn with text, a "/" between the lines: "#" ink, anything else none. One cell is one page unit.
Sagoma Da_Testo(const std::string& righe) {
    const int larghezza = static_cast<int>(std::min(righe.find('/'), righe.size()));
    const int altezza = static_cast<int>(std::count(righe.begin(), righe.end(), '/')) + 1;
    std::vector<uchar> copertura;
    for (const char c : righe)
        if (c != '/')
            copertura.push_back(c == '#' ? 255 : 0);
    return Sagoma(copertura.data(), larghezza, altezza, larghezza, QRectF(0, 0, larghezza, altezza));
}

/// What the silhouette of a drawing holds, drawn likewise.
std::string Piene(std::string righe) {
    const Sagoma sagoma = Da_Testo(righe);
    QPointF cella(.5, .5);
    for (char& c : righe) {
        if (c != '/')
            c = sagoma.Contiene(cella) ? '#' : '.';
        cella = c == '/' ? QPointF(.5, cella.y() + 1) : cella + QPointF(1, 0);
    }
    return righe;
}

TEST(Silhouette, HoldsWhatTheInkEncloses) {
    EXPECT_EQ(Piene(".###.../#...#../#.#.#.#/#...#../.###..."), ".###.../#####../#####.#/#####../.###...");
    EXPECT_EQ(Piene("####/#..#/#.../####"), "####/#..#/#.../####") << "an open line encloses nothing";
    EXPECT_TRUE(Da_Testo("../..").Vuota());
    EXPECT_FALSE(Sagoma().Contiene({0, 0}));
    for (const QPointF fuori : {QPointF(-.1, 1), QPointF(1, -.1), QPointF(2, 1), QPointF(1, 2)})
        EXPECT_FALSE(Da_Testo("##/##").Contiene(fuori));
}

TEST(Silhouette, OutlinesFollowTheEdge) {
    // a disc of radius 40 drawn as a ring
    const int lato = 100;
    std::vector<uchar> copertura;
    for (int y = 0; y < lato; ++y)
        for (int x = 0; x < lato; ++x)
            copertura.push_back(std::abs(std::hypot(x + .5 - 50, y + .5 - 50) - 39) < 1 ? 255 : 0);
    const Sagoma disco(copertura.data(), lato, lato, lato, QRectF(0, 0, 10, 10));
    const auto& contorni = disco.Contorni();
    ASSERT_EQ(contorni.size(), 1u);
    for (const QPointF& punto : contorni[0])
        EXPECT_NEAR(std::hypot(punto.x() - 5, punto.y() - 5), 4, .08);
    EXPECT_GT(contorni[0].size(), 20u);
    EXPECT_LT(contorni[0].size(), 200u);
}

TEST(Silhouette, PartsApartHaveOutlinesApart) {
    EXPECT_EQ(Da_Testo("##..##/##..##").Contorni().size(), 2u);
}

}  // namespace

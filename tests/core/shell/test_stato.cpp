#include "core/shell/stato_finestra.h"

#include <gtest/gtest.h>

namespace {

TEST(Stato, TheFirstVisibleFrameDecidesTheZone) {
    // Intro with its picture, main with product, sheet and order, favourites; then the zone.
    const std::pair<const char*, int> casi[] = {{"11 1111 1", 1}, {"01 1111 1", 2}, {"01 1011 1", 5},
                                                {"10 0111 1", 4}, {"00 1001 1", 3}, {"00 1000 1", 1}};
    for (const auto& [vista, zona] : casi) {
        Stato_Finestra stato;
        stato.Frame_Intro = vista[0] == '1';
        stato.Frame_Immagine_Intro = vista[1] == '1';
        stato.Frame_Main = vista[3] == '1';
        stato.Frame_Prodotto = vista[4] == '1';
        stato.Frame_scheda_Prodotto = vista[5] == '1';
        stato.Frame_Evadi_ordine = vista[6] == '1';
        stato.Frame_Preferiti = vista[8] == '1';
        EXPECT_EQ(stato.Zona(), zona) << vista;
    }
}

TEST(Stato, SplittersStayWithinTheirBounds) {
    // The last one has no room: the lower bound holds.
    const int casi[][3] = {{0, 9000, 1200}, {5000, 9000, 5000}, {7801, 9000, 7800}, {5000, 1500, 1200}};
    for (const auto& [posizione, altezza, attesa] : casi)
        EXPECT_EQ(Limita_Splitter_V(posizione, altezza), attesa) << posizione << ' ' << altezza;

    EXPECT_EQ(Divisione_Iniziale("SI", 9000), 7800);
    for (const char* altro : {"", "NO", "si"})
        EXPECT_EQ(Divisione_Iniziale(altro, 9000), 6600) << altro;
    EXPECT_EQ(Divisione_Iniziale("", 2000), 1200);
}

}  // namespace

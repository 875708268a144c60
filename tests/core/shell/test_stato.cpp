#include "core/shell/stato_finestra.h"

#include <gtest/gtest.h>

namespace {

TEST(Stato, TheFirstVisibleFrameDecidesTheZone) {
    struct Caso {
        bool intro, immagine, main, prodotto, scheda, evadi, preferiti;
        int zona;
    };
    for (const Caso& c : {Caso{true, true, false, false, false, false, false, 1},
                          {false, true, true, true, false, false, false, 2},  // hidden inside a hidden frame
                          {false, true, true, true, true, true, true, 2},
                          {false, true, true, false, true, true, true, 5},
                          {true, false, false, true, true, true, true, 4},
                          {false, false, true, false, false, true, true, 3},
                          {false, false, true, false, false, false, true, 1},
                          {false, false, false, true, true, true, true, 1},
                          {true, true, true, true, true, true, true, 1}}) {
        Stato_Finestra stato;
        stato.Frame_Intro = c.intro;
        stato.Frame_Immagine_Intro = c.immagine;
        stato.Frame_Main = c.main;
        stato.Frame_Prodotto = c.prodotto;
        stato.Frame_scheda_Prodotto = c.scheda;
        stato.Frame_Evadi_ordine = c.evadi;
        stato.Frame_Preferiti = c.preferiti;
        EXPECT_EQ(stato.Zona(), c.zona);
    }
}

TEST(Stato, SplittersStayWithinTheirBounds) {
    EXPECT_EQ(Limita_Splitter_V(0, 9000), 1200);
    EXPECT_EQ(Limita_Splitter_V(1200, 9000), 1200);
    EXPECT_EQ(Limita_Splitter_V(5000, 9000), 5000);
    EXPECT_EQ(Limita_Splitter_V(7801, 9000), 7800);
    EXPECT_EQ(Limita_Splitter_V(5000, 1500), 1200);  // no room: the lower bound holds
    EXPECT_EQ(Limita_Splitter(-5, 12000), 1200);
    EXPECT_EQ(Limita_Splitter(11000, 12000), 10800);
    EXPECT_EQ(Divisione_Iniziale("SI", 9000), 7800);
    for (const char* altro : {"", "NO", "si", "1"})
        EXPECT_EQ(Divisione_Iniziale(altro, 9000), 6600) << altro;
    EXPECT_EQ(Divisione_Iniziale("", 2000), 1200);
}

TEST(Stato, EveryKeyHasItsButton) {
    const Stato_Finestra stato;
    EXPECT_EQ(Chiavi_Toolbar().size(), 18);
    EXPECT_EQ(stato.Bottoni.size(), 18u);
    int due_stati = 0;
    for (const auto& [chiave, bottone] : stato.Bottoni) {
        EXPECT_TRUE(Chiavi_Toolbar().contains(chiave));
        EXPECT_EQ(bottone.Due_Stati, E_Due_Stati(chiave));
        due_stati += bottone.Due_Stati;
    }
    EXPECT_EQ(due_stati, 5);
    for (const QString& presente : Comandi_Presenti())
        EXPECT_TRUE(Chiavi_Toolbar().contains(presente));
}

}  // namespace

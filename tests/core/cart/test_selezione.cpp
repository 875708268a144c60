#include <gmock/gmock.h>

#include "core/base/testo.h"
#include "core/cart/selezione.h"
#include "support/fakes.h"

namespace {

TEST(Selezione, KeysOfLines) {
    EXPECT_EQ(Chiave_Elenco("", "A"), u"A");
    EXPECT_EQ(Chiave_Elenco("-", "A"), u"A-A");
    EXPECT_EQ(Chiave_Elenco("12", "A"), u"A-12");
    EXPECT_EQ(Chiave_Elenco("A", "A"), u"A-A");
}

TEST(Selezione, EntriesOfLinkedCodes) {
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    const Numeri numeri(sistema, messaggi);
    struct Caso {
        const char *voce, *codice, *quantita;
        double fattore;
    };
    const Caso casi[] = {
        {"A§2", "A", "2", 2},
        {"A", "A", "0", 0},
        {" A § 2 ", "A", "2", 2},
        {"A§2.5", "A", "2,5", 2.5},
        {"A§2,5", "A", "2,5", 2.5},
        {"", "", "0", 0},
        {"§3", "", "3", 3},
        {"A§", "A", "0", 0},
        {"A§0,1", "A", "0,1", 0.1},
        {"A§due", "A", "0", 0},
        {"A B§-1", "A B", "-1", -1},
        {"A§1§9", "A", "1", 1},
        {"A§1E9", "A", "1000000000", 1e9},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Codice_Da_Memo(caso.voce), caso.codice) << caso.voce;
        EXPECT_EQ(Quantita_Da_Memo(caso.voce, numeri), caso.quantita) << caso.voce;
        EXPECT_EQ(Fattore_Da_Memo(caso.voce, numeri), caso.fattore) << caso.voce;
    }
}

TEST(Selezione, KeepsTheOrderOfInsertion) {
    Collection_Prodotti_Sele prodotti;
    prodotti.Add("P_2");
    prodotti.Add("P_1").Collection_Elenco_Selezionati().Add("A-1").Quantita = 3;
    prodotti.Add("");
    QStringList chiavi;
    for (const Class_Prodotti_Selezionati& prodotto : prodotti)
        chiavi += prodotto.Key;
    EXPECT_THAT(chiavi, testing::ElementsAre("P_2", "P_1", ""));
    EXPECT_TRUE(prodotti.Esiste("P_1"));
    EXPECT_FALSE(prodotti.Esiste("p_1"));
    EXPECT_FALSE(prodotti.Esiste(""));
    EXPECT_THROW(prodotti.Add("P_1"), Errore_Collezione);
    EXPECT_THROW(prodotti.Item("P_3"), Errore_Collezione);
    EXPECT_THROW(prodotti.Remove("P_3"), Errore_Collezione);

    EXPECT_EQ(Cerca_Riga(prodotti, "P_1", "A-1")->Quantita, 3);
    EXPECT_EQ(Cerca_Riga(prodotti, "P_1", "A-1")->Key, u"A-1");
    EXPECT_EQ(Cerca_Riga(prodotti, "P_1", "A-2"), nullptr);
    EXPECT_EQ(Cerca_Riga(prodotti, "P_3", "A-1"), nullptr);

    prodotti.Item("P_1").Collection_Elenco_Selezionati().Remove("A-1");
    EXPECT_TRUE(prodotti.Esiste("P_1"));
    prodotti.Remove("P_2");
    EXPECT_EQ(prodotti.Item(1).Key, u"P_1");
}

}  // namespace

#include "core/drawing/hotspot.h"

#include <gmock/gmock.h>

#include "core/base/testo.h"
#include "support/catalogo_aperto.h"

namespace {

TEST(Nomi_Sulla_Tavola, ABareKeyMayStandUnderThreeNames) {
    for (const QString key : {"123", "ALTRO#$#1"})  // an unknown type counts as none
        EXPECT_EQ(Nomi_Sulla_Tavola(key), (QStringList{key, "CODICI#$#" + key, "ASSOCIAZIONE#$#" + key}));
    for (const QString key : {"CODICI#$#123", "PRODOTTO#$#P_1", "vai##P_1"})
        EXPECT_EQ(Nomi_Sulla_Tavola(key), QStringList{key});
}

/// G_1 holds P_1 and its siblings P_2 to P_4; P_11 is below P_1.
class Link : public testing::Test {
  protected:
    Link() {
        catalogo.Nodo("G_1", "R", "Gruppo");
        const char* prodotti[][3] = {{"P_1", "G_1", "ASS1"},
                                     {"P_11", "P_1", "A1"},
                                     {"P_2", "G_1", "A2"},
                                     {"P_3", "G_1", "A1"},
                                     {"P_4", "G_1", "d'or"}};
        for (const auto& [key, padre, associazione] : prodotti)
            catalogo.Nodo(key, padre, key)
                .Riga("Prodotti", {{"Key_Prodotto", key}, {"Key_Associazione", associazione}});
    }
    QString Risolvi(const QString& stringa) {
        if (!aperto)
            aperto.emplace(catalogo);
        return Risolvi_HotSpot(aperto->DB, stringa, luogo);
    }

    Catalogo_Di_Prova catalogo;
    std::optional<Catalogo_Aperto> aperto;
    Luogo_HotSpot luogo{"P_1", "1", "G_1"};
};

TEST_F(Link, TheFormOfTheStringSaysWhereItLeads) {
    const char* casi[][2] = {
        {"PRODOTTO#$#P_2", "P_2"},        {"vai##P_2", "P_2"},            // the older form
        {"SOTTO_PRODOTTO#$#A1", "P_11"},                                  // the child before the sibling
        {"SOTTO_PRODOTTO#$#A2", "P_2"},                                   // a sibling
        {"SOTTO_PRODOTTO#$#d'or", "P_4"}, {"SOTTO_PRODOTTO#$#A9", "A9"},  // nowhere: the code itself
    };
    for (const auto& [stringa, target] : casi)
        EXPECT_EQ(Risolvi(stringa), target) << stringa;
    for (const char* nessuno : {"CODICI#$#P_2", "12", "", "PRODOTTO#$#", "vai##", "' OR '1'='1"})
        EXPECT_EQ(Risolvi(nessuno), "") << nessuno;
    luogo.Padre_Selezionato.clear();  // a node of the top level has no siblings
    EXPECT_EQ(Risolvi("SOTTO_PRODOTTO#$#A1"), "P_11");
    EXPECT_EQ(Risolvi("SOTTO_PRODOTTO#$#A2"), "");
}

TEST_F(Link, ACrossReferenceOfTheMarketComesFirst) {
    const Valore_Prova incroci[][4] = {
        {"ASS1", "12", "PRODOTTO#$#P_2", "SOTTO_PRODOTTO#$#A1"},
        {"ASS1", "13", "CODICI#$#C13", {}},  // no product: no cross reference
        {"ASS1", "15'", "vai##P_3", {}},
        {"ASS1", "PRODOTTO#$#P_3", "PRODOTTO#$#P_2", {}},
        {"ASS1", "SOTTO_PRODOTTO#$#A1", "SOTTO_PRODOTTO#$#P_4", {}},
    };
    for (const auto& [associazione, stringa, mercato_1, mercato_2] : incroci)
        catalogo.Riga("Componenti_Mappe", {{"Key_Riferimento", stringa},
                                           {"Key_Associazione", associazione},
                                           {"Key_Componente_Distinta_1", mercato_1},
                                           {"Key_Componente_Distinta_2", mercato_2}});
    // Kept: the sub-product of a cross reference is taken as a key, and isn't looked for.
    const char* casi[][3] = {{"12", "P_2", "A1"},
                             {"13", "", ""},
                             {"15'", "P_3", ""},
                             {"PRODOTTO#$#P_3", "P_2", "P_3"},
                             {"SOTTO_PRODOTTO#$#A1", "P_4", "P_11"}};
    for (const auto& [stringa, mercato_1, mercato_2] : casi) {
        luogo.Mercato = "1";
        EXPECT_EQ(Risolvi(stringa), mercato_1) << stringa;
        luogo.Mercato = "2";
        EXPECT_EQ(Risolvi(stringa), mercato_2) << stringa;
    }
}

}  // namespace

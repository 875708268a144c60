#include <gmock/gmock.h>

#include "core/base/testo.h"
#include "core/drawing/hotspot.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;

TEST(Nomi_Sulla_Tavola, ABareKeyMayStandUnderThreeNames) {
    EXPECT_THAT(Nomi_Sulla_Tavola(u"123"_qs),
                ElementsAre(u"123"_qs, u"CODICI#$#123"_qs, u"ASSOCIAZIONE#$#123"_qs));
    // An unknown type counts as none.
    EXPECT_THAT(Nomi_Sulla_Tavola(u"ALTRO#$#1"_qs),
                ElementsAre(u"ALTRO#$#1"_qs, u"CODICI#$#ALTRO#$#1"_qs, u"ASSOCIAZIONE#$#ALTRO#$#1"_qs));
}

TEST(Nomi_Sulla_Tavola, AKeyWithATypeNamesTheHotspotItself) {
    for (const QString& key : {u"CODICI#$#123"_qs, u"ASSOCIAZIONE#$#1"_qs, u"PRODOTTO#$#P_1"_qs,
                               u"SOTTO_PRODOTTO#$#A1"_qs, u"vai##P_1"_qs})
        EXPECT_THAT(Nomi_Sulla_Tavola(key), ElementsAre(key));
}

/// G_1 holds P_1 and its sibling P_2; P_11 is below P_1.
class Link : public testing::Test {
  protected:
    Link() {
        catalogo.Nodo("G_1", "R", u"Gruppo"_qs);
        Prodotto(u"P_1"_qs, u"G_1"_qs, u"ASS1"_qs);
        Prodotto(u"P_11"_qs, u"P_1"_qs, u"A1"_qs);
        Prodotto(u"P_2"_qs, u"G_1"_qs, u"A2"_qs);
        Prodotto(u"P_3"_qs, u"G_1"_qs, u"A1"_qs);
        Prodotto(u"P_4"_qs, u"G_1"_qs, u"d'or"_qs);
    }
    void Prodotto(const QString& key, const QString& padre, const QString& associazione) {
        catalogo.Nodo(key, padre, key)
            .Riga(u"Prodotti"_qs, {{"Key_Prodotto", key}, {"Key_Associazione", associazione}});
    }
    void Incrocio(const QString& stringa, const Valore_Prova& mercato_1, const Valore_Prova& mercato_2,
                  const QString& associazione = u"ASS1"_qs) {
        catalogo.Riga(u"Componenti_Mappe"_qs, {{"Key_Riferimento", stringa},
                                               {"Key_Associazione", associazione},
                                               {"Key_Componente_Distinta_1", mercato_1},
                                               {"Key_Componente_Distinta_2", mercato_2}});
    }
    QString Risolvi(const QString& stringa) {
        if (!aperto)
            aperto.emplace(catalogo);
        return Risolvi_HotSpot(aperto->DB, stringa, luogo);
    }

    Catalogo_Di_Prova catalogo;
    std::optional<Catalogo_Aperto> aperto;
    Luogo_HotSpot luogo{u"P_1"_qs, u"1"_qs, u"G_1"_qs};
};

TEST_F(Link, TheFormOfTheStringSaysWhereItLeads) {
    struct Caso {
        QString stringa, target;
    };
    const Caso casi[] = {
        {u"PRODOTTO#$#P_2"_qs, u"P_2"_qs},
        {u"PRODOTTO#$#P_9"_qs, u"P_9"_qs},  // also one that isn't there
        {u"vai##P_2"_qs, u"P_2"_qs},        // the older form
        {u"##P_2"_qs, u"P_2"_qs},
        {u"SOTTO_PRODOTTO#$#A1"_qs, u"P_11"_qs},  // the child before the sibling
        {u"SOTTO_PRODOTTO#$#A2"_qs, u"P_2"_qs},   // a sibling
        {u"SOTTO_PRODOTTO#$#d'or"_qs, u"P_4"_qs},
        {u"SOTTO_PRODOTTO#$#A9"_qs, u"A9"_qs},  // nowhere: the code itself
        {u"SOTTO_PRODOTTO#$#l'A9"_qs, u"l'A9"_qs},
        {u"CODICI#$#P_2"_qs, u""_qs},
        {u"ASSOCIAZIONE#$#P_2"_qs, u""_qs},
        {u"ALTRO#$#P_2"_qs, u""_qs},
        {u"12"_qs, u""_qs},
        {u""_qs, u""_qs},
        {u"PRODOTTO#$#"_qs, u""_qs},
        {u"SOTTO_PRODOTTO#$#"_qs, u""_qs},
        {u"vai##"_qs, u""_qs},
        {u"' OR '1'='1"_qs, u""_qs},
    };
    for (const Caso& caso : casi)
        EXPECT_EQ(Risolvi(caso.stringa), caso.target) << caso.stringa.toStdString();
}

TEST_F(Link, ASelectedNodeOfTheTopLevelHasNoSiblings) {
    luogo.Padre_Selezionato.clear();
    EXPECT_EQ(Risolvi(u"SOTTO_PRODOTTO#$#A1"_qs), u"P_11");
    EXPECT_EQ(Risolvi(u"SOTTO_PRODOTTO#$#A2"_qs), QString());
}

TEST_F(Link, ACrossReferenceOfTheMarketComesFirst) {
    Incrocio(u"12"_qs, u"PRODOTTO#$#P_2"_qs, u"SOTTO_PRODOTTO#$#A1"_qs);
    Incrocio(u"13"_qs, u"CODICI#$#C13"_qs, std::nullopt);  // no product: no cross reference
    Incrocio(u"14"_qs, u"PRODOTTO#$#P_2"_qs, std::nullopt, u"ALTRA"_qs);
    Incrocio(u"15'"_qs, u"vai##P_3"_qs, std::nullopt);
    Incrocio(u"PRODOTTO#$#P_3"_qs, u"PRODOTTO#$#P_2"_qs, std::nullopt);
    Incrocio(u"SOTTO_PRODOTTO#$#A1"_qs, u"SOTTO_PRODOTTO#$#P_4"_qs, std::nullopt);
    struct Caso {
        QString stringa, mercato_1, mercato_2;
    };
    const Caso casi[] = {
        // Kept: the sub-product of a cross reference is taken as a key, and isn't looked for.
        {u"12"_qs, u"P_2"_qs, u"A1"_qs},
        {u"13"_qs, u""_qs, u""_qs},
        {u"14"_qs, u""_qs, u""_qs},
        {u"15'"_qs, u"P_3"_qs, u""_qs},
        {u"PRODOTTO#$#P_3"_qs, u"P_2"_qs, u"P_3"_qs},
        {u"SOTTO_PRODOTTO#$#A1"_qs, u"P_4"_qs, u"P_11"_qs},
    };
    for (const Caso& caso : casi) {
        luogo.Mercato = u"1"_qs;
        EXPECT_EQ(Risolvi(caso.stringa), caso.mercato_1) << caso.stringa.toStdString();
        luogo.Mercato = u"2"_qs;
        EXPECT_EQ(Risolvi(caso.stringa), caso.mercato_2) << caso.stringa.toStdString();
    }
}

TEST_F(Link, ACatalogueWithoutTheTablesHasNoLinksOfItsOwn) {
    catalogo.Rimuovi_Tabella(u"Componenti_Mappe"_qs).Rimuovi_Tabella(u"Prodotti"_qs);
    EXPECT_EQ(Risolvi(u"12"_qs), QString());
    EXPECT_EQ(Risolvi(u"PRODOTTO#$#P_2"_qs), u"P_2");
}

}  // namespace

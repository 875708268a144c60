#include <gmock/gmock.h>

#include "carrello_aperto.h"
#include "support/ordini_di_prova.h"

namespace {

using testing::ElementsAre;

constexpr int ROSA = 0xFFC0C0;

QStringList Titoli(const Carrello_Aperto& c) {
    QStringList titoli;
    for (const Colonna_Griglia& colonna : c.colonne)
        titoli += QStringList{colonna.Titolo, colonna.Nome, colonna.Tipo, colonna.Size}.join(',');
    return titoli;
}

TEST(Griglia_Carrello, ColumnsOfTheTwoFaces) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Due_Prezzi));
    c.Aggiungi("A", "1");
    c.Riempi();
    const QStringList ordine = Titoli(c);
    EXPECT_THAT(
        ordine,
        ElementsAre("IMMAGINE##||##Cestino.GIF,,Elimina,0", "IMMAGINE##||##prodotto.GIF,,Prodotto,25",
                    "IMMAGINE##||##Riferimenti.GIF,Key_Associazioni,Riferimento,5",
                    "Codice,Campo01,Text [255 car.],15", "Prezzo,Campo03,Price,2", "Listino,Listino,Price,0",
                    "Sconto,Sconto,Discount,20", "Sconto 2,Sconto_2,Discount,20", "Quantità,,Qta,0",
                    "Nota,,Note,0", "Prezzo totale,5,Price_Totale,2", "Listino totale,6,Price_Totale,0"));
    c.Riempi("P_1");
    QStringList prodotto = ordine;
    prodotto.removeAt(1);
    prodotto[9].replace(",5,", ",4,");
    prodotto[10].replace(",6,", ",5,");
    EXPECT_EQ(Titoli(c), prodotto);
    EXPECT_EQ(c.griglia.At(0, 0).Picture, u"Cestino.GIF");
}

TEST(Griglia_Carrello, TagsPicturesAndColours) {
    Catalogo_Di_Prova catalogo = Catalogo_Ordini(Variante::Libera);
    for (const auto& [nome, tipo] : {std::pair("Foto", "Image"), std::pair("Scheda", "Document")})
        catalogo.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", nome},
                                               {"Titolo_Colonna", nome},
                                               {"Visualizzato", "Yes"},
                                               {"Ordine", "20"},
                                               {"Tipo_Colonna", tipo}});
    catalogo.Cambia("Componenti", 1, "Foto", std::nullopt).Cambia("Componenti", 1, "Scheda", std::nullopt);
    catalogo.Cambia("Componenti_Web", 1, "Foto", "img/a.png").Cambia("Componenti_Web", 1, "Scheda", "-");
    Carrello_Aperto c(catalogo);
    c.Aggiungi("A", "1");
    c.Aggiungi("KIT", "30");
    c.Aggiungi("NO_CODE", "99");
    int ridisegni = 0;
    c.griglia.Cambiata = [&] { ++ridisegni; };
    c.Riempi();
    EXPECT_EQ(ridisegni, 1);
    ASSERT_TRUE(c.griglia.Visible);

    EXPECT_THAT(c.Tag(1), ElementsAre("Elimina|A", "Prodotto|P_1", "", "", "", "", "Image|img/a.png", "",
                                      "Qta|A", "Note|A", ""));
    EXPECT_THAT(c.Celle(1), ElementsAre("", "Uno", "1", "A", "10.00", "0", "", "-", "1", "", "10.00"));
    EXPECT_EQ(c.griglia.At(1, 0).Picture, u"Elimina.bmp");
    EXPECT_EQ(c.griglia.At(1, 6).Picture, u"lente.bmp");
    EXPECT_EQ(c.griglia.At(1, 7).Picture, QString());
    // A linked component is neither removed nor edited.
    EXPECT_THAT(c.Tag(3), ElementsAre("", "Prodotto|P_1", "", "", "", "", "", "", "Qta|", "Note|", ""));
    EXPECT_EQ(c.griglia.TextMatrix(3, 2), u"^");
    EXPECT_EQ(c.griglia.At(3, 0).Picture, QString());
    // An object without a component is both.
    EXPECT_THAT(c.Celle(6), ElementsAre("", "Uno", "99", "-", "-", "0", "-", "-", "1", "", "-"));
    EXPECT_THAT(c.Tag(6), ElementsAre("Elimina|NO_CODE", "Prodotto|P_1", "", "", "", "", "", "",
                                      "Qta|NO_CODE", "Note|NO_CODE", ""));
    // Totals.
    EXPECT_THAT(c.Celle(7), ElementsAre(" ", "", " ", " ", " ", " ", " ", " ", " ", "Totale", "74.25"));
    EXPECT_THAT(c.Tag(7), ElementsAre("", "Prodotto| ", "", "", "", "", "", "", "Qta|", "Note|", ""));
    EXPECT_EQ(c.griglia.Rows(), 9);
    for (int r = 1; r < c.griglia.Rows(); ++r)
        for (int colonna = 0; colonna < c.griglia.Cols(); ++colonna)
            EXPECT_EQ(c.griglia.At(r, colonna).Sfondo, colonna == 8 || colonna == 9 ? ROSA : -1) << r;
}

TEST(Griglia_Carrello, AProductsFaceHasItsLinesAndTotals) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Libera));
    c.Aggiungi("A", "1");
    c.Aggiungi("A", "1", "P_2");
    c.Aggiungi("B", "2");
    c.Riempi("P_1");
    EXPECT_THAT(c.Celle(1), ElementsAre("", "1", "A", "10.00", "0", "1", "", "10.00"));
    EXPECT_THAT(c.Celle(2), ElementsAre("", "2", "B", "2.50", "0", "5", "", "12.50"));
    EXPECT_EQ(c.Celle(3).last(), u"22.50");
    c.Riempi("P_3");
    EXPECT_FALSE(c.griglia.Visible);
    EXPECT_EQ(c.griglia.TextMatrix(0, 2), QString());
}

TEST(Griglia_Carrello, FollowsLanguageAndMarket) {
    Catalogo_Di_Prova catalogo = Catalogo_Ordini(Variante::Libera);
    catalogo.Cambia("Albero_Web", 2, "Testo_Visualizzato_2", "One");
    catalogo.Cambia("Struttura_Componenti", 1, "Traduzione_2", "Code");
    catalogo.Cambia("Struttura_Componenti", 2, "Key_Mercato", "/1/");
    catalogo.Cambia("Componenti_Web", 1, "Key_Mercato", "/1/");
    Carrello_Aperto c(catalogo);
    c.Aggiungi("A", "1");
    c.Riempi();
    EXPECT_THAT(c.Celle(1), ElementsAre("", "Uno", "1", "A", "10.00", "0", "1", "", "10.00"));
    c.progetto.Lingua = c.progetto.Mercato = "2";
    c.progetto.Traduzioni.Carica_Testi_Codificati("2");
    c.Riempi();
    EXPECT_EQ(c.colonne[3].Titolo, u"Code");
    EXPECT_EQ(c.griglia.TextMatrix(0, 5), u"Quantity");
    // Outside market 1 the part comes from the master, and there is no price.
    EXPECT_THAT(c.Celle(1), ElementsAre("", "One", "-", "A", "0", "1", ""));
    EXPECT_EQ(c.griglia.Rows(), 2);
}

TEST(Griglia_Carrello, ColumnsAloneKeepRowsAndTags) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Libera));
    c.Aggiungi("A", "1");
    c.Riempi("P_1");
    const QStringList celle = c.Celle(1);
    c.progetto.Prodotti_Selezionati.Remove(1);
    c.griglia.Width = 20000;
    c.Riempi("P_1", false);
    EXPECT_TRUE(c.griglia.Visible);
    EXPECT_EQ(c.Celle(1), celle);
    EXPECT_EQ(c.tag.At(1, 0), u"Elimina|A");
    c.Riempi("P_1");
    EXPECT_FALSE(c.griglia.Visible);
    c.Riempi("P_1", false);
    EXPECT_FALSE(c.griglia.Visible);
}

TEST(Griglia_Carrello, ARefusedUserSeesTheHomePage) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Libera));
    c.Aggiungi("A", "1");
    c.accesso = false;
    c.Riempi();
    EXPECT_EQ(c.intro, 1);
    EXPECT_EQ(c.griglia.TextMatrix(1, 0), QString());
}

TEST(Griglia_Carrello, HoldsAsManyRowsAsThereAreTags) {
    // 500 rows: 498 lines and two of totals.
    for (const auto& [righe, visibile] :
         {std::pair(498, true), std::pair(499, false), std::pair(501, false)}) {
        Carrello_Aperto c(Catalogo_Ordini(Variante::Libera), 500);
        for (int i = 0; i < righe; ++i)
            c.Aggiungi("A", QString("%1").arg(i));
        c.Riempi("P_1");
        EXPECT_EQ(c.griglia.Visible, visibile) << righe;
    }
}

TEST(Griglia_Carrello, WhatCantBeReadHidesIt) {
    struct Caso {
        const char* nome;
        std::function<void(Catalogo_Di_Prova&)> rovina;
    };
    const Caso casi[] = {
        {"no columns", [](auto& c) { c.Rimuovi_Tabella("Struttura_Componenti"); }},
        {"no parts", [](auto& c) { c.Rimuovi_Tabella("Componenti_Web"); }},
        {"a column that no part has",
         [](auto& c) { c.Cambia("Struttura_Componenti", 2, "Nome_Colonna_Tabella", "X"); }},
        {"a size beyond 16 bits", [](auto& c) { c.Cambia("Struttura_Componenti", 1, "Size", "40000"); }},
    };
    for (const Caso& caso : casi) {
        Catalogo_Di_Prova catalogo = Catalogo_Ordini(Variante::Libera);
        caso.rovina(catalogo);
        Carrello_Aperto c(catalogo);
        c.Aggiungi("A", "1");
        c.Riempi();
        EXPECT_FALSE(c.griglia.Visible) << caso.nome;
        EXPECT_TRUE(c.messaggi.Mostrati.empty()) << caso.nome;
    }
    // Without discounts nothing is discounted.
    Catalogo_Di_Prova catalogo = Catalogo_Ordini(Variante::Libera);
    catalogo.Rimuovi_Tabella("Sconti").Rimuovi_Tabella("Gruppi_Utenti").Rimuovi_Tabella("Anagrafico");
    Carrello_Aperto c(catalogo);
    c.Aggiungi("D", "4");
    c.Riempi();
    EXPECT_THAT(c.Celle(1), ElementsAre("", "Uno", "4", "D", "100.00", "(0) %", "1", "", "100.00"));
}

TEST(Griglia_Carrello, ACircleOfLinkedPartsEnds) {
    Catalogo_Di_Prova catalogo = Catalogo_Ordini(Variante::Libera);
    catalogo.Cambia("Componenti", 29, "Collegati", "L§1");  // P leads back to L
    Carrello_Aperto c(catalogo);
    c.Aggiungi("KIT", "30");
    c.Riempi();
    EXPECT_TRUE(c.griglia.Visible);
    // The kit, its two linked parts, one more for each of the 49 followed but M, two totals.
    EXPECT_EQ(c.griglia.Rows(), 1 + 1 + 50 + 2);
}

TEST(Griglia_Carrello, GoesWithTheCatalogue) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Libera));
    c.Aggiungi("A", "1");
    c.Aggiungi("A", "1", "P_2");
    c.progetto.Elimina_Progetto_Aperto();
    EXPECT_EQ(c.progetto.Prodotti_Selezionati.Count(), 0);
}

}  // namespace

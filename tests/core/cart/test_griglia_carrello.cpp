#include <gmock/gmock.h>

#include "carrello_aperto.h"

namespace {

Catalogo_Di_Prova Libero() {
    return Catalogo_Ordini(Variante::Libera);
}

TEST(Griglia_Carrello, ColumnsOfTheTwoFaces) {
    Carrello_Aperto c(Catalogo_Ordini(Variante::Due_Prezzi));
    const QString colonne =
        "IMMAGINE##||##Cestino.GIF,,Elimina,0+%1IMMAGINE##||##Riferimenti.GIF,Key_Associazioni,Riferimento,5+"
        "Codice,Campo01,Text [255 car.],15+Prezzo,Campo03,Price,2+Listino,Listino,Price,0+"
        "Sconto,Sconto,Discount,20+Sconto 2,Sconto_2,Discount,20+Quantità,,Qta,0+Nota,,Note,0+"
        "Prezzo totale,%2,Price_Totale,2+Listino totale,%3,Price_Totale,0+";
    const QString ordine = colonne.arg("IMMAGINE##||##prodotto.GIF,,Prodotto,25+", "5", "6");
    for (const auto& [chiave, attese] :
         {std::pair(TUTTI_I_PRODOTTI, ordine), {"P_1", colonne.arg("", "4", "5")}}) {
        c.Riempi(chiave);
        QString titoli;
        for (const Colonna_Griglia& colonna : c.colonne)
            titoli += QStringList{colonna.Titolo, colonna.Nome, colonna.Tipo, colonna.Size}.join(',') + '+';
        EXPECT_EQ(titoli, attese);
    }
}

TEST(Griglia_Carrello, TagsPicturesAndColours) {
    Catalogo_Di_Prova catalogo = Libero();
    catalogo
        .Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Foto"},
                                       {"Visualizzato", "Yes"},
                                       {"Ordine", "20"},
                                       {"Tipo_Colonna", "Image"}})
        .Cambia("Componenti", 1, "Foto", std::nullopt)
        .Cambia("Componenti_Web", 1, "Foto", "img/a.png");
    Carrello_Aperto c(catalogo);
    for (const auto& [codice, riferimento] : {std::pair("A", "1"), {"KIT", "30"}, {"NO_CODE", "99"}})
        c.Aggiungi(codice, riferimento);
    c.Riempi();
    ASSERT_TRUE(c.griglia.Visible);
    // A line, a linked component, which is neither removed nor edited, an object without one, the totals.
    const std::tuple<int, const char*, const char*> righe[] = {
        {1, ";Uno;1;A;10.00;0;;1;;10.00", "Elimina|A;Prodotto|P_1;;;;;Image|img/a.png;Qta|A;Note|A;"},
        {3, nullptr, ";Prodotto|P_1;;;;;;Qta|;Note|;"},
        {6, ";Uno;99;-;-;0;-;1;;-", "Elimina|NO_CODE;Prodotto|P_1;;;;;;Qta|NO_CODE;Note|NO_CODE;"},
        {7, " ;; ; ; ; ; ; ;Totale;74.25", ";Prodotto| ;;;;;;Qta|;Note|;"}};
    for (const auto& [riga, celle, tag] : righe) {
        if (celle) {
            EXPECT_EQ(c.Celle(riga), celle) << riga;
        }
        EXPECT_EQ(c.Tag(riga), tag) << riga;
    }
    EXPECT_EQ(c.griglia.TextMatrix(3, 2), "^");
    EXPECT_EQ(c.griglia.At(1, 0).Picture + ' ' + c.griglia.At(1, 6).Picture, "Elimina.bmp lente.bmp");
    for (int colonna = 0; colonna < c.griglia.Cols(); ++colonna)
        EXPECT_EQ(c.griglia.At(7, colonna).Sfondo, colonna == 7 || colonna == 8 ? 0xFFC0C0 : -1) << colonna;
}

TEST(Griglia_Carrello, AProductsFaceHasItsLinesAndTotalsAndColumnsAloneKeepThem) {
    Carrello_Aperto c(Libero());
    for (const auto& [codice, riferimento, prodotto] :
         {std::tuple("A", "1", "P_1"), {"A", "1", "P_2"}, {"B", "2", "P_1"}})
        c.Aggiungi(codice, riferimento, prodotto);
    c.Riempi("P_1");
    for (int volta = 0; volta < 2; ++volta) {
        EXPECT_TRUE(c.griglia.Visible);
        EXPECT_EQ(c.Celle(1) + c.Tag(1), ";1;A;10.00;0;1;;10.00Elimina|A;;;;;Qta|A;Note|A;");
        EXPECT_EQ(c.Celle(2), ";2;B;2.50;0;5;;12.50");
        EXPECT_EQ(c.Celle(3).section(';', -1), "22.50");
        c.progetto.Prodotti_Selezionati.Remove(1);
        c.Riempi("P_1", false);
    }
    c.Riempi("P_1");
    EXPECT_FALSE(c.griglia.Visible);
}

TEST(Griglia_Carrello, TabsAndLineEndsStayInTheirCell) {
    Carrello_Aperto c(Libero().Cambia("Componenti_Web", 1, "Campo01", "A\tA\n"));
    for (const auto& [codice, riferimento] : {std::pair("A", "1"), {"B", "2"}})
        c.Aggiungi(codice, riferimento);
    Cerca_Riga(c.progetto.Prodotti_Selezionati, "P_1", "A-1")->Nota = "una\t9\r\nnota";
    c.Riempi("P_1");
    EXPECT_EQ(c.Celle(1), ";1;A\tA\n;10.00;0;1;una\t9\r\nnota;10.00");
    EXPECT_EQ(c.Celle(3).section(';', -1), "22.50");
}

TEST(Griglia_Carrello, FollowsLanguageAndMarket) {
    Catalogo_Di_Prova catalogo = Libero();
    catalogo.Cambia("Albero_Web", 2, "Testo_Visualizzato_2", "One")
        .Cambia("Struttura_Componenti", 1, "Traduzione_2", "Code")
        .Cambia("Struttura_Componenti", 2, "Key_Mercato", "/1/")
        .Cambia("Componenti_Web", 1, "Key_Mercato", "/1/");
    Carrello_Aperto c(catalogo);
    c.Aggiungi("A", "1");
    // A log-in while the grid is filled brings its own filters along, and they are one user's throughout.
    const Contesto_Carrello contesto = c.progetto.Carrello(
        [&c] {
            c.progetto.Lingua = c.progetto.Mercato = "2";
            c.progetto.Traduzioni.Carica_Testi_Codificati("2");
            return true;
        },
        [] {});
    Visualizza_Griglia_Carello_Prodotto(contesto, TUTTI_I_PRODOTTI, true, c.griglia, c.tag);
    EXPECT_EQ(c.Celle(0), ";;;Code;Sconto;Quantity;Nota");
    // Outside market 1 the part comes from the master, and there is no price.
    EXPECT_EQ(c.Celle(1), ";One;-;A;0;1;");
    EXPECT_EQ(c.griglia.Rows(), 2);
}

TEST(Griglia_Carrello, HasNoLimitToItsRowsAndColumns) {
    Catalogo_Di_Prova catalogo = Libero();
    for (int c = 0; c < 30; ++c)
        catalogo.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo01"},
                                               {"Visualizzato", "Yes"},
                                               {"Ordine", "20"},
                                               {"Tipo_Colonna", "Text"}});
    Carrello_Aperto c(catalogo);
    for (int i = 0; i < 1100; ++i)
        c.Aggiungi("A", QString("%1").arg(i));
    c.Riempi();
    EXPECT_TRUE(c.griglia.Visible);
    EXPECT_EQ(c.griglia.Rows(), 1103);
    EXPECT_EQ(c.tag.Riga(1100) + ' ' + c.tag.At(1100, 36), "A-1099 Qta|A");
    EXPECT_EQ(c.Celle(1101).section(';', -1), "11000.00");
}

TEST(Griglia_Carrello, WhatCantBeReadHidesItAndWithoutDiscountsNothingIsDiscounted) {
    Carrello_Aperto rotto(Libero().Cambia("Struttura_Componenti", 2, "Nome_Colonna_Tabella", "no such"));
    rotto.Aggiungi("A", "1");
    rotto.Riempi();
    EXPECT_FALSE(rotto.griglia.Visible);
    EXPECT_EQ(rotto.griglia.Motivo, Assenza::Guasto);
    EXPECT_TRUE(rotto.messaggi.Mostrati.empty());
    Carrello_Aperto c(
        Libero().Rimuovi_Tabella("Sconti").Rimuovi_Tabella("Gruppi_Utenti").Rimuovi_Tabella("Anagrafico"));
    c.Aggiungi("D", "4");
    c.Riempi();
    EXPECT_EQ(c.Celle(1), ";Uno;4;D;100.00;(0) %;1;;100.00");
    c.progetto.Prodotti_Selezionati.Remove(1);
    c.Aggiungi("NOWHERE", "1");
    c.Riempi();
    EXPECT_EQ(c.griglia.Motivo, Assenza::Nascoste);
    c.Riempi("P_2");
    EXPECT_EQ(c.griglia.Motivo, Assenza::Vuota);
    c.progetto.Elimina_Progetto_Aperto();
    EXPECT_EQ(c.progetto.Prodotti_Selezionati.Count(), 0) << "the cart goes with the catalogue";
}

}  // namespace

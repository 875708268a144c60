#include <gmock/gmock.h>

#include "core/parts_tables/distinta.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;

/// A parts list over a catalogue that each test completes before its first fill.
class Distinta : public testing::Test {
  protected:
    /// Adds a shown column to the model.
    void Colonna(const char* nome, const Valore_Prova& titolo, const QString& tipo, const Valore_Prova& size,
                 const Valore_Prova& tradotto = std::nullopt) {
        catalogo.Riga(u"Struttura_Componenti"_qs, {{"Nome_Colonna_Tabella", nome},
                                                   {"Titolo_Colonna", titolo},
                                                   {"Traduzione_1", tradotto},
                                                   {"Visualizzato", "Yes"},
                                                   {"Ordine", QString::number(++ordine)},
                                                   {"Tipo_Colonna", tipo},
                                                   {"Size", size}});
    }
    void Senza_Colonne() { catalogo.Svuota_Tabella(u"Struttura_Componenti"_qs); }

    void Riempi(const QString& prodotto, bool con_aggiungi = false, const QString& riferimento = {},
                bool ricarica_righe = true) {
        if (!aperto) {
            aperto.emplace(catalogo);
            traduzioni.Apri_Database_Traduzioni(aperto->Percorso);
            traduzioni.Carica_Testi_Codificati(filtri.Lingua);
        }
        const Contesto_Distinta contesto{
            aperto->DB, traduzioni, numeri, filtri, [this] { return accesso; }, [this] { ++intro; }};
        colonne = Visualizza_Griglia_Distinta_Prodotto(contesto, prodotto, riferimento, ricarica_righe,
                                                       griglia, tag, con_aggiungi);
    }
    /// The data rows, cells joined by "|".
    QStringList Righe() const {
        QStringList righe;
        for (int r = 1; r < griglia.Rows(); ++r) {
            QStringList celle;
            for (int c = 0; c < griglia.Cols(); ++c)
                celle.append(griglia.TextMatrix(r, c));
            righe.append(celle.join(u'|'));
        }
        return righe;
    }
    QStringList Titoli() const {
        QStringList titoli;
        for (const Colonna_Griglia& colonna : colonne)
            titoli.append(colonna.Titolo);
        return titoli;
    }

    Catalogo_Di_Prova catalogo;
    std::optional<Catalogo_Aperto> aperto;
    Filtri filtri{u"1"_qs, u"1"_qs, QString(), QString()};
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Numeri numeri{sistema, messaggi};
    Collection_Traduzioni traduzioni{messaggi};
    bool accesso = true;
    int intro = 0, ordine = 10;
    Griglia griglia;
    Tag_Griglia tag{1000};
    std::vector<Colonna_Griglia> colonne;
};

TEST_F(Distinta, ShowsThePartsOfAProduct) {
    catalogo.Parte("P_1", "2", "C2", "Vite", {{"Campo03", "1.5"}, {"Ordine", "2"}});
    catalogo.Parte("P_1", "1", "C1", "Dado", {{"Campo03", "2,345"}, {"Ordine", "1"}});
    catalogo.Parte("P_1", "3", "C3", "Motore", {{"Tipo_Associazione", "1"}, {"Ordine", "3"}});
    catalogo.Parte("P_2", "9", "C9", "Altro");
    int ridisegni = 0;
    griglia.Cambiata = [&] { ++ridisegni; };
    Riempi("P_1", true);

    EXPECT_TRUE(griglia.Visible);
    EXPECT_EQ(ridisegni, 1);
    EXPECT_THAT(Titoli(),
                ElementsAre(u"IMMAGINE##||##Riferimenti.GIF"_qs, u"IMMAGINE##||##Carrello_header.GIF"_qs,
                            u"Codice"_qs, u"Descrizione"_qs, u"Prezzo"_qs));
    EXPECT_EQ(griglia.At(0, 1).Picture, u"Carrello_header.GIF");
    EXPECT_EQ(griglia.TextMatrix(0, 3), u"Descrizione");
    EXPECT_THAT(Righe(), ElementsAre(u"1||C1|Dado|2,35"_qs, u"2||C2|Vite|1,50"_qs, u"-||C3|Motore|"_qs));
    EXPECT_EQ(tag.At(1, 1), u"Add_Componente|C1|P_1|1");
    EXPECT_EQ(tag.At(3, 1), u"Add_Componente|C3|P_1|-");
    EXPECT_EQ(griglia.At(3, 1).Picture, u"Carrello.bmp");
    EXPECT_EQ(tag.At(1, 0) + tag.At(1, 2) + tag.At(1, 4), QString());

    Riempi("P_2");
    EXPECT_THAT(Righe(), ElementsAre(u"9|C9|Altro|"_qs));
    EXPECT_EQ(tag.At(1, 1), QString());
}

TEST_F(Distinta, TitlesComeFromTheLanguageElseFromTheColumn) {
    Senza_Colonne();
    Colonna("Campo01", "Codice", "Testo", "5", "Tradotto");
    Colonna("Campo02", "Descrizione", "Testo", "5");
    catalogo.Parte("P_1", "1", "C1", "x");
    Riempi("P_1");
    EXPECT_THAT(Titoli(), ElementsAre(testing::_, u"Tradotto"_qs, u"Descrizione"_qs));
}

TEST_F(Distinta, SizesBecomeDecimalsOrCharacters) {
    Senza_Colonne();
    struct Caso {
        const char *nome, *tipo;
        Valore_Prova size;
        const char *atteso, *valore, *cella;
    };
    const Caso casi[] = {
        {"N0", "Number", "0", "0", "2.5", "3"},
        {"N3", "Price", "3", "3", "1234.5", "1234,500"},
        {"NN", "Number", std::nullopt, "0", "-0.4", "0"},
        {"NT", "Number", "1", "1", "a richiesta", "a richiesta"},
        {"T0", "Text [255 car.]", "0", "20", "abcdefghijklmnopqrstuvwxyz", "abcdefghijklmnopqrst"},
        {"T3", "Single", "3", "3", "abcdef", "abc"},
        {"T9", "Altro", "9", "9", "abc", "abc"},
        {"TN", "Testo", std::nullopt, "20", "abc", "abc"},
    };
    catalogo.Parte("P_1", "1", "C1", "x");
    for (const Caso& caso : casi)
        Colonna(caso.nome, caso.nome, caso.tipo, caso.size);
    catalogo.Riga("Componenti_Web", {{"Key_Prodotto", "P_2"},
                                     {"Key_Riferimento", "7"},
                                     {"Ordine", "1"},
                                     {"N0", "2.5"},
                                     {"N3", "1234.5"},
                                     {"NN", "-0.4"},
                                     {"NT", "a richiesta"},
                                     {"T0", "abcdefghijklmnopqrstuvwxyz"},
                                     {"T3", "abcdef"},
                                     {"T9", "abc"},
                                     {"TN", "abc"}});
    Riempi("P_2");
    ASSERT_EQ(colonne.size(), std::size(casi) + 1);
    for (size_t i = 0; i < std::size(casi); ++i) {
        EXPECT_EQ(colonne[i + 1].Size, QString(casi[i].atteso)) << casi[i].nome;
        EXPECT_EQ(griglia.TextMatrix(1, static_cast<int>(i) + 1), QString(casi[i].cella)) << casi[i].nome;
    }
}

TEST_F(Distinta, KindsOfTheCartAreNoColumns) {
    Senza_Colonne();
    for (const char* tipo : {"Discount", "Quantity", "Memo", "memo"})
        Colonna("Campo01", tipo, tipo, "5");
    catalogo.Parte("P_1", "1", "C1", "x");
    Riempi("P_1");
    EXPECT_THAT(Titoli(), ElementsAre(testing::_, u"memo"_qs));
}

TEST_F(Distinta, PicturesAndDocumentsBecomeTags) {
    Colonna("Foto", "Foto", "Image", "x");
    Colonna("Guida", "Guida", "Document", "");
    catalogo.Parte("P_1", "1", "C1", "a", {{"Foto", "f.png"}, {"Guida", "g.pdf"}});
    catalogo.Parte("P_1", "2", "C2", "b", {{"Foto", "  "}, {"Guida", std::nullopt}});
    Riempi("P_1");
    EXPECT_EQ(colonne[4].Size, u"x");
    EXPECT_THAT(Righe(), ElementsAre(u"1|C1|a|||"_qs, u"2|C2|b||  |"_qs));
    EXPECT_EQ(tag.At(1, 4), u"Image|f.png");
    EXPECT_EQ(griglia.At(1, 4).Picture, u"lente.bmp");
    EXPECT_EQ(tag.At(1, 5), u"Document|g.pdf");
    EXPECT_EQ(griglia.At(1, 5).Picture, u"Grafetta.bmp");
    EXPECT_EQ(tag.At(2, 4), QString());
    EXPECT_EQ(griglia.At(2, 4).Picture, QString());
}

TEST_F(Distinta, AnEmptyReferenceMovesTheRowToTheLeft) {
    catalogo.Parte("P_1", "0", "C1", "a");
    catalogo.Parte("P_1", "A0", "C2", "b");
    catalogo.Riga("Componenti_Web", {{"Key_Prodotto", "P_1"}, {"Ordine", "9"}, {"Campo02", "solo"}});
    Riempi("P_1", true);
    // The empty reference and the empty cart cell behind it give no tab.
    EXPECT_THAT(Righe(), ElementsAre(u"C1|a|||"_qs, u"A0||C2|b|"_qs, u"solo||||"_qs));
    EXPECT_EQ(tag.At(1, 1), u"Add_Componente|C1|P_1|C1");
    EXPECT_EQ(griglia.TextMatrix(1, 1), u"a") << "the text stays beside the cart's picture";
}

TEST_F(Distinta, ARecordWithoutCellsShiftsTheCodes) {
    catalogo.Riga("Componenti_Web",
                  {{"Key_Prodotto", "P_1"}, {"Ordine", "0"}, {"Codice_Componente", "VUOTO"}});
    catalogo.Parte("P_1", "1", "C1", "a");
    catalogo.Parte("P_1", "2", "C2", "b");
    Riempi("P_1", true);
    EXPECT_THAT(Righe(), ElementsAre(u"1||C1|a|"_qs, u"2||C2|b|"_qs));
    EXPECT_EQ(tag.At(1, 1), u"Add_Componente|VUOTO|P_1|1");
    EXPECT_EQ(tag.At(2, 1), u"Add_Componente|C1|P_1|2");
}

TEST_F(Distinta, WithoutANewRowTheLastOldOneStays) {
    catalogo.Parte("P_1", "1", "C1", "a");
    catalogo.Parte("P_1", "2", "C2", "b");
    catalogo.Riga("Componenti_Web", {{"Key_Prodotto", "P_2"}, {"Codice_Componente", "VUOTO"}});
    Riempi("P_1");
    Riempi("P_2");
    EXPECT_TRUE(griglia.Visible);
    EXPECT_THAT(Righe(), ElementsAre(u"2|C2|b|"_qs));
}

TEST_F(Distinta, AProductWithoutPartsHidesAndClearsTheGrid) {
    catalogo.Parte("P_1", "1", "C1", "a");
    Riempi("P_1", true);
    Riempi("P_9", true);
    EXPECT_FALSE(griglia.Visible);
    EXPECT_EQ(griglia.Rows(), 2);
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < griglia.Cols(); ++c)
            EXPECT_EQ(griglia.At(r, c).Text + griglia.At(r, c).Picture, QString()) << r << ',' << c;
}

TEST_F(Distinta, TheQuantityColumnIsASetting) {
    catalogo.Sistema("IMPOSTAZIONE_VISUALIZZA_QUANTITA", "SI");
    catalogo.Parte("P_1", "1", "C1", "a", {{"Quantita_min", "12345678901"}});
    Riempi("P_1");
    EXPECT_EQ(colonne.back().Titolo, u"Quantità");
    EXPECT_EQ(colonne.back().Tipo, u"Testo");
    EXPECT_THAT(Righe(), ElementsAre(u"1|C1|a||1234567890"_qs));
}

TEST_F(Distinta, NotesAreAColumnWhenARowHasOne) {
    catalogo.Sistema("IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE", "33");
    for (const auto& [key, testo] :
         {std::pair{"N1", "Solo per l'Italia, fino alla serie 3"}, {"N2", " "}, {"d'oro", "d'oro!"}})
        catalogo.Riga("Traduzioni_Componenti_Mappe", {{"Key", key}, {"Traduzione_Nota_1", testo}});
    const Valore_Prova note[] = {"N1", std::nullopt, "N2", "assente", "d'oro", "l'assente", "N1"};
    for (const Valore_Prova& nota : note)
        catalogo.Parte("P_1", "1", "C1", "a", {{"Key_Nota_1", nota}});
    catalogo.Parte("P_2", "1", "C1", "a");
    Riempi("P_1");
    EXPECT_EQ(colonne.back().Titolo, u"Note");
    EXPECT_EQ(colonne.back().Tipo, u"Nota_Associazione");
    EXPECT_EQ(colonne.back().Size, u"33");
    const QString testi[] = {
        "Solo per l'Italia, fino alla serie 3", "", "N2", "assente", "d'oro!", "l'assente",
        "Solo per l'Italia, fino alla serie 3"};
    ASSERT_EQ(griglia.Rows(), 8);
    for (int r = 1; r < griglia.Rows(); ++r)
        EXPECT_EQ(griglia.TextMatrix(r, 4), testi[r - 1]) << r;
    Riempi("P_2");
    EXPECT_EQ(colonne.size(), 4u);
}

TEST_F(Distinta, ARecordWithANoteAloneGivesARow) {
    catalogo.Riga("Componenti_Web", {{"Key_Prodotto", "P_1"}, {"Ordine", "0"}, {"Key_Nota_1", "solo"}});
    catalogo.Parte("P_1", "1", "C1", "a");
    Riempi("P_1");
    EXPECT_THAT(Righe(), ElementsAre(u"solo||||"_qs, u"1|C1|a||"_qs));
}

TEST_F(Distinta, FiltersAndReferenceLimitTheRows) {
    catalogo.Parte("P_1", "1", "C1", "a", {{"Key_Mercato", "/2/"}});
    catalogo.Parte("P_1", "1", "C2", "b", {{"Key_Gruppo", "/A/"}});
    catalogo.Parte("P_1", "2", "C3", "c", {{"Key_Gruppo", "/B/"}});
    catalogo.Parte("P_1", "2'", "C4", "d");
    struct Caso {
        QString mercato, gruppo, riferimento;
        QStringList codici;
    };
    const Caso casi[] = {
        {"1", "", "", {"C2", "C3", "C4"}}, {"2", "", "", {"C1", "C2", "C3", "C4"}},
        {"1", "/A/", "", {"C2", "C4"}},    {"1", "/B/A/", "", {"C2", "C3", "C4"}},
        {"2", "", "1", {"C1", "C2"}},      {"1", "", "2'", {"C4"}},
    };
    for (const Caso& caso : casi) {
        filtri.Mercato = caso.mercato;
        filtri.Gruppo = caso.gruppo;
        Riempi("P_1", false, caso.riferimento);
        QStringList codici;
        for (int r = 1; r < griglia.Rows(); ++r)
            codici.append(griglia.TextMatrix(r, 1));
        EXPECT_EQ(codici, caso.codici) << qPrintable(caso.mercato + caso.gruppo + caso.riferimento);
    }
}

TEST_F(Distinta, ColumnsAloneCanBeRebuilt) {
    catalogo.Parte("P_1", "1", "C1", "a");
    catalogo.Parte("P_1", "2", "C2", "b");
    Riempi("P_1", true);
    const QStringList righe = Righe();
    griglia.Width = 6300;
    griglia.Visible = false;
    Riempi("P_1", true, {}, false);
    EXPECT_TRUE(griglia.Visible);
    EXPECT_EQ(Righe(), righe);
    EXPECT_EQ(tag.At(2, 1), u"Add_Componente|C2|P_1|2");
    int somma = 0;
    for (int c = 0; c < griglia.Cols(); ++c)
        somma += griglia.ColWidth(c);
    EXPECT_NEAR(somma, 6000, griglia.Cols());

    Riempi("P_9", true);
    Riempi("P_9", true, {}, false);
    EXPECT_FALSE(griglia.Visible) << "an empty row is no reason to show the grid";
}

TEST_F(Distinta, ARefusedUserSeesTheIntro) {
    catalogo.Parte("P_1", "1", "C1", "a");
    accesso = false;
    Riempi("P_1");
    EXPECT_EQ(intro, 1);
    EXPECT_TRUE(colonne.empty());
    EXPECT_EQ(griglia.Rows(), 2);
    EXPECT_TRUE(griglia.Visible);
}

TEST_F(Distinta, AFieldThatIsNotThereEndsTheFill) {
    catalogo.Parte("P_1", "1", "C1", "a");
    Colonna("Campo99", "Fantasma", "Testo", "5");
    Riempi("P_1");
    EXPECT_FALSE(griglia.Visible);
    EXPECT_EQ(griglia.TextMatrix(0, 4), u"Fantasma") << "the header was done by then";
    EXPECT_EQ(griglia.Rows(), 2);
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Distinta, WhatCanNotBeReadEndsTheFill) {
    struct Caso {
        const char* descrizione;
        std::function<void(Catalogo_Di_Prova&)> guasto;
    };
    const Caso casi[] = {
        {"no parts", [](auto& c) { c.Rimuovi_Tabella("Componenti_Web"); }},
        {"no column model", [](auto& c) { c.Rimuovi_Tabella("Struttura_Componenti"); }},
        {"no language", [](auto& c) { c.Rimuovi_Colonna("Struttura_Componenti", "Traduzione_1"); }},
        {"a size beyond 16 bits",
         [](auto& c) {
             c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo02"},
                                             {"Visualizzato", "Yes"},
                                             {"Tipo_Colonna", "Price"},
                                             {"Size", "99999"}});
         }},
        {"a cut to a negative length",
         [](auto& c) {
             c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo02"},
                                             {"Visualizzato", "Yes"},
                                             {"Tipo_Colonna", "Testo"},
                                             {"Size", "-5"}});
         }},
    };
    for (const Caso& caso : casi) {
        aperto.reset();
        catalogo = Catalogo_Di_Prova();
        catalogo.Parte("P_1", "1", "C1", "a");
        griglia.Visible = true;
        Riempi("P_1");
        EXPECT_TRUE(griglia.Visible) << caso.descrizione;
        aperto.reset();
        caso.guasto(catalogo);
        Riempi("P_1");
        EXPECT_FALSE(griglia.Visible) << caso.descrizione;
    }
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Distinta, RowsAndColumnsBeyondTheTagsEndTheFill) {
    const auto aggiungi_parti = [this](int da, int fino) {
        for (int i = da; i <= fino; ++i)
            catalogo.Riga("Componenti_Web", {{"Key_Prodotto", "P_1"},
                                             {"Key_Riferimento", QString::number(i)},
                                             {"Ordine", QString::number(i)},
                                             {"Campo01", "C"}});
    };
    aggiungi_parti(1, 1000);
    Riempi("P_1", true);
    EXPECT_TRUE(griglia.Visible);
    EXPECT_EQ(griglia.Rows(), 1001);
    EXPECT_EQ(griglia.TextMatrix(1000, 0), u"1000");

    aggiungi_parti(1001, 1001);
    aperto.reset();
    Riempi("P_1", true);
    EXPECT_FALSE(griglia.Visible);
    EXPECT_EQ(griglia.Rows(), 1002);
    EXPECT_EQ(tag.At(1000, 1), u"Add_Componente||P_1|1000");

    catalogo.Parte("P_2", "1", "C1", "a");
    for (const bool visibile : {true, false}) {
        while (ordine <
               (visibile ? 32 : 33))  // with the reference and the three of the catalogue: 26, then 27
            Colonna("Campo02", "x", "Testo", "5");
        aperto.reset();
        Riempi("P_2");
        EXPECT_EQ(griglia.Cols(), visibile ? 26 : 27);
        EXPECT_EQ(griglia.Visible, visibile);
    }
}

TEST_F(Distinta, AQuoteInTheProductsKeyIsNoFailure) {
    catalogo.Parte("P_l'uno", "1", "C1", "a");
    Riempi("P_l'uno", true);
    EXPECT_THAT(Righe(), ElementsAre(u"1||C1|a|"_qs));
    EXPECT_EQ(tag.At(1, 1), u"Add_Componente|C1|P_l'uno|1");
}

}  // namespace

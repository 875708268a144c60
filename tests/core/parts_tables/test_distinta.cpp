#include "core/parts_tables/distinta.h"

#include <gmock/gmock.h>

#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;

struct Nessun_File : Fonte_File {
    QString Scompatta_File_Compattato(const QString&) override { return {}; }
};

/// A parts list over a catalogue.
class Distinta : public testing::Test {
  protected:
    /// Adds a shown column to the model.
    void Colonna(const char* nome, const char* titolo, const char* tipo, const Valore_Prova& size,
                 const Valore_Prova& tradotto = std::nullopt) {
        catalogo.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", nome},
                                               {"Titolo_Colonna", titolo},
                                               {"Traduzione_1", tradotto},
                                               {"Visualizzato", "Yes"},
                                               {"Ordine", QString::number(++ordine)},
                                               {"Tipo_Colonna", tipo},
                                               {"Size", size}});
    }
    /// A row of `Componenti_Web` alone.
    void Record(const char* prodotto, const char* codice, const Catalogo_Di_Prova::Campi& altri) {
        Catalogo_Di_Prova::Campi campi{
            {"Key_Prodotto", prodotto}, {"Codice_Componente", codice}, {"Ordine", "99"}};
        campi.insert(campi.end(), altri.begin(), altri.end());
        catalogo.Riga("Componenti_Web", campi);
    }
    void Riempi(const QString& prodotto, bool con_aggiungi = false, const QString& riferimento = {},
                bool ricarica_righe = true) {
        if (!aperto) {
            aperto.emplace(catalogo);
            traduzioni.Apri_Database_Traduzioni(aperto->Percorso);
            traduzioni.Carica_Testi_Codificati(filtri.Lingua);
        }
        const auto verifica = [this](Filtri&) { return accesso; };
        const Contesto_Griglia contesto{aperto->DB, traduzioni, numeri,   file,
                                        sistema,    filtri,     verifica, [this] { ++intro; }};
        colonne = Visualizza_Griglia_Distinta_Prodotto(contesto, prodotto, riferimento, ricarica_righe,
                                                       griglia, tag, con_aggiungi);
    }
    /// The data rows, cells joined by "|".
    QStringList Righe() const {
        QStringList righe;
        for (int r = 1; r < griglia.Rows(); ++r)
            righe.append(Riga(r));
        return righe;
    }
    QString Riga(int riga) const {
        QStringList celle;
        for (int c = 0; c < griglia.Cols(); ++c)
            celle.append(griglia.TextMatrix(riga, c));
        return celle.join('|');
    }

    Catalogo_Di_Prova catalogo;
    std::optional<Catalogo_Aperto> aperto;
    Filtri filtri{"1", "1", {}, {}};
    Sistema_Finto sistema;
    Messaggi_Finti messaggi;
    Nessun_File file;
    Numeri numeri{sistema, messaggi};
    Collection_Traduzioni traduzioni{messaggi};
    bool accesso = true;
    int intro = 0, ordine = 10;
    Griglia griglia;
    Tag_Griglia tag{1000};
    std::vector<Colonna_Griglia> colonne;
};

TEST_F(Distinta, ShowsThePartsOfAProduct) {
    catalogo.Parte("P_1", "2", "C2", "Vite", {{"Campo03", "1.5"}, {"Ordine", "2"}})
        .Parte("P_1", "1", "C1", "Dado", {{"Campo03", "2,345"}, {"Ordine", "1"}})
        .Parte("P_1", "3", "C3", "Motore", {{"Tipo_Associazione", "1"}, {"Ordine", "3"}})
        .Parte("P_l'2", "9", "C\t9", "due\r\nrighe\t", {{"Key_Nota_1", "una\tnota"}});
    Riempi("P_1", true);
    EXPECT_TRUE(griglia.Visible);
    EXPECT_EQ(Riga(0), "||Codice|Descrizione|Prezzo");
    EXPECT_EQ(griglia.At(0, 0).Picture + ' ' + griglia.At(0, 1).Picture,
              "Riferimenti.GIF Carrello_header.GIF");
    EXPECT_THAT(Righe(), ElementsAre("1||C1|Dado|2,35", "2||C2|Vite|1,50", "-||C3|Motore|"));
    EXPECT_EQ(tag.At(1, 1) + ' ' + tag.At(3, 1), "Add_Componente|C1|P_1|1 Add_Componente|C3|P_1|-");
    EXPECT_EQ(griglia.At(3, 1).Picture, "Carrello.bmp");
    Riempi("P_l'2");
    EXPECT_THAT(Righe(), ElementsAre("9|C\t9|due\r\nrighe\t||una\tnota")) << "a tab stays in its cell";
    EXPECT_EQ(tag.At(1, 1), "");
}

TEST_F(Distinta, ColumnsHaveTitlesSizesAndTheirOwnFormats) {
    catalogo.Svuota_Tabella("Struttura_Componenti").Sistema("IMPOSTAZIONE_VISUALIZZA_QUANTITA", "SI");
    const struct {
        const char *nome, *tipo;
        Valore_Prova size;
        const char* atteso;
        Valore_Prova valore;
        const char* cella;
    } casi[] = {
        {"N3", "Price", "3", "3", "1234.5", "1234,500"},
        {"P1", "Price", "2", "2", "16777217", "16777216,00"},  // a single, as its total is
        {"P2", "Price", "2", "2", "1,048.00", "1,048.00"},
        {"P3", "Price", "2", "2", "1E40", "1E40"},
        {"N1", "Number", "0", "0", "16777217", "16777217"},
        {"NN", "Number", std::nullopt, "0", "-0.4", "0"},
        {"NT", "Number", "1", "1", "a richiesta", "a richiesta"},
        {"T0", "Text [255 car.]", "0", "20", "abcdefghijklmnopqrstuvwxyz", "abcdefghijklmnopqrst"},
        {"T9", "memo", "9", "9", "abc", "abc"},  // a text: kinds are told with their case
        {"F1", "Image", "x", "x", "f.png", ""},
        {"F2", "Image", "", "", "  ", "  "},
        {"F3", "Document", "", "", "g.pdf", ""},
        {"F4", "Document", "", "", std::nullopt, ""},
    };
    Catalogo_Di_Prova::Campi riga{{"Key_Riferimento", "7"}, {"Quantita_min", "12345678901"}};
    for (const auto& caso : casi) {
        Colonna(caso.nome, caso.nome, caso.tipo, caso.size);
        riga.push_back({caso.nome, caso.valore});
    }
    Colonna("T9", "Titolo", "Testo", "5", "Tradotto");
    for (const char* tipo : {"Discount", "Quantity", "Memo"})  // kinds of the cart are no columns
        Colonna("T9", tipo, tipo, "5");
    Record("P_1", "C", riga);
    Riempi("P_1");
    EXPECT_EQ(Riga(0), "|N3|P1|P2|P3|N1|NN|NT|T0|T9|F1|F2|F3|F4|Tradotto|Quantità");
    EXPECT_TRUE(Riga(1).endsWith("|abc|1234567890"));
    for (size_t i = 0; i < std::size(casi); ++i) {
        EXPECT_EQ(colonne.at(i + 1).Size, casi[i].atteso) << casi[i].nome;
        EXPECT_EQ(griglia.TextMatrix(1, static_cast<int>(i) + 1), casi[i].cella) << casi[i].nome;
    }
    for (const auto& [c, attesa] :
         {std::pair(10, "Image|f.png lente.bmp"), {11, " "}, {12, "Document|g.pdf Grafetta.bmp"}, {13, " "}})
        EXPECT_EQ(tag.At(1, c) + ' ' + griglia.At(1, c).Picture, attesa) << c;
}

TEST_F(Distinta, EmptyFirstCellsMoveTheRowToTheLeftAndEmptyRowsTheCodes) {
    catalogo.Parte("P_1", "0", "C1", "a").Parte("P_1", "A0", "C2", "b");
    Record("P_1", "", {{"Campo02", "solo"}});
    Record("P_2", "VUOTO", {{"Ordine", "0"}});
    catalogo.Parte("P_2", "1", "C1", "a").Parte("P_2", "2", "C2", "b");
    Riempi("P_1", true);
    EXPECT_THAT(Righe(), ElementsAre("C1|a|||", "A0||C2|b|", "solo||||"));
    EXPECT_EQ(tag.At(1, 1), "Add_Componente|C1|P_1|C1");
    EXPECT_EQ(griglia.At(1, 1).Text + ' ' + griglia.At(1, 1).Picture, "a Carrello.bmp");
    Riempi("P_2", true);
    EXPECT_THAT(Righe(), ElementsAre("1||C1|a|", "2||C2|b|"));
    EXPECT_EQ(tag.At(1, 1) + ' ' + tag.At(2, 1), "Add_Componente|VUOTO|P_2|1 Add_Componente|C1|P_2|2");
}

TEST_F(Distinta, AFillReplacesRowsUnlessThereAreNoneOrColumnsAloneAreAskedFor) {
    catalogo.Parte("P_1", "1", "C1", "a").Parte("P_1", "2", "C2", "b");
    Record("P_2", "VUOTO", {});
    int avvisi = 0;
    griglia.Cambiata = [&] { ++avvisi; };
    Riempi("P_1");
    Riempi("P_2");
    EXPECT_TRUE(griglia.Visible);
    EXPECT_THAT(Righe(), ElementsAre("2|C2|b|"));
    Riempi("P_1");
    const int larghezza = griglia.ColWidth(1);
    griglia.Width = 300 + (griglia.Width - 300) / 2;
    Riempi("P_1", false, {}, false);  // the columns alone
    EXPECT_THAT(Righe(), ElementsAre("1|C1|a|", "2|C2|b|"));
    EXPECT_NEAR(griglia.ColWidth(1), larghezza / 2, 1);
    for (const bool ricarica : {true, false}) {  // an empty row is no reason to show the grid
        Riempi("P_9", true, {}, ricarica);
        EXPECT_FALSE(griglia.Visible) << ricarica;
        EXPECT_EQ(griglia.Motivo, Assenza::Vuota) << ricarica;
        EXPECT_THAT(Righe(), ElementsAre("||||")) << ricarica;
    }
    EXPECT_EQ(avvisi, 6) << "each fill is told once";
    accesso = false;
    Riempi("P_1");
    EXPECT_EQ(avvisi, 6);
    EXPECT_EQ(intro, 1);
    EXPECT_TRUE(colonne.empty());
}

TEST_F(Distinta, NotesAreAColumnWhenARowHasOne) {
    catalogo.Sistema("IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE", "33");
    for (const auto& [key, testo] : {std::pair("d'oro", "Solo per l'Italia"), std::pair("N2", " ")})
        catalogo.Riga("Traduzioni_Componenti_Mappe", {{"Key", key}, {"Traduzione_Nota_1", testo}});
    for (const Valore_Prova& key : std::vector<Valore_Prova>{"d'oro", std::nullopt, "N2", "l'assente"})
        catalogo.Parte("P_1", "1", "C1", "a", {{"Key_Nota_1", key}});
    Record("P_1", "", {{"Key_Nota_1", "solo"}});  // a record with a note alone gives a row
    catalogo.Parte("P_2", "1", "C1", "a");
    Riempi("P_1");
    const Colonna_Griglia& colonna = colonne.back();
    EXPECT_EQ(colonna.Titolo + '|' + colonna.Tipo + '|' + colonna.Size, "Note|Nota_Associazione|33");
    EXPECT_THAT(Righe(), ElementsAre("1|C1|a||Solo per l'Italia", "1|C1|a||", "1|C1|a||N2",
                                     "1|C1|a||l'assente", "solo||||"));
    Riempi("P_1", false, {}, false);
    EXPECT_EQ(griglia.Cols(), 5);
    Riempi("P_2");
    EXPECT_EQ(griglia.Cols(), 4);
}

TEST_F(Distinta, FiltersAndReferenceLimitTheRows) {
    catalogo.Parte("P_1", "1", "C1", "a", {{"Key_Mercato", "/2/"}})
        .Parte("P_1", "1'", "C2", "b", {{"Key_Gruppo", "/A/"}})
        .Parte("P_1", "1'", "C3", "c", {{"Key_Gruppo", "/B/"}});
    Riempi("P_1");
    EXPECT_THAT(Righe(), ElementsAre("1'|C2|b|", "1'|C3|c|"));
    filtri.Mercato = "2";
    filtri.Gruppo = "/A/";
    Riempi("P_1");
    EXPECT_THAT(Righe(), ElementsAre("1|C1|a|", "1'|C2|b|"));
    Riempi("P_1", false, "1'");
    EXPECT_THAT(Righe(), ElementsAre("1'|C2|b|"));
}

TEST_F(Distinta, WhatCanNotBeReadEndsTheFill) {
    const std::pair<const char*, std::function<void()>> casi[] = {
        {"no parts", [this] { catalogo.Rimuovi_Tabella("Componenti_Web"); }},
        {"no column model", [this] { catalogo.Rimuovi_Tabella("Struttura_Componenti"); }},
        {"no language", [this] { catalogo.Rimuovi_Colonna("Struttura_Componenti", "Traduzione_1"); }},
        {"a size beyond 16 bits", [this] { Colonna("Campo02", "x", "Price", "99999"); }},
        {"a cut to a negative length", [this] { Colonna("Campo02", "x", "Testo", "-5"); }},
        {"a field that isn't there", [this] { Colonna("Campo99", "Fantasma", "Testo", "5"); }},
    };
    for (const auto& [nome, guasto] : casi) {
        catalogo = Catalogo_Di_Prova().Parte("P_1", "1", "C1", "a");
        guasto();
        griglia.Visible = true;
        aperto.reset();
        Riempi("P_1");
        EXPECT_FALSE(griglia.Visible) << nome;
        EXPECT_EQ(griglia.Motivo, Assenza::Guasto) << nome;
        EXPECT_EQ(griglia.Rows(), 2) << nome;
    }
    EXPECT_EQ(griglia.TextMatrix(0, 4), "Fantasma") << "the header was done by then";
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

TEST_F(Distinta, RowsAndColumnsBeyondTheTagsEndTheFill) {
    for (int i = 1; i <= 1001; ++i) {
        Record("P_1", "C", {{"Key_Riferimento", "7"}});
        if (i < 1000)
            continue;
        aperto.reset();
        Riempi("P_1", true);
        EXPECT_EQ(griglia.Visible, i == 1000);
        EXPECT_EQ(griglia.Rows(), i + 1);
    }
    EXPECT_EQ(griglia.Motivo, Assenza::Troppe_Righe);
    // With the reference and the three of the catalogue: 26 columns, then 27.
    catalogo.Parte("P_2", "1", "C1", "a");
    for (int c = 5; c <= 27; ++c) {
        Colonna("Campo02", "x", "Testo", "5");
        if (c < 26)
            continue;
        aperto.reset();
        Riempi("P_2");
        EXPECT_EQ(griglia.Visible, c == 26);
    }
}

}  // namespace

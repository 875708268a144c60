#include "tzf/check.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <functional>

#include "support/catalogo_di_prova.h"

namespace {

/// A catalogue without faults that has something of everything.
Catalogo_Di_Prova sound() {
    Catalogo_Di_Prova c;
    c.Riga("Gruppi_Utenti", {{"Key_Gruppo", "7"}, {"ID_Lingue", "/1/2/"}});
    c.Nodo("G_1", "R", "Motore")
        .Nodo("G_2", "G_1", "Testa", {{"Key_Mercato", "/1/3/"}, {"Key_Gruppo", "/7/"}});
    c.Prodotto("P_1", "G_2", "Cilindro").Prodotto("X_2", "G_1", "Pistone");
    c.Riga("Matricola_Nodo", {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "A10"}, {"Max_Matricola", "a20"}});
    c.Riga(
        "Traduzioni_Componenti_Mappe",
        {{"Key", "N1"}, {"Traduzione_Nota_1", "a"}, {"Traduzione_Nota_2", "b"}, {"Traduzione_Nota_3", "c"}});
    c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo04"},
                                    {"Titolo_Colonna", "Foto"},
                                    {"Traduzione_1", "Foto"},
                                    {"Traduzione_2", "Photo"},
                                    {"Traduzione_3", "Photo"},
                                    {"Visualizzato", "Yes"},
                                    {"Ordine", "9"},
                                    {"Tipo_Colonna", "Image"}});
    c.Riga("Componenti", {{"Campo01", "Z9"}, {"Campo04", "foto.png"}});
    c.Parte("P_1", "1", "A1", "Vite", {{"Key_Nota_1", "N1"}, {"Campo04", "foto.png"}});
    c.Parte("P_1", "2", "A2", "Dado", {{"Tipo_Associazione", "1"}, {"Key_Riferimento", std::nullopt}});
    c.Parte("X_2", "1", "A1", "Vite");
    c.File("img/foto.png", "x").File("1_1_PAGE_1.mdp", "x");
    c.Sistema("PRINT_EXTENSION_1_1_PAGE_1", "1").Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO");
    c.Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "G_1");
    return c;
}

std::vector<std::string> linesOf(const std::vector<Finding>& findings) {
    std::vector<std::string> lines;
    for (const Finding& f : findings)
        lines.push_back(QStringLiteral("%1 %2 %3 %4: %5")
                            .arg(f.error ? "error" : "warning", f.table)
                            .arg(f.row)
                            .arg(f.column, f.message)
                            .toStdString());
    return lines;
}

using Plant = std::function<void(Catalogo_Di_Prova&)>;

struct FaultCase {
    const char* name;
    Plant plant;
    const char* expected;  ///< beginning of the one finding
};

void PrintTo(const FaultCase& c, std::ostream* out) {
    *out << c.name;
}

class Fault : public testing::TestWithParam<FaultCase> {};

TEST(Check, ASoundCatalogueHasNoFindings) {
    QTemporaryDir folder;
    EXPECT_THAT(linesOf(checkCatalogue(sound().Pacchetto(folder.path()))), testing::IsEmpty());
    EXPECT_THAT(linesOf(checkCatalogue(sound().Sorgente(folder.filePath("source")))), testing::IsEmpty());
}

TEST_P(Fault, IsTheOneFinding) {
    QTemporaryDir folder;
    Catalogo_Di_Prova c = sound();
    GetParam().plant(c);
    const auto expected = testing::ElementsAre(testing::StartsWith(GetParam().expected));
    EXPECT_THAT(linesOf(checkCatalogue(c.Pacchetto(folder.path()))), expected);
    EXPECT_THAT(linesOf(checkCatalogue(c.Sorgente(folder.filePath("source")))), expected);
}

Plant row(const char* table, const Catalogo_Di_Prova::Campi& fields) {
    return [=](Catalogo_Di_Prova& c) { c.Riga(table, fields); };
}

/// Gives product P_1, whose rows have the references 1 and "-" (code A2), a drawing with these hotspots.
Plant drawing(const QStringList& hotspots) {
    return [=](Catalogo_Di_Prova& c) {
        QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'>";
        for (const QString& hotspot : hotspots)
            svg += "<path d='M1 1h3v3z' data-hotspot='" + hotspot.toUtf8() + "'/>";
        c.File("disegni/tz1.svg", svg + "</svg>").Cambia("Prodotti", 1, "Mappa_Associata", "disegni/tz1.svg");
        c.Cambia("Prodotti", 2, "Key_Associazione", "TAV_2");
    };
}

Plant system(const char* key, const char* value) {
    return [=](Catalogo_Di_Prova& c) { c.Sistema(key, value); };
}

INSTANTIATE_TEST_SUITE_P(
    Planted, Fault,
    testing::Values(
        // files
        FaultCase{"photo_missing", [](auto& c) { c.Cambia("Prodotti", 1, "Foto_1_Prodotto", "no.png"); },
                  "error Prodotti 1 Foto_1_Prodotto: file \"no.png\" isn't in the package"},
        FaultCase{"drawing_in_other_case",
                  [](auto& c) { c.Cambia("Prodotti", 2, "Mappa_Associata", "Foto.png"); },
                  "error Prodotti 2 Mappa_Associata: file \"Foto.png\" isn't in the package; there is"},
        FaultCase{"file_is_only_the_end",
                  [](auto& c) { c.Cambia("Prodotti", 1, "Foto_2_Prodotto", "oto.png"); },
                  "error Prodotti 1 Foto_2_Prodotto: \"oto.png\" isn't in the package as such"},
        FaultCase{"column_image_missing", [](auto& c) { c.Cambia("Componenti_Web", 3, "Campo04", "no.png"); },
                  "error Componenti_Web 3 Campo04: file"},
        FaultCase{"attachment_missing",
                  row("Scheda_Prodotti", {{"Key_Prodotto", "P_1"}, {"Allegato_2", "no.pdf"}}),
                  "error Scheda_Prodotti 1 Allegato_2: file"},
        FaultCase{"layout_missing", system("PRINT_EXTENSION_2_1_ORDER_2", "1"), "error SYSTEM"},
        FaultCase{"intro_picture_missing",
                  [](auto& c) {
                      c.Sistema("PUBBLICA_TZF_VIEWER_PERSONALIZZATO", "SI")
                          .Sistema("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO", "1")
                          .Sistema("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO_FILE", "mine.jpg");
                  },
                  "error SYSTEM 9 VALORE: file \"Immagine_Intro.jpg\""},
        FaultCase{"two_entries_of_one_name", [](auto& c) { c.File("other/foto.png", "y"); },
                  "error  0 : entries \"img/foto.png\" and \"other/foto.png\" have one name"},
        // drawings
        FaultCase{
            "hotspot_without_row", drawing({"1", "99"}),
            "warning Prodotti 1 Mappa_Associata: hotspot \"99\" of drawing \"disegni/tz1.svg\" has no row"},
        FaultCase{"code_without_row", drawing({"1", "CODICI#$#Z9"}),
                  "warning Prodotti 1 Mappa_Associata: hotspot \"CODICI#$#Z9\""},
        FaultCase{"link_to_no_node", drawing({"1", "PRODOTTO#$#P_77"}),
                  "warning Prodotti 1 Mappa_Associata: hotspot \"PRODOTTO#$#P_77\" of drawing "
                  "\"disegni/tz1.svg\" leads to"},
        FaultCase{"sub_product_elsewhere", drawing({"1", "SOTTO_PRODOTTO#$#TAV_2"}),
                  "warning Prodotti 1 Mappa_Associata: hotspot \"SOTTO_PRODOTTO#$#TAV_2\""},
        FaultCase{"reference_not_drawn", drawing({"A2"}),
                  "warning Componenti_Web 1 Key_Riferimento: reference 1 isn't on drawing"},
        FaultCase{"drawing_without_hotspots", drawing({}), "warning Prodotti 1 Mappa_Associata: drawing"},
        FaultCase{
            "no_drawing_at_all",
            [](auto& c) {
                c.File("disegni/tz1.svg", "junk").Cambia("Prodotti", 1, "Mappa_Associata", "disegni/tz1.svg");
            },
            "error Prodotti 1 Mappa_Associata: drawing \"disegni/tz1.svg\" can't be shown"},
        // tree
        FaultCase{"no_parent",
                  [](auto& c) {
                      c.Nodo("G_9", "G_NO", "x", {{"Profondita_Nodo", "2"}});
                  },
                  "error Albero_Web 6 Key_Padre: node G_9: its parent \"G_NO\" isn't there"},
        FaultCase{"parent_deeper", [](auto& c) { c.Cambia("Albero_Web", 3, "Profondita_Nodo", "7"); },
                  "error Albero_Web 4 Profondita_Nodo: node P_1 is read before its parent G_2"},
        FaultCase{"product_without_row", [](auto& c) { c.Nodo("P_9", "G_1", "x"); },
                  "error Albero_Web 6 Key_Prodotto: product P_9 has no row"},
        FaultCase{"row_without_product", row("Prodotti", {{"Key_Prodotto", "P_9"}}),
                  "error Prodotti 3 Key_Prodotto: there is no node P_9"},
        FaultCase{"node_twice", [](auto& c) { c.Nodo("G_1", "R", "x"); },
                  "error Albero_Web 6 Key_Prodotto: node G_1 stands in row 2 already"},
        FaultCase{"unknown_prefix", [](auto& c) { c.Nodo("Q_1", "G_1", "x"); },
                  "error Albero_Web 6 Key_Prodotto: \"Q_1\""},
        FaultCase{"caption_missing",
                  [](auto& c) { c.Cambia("Albero_Web", 3, "Testo_Visualizzato_2", std::nullopt); },
                  "error Albero_Web 3 Testo_Visualizzato_2: node G_2 has no caption"},
        FaultCase{"market_list_malformed", [](auto& c) { c.Cambia("Albero_Web", 2, "Key_Mercato", "1/2"); },
                  "error Albero_Web 2 Key_Mercato: \"1/2\" is no list"},
        FaultCase{"market_unknown", [](auto& c) { c.Cambia("Albero_Web", 2, "Key_Mercato", "/1/9/"); },
                  "error Albero_Web 2 Key_Mercato: there is no market 9"},
        FaultCase{"group_unknown", [](auto& c) { c.Cambia("Componenti_Web", 1, "Key_Gruppo", "/8/"); },
                  "error Componenti_Web 1 Key_Gruppo: Gruppi_Utenti has no \"8\""},
        FaultCase{"group_that_is_no_number", row("Gruppi_Utenti", {{"Key_Gruppo", "OFFICINA"}}),
                  "warning Gruppi_Utenti 2 Key_Gruppo: \"OFFICINA\" isn't a number"},
        FaultCase{"login_with_a_quote", row("Anagrafico", {{"Login", "d'angelo"}}),
                  "warning Anagrafico 1 Login: \"d'angelo\" holds a quote"},
        FaultCase{"serial_range_as_text",
                  row("Matricola_Nodo",
                      {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "900"}, {"Max_Matricola", "1000"}}),
                  "error Matricola_Nodo 2 Max_Matricola: no serial number"},
        // settings
        FaultCase{"unknown_key", system("IMPOSTAZIONE_COMPONENTI_WEB", "SI"),
                  "error SYSTEM 7 KEY: \"IMPOSTAZIONE_COMPONENTI_WEB\" is no key"},
        FaultCase{"unknown_value", system("IMPOSTAZIONE_ESPANDI_ALBERO", "YES"),
                  "error SYSTEM 7 VALORE: IMPOSTAZIONE_ESPANDI_ALBERO is \"YES\", and can be SI, NO"},
        FaultCase{"start_language_unknown", system("LINGUA_START", "italiano "),
                  "error SYSTEM 2 VALORE: no row of Lingue"},
        FaultCase{"old_version", system("VERSIONE", "4.0"), "error SYSTEM 1 VALORE: \"4.0\" isn't a version"},
        FaultCase{"home_node_unknown", system("IMPOSTAZIONE_NODO_HOMEPAGE", "G_7"), "error SYSTEM 6 VALORE"},
        // parts
        FaultCase{"model_column_missing",
                  [](auto& c) {
                      c.Cambia("Struttura_Componenti", 3, "Nome_Colonna_Tabella", "Campo09");
                      c.Cambia("Componenti_Web", 1, "Campo09", "x");
                  },
                  "error Struttura_Componenti 3 Nome_Colonna_Tabella: Componenti has no column Campo09"},
        FaultCase{"no_primary", [](auto& c) { c.Cambia("Struttura_Componenti", 1, "Indice_Primario", "No"); },
                  "error Struttura_Componenti 0 Indice_Primario: no column"},
        FaultCase{"two_primaries",
                  [](auto& c) { c.Cambia("Struttura_Componenti", 2, "Indice_Primario", "yes"); },
                  "error Struttura_Componenti 0 Indice_Primario: 2 columns"},
        FaultCase{"title_missing", [](auto& c) { c.Cambia("Struttura_Componenti", 2, "Traduzione_3", ""); },
                  "error Struttura_Componenti 2 Traduzione_3: column Campo02 has no title"},
        FaultCase{"code_unknown", [](auto& c) { c.Cambia("Componenti_Web", 2, "Codice_Componente", "NO"); },
                  "error Componenti_Web 2 Codice_Componente: Componenti has no part \"NO\""},
        FaultCase{"note_unknown", [](auto& c) { c.Cambia("Componenti_Web", 3, "Key_Nota_2", "N2"); },
                  "error Componenti_Web 3 Key_Nota_2: note \"N2\""},
        FaultCase{"too_many_rows",
                  [](auto& c) {
                      for (int i = 0; i < 1000; ++i)
                          c.Parte("P_1", "1", "A1", "Vite", {{"Key_Mercato", "/1/"}});
                  },
                  "error Componenti_Web 0 : product P_1 has 1002 rows"},
        // texts and structure
        FaultCase{"description_missing", [](auto& c) { c.Cambia("Lingue", 2, "Descrizione_Lingua", ""); },
                  "error Lingue 2 Descrizione_Lingua: the text is missing"},
        FaultCase{"translation_missing",
                  [](auto& c) { c.Cambia("Traduzioni_Viewer_System", 1, "Traduzione_2", std::nullopt); },
                  "error Traduzioni_Viewer_System 1 Traduzione_2: the text is missing"},
        FaultCase{"table_missing", [](auto& c) { c.Rimuovi_Tabella("Albero"); },
                  "error Albero 0 : the table is missing"},
        FaultCase{"column_missing", [](auto& c) { c.Rimuovi_Colonna("Componenti_Web", "Key_Nota_3"); },
                  "error Componenti_Web 0 Key_Nota_3: the column is missing"},
        FaultCase{"column_of_no_language",
                  [](auto& c) { c.Rimuovi_Colonna("Traduzioni_Albero", "Traduzione_11"); },
                  "warning Traduzioni_Albero 0 : columns are missing: Traduzione_11"}),
    [](const auto& test) { return test.param.name; });

TEST(Check, TenFaultsAtOnceAreAllFound) {
    QTemporaryDir folder;
    Catalogo_Di_Prova c = sound();
    c.Cambia("Prodotti", 1, "Foto_1_Prodotto", "no.png");
    c.Nodo("G_9", "G_NO", "x", {{"Profondita_Nodo", "2"}});
    c.Nodo("P_9", "G_1", "x");
    c.Cambia("Albero_Web", 3, "Testo_Visualizzato_3", "");
    c.Sistema("VERSION", "4.3").Sistema("LAMPEGGIO_COMPONENTI", "1");
    c.File("other/foto.png", "y");
    c.Cambia("Componenti_Web", 2, "Codice_Componente", "NO");
    c.Cambia("Struttura_Componenti", 2, "Key_Lingua", "ALL");
    c.Cambia("Lingue", 3, "Descrizione_Mercato", std::nullopt);
    EXPECT_EQ(checkCatalogue(c.Pacchetto(folder.path())).size(), 10u);
}

TEST(Check, ACycleIsFoundAndEndsTheWalk) {
    QTemporaryDir folder;
    Catalogo_Di_Prova c = sound();
    c.Nodo("G_7", "G_8", "x").Nodo("G_8", "G_7", "x").Nodo("G_6", "G_7", "x", {{"Profondita_Nodo", "9"}});
    const auto lines = linesOf(checkCatalogue(c.Pacchetto(folder.path())));
    EXPECT_THAT(lines, testing::Contains(testing::HasSubstr("node G_7 stands among its own parents")));
    EXPECT_THAT(lines, testing::Contains(testing::HasSubstr("node G_8 stands among its own parents")));
}

TEST(Check, DrawingsThatFitTheirRowsHaveNoFindings) {
    const QStringList fitting[] = {{"1"},
                                   {"CODICI#$#A1", "A2"},
                                   {"ASSOCIAZIONE#$#1", "CODICI#$#A2"},
                                   {"1", "PRODOTTO#$#X_2", "Vedi##G_2"}};
    for (const QStringList& hotspots : fitting) {
        QTemporaryDir folder;
        Catalogo_Di_Prova c = sound();
        drawing(hotspots)(c);
        EXPECT_THAT(linesOf(checkCatalogue(c.Pacchetto(folder.path()))), testing::IsEmpty());
    }
    QTemporaryDir folder;
    Catalogo_Di_Prova c = sound();
    drawing({"1", "7"})(c);  // known through the map
    c.Cambia("Prodotti", 1, "Key_Associazione", "TAV_1");
    c.Riga("Componenti_Mappe", {{"Key_Associazione", "TAV_1"}, {"Key_Riferimento", "7"}});
    EXPECT_THAT(linesOf(checkCatalogue(c.Pacchetto(folder.path()))), testing::IsEmpty());
    c.File("disegni/tz1.svg", "\x89PNG\r\n");  // a picture of pixels has no hotspots to compare
    EXPECT_THAT(linesOf(checkCatalogue(c.Pacchetto(folder.path()))), testing::IsEmpty());
    c.File("disegni/tz1.svg", "<svg").Cambia("Prodotti", 1, "Flag_2", "0");  // isn't shown
    EXPECT_THAT(linesOf(checkCatalogue(c.Pacchetto(folder.path()))), testing::IsEmpty());
}

TEST(Check, WhatIsNoCatalogueIsOneFinding) {
    QTemporaryDir folder;
    const QString garbage = folder.filePath("garbage.TZF");
    QFile file(garbage);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a zip");
    file.close();
    EXPECT_EQ(checkCatalogue(garbage).size(), 1u);
    const auto lines = linesOf(
        checkCatalogue(Catalogo_Di_Prova().Voce_Database("").File("a", "b").Pacchetto(folder.path())));
    EXPECT_THAT(lines, testing::ElementsAre(testing::HasSubstr("entry tzd_qlfrml_cod.tzf is missing")));
    const auto other = linesOf(checkCatalogue(Catalogo_Di_Prova()
                                                  .Voce_Database("")
                                                  .File("tzd_qlfrml_cod.tzf", "junk")
                                                  .Pacchetto(folder.path(), "2.TZF")));
    EXPECT_THAT(other, testing::ElementsAre(testing::HasSubstr("can't be opened")));
}

TEST(Check, AFaultInASourceFileIsToldWithFileAndLine) {
    QTemporaryDir folder;
    sound().Sorgente(folder.path());
    QFile table(folder.filePath("SYSTEM.csv"));
    ASSERT_TRUE(table.open(QIODevice::Append));
    table.write("A,B,C\n");
    table.close();
    EXPECT_THAT(linesOf(checkCatalogue(folder.path())),
                testing::ElementsAre(testing::ContainsRegex("SYSTEM.csv:8: the row has 3 fields")));
}

}  // namespace

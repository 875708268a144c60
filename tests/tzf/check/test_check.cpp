#include "tzf/check/check.h"

#include <functional>

#include "tzf/source_of.h"

namespace {

using testing::ElementsAre, testing::HasSubstr, testing::IsEmpty, testing::StartsWith;

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
                                    {"Tipo_Colonna", "Image"}});
    c.Riga("Componenti", {{"Campo01", "Z9"}, {"Campo04", "foto.png"}});
    c.Parte("P_1", "1", "A1", "Vite", {{"Key_Nota_1", "N1"}, {"Campo04", std::nullopt}});
    c.Parte("P_1", "2", "A2", "Dado", {{"Tipo_Associazione", "1"}, {"Key_Riferimento", "A2"}});
    c.Parte("X_2", "1", "A1", "Vite");
    c.Riga("Sconti", {{"Key_Sconto", "S"}, {"Sconto_Generale", "1/10|2/5"}, {"Sconto_Qta", "1/3/10/99"}});
    c.File("img\\foto.png", "\x89PNG").File("1_1_PAGE_1.mdp", "x");
    c.Sistema("PRINT_EXTENSION_1_1_PAGE_1", "1").Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO");
    return c.Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "G_1");
}

std::vector<std::string> linesOf(const QString& catalogue) {
    std::vector<std::string> lines;
    for (const Finding& f : checkCatalogue(catalogue))
        lines.push_back(
            QStringLiteral("%1 %2 %3 %4: %5")
                .arg(f.error ? "error" : "warning", f.table, QString::number(f.row), f.column, f.message)
                .toStdString());
    return lines;
}

/// The findings in the package; those in the source of the same catalogue have to be the same.
std::vector<std::string> linesOf(const Catalogo_Di_Prova& c) {
    const QTemporaryDir folder;
    const std::vector<std::string> lines = linesOf(c.Pacchetto(folder.path()));
    EXPECT_EQ(linesOf(sourceOf(c, folder.filePath("source"))), lines);
    return lines;
}

TEST(Check, ASoundCatalogueHasNoFindings) {
    EXPECT_THAT(linesOf(sound()), IsEmpty());
}

using Plant = std::function<void(Catalogo_Di_Prova&)>;

Plant row(const char* table, const Catalogo_Di_Prova::Campi& fields) {
    return [=](Catalogo_Di_Prova& c) { c.Riga(table, fields); };
}
Plant node(const char* key, const char* parent, const Catalogo_Di_Prova::Campi& fields = {}) {
    return [=](Catalogo_Di_Prova& c) { c.Nodo(key, parent, "x", fields); };
}
Plant change(const char* table, int row, const char* column, const Valore_Prova& value) {
    return [=](Catalogo_Di_Prova& c) { c.Cambia(table, row, column, value); };
}
Plant system(const char* key, const char* value) {
    return [=](Catalogo_Di_Prova& c) { c.Sistema(key, value); };
}
/// A value of part A1 and of its two rows.
Plant value(const char* column, const char* text) {
    return [=](Catalogo_Di_Prova& c) {
        c.Cambia("Componenti", 2, column, text);
        c.Cambia("Componenti_Web", 1, column, text).Cambia("Componenti_Web", 3, column, text);
    };
}
/// The same in a new column of that kind.
Plant column(const char* kind, const char* text) {
    return [=](Catalogo_Di_Prova& c) {
        c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo05"},
                                        {"Titolo_Colonna", "X"},
                                        {"Traduzione_1", "X"},
                                        {"Traduzione_2", "X"},
                                        {"Traduzione_3", "X"},
                                        {"Tipo_Colonna", kind}});
        c.Riga("Componenti", {{"Campo01", "Z8"}, {"Campo05", std::nullopt}});
        value("Campo05", text)(c);
    };
}
/// Gives product P_1, whose rows have the references 1 and "-" (code A2), a drawing with these hotspots.
Plant drawing(const QStringList& hotspots) {
    return [=](Catalogo_Di_Prova& c) {
        QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'>";
        for (const QString& hotspot : hotspots)
            svg += "<path d='M1 1h3v3z' data-hotspot='" + hotspot.toUtf8() + "'/>";
        c.File("disegni/tz1.svg", svg + "</svg>").Cambia("Prodotti", 1, "Mappa_Associata", "disegni/tz1.svg");
    };
}

TEST(Check, AFaultIsTheOneFinding) {
    const struct {
        Plant plant;
        const char* expected;
    } cases[] = {
        // files
        {change("Prodotti", 1, "Foto_1_Prodotto", "no.png"),
         R"(error Prodotti 1 Foto_1_Prodotto: file "no.png" isn't in the package)"},
        {change("Prodotti", 1, "Foto_2_Prodotto", "oto.png"),
         R"(error Prodotti 1 Foto_2_Prodotto: "oto.png" isn't in the package as such)"},
        {change("Prodotti", 2, "Mappa_Associata", "Foto.png"),
         R"(error Prodotti 2 Mappa_Associata: file "Foto.png" isn't in the package; there is)"},
        {system("PRINT_EXTENSION_2_1_ORDER_2", "1"), "error SYSTEM"},
        {[](auto& c) { c.File("other/foto.png", "\x89PNG"); },
         R"(error  0 : entries "img\foto.png" and "other/foto.png" have one name)"},
        // drawings
        {drawing({"1", "99"}),
         R"(warning Prodotti 1 Mappa_Associata: hotspot "99" of drawing "disegni/tz1.svg" has no row)"},
        {drawing({"1", "PRODOTTO#$#P_77"}),
         R"(warning Prodotti 1 Mappa_Associata: hotspot "PRODOTTO#$#P_77" of drawing "disegni/tz1.svg" leads)"},
        {[](Catalogo_Di_Prova& c) {
             drawing({"A2", "1bis"})(c);
             c.Cambia("Componenti_Web", 1, "Key_HotSpot", "1bis");
         },
         R"(warning Componenti_Web 1 Key_Riferimento: reference 1 isn't on drawing "disegni/tz1.svg"; Key_HotSpot 1bis is)"},
        {drawing({"A2"}), "warning Componenti_Web 1 Key_Riferimento: reference 1 isn't on drawing"},
        {[](auto& c) { drawing({})(c), c.File("disegni/tz1.svg", "junk"); },
         R"(error Prodotti 1 Mappa_Associata: drawing "disegni/tz1.svg" can't be shown)"},
        // texts and lists
        {change("Albero_Web", 3, "Testo_Visualizzato_2", std::nullopt),
         "error Albero_Web 3 Testo_Visualizzato_2: node G_2 has no caption"},
        {change("Albero_Web", 4, "Key_Mercato", "/1/9/"),
         "error Albero_Web 4 Key_Mercato: there is no market 9"},
        {change("Struttura_Componenti", 2, "Key_Lingua", "ALL"),
         R"(error Struttura_Componenti 2 Key_Lingua: "ALL" is no list)"},
        {change("Componenti_Web", 1, "Key_Gruppo", "/8/"),
         R"(error Componenti_Web 1 Key_Gruppo: Gruppi_Utenti has no "8")"},
        // tree
        {node("G_9", "G_NO", {{"Profondita_Nodo", "2"}}),
         R"(error Albero_Web 6 Key_Padre: node G_9: its parent "G_NO" isn't there)"},
        {change("Albero_Web", 3, "Profondita_Nodo", "7"),
         "error Albero_Web 4 Profondita_Nodo: node P_1 is read before its parent G_2"},
        {node("P_9", "G_1"), "error Albero_Web 6 Key_Prodotto: product P_9 has no row"},
        {row("Prodotti", {{"Key_Prodotto", "P_9"}}), "error Prodotti 3 Key_Prodotto: there is no node P_9"},
        {node("G_1", "R"), "error Albero_Web 6 Key_Prodotto: node G_1 stands in row 2 already"},
        {row("Anagrafico", {{"Login", "d'angelo"}}),
         R"(warning Anagrafico 1 Login: "d'angelo" holds a quote)"},
        {row("Matricola_Nodo",
             {{"Key_Prodotto", "P_1"}, {"Min_Matricola", "900"}, {"Max_Matricola", "1000"}}),
         "error Matricola_Nodo 2 Max_Matricola: no serial number"},
        // settings
        {system("IMPOSTAZIONE_COMPONENTI_WEB", "SI"),
         R"(error SYSTEM 7 KEY: "IMPOSTAZIONE_COMPONENTI_WEB" is no key)"},
        {system("IMPOSTAZIONE_ESPANDI_ALBERO", "YES"),
         R"(error SYSTEM 7 VALORE: IMPOSTAZIONE_ESPANDI_ALBERO is "YES", and can be SI, NO)"},
        {system("LINGUA_START", "italiano "), "error SYSTEM 2 VALORE: no row of Lingue"},
        {system("VERSIONE", "4.0"), R"(error SYSTEM 1 VALORE: "4.0" isn't a version)"},
        // parts
        {change("Componenti_Web", 2, "Codice_Componente", "NO"),
         R"(error Componenti_Web 2 Codice_Componente: Componenti has no part "NO")"},
        {change("Componenti_Web", 3, "Key_Nota_2", "N2"), R"(error Componenti_Web 3 Key_Nota_2: note "N2")"},
        {change("Struttura_Componenti", 2, "Indice_Primario", "yes"),
         "error Struttura_Componenti 0 Indice_Primario: 2 columns"},
        {[](auto& c) {
             for (int i = 0; i < 1000; ++i)
                 c.Parte("P_1", "1", "A1", "Vite", {{"Key_Mercato", "/1/"}});
         },
         "error Componenti_Web 0 : product P_1 has 1002 rows"},
        {[](auto& c) {
             for (int i = 1; i <= 3; ++i)
                 c.Cambia("Componenti_Web", i, "Codice_Componente", QString("N%1").arg(i));
         },
         "error Componenti_Web 0 Codice_Componente: no code is in Componenti"},
        {[](auto& c) {
             for (int i = 0; i < 12; ++i)
                 c.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo03"},
                                                 {"Titolo_Colonna", "X"},
                                                 {"Visualizzato", "Yes"},
                                                 {"Traduzione_1", "X"},
                                                 {"Traduzione_2", "X"},
                                                 {"Traduzione_3", "X"},
                                                 {"Tipo_Colonna", "Price"}});
         },
         "error Struttura_Componenti 0 : 28 columns and totals of prices are in the cart"},
        // values
        {value("Campo03", "1,048.00"), R"(error Componenti 2 Campo03: "1,048.00" isn't a plain number)"},
        {value("Campo03", "12.50 EUR"), R"(error Componenti 2 Campo03: "12.50 EUR" isn't a plain number)"},
        {value("Campo03", "1,048"), R"(warning Componenti 2 Campo03: "1,048" is taken for 1.048)"},
        {value("Campo04", "docs/x.mdp"), R"(error Componenti 2 Campo04: file "docs/x.mdp" isn't)"},
        {change("Componenti", 2, "Campo03", "9"),
         R"(warning Componenti_Web 1 Campo03: "" differs from the part's)"},
        {column("Discount", "S"), R"(error Componenti 2 Campo05: "S" is no list)"},
        {column("Discount", "/T/"), R"(error Componenti 2 Campo05: Sconti has no "T")"},
        {column("Memo", "Z9§1/NO§2"), R"(error Componenti 2 Campo05: Componenti has no part "NO")"},
        {column("Memo", "Z9 x 2"), R"(error Componenti 2 Campo05: "Z9 x 2" is no linked part)"},
        {column("Memo", "Z9§1;A2§2"), R"(error Componenti 2 Campo05: "Z9§1;A2§2" is no linked part)"},
        {[](auto& c) {
             column("Memo", "A2§1")(c);
             c.Cambia("Componenti", 1, "Campo05", "A1§1").Cambia("Componenti", 3, "Campo05", "Z9§1");
             c.Cambia("Componenti_Web", 2, "Campo05", "Z9§1");
         },
         "warning Componenti"},
        {row("Sconti", {{"Key_Sconto", "T"}, {"Sconto_Generale", "1/2/3"}}),
         R"(error Sconti 2 Sconto_Generale: "1/2/3" isn't market/percent)"},
        {row("Sconti", {{"Key_Sconto", "T"}, {"Sconto_Qta", "1/2.5/1/9"}}),
         R"(error Sconti 2 Sconto_Qta: "1/2.5/1/9": a percentage with decimals)"},
        {row("Sconti", {{"Key_Sconto", "T"}, {"Sconto_Totale", "1/2/10/9"}}),
         R"(error Sconti 2 Sconto_Totale: "1/2/10/9": nothing is from 10 to 9)"},
        {row("Sconti", {{"Key_Sconto", "T"}, {"Sconto_Generale", "9/2"}}), "error Sconti 2 Sconto_Generale"},
        {change("Componenti_Web", 1, "Quantita_min", "0"),
         "error Componenti_Web 1 Quantita_min: with a quantity of 0"},
        {change("Componenti_Web", 1, "Quantita_min", "2.5"),
         R"(warning Componenti_Web 1 Quantita_min: "2.5" counts)"},
        {change("Componenti_Web", 2, "Key_Riferimento", "2"),
         "warning Componenti_Web 2 Key_Riferimento: a row that"},
        {change("Componenti_Web", 1, "Key_Riferimento", "1.5"),
         R"(warning Componenti_Web 1 Key_Riferimento: reference "1.5" is shown)"},
        {change("Componenti_Web", 1, "Key_Riferimento", "a "),
         R"(warning Componenti_Web 1 Key_Riferimento: reference "a " has blanks)"},
        {change("Componenti_Web", 1, "Ordine", "1a"),
         R"(error Componenti_Web 1 Ordine: "1a" isn't a whole number)"},
        {[](auto& c) { c.File("img\\foto.png", "junk"); },
         R"(error Componenti 1 Campo04: "foto.png" isn't a PNG)"},
        {[](auto& c) { drawing({"1"})(c), c.Cambia("Prodotti", 1, "Flag_2", "0"); },
         "warning Prodotti 1 Flag_2: drawing"},
        {[](auto& c) {
             for (const char* login : {"anna", "Anna"})
                 c.Riga("Anagrafico", {{"Login", login}});
         },
         R"(error Anagrafico 2 Login: "Anna" stands in row 1 already)"},
        // structure
        {[](auto& c) {
             c.Riga("Componeti", {{"Campo01", "x"}});
         },
         "warning Componeti 0 : the viewer knows no table"},
        {[](auto& c) { c.Rimuovi_Tabella("Albero"); }, "error Albero 0 : the table is missing"},
        {[](auto& c) { c.Rimuovi_Colonna("Componenti_Web", "Key_Nota_3"); },
         "error Componenti_Web 0 Key_Nota_3: the column is missing"},
    };
    for (const auto& [plant, expected] : cases) {
        Catalogo_Di_Prova c = sound();
        plant(c);
        EXPECT_THAT(linesOf(c), ElementsAre(StartsWith(expected))) << expected;
    }
}

TEST(Check, ACycleIsFoundAndEndsTheWalk) {
    Catalogo_Di_Prova c = sound();
    c.Nodo("G_7", "G_8", "x").Nodo("G_8", "G_7", "x").Nodo("G_6", "G_7", "x", {{"Profondita_Nodo", "9"}});
    EXPECT_THAT(linesOf(c), testing::IsSupersetOf({HasSubstr("node G_7 stands among its own parents"),
                                                   HasSubstr("node G_8 stands among its own parents")}));
}

TEST(Check, DrawingsThatFitTheirRowsHaveNoFindings) {
    Catalogo_Di_Prova c = sound();
    for (const QStringList& hotspots :
         {QStringList{"CODICI#$#A1", "A2"}, {"ASSOCIAZIONE#$#1"}, {"1", "PRODOTTO#$#X_2", "Vedi##G_2"}}) {
        drawing(hotspots)(c);
        EXPECT_THAT(linesOf(c), IsEmpty()) << hotspots.join(' ').toStdString();
    }
    drawing({"1", "7"})(c);  // known through the map
    c.Cambia("Prodotti", 1, "Key_Associazione", "TAV_1");
    c.Riga("Componenti_Mappe", {{"Key_Associazione", "TAV_1"}, {"Key_Riferimento", "7"}});
    EXPECT_THAT(linesOf(c), IsEmpty());
}

TEST(Check, WhatIsNoCatalogueIsOneFinding) {
    QTemporaryDir folder;
    const auto without = Catalogo_Di_Prova().Voce_Database("").File("a", "b");
    EXPECT_THAT(linesOf(without.Pacchetto(folder.path())),
                ElementsAre(HasSubstr("entry tzd_qlfrml_cod.tzf is missing")));
    const auto junk = Catalogo_Di_Prova().Voce_Database("").File("tzd_qlfrml_cod.tzf", "junk");
    EXPECT_THAT(linesOf(junk.Pacchetto(folder.path(), "2.TZF")), ElementsAre(HasSubstr("can't be opened")));
}

TEST(Check, AFaultInASourceFileIsToldWithFileAndLine) {
    QTemporaryDir folder;
    sourceOf(sound(), folder.path());
    writeFile(folder.filePath("SYSTEM.csv"), "A,B,C\n", QIODevice::Append);
    EXPECT_THAT(linesOf(folder.path()),
                ElementsAre(testing::ContainsRegex("SYSTEM.csv:8: the row has 3 fields")));
}

}  // namespace

// Which languages and markets are offered, and what becomes of a choice.

#include "core/localisation/scelta_lingua.h"

#include <gmock/gmock.h>

#include "support/catalogo_aperto.h"

namespace {

/// 1 Italian and 2 English are languages and markets, 3 French is a language only, 4 Japan a market only, 5
/// neither; German and Spanish make the languages six, more than a home page shows.
Catalogo_Di_Prova Catalogo(const char* modo) {
    Catalogo_Di_Prova c;
    c.Sistema("UNIFICA_NAVIGAZIONE_VIEWER", modo)
        .Sistema("LINGUA_START", "English")
        .Sistema("MERCATO_START", "Deutschland")
        .Tabella("Lingue",
                 {"ID", "Descrizione_Lingua", "Descrizione_Mercato", "Attiva_Lingua", "Attiva_Mercato"},
                 {{"1", "Italiano", "Italia", "TRUE", "TRUE"},
                  {"2", "English", "Export", "TRUE", "TRUE"},
                  {"3", "Français", "France", "TRUE", "FALSE"},
                  {"4", "日本語", "Japan", "FALSE", "TRUE"},
                  {"5", "Português", "Portugal", "FALSE", "FALSE"},
                  {"6", "Deutsch", "Deutschland", "TRUE", "TRUE"},
                  {"7", "Español", "España", "TRUE", "TRUE"}});
    for (int riga = 1; riga <= 7; ++riga)
        c.Cambia("Lingue", riga, "Chiave", QString::number(riga))
            .Cambia("Lingue", riga, "Immagine", "flag.png");
    return c;
}

/// The entries between "+", the current one between "<>".
QString Elenco(const Elenco_Lingue& elenco) {
    QStringList testi;
    for (const Voce_Lingua& voce : elenco.Voci)
        testi << (elenco.Corrente == testi.size() ? u'<' + voce.Descrizione + u'>' : voce.Descrizione);
    return testi.join(u'+');
}

TEST(SceltaLingua, OnlyTheModesOfTheCatalogueEnableTheLists) {
    for (const auto& [modo, scelta] : {std::pair("LINGUA", Modo_Scelta::Lingua),
                                       {"MERCATO", Modo_Scelta::Mercato},
                                       {"LINGUA_MERCATO", Modo_Scelta::Lingua_Mercato},
                                       {"", Modo_Scelta::Nessuna},
                                       {"lingua", Modo_Scelta::Nessuna}})
        EXPECT_EQ(Leggi_Modo_Scelta(Catalogo_Aperto(Catalogo(modo)).DB), scelta) << modo;
}

TEST(SceltaLingua, WhatIsOffered) {
    struct Caso {
        const char *modo, *lingue_del_gruppo, *mercati_del_gruppo;
        Filtri filtri;
        const char *lingue, *mercati;
    };
    const char* tutti = "<Italia>+Export+Japan+Deutschland+España";
    for (const Caso& caso : {
             // In the table's order; 4 is no language. The current one that isn't allowed gives way to the
             // first.
             Caso{"LINGUA_MERCATO",
                  "/6/3/4/",
                  "/4/1/",
                  {"1", "1", "", ""},
                  "<Français>+Deutsch",
                  "<Italia>+Japan"},
             {"LINGUA_MERCATO", "/99/", "-", {"1", "1", "", ""}, "", tutti},  // a lone "-" is no limit
             // The market of a row that is no language isn't found.
             {"MERCATO", "-", "-", {"3", "4", "", ""}, "Italiano+English+<Français>+Deutsch+Español", tutti},
         }) {
        Catalogo_Aperto c(
            Catalogo(caso.modo).Riga("Gruppi_Utenti", {{"Key_Gruppo", "8"},
                                                       {"ID_Lingue", caso.lingue_del_gruppo},
                                                       {"ID_Mercati", caso.mercati_del_gruppo}}));
        const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, caso.filtri);
        EXPECT_EQ(Elenco(scelta.Lingue), caso.lingue);
        EXPECT_EQ(Elenco(scelta.Mercati), caso.mercati) << caso.lingue;
    }
}

TEST(SceltaLingua, WhatAChoiceTakesOver) {
    struct Caso {
        const char *modo, *lingua, *mercato;  ///< chosen texts
        const char *prima, *dopo;             ///< language and market
    };
    for (const Caso& caso : {
             // The language also sets the market.
             Caso{"LINGUA", "English", "Italia", "1 1", "2 2"},
             {"LINGUA", "Français", "Italia", "1 1", "3 6"},  // 3 is no market: the one at start
             {"LINGUA", "Italiano", "Japan", "1 1", "1 1"},
             {"LINGUA", "Italiano", "", "1 2", "1 1"},
             {"LINGUA", "", "Japan", "1 2", "1 2"},
             {"LINGUA", "unknown", "", "2 2", "1 1"},  // an unknown text is the first row
             // The market also sets the language.
             {"MERCATO", "Italiano", "Japan", "1 1", "2 4"},  // 4 is no language: the one at start
             {"MERCATO", "Deutsch", "", "2 1", "2 1"},
             // Each by itself.
             {"LINGUA_MERCATO", "Français", "", "1 1", "3 1"},
             {"LINGUA_MERCATO", "", "Japan", "1 1", "1 4"},
             // Fixed by the catalogue: the keys are crossed, and neither finds its text.
             {"LINGUA_NESSUNA", "Français", "Japan", "2 6", "1 1"},
             {"", "Français", "Japan", "1 1", "1 1"},
         }) {
        Catalogo_Aperto c(Catalogo(caso.modo));
        const QStringList prima = QString(caso.prima).split(u' ');
        Filtri filtri{prima[0], prima[1], "/9/", "mario"};
        const bool cambiata = Accetta_Scelta(c.DB, caso.lingua, caso.mercato, filtri);
        const std::string nome = std::string(caso.modo) + ": " + caso.lingua + ", " + caso.mercato;
        EXPECT_EQ(filtri.Lingua + u' ' + filtri.Mercato, caso.dopo) << nome;
        EXPECT_EQ(cambiata, QString(caso.prima) != caso.dopo) << nome;
        EXPECT_EQ(filtri.Gruppo + filtri.Utente, "/9/mario");
    }
}

TEST(SceltaLingua, TheHomePageOffersTheFirstFive) {
    Catalogo_Aperto c(Catalogo(""));
    EXPECT_EQ(Elenco(Prepara_Lingue_Home(c.DB, "4")), "Italiano+English+Français+<日本語>+Português")
        << "active or not";
    for (const char* lingua : {"6", ""})
        EXPECT_EQ(Prepara_Lingue_Home(c.DB, lingua).Corrente, -1) << lingua;
}

}  // namespace

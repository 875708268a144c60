// Which languages and markets are offered, and what becomes of a choice.

#include "core/localisation/scelta_lingua.h"

#include <gmock/gmock.h>

#include "support/catalogo_aperto.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// 1 Italian and 2 English are languages and markets, 3 French is a language only, 4 Japan a market only, 5
/// neither; German and Spanish make the languages six, more than a home page shows.
Catalogo_Di_Prova Catalogo(const char* modo) {
    Catalogo_Di_Prova c;
    c.Svuota_Tabella("Lingue").Sistema("UNIFICA_NAVIGAZIONE_VIEWER", modo);
    const char* righe[][6] = {{"1", "IT", "Italiano", "Italia", "TRUE", "TRUE"},
                              {"2", "UK", "English", "Export", "TRUE", "TRUE"},
                              {"3", "FR", "Français", "France", "TRUE", "FALSE"},
                              {"4", "JP", "日本語", "Japan", "FALSE", "TRUE"},
                              {"5", "PT", "Português", "Portugal", "FALSE", "FALSE"},
                              {"6", "DE", "Deutsch", "Deutschland", "TRUE", "TRUE"},
                              {"7", "ES", "Español", "España", "TRUE", "TRUE"}};
    for (const auto& [id, chiave, lingua, mercato, attiva_lingua, attiva_mercato] : righe)
        c.Riga("Lingue", {{"ID", id},
                          {"Chiave", chiave},
                          {"Descrizione_Lingua", lingua},
                          {"Descrizione_Mercato", mercato},
                          {"Immagine", QString("flag_%1.png").arg(chiave)},
                          {"Attiva_Lingua", attiva_lingua},
                          {"Attiva_Mercato", attiva_mercato}});
    return c.Sistema("LINGUA_START", "English").Sistema("MERCATO_START", "Deutschland");
}

QStringList Descrizioni(const Elenco_Lingue& elenco) {
    QStringList testi;
    for (const Voce_Lingua& voce : elenco.Voci)
        testi << voce.Descrizione;
    return testi;
}

QString Corrente(const Elenco_Lingue& elenco) {
    return elenco.Corrente < 0 ? "(none)" : elenco.Voci.at(size_t(elenco.Corrente)).Descrizione;
}

TEST(SceltaLingua, WhatIsEnabled) {
    struct Caso {
        const char* modo;
        Modo_Scelta scelta;
        bool lingua, mercato;
    };
    for (const Caso& caso : {Caso{"LINGUA", Modo_Scelta::Lingua, true, false},
                             {"MERCATO", Modo_Scelta::Mercato, false, true},
                             {"LINGUA_MERCATO", Modo_Scelta::Lingua_Mercato, true, true},
                             {"LINGUA_NESSUNA", Modo_Scelta::Nessuna, false, false},
                             {"", Modo_Scelta::Nessuna, false, false},
                             {"lingua", Modo_Scelta::Nessuna, false, false}}) {
        Catalogo_Aperto c(Catalogo(caso.modo));
        EXPECT_EQ(Leggi_Modo_Scelta(c.DB), caso.scelta) << caso.modo;
        const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {"1", "1", "", ""});
        EXPECT_EQ(scelta.Lingue.Abilitato, caso.lingua) << caso.modo;
        EXPECT_EQ(scelta.Mercati.Abilitato, caso.mercato) << caso.modo;
    }
}

TEST(SceltaLingua, WithoutLimitsAllActiveOnesAreOffered) {
    Catalogo_Aperto c(Catalogo("LINGUA_MERCATO"));
    const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {"3", "2", "", ""});
    EXPECT_TRUE(scelta.Limiti_Letti);
    EXPECT_THAT(Descrizioni(scelta.Lingue),
                ElementsAre("Italiano", "English", "Français", "Deutsch", "Español"));
    EXPECT_THAT(Descrizioni(scelta.Mercati),
                ElementsAre("Italia", "Export", "Japan", "Deutschland", "España"));
    EXPECT_EQ(Corrente(scelta.Lingue), "Français");
    EXPECT_EQ(Corrente(scelta.Mercati), "Export");
    EXPECT_EQ(scelta.Lingue.Voci[0].Immagine, "flag_IT.png");
}

TEST(SceltaLingua, GroupsLimitWhatIsOffered) {
    Catalogo_Di_Prova catalogo = Catalogo("LINGUA_MERCATO");
    catalogo.Riga("Anagrafico", {{"Login", "mario"}, {"Key_Gruppo", "/8/"}})
        .Riga("Gruppi_Utenti", {{"Key_Gruppo", "8"}, {"ID_Lingue", "/6/3/4/"}, {"ID_Mercati", "/4/1/"}});
    Catalogo_Aperto c(catalogo);
    const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {"1", "1", "", "mario"});
    // In the table's order; 4 is no language.
    EXPECT_THAT(Descrizioni(scelta.Lingue), ElementsAre("Français", "Deutsch"));
    EXPECT_THAT(Descrizioni(scelta.Mercati), ElementsAre("Italia", "Japan"));
    EXPECT_EQ(Corrente(scelta.Lingue), "Français");  // the current one isn't allowed: the first
    EXPECT_EQ(Corrente(scelta.Mercati), "Italia");
}

TEST(SceltaLingua, LimitsThatExcludeAllLeaveNothing) {
    Catalogo_Di_Prova catalogo = Catalogo("LINGUA_MERCATO");
    catalogo.Riga("Gruppi_Utenti", {{"Key_Gruppo", "8"}, {"ID_Lingue", "/99/"}, {"ID_Mercati", "-"}});
    Catalogo_Aperto c(catalogo);
    const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {"1", "1", "", ""});
    EXPECT_THAT(scelta.Lingue.Voci, IsEmpty());
    EXPECT_EQ(scelta.Lingue.Corrente, -1);
    EXPECT_EQ(scelta.Mercati.Voci.size(), 5u);  // a lone "-" is no limit either
}

TEST(SceltaLingua, UnreadableLimitsAreTold) {
    Catalogo_Aperto c(Catalogo("LINGUA").Rimuovi_Tabella("Gruppi_Utenti"));
    const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {"1", "1", "", ""});
    EXPECT_FALSE(scelta.Limiti_Letti);
    EXPECT_EQ(scelta.Lingue.Voci.size(), 5u);
}

TEST(SceltaLingua, TheMarketOfARowThatIsNoLanguageIsntFound) {
    Catalogo_Aperto c(Catalogo("MERCATO"));
    EXPECT_EQ(Corrente(Prepara_Scelta(c.DB, {"1", "4", "", ""}).Mercati), "Italia");
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
             {"MERCATO", "Italiano", "Export", "1 1", "2 2"},
             {"MERCATO", "Italiano", "Japan", "1 1", "2 4"},  // 4 is no language: the one at start
             {"MERCATO", "Deutsch", "Italia", "1 1", "1 1"},
             {"MERCATO", "Deutsch", "", "2 1", "2 1"},
             // Each by itself.
             {"LINGUA_MERCATO", "Français", "Japan", "1 1", "3 4"},
             {"LINGUA_MERCATO", "Français", "", "1 1", "3 1"},
             {"LINGUA_MERCATO", "", "Japan", "1 1", "1 4"},
             {"LINGUA_MERCATO", "Italiano", "Italia", "1 1", "1 1"},
             // Fixed by the catalogue: the keys are crossed, and neither finds its text.
             {"LINGUA_NESSUNA", "Français", "Japan", "2 6", "1 1"},
             {"", "Français", "Japan", "1 1", "1 1"},
         }) {
        Catalogo_Aperto c(Catalogo(caso.modo));
        const QStringList prima = QString(caso.prima).split(u' ');
        Filtri filtri{prima[0], prima[1], "/9/", "mario"};
        const bool cambiata =
            Accetta_Scelta(c.DB, QString::fromUtf8(caso.lingua), QString::fromUtf8(caso.mercato), filtri);
        const std::string nome = std::string(caso.modo) + ": " + caso.lingua + ", " + caso.mercato;
        EXPECT_EQ(filtri.Lingua + u' ' + filtri.Mercato, caso.dopo) << nome;
        EXPECT_EQ(cambiata, QString(caso.prima) != caso.dopo) << nome;
        EXPECT_EQ(filtri.Gruppo + filtri.Utente, "/9/mario");
    }
}

TEST(SceltaLingua, FixedByTheCatalogueEachKeyIsLookedUpUnderTheOther) {
    // Descriptions that are language and market at once show that they are crossed.
    Catalogo_Di_Prova catalogo = Catalogo("LINGUA_NESSUNA");
    catalogo.Sistema("LINGUA_START", "Export").Sistema("MERCATO_START", "Deutsch");
    Catalogo_Aperto c(catalogo);
    Filtri filtri{"1", "1", "", ""};
    EXPECT_TRUE(Accetta_Scelta(c.DB, "", "", filtri));
    EXPECT_EQ(filtri.Lingua, "6");   // of MERCATO_START
    EXPECT_EQ(filtri.Mercato, "2");  // of LINGUA_START
}

TEST(SceltaLingua, TheHomePageOffersTheFirstFive) {
    Catalogo_Aperto c(Catalogo(""));
    const Elenco_Lingue lingue = Prepara_Lingue_Home(c.DB, "4");
    EXPECT_THAT(Descrizioni(lingue), ElementsAre("Italiano", "English", "Français", "日本語", "Português"));
    EXPECT_EQ(Corrente(lingue), "日本語");  // active or not
    EXPECT_EQ(Prepara_Lingue_Home(c.DB, "6").Corrente, -1);
    EXPECT_EQ(Prepara_Lingue_Home(c.DB, "").Corrente, -1);
}

}  // namespace

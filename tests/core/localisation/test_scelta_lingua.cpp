// Which languages and markets are offered, and what becomes of a choice.

#include "core/localisation/scelta_lingua.h"

#include <gmock/gmock.h>

#include "../base/righe.h"
#include "support/catalogo_aperto.h"

namespace {

/// 1 Italian and 2 English are languages and markets, 3 French is a language only, 4 Japan a market only, 5
/// neither; German and Spanish make the languages six, more than a home page shows.
Catalogo_Di_Prova Catalogo(const QString& modo) {
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

TEST(SceltaLingua, WhatIsOffered) {
    // Mode, languages and markets of the group, the language and market at present, and both lists. They are
    // in the table's order; 4 is no language. The current one that isn't allowed gives way to the first. A
    // lone
    // "-" is no limit. The market of a row that is no language isn't found.
    for (const QStringList& caso : Righe(R"(LINGUA_MERCATO=/6/3/4/=/4/1/=1=1=<Français>+Deutsch=<Italia>+Japan
|LINGUA_MERCATO=/99/=-=1=1==<Italia>+Export+Japan+Deutschland+España
|MERCATO=-=-=3=4=Italiano+English+<Français>+Deutsch+Español=<Italia>+Export+Japan+Deutschland+España)")) {
        Catalogo_Aperto c(Catalogo(caso[0]).Riga(
            "Gruppi_Utenti", {{"Key_Gruppo", "8"}, {"ID_Lingue", caso[1]}, {"ID_Mercati", caso[2]}}));
        const Scelta_Lingua_Mercato scelta = Prepara_Scelta(c.DB, {caso[3], caso[4], "", ""});
        EXPECT_EQ(Elenco(scelta.Lingue), caso[5]);
        EXPECT_EQ(Elenco(scelta.Mercati), caso[6]) << qPrintable(caso[5]);
    }
}

TEST(SceltaLingua, WhatAChoiceTakesOver) {
    // Mode, chosen texts, language and market before and after. Of "3 6" the 6, of "2 4" the 2 are those at
    // start, for 3 is no market and 4 no language; an unknown text is the first row; where the catalogue
    // fixes both the keys are crossed, and neither finds its text.
    for (const QStringList& caso :
         Righe(R"(LINGUA=English=Italia=1 1=2 2|LINGUA=Français=Italia=1 1=3 6|LINGUA=Italiano=Japan=1 1=1 1
|LINGUA=Italiano==1 2=1 1|LINGUA==Japan=1 2=1 2|LINGUA=unknown==2 2=1 1|MERCATO=Italiano=Japan=1 1=2 4
|MERCATO=Deutsch==2 1=2 1|LINGUA_MERCATO=Français==1 1=3 1|LINGUA_MERCATO==Japan=1 1=1 4
|LINGUA_NESSUNA=Français=Japan=2 6=1 1|lingua=Français=Japan=1 1=1 1)")) {
        Catalogo_Aperto c(Catalogo(caso[0]));
        const QStringList prima = caso[3].split(u' ');
        Filtri filtri{prima[0], prima[1], "/9/", "mario"};
        const bool cambiata = Accetta_Scelta(c.DB, caso[1], caso[2], filtri);
        EXPECT_EQ(filtri.Lingua + u' ' + filtri.Mercato, caso[4]) << qPrintable(caso.join('='));
        EXPECT_EQ(cambiata, caso[3] != caso[4]) << qPrintable(caso.join('='));
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

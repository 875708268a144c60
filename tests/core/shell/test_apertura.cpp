#include <gmock/gmock.h>

#include <QFile>

#include "vista_finta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Apertura : public testing::Test {
  protected:
    Programma_Di_Prova p;
};

TEST_F(Apertura, BringsUpTheHomePage) {
    const QString percorso = p.Apri(Programma_Di_Prova::Macchina());
    EXPECT_THAT(p.messaggi.Testi(), IsEmpty());
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    EXPECT_EQ(p.progetto.Tree1.Count(), 4);  // without the branch of another market
    EXPECT_EQ(p.progetto.Tree1.Titolo, "Prova");
    EXPECT_GE(p.vista.Ricostruzioni, 1);
    EXPECT_EQ(p.impostazioni.Valore("SalvataggioTZF", "1"), percorso);
    EXPECT_TRUE(p.Abilitato("KEY_DISEGNO"));
    EXPECT_FALSE(p.Stato().Attesa);
    EXPECT_TRUE(p.Stato().Abilitata);
    EXPECT_FALSE(p.vista.Massimizzata);
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 6600);
    EXPECT_EQ(p.progetto.Traduzioni.Item("QUANTITA").Testo, "Quantità");
    EXPECT_TRUE(p.vista.Mostrato.Etichette_Catalogo);
}

TEST_F(Apertura, ObeysTheCataloguesSettings) {
    Catalogo_Di_Prova catalogo = Programma_Di_Prova::Macchina();
    p.Apri(catalogo.Sistema("IMPOSTAZIONE_FINESTRA_MASSIMATA", "SI")
               .Sistema("IMPOSTAZIONE_ESPANDI_ALBERO", "SI")
               .Sistema("IMPOSTAZIONE_ALTEZZA_DISTINTA_MINIMA", "SI"));
    EXPECT_TRUE(p.vista.Massimizzata);
    EXPECT_TRUE(p.progetto.Tree1.Nodo("G_1")->Expanded);
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 7800);
}

TEST_F(Apertura, ASecondCatalogueReplacesTheFirst) {
    p.Apri(Programma_Di_Prova::Macchina());
    p.controllo.Clic_Nodo("P_1");
    Catalogo_Di_Prova altro;
    p.Apri(altro.Nodo("G_9", "R", "Altro"), "altro.TZF");
    EXPECT_EQ(p.progetto.Cartella_Temporanea, p.sistema.Cartella_Temporanea() + "TZV_00/");
    EXPECT_THAT(p.sistema.Contenuto_Temporaneo(), ElementsAre("TZV_00"));
    EXPECT_EQ(p.progetto.Tree1.Count(), 1);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "");
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
}

TEST_F(Apertura, WhatIsNoCatalogueIsIgnored) {
    p.Apri(Programma_Di_Prova::Macchina());
    p.controllo.Clic_Nodo("P_1");
    for (const char* percorso : {"/somewhere/guide.pdf", "/none", ""})
        p.controllo.Apri_Catalogo(percorso);
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_1");
    EXPECT_THAT(p.messaggi.Testi(), IsEmpty());
}

TEST_F(Apertura, AFailureEndsOnTheEmptyHomePage) {
    p.Apri(Programma_Di_Prova::Macchina());
    p.Premi("KEY_DISEGNO");
    p.controllo.Clic_Nodo("P_1");
    ASSERT_EQ(p.controllo.Restitusci_Zona_catalogo(), 2);
    p.controllo.Apri_Catalogo(p.cartella.filePath("missing.TZF"));
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].testo, "Error open file The file was not found.");
    EXPECT_FALSE(p.progetto.Progetto_Aperto);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    EXPECT_FALSE(p.Abilitato("KEY_DISEGNO"));
    EXPECT_TRUE(p.Abilitato("KEY_OPEN"));
    EXPECT_FALSE(p.Stato().Attesa);
    EXPECT_TRUE(p.Stato().Abilitata);
    EXPECT_EQ(p.impostazioni.Valore("SalvataggioTZF", "2"), QString());
    // The home page answers, and so do commands that need a catalogue.
    p.controllo.Esegui_Comando("KEY_HOME");
    p.controllo.Esegui_Comando("KEY_DISEGNO");
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);

    p.Apri(Programma_Di_Prova::Macchina(), "again.TZF");
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
    EXPECT_TRUE(p.controllo.Chiudi());
    EXPECT_THAT(p.sistema.Contenuto_Temporaneo(), ElementsAre("TZV_00"));  // of the failed one
}

TEST_F(Apertura, ATreeThatCantBeShownIsAFailure) {
    Catalogo_Di_Prova catalogo;
    p.Apri(catalogo.Nodo("G_1", "R", std::nullopt));
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Critica);
    EXPECT_FALSE(p.progetto.Progetto_Aperto);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    EXPECT_FALSE(p.Stato().Etichette_Catalogo);
    EXPECT_THAT(p.sistema.Contenuto_Temporaneo(), IsEmpty());
}

TEST_F(Apertura, NothingGetsInBetween) {
    const QString altro = Catalogo_Di_Prova().Pacchetto(p.cartella.path(), "altro.TZF");
    bool visto = false;
    p.vista.Alla_Mostra = [&](const Stato_Finestra& stato) {
        if (!stato.Attesa)
            return;
        // What the user might do while the window is locked.
        visto = true;
        EXPECT_TRUE(p.controllo.Occupato());
        p.controllo.Apri_Catalogo(altro);
        p.controllo.Esegui_Comando("KEY_DISEGNO");
        p.controllo.Clic_Bottone("KEY_HOME");
        p.controllo.Clic_Nodo("P_1");
        p.controllo.Nodo_Aperto("G_1", true);
        p.controllo.Applica_Filtro_Matricola();
        p.controllo.Cerca_Nodo_Albero("Vuoto");
        p.controllo.Griglia_Ridimensionata();
        EXPECT_FALSE(p.controllo.Chiudi());
    };
    const QString percorso = p.Apri(Programma_Di_Prova::Macchina());
    EXPECT_TRUE(visto);
    EXPECT_FALSE(p.controllo.Occupato());
    EXPECT_EQ(p.progetto.File_Pacchetto, percorso);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "");
    EXPECT_FALSE(p.progetto.Tree1.Nodo("G_1")->Expanded);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
}

TEST_F(Apertura, TheWindowIsLockedWhileItWorks) {
    std::vector<bool> attese, abilitate;
    p.vista.Alla_Mostra = [&](const Stato_Finestra& stato) {
        attese.push_back(stato.Attesa);
        abilitate.push_back(stato.Abilitata);
    };
    p.Apri(Programma_Di_Prova::Macchina());
    EXPECT_TRUE(attese.front());
    EXPECT_FALSE(abilitate.front());
    EXPECT_FALSE(attese.back());
    EXPECT_TRUE(abilitate.back());
    EXPECT_TRUE(p.vista.Barra.Regolare());
    ASSERT_FALSE(p.vista.Barra.Passi.empty());
    EXPECT_EQ(p.vista.Barra.Passi.back().first, p.vista.Barra.Passi.back().second);
}

TEST_F(Apertura, TheDialogsChoiceIsOpened) {
    p.vista.Scelta = Catalogo_Di_Prova().Pacchetto(p.cartella.path());
    p.controllo.Clic_Bottone("KEY_OPEN");
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
    p.vista.Scelta.clear();  // cancelled
    p.controllo.Clic_Bottone("KEY_OPEN");
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
}

// --- the window's life
// -----------------------------------------------------------------------------------------

TEST_F(Apertura, WithoutACommandLineTheHomePageIsEmpty) {
    p.controllo.Avvia({});
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    EXPECT_FALSE(p.Abilitato("KEY_DISEGNO"));
    EXPECT_EQ(p.vista.Testi, 1);
    p.controllo.Prima_Attivazione();
    EXPECT_TRUE(p.controllo.Chiudi());
    EXPECT_THAT(p.sistema.Aperti, IsEmpty());
}

TEST_F(Apertura, TheCommandLinesCatalogueIsOpened) {
    const QString pacchetto = Catalogo_Di_Prova().Pacchetto(p.cartella.path());
    p.controllo.Avvia(pacchetto + "|/doc.pdf");
    EXPECT_EQ(p.progetto.File_Pacchetto, pacchetto);
    p.Stato().Posizione_Splitter_V = 0;
    p.controllo.Prima_Attivazione();
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 6600);
    p.Stato().Posizione_Splitter_V = 3000;
    p.controllo.Prima_Attivazione();  // only the first one counts
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 3000);
    EXPECT_TRUE(p.controllo.Chiudi());
    EXPECT_FALSE(p.progetto.Progetto_Aperto);
    EXPECT_THAT(p.sistema.Contenuto_Temporaneo(), IsEmpty());
    EXPECT_THAT(p.sistema.Aperti, IsEmpty());  // the activation has emptied the command line
}

TEST_F(Apertura, ADocumentIsOpenedWhenTheWindowNeverWasActive) {
    p.controllo.Avvia(p.cartella.filePath("none.TZF") + "|/doc.pdf");
    EXPECT_TRUE(p.controllo.Chiudi());
    EXPECT_THAT(p.sistema.Aperti, ElementsAre("/doc.pdf"));
}

TEST_F(Apertura, APrintRunKeepsTheWindow) {
    p.progetto.Stampa_In_Corso = true;
    EXPECT_FALSE(p.controllo.Chiudi());
}

}  // namespace

#include <gmock/gmock.h>

#include <QDir>

#include "vista_finta.h"

using testing::ElementsAre;

namespace {

class Comandi : public testing::Test {
  protected:
    void Apri(std::initializer_list<std::pair<const char*, const char*>> sistema = {}) {
        Catalogo_Di_Prova catalogo = Programma_Di_Prova::Macchina();
        for (const auto& [chiave, valore] : sistema)
            catalogo.Sistema(chiave, valore);
        p.Apri(catalogo);
        ASSERT_TRUE(p.progetto.Progetto_Aperto);
    }
    int Zona() { return p.controllo.Restitusci_Zona_catalogo(); }
    QString Corrente() { return p.progetto.Key_Prodotto_Corrente; }
    Griglia& Distinta() { return p.controllo.Griglia_Distinta(); }
    Programma_Di_Prova p;
};

TEST_F(Comandi, TheDrawingButtonChoosesThePage) {
    Apri();
    p.controllo.Clic_Nodo("P_1");
    EXPECT_EQ(Corrente(), "P_1");
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 2);
    EXPECT_TRUE(p.Stato().Griglia_Distinta);
    EXPECT_EQ(p.Stato().Divisione_V, -1);  // this product has no drawing
    ASSERT_EQ(Distinta().Rows(), 3);
    EXPECT_EQ(Distinta().TextMatrix(1, 1), "A1");  // no column that adds to a cart
    EXPECT_EQ(Distinta().TextMatrix(2, 2), "Dado");

    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_EQ(Corrente(), "P_1");
    EXPECT_FALSE(p.Stato().Label_Help_Albero);
}

TEST_F(Comandi, WithoutAProductTheSheetShowsItsHelp) {
    Apri();
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(p.Stato().Label_Help_Albero);
    EXPECT_FALSE(p.Stato().Frame_Intro);
}

TEST_F(Comandi, ProductsAndGroupsUnderThePressedButton) {
    Apri();
    p.Premi("KEY_DISEGNO");
    p.controllo.Clic_Nodo("P_3");
    EXPECT_EQ(Zona(), 2);
    EXPECT_EQ(Corrente(), "P_3");
    EXPECT_EQ(Distinta().TextMatrix(1, 1), "A3");
    p.controllo.Clic_Nodo("P_2");  // no parts
    EXPECT_EQ(Zona(), 2);
    EXPECT_FALSE(p.Stato().Griglia_Distinta);
    p.controllo.Clic_Nodo("G_1");
    EXPECT_EQ(Zona(), 1 + 4);  // a group has no drawing: its sheet stands in
    EXPECT_EQ(Corrente(), "G_1");
    EXPECT_FALSE(p.Stato().Griglia_Distinta);
}

TEST_F(Comandi, HomeWithoutANode) {
    Apri({{"IMPOSTAZIONE_NODO_HOMEPAGE", "R"}});
    p.controllo.Clic_Nodo("P_1");
    p.controllo.Clic_Bottone("KEY_HOME");
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(Corrente(), "");
    EXPECT_EQ(p.progetto.Tree1.SelectedItem(), nullptr);
    EXPECT_FALSE(p.Stato().Bottoni.at("KEY_DISEGNO").Pressed);
    // With no current product the tree keeps its selection.
    p.progetto.Tree1.Seleziona(p.progetto.Tree1.Nodo("P_2"));
    p.controllo.Clic_Bottone("KEY_HOME");
    EXPECT_NE(p.progetto.Tree1.SelectedItem(), nullptr);
}

TEST_F(Comandi, HomeOnANodeOfTheCatalogue) {
    Apri({{"IMPOSTAZIONE_NODO_HOMEPAGE", "P_1"},
          {"IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE", "SI"},
          {"IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "SI"}});
    EXPECT_TRUE(p.Stato().Bottoni.at("KEY_DISEGNO").Pressed);
    EXPECT_EQ(Zona(), 2);
    EXPECT_EQ(Corrente(), "P_1");
    EXPECT_EQ(p.progetto.Tree1.SelectedItem()->Key, "P_1");
    EXPECT_TRUE(p.progetto.Tree1.Nodo("G_1")->Expanded);
}

TEST_F(Comandi, HomeSelectsTheNodeBehindTheHomePage) {
    Apri({{"IMPOSTAZIONE_NODO_HOMEPAGE", "P_1"}});
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(Corrente(), "P_1");
    p.controllo.Esegui_Comando("KEY_DISEGNO");  // a link, with the button as it stands
    EXPECT_EQ(Zona(), 5);
}

TEST_F(Comandi, HelpOpensTheGuideOfTheLanguage) {
    const QString cartella = p.install.filePath("Help/");
    ASSERT_TRUE(QDir().mkpath(cartella));
    QFile guida(cartella + "HELP_Viewer_4_IT.pdf");
    ASSERT_TRUE(guida.open(QIODevice::WriteOnly));
    p.controllo.Clic_Bottone("KEY_HELP");  // no catalogue, no resources: the English one
    Apri();
    p.controllo.Clic_Bottone("KEY_HELP");
    EXPECT_THAT(p.sistema.Aperti,
                ElementsAre(cartella + "HELP_Viewer_4_UK.pdf", cartella + "HELP_Viewer_4_IT.pdf"));
}

TEST_F(Comandi, AnotherKeyOnlyRefreshesTheToolbar) {
    Apri();
    p.controllo.Clic_Nodo("P_1");
    const int zona = Zona();
    for (const QString& chiave : Chiavi_Toolbar())
        if (!Comandi_Presenti().contains(chiave)) {
            p.Stato().Bottoni.at("KEY_ZOOM_ALL").Enabled = true;
            p.controllo.Esegui_Comando(chiave);
            EXPECT_FALSE(p.Abilitato("KEY_ZOOM_ALL"));
            p.controllo.Clic_Bottone(chiave);
            EXPECT_FALSE(p.Stato().Bottoni.at(chiave).Pressed);
        }
    EXPECT_EQ(Zona(), zona);
    EXPECT_EQ(Corrente(), "P_1");
}

TEST_F(Comandi, ADisabledButtonDoesNothing) {
    p.controllo.Aggiorna_Toolbar();
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_FALSE(p.Stato().Bottoni.at("KEY_DISEGNO").Pressed);
}

TEST_F(Comandi, ALogInThatCantBeMadeKeepsTheHomePage) {
    Apri({{"IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", "Autentificazione_utente"}});
    EXPECT_FALSE(p.controllo.Verifica_Accesso(false));
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 1);
    p.controllo.Visualizza_Disegno_Esploso("P_1");
    EXPECT_EQ(Zona(), 1);
    p.progetto.Utente = "mario";
    p.controllo.Consulta_Catalogo(false);
    EXPECT_EQ(Zona(), 5);
}

TEST_F(Comandi, AChangeOfMarketReloadsWhenTheCatalogueIsShownAgain) {
    Apri();
    p.progetto.Mercato = "3";
    p.progetto.Ricarica_Necessaria = true;
    p.controllo.Consulta_Catalogo(false);
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
    EXPECT_TRUE(p.progetto.Tree1.Esiste_Nodo_Albero("G_2"));
}

TEST_F(Comandi, ALanguageThatCantBeShownGoesHome) {
    Apri();
    p.progetto.Lingua = "99";
    p.progetto.Ricarica_Necessaria = true;
    p.controllo.Consulta_Catalogo(false);
    EXPECT_EQ(Zona(), 1);
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Critica);
}

// --- tree
// ------------------------------------------------------------------------------------------------------

TEST_F(Comandi, SelectingByProgramIsAClickOnce) {
    Apri();
    p.controllo.Seleziona_Nodo_Albero("P_2");
    EXPECT_EQ(Corrente(), "P_2");
    p.progetto.Key_Prodotto_Corrente = "changed";
    p.controllo.Seleziona_Nodo_Albero("P_2");  // selected already: no refresh
    p.controllo.Seleziona_Nodo_Albero("G_2");  // hidden by the market
    p.controllo.Seleziona_Nodo_Albero("none");
    EXPECT_EQ(Corrente(), "changed");
    EXPECT_EQ(p.progetto.Tree1.SelectedItem()->Key, "P_2");
}

TEST_F(Comandi, AClickOpensTheNodeWhenTheCatalogueWantsIt) {
    Apri();
    p.controllo.Clic_Nodo("G_1");
    EXPECT_FALSE(p.progetto.Tree1.Nodo("G_1")->Expanded);
    Apri({{"IMPOSTAZIONE_ESPANDI_NODO_ALBERO", "SI"}});
    p.controllo.Clic_Nodo("G_1");
    EXPECT_TRUE(p.progetto.Tree1.Nodo("G_1")->Expanded);
    p.controllo.Nodo_Aperto("G_1", false);
    EXPECT_FALSE(p.progetto.Tree1.Nodo("G_1")->Expanded);
}

TEST_F(Comandi, TheSearchShowsTheSheetWhateverTheButtonSays) {
    Apri();
    p.Premi("KEY_DISEGNO");
    p.controllo.Consulta_Catalogo(false);
    p.controllo.Cerca_Nodo_Albero("Albero a camme");
    EXPECT_EQ(Corrente(), "P_1");
    EXPECT_EQ(Zona(), 5);
    p.controllo.Cerca_Nodo_Albero("Albero a camme");
    EXPECT_EQ(Corrente(), "P_3");
}

TEST_F(Comandi, TheSerialNumberMarksNodes) {
    Catalogo_Di_Prova catalogo = Programma_Di_Prova::Macchina();
    p.Apri(catalogo.Riga("Matricola_Nodo", {{"Key_Prodotto", "P_2"}, {"Matricola", "d'1"}}));
    p.controllo.Clic_Nodo("P_1");
    p.vista.Matricola = "d'1";
    const int prima = p.vista.Ricostruzioni;
    p.controllo.Applica_Filtro_Matricola();
    EXPECT_EQ(p.vista.Ricostruzioni, prima + 1);
    EXPECT_TRUE(p.progetto.Tree1.Nodo("P_2")->Bold);
    EXPECT_FALSE(p.progetto.Tree1.Nodo("P_1")->Bold);
    EXPECT_EQ(Corrente(), "");
    p.vista.Matricola.clear();
    p.controllo.Applica_Filtro_Matricola();
    EXPECT_FALSE(p.progetto.Tree1.Nodo("P_2")->Bold);
    EXPECT_EQ(p.messaggi.Mostrati.size(), 0u);
}

TEST_F(Comandi, ASerialNumberThatCantBeAskedForIsTold) {
    Catalogo_Di_Prova catalogo = Programma_Di_Prova::Macchina();
    p.Apri(catalogo.Rimuovi_Tabella("Matricola_Nodo"));
    p.vista.Matricola = "12";
    p.controllo.Applica_Filtro_Matricola();
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Critica);
}

TEST_F(Comandi, RebuildingTheTreeIsLongWorkAndNoneOfItEndsOther) {
    std::vector<bool> attese;  // every change of the hourglass
    p.vista.Alla_Mostra = [&](const Stato_Finestra& stato) {
        EXPECT_EQ(stato.Abilitata, !stato.Attesa);
        if (attese.empty() ? stato.Attesa : attese.back() != stato.Attesa)
            attese.push_back(stato.Attesa);
        EXPECT_EQ(p.controllo.Occupato(), stato.Attesa);
    };
    p.Apri(Programma_Di_Prova::Macchina());  // its reload is part of the opening
    EXPECT_THAT(attese, ElementsAre(true, false));
    p.controllo.Applica_Filtro_Matricola();
    EXPECT_THAT(attese, ElementsAre(true, false, true, false));
    p.controllo.Ricarica_Vista_Catalogo();
    EXPECT_THAT(attese, ElementsAre(true, false, true, false, true, false));
}

TEST_F(Comandi, ANewWidthRebuildsTheColumnsOnly) {
    Apri();
    p.Premi("KEY_DISEGNO");
    p.controllo.Clic_Nodo("P_1");
    Distinta().TextMatrix(1, 1, "touched");
    Distinta().Width = 18300;
    p.controllo.Griglia_Ridimensionata();
    int somma = 0;
    for (int c = 0; c < Distinta().Cols(); ++c)
        somma += Distinta().ColWidth(c);
    EXPECT_NEAR(somma, 18000, Distinta().Cols());
    EXPECT_EQ(Distinta().TextMatrix(1, 1), "touched");
    EXPECT_TRUE(p.Stato().Griglia_Distinta);
}

TEST_F(Comandi, TheUserMovesTheSplitterWithinItsBounds) {
    p.controllo.Splitter_V_Spostato(100);
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 1200);
    p.controllo.Splitter_V_Spostato(8500);
    EXPECT_EQ(p.Stato().Posizione_Splitter_V, 7800);
}

}  // namespace

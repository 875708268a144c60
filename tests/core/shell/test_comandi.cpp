#include <QDir>

#include "vista_finta.h"

using testing::ElementsAre;

namespace {

class Comandi : public Con_Programma {
  protected:
    void Apri_Macchina(std::initializer_list<std::pair<const char*, const char*>> valori = {}) {
        Catalogo_Di_Prova catalogo = Macchina();
        for (const auto& [chiave, valore] : valori)
            catalogo.Sistema(chiave, valore);
        Apri(catalogo);
        ASSERT_TRUE(progetto.Progetto_Aperto);
    }
    Griglia& Distinta() { return schermo.Prodotto.Griglia_Distinta(); }
};

TEST_F(Comandi, TheDrawingButtonChoosesThePage) {
    Apri_Macchina();
    Premi("KEY_DISEGNO");  // without a product the sheet shows its help
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Stato().Label_Help_Albero);
    Clic_Nodo("P_1");
    EXPECT_EQ(Zona(), 2);
    EXPECT_TRUE(Stato().Griglia_Distinta);
    ASSERT_EQ(Distinta().Rows(), 3);
    EXPECT_EQ(Distinta().TextMatrix(2, 3), "Dado");
    for (const int zona : {5, 2}) {
        Premi("KEY_DISEGNO");
        EXPECT_EQ(Zona(), zona);
        EXPECT_EQ(Corrente(), "P_1");
    }
    Clic_Nodo("P_2");  // no parts
    EXPECT_EQ(Zona(), 2);
    EXPECT_FALSE(Stato().Griglia_Distinta);
    Clic_Nodo("G_1");  // a group has no drawing: its sheet stands in
    EXPECT_EQ(Zona(), 5);
    EXPECT_EQ(Corrente(), "G_1");
}

TEST_F(Comandi, HomeWithoutANode) {
    Apri_Macchina({{"IMPOSTAZIONE_NODO_HOMEPAGE", "R"}});
    Clic_Nodo("P_1");
    Premi("KEY_HOME");
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(Corrente(), "");
    EXPECT_EQ(progetto.Tree1.SelectedItem(), nullptr);
    progetto.Tree1.Seleziona(progetto.Tree1.Nodo("P_2"));
    Premi("KEY_HOME");  // with no current product the tree keeps its selection
    EXPECT_NE(progetto.Tree1.SelectedItem(), nullptr);
}

TEST_F(Comandi, HomeOnANodeOfTheCatalogue) {
    Apri_Macchina({{"IMPOSTAZIONE_NODO_HOMEPAGE", "P_1"}});  // selected behind the home page
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(Corrente(), "P_1");
    schermo.Comandi.Clic_Link("KEY_DISEGNO");  // a link, with the button as it stands
    EXPECT_EQ(Zona(), 5);

    Apri_Macchina({{"IMPOSTAZIONE_NODO_HOMEPAGE", "P_1"},
                   {"IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE", "SI"},
                   {"IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI", "SI"}});
    EXPECT_TRUE(Bottone("KEY_DISEGNO").Pressed);
    EXPECT_EQ(Zona(), 2);
    EXPECT_EQ(Corrente(), "P_1");
    EXPECT_EQ(progetto.Tree1.SelectedItem()->Key, "P_1");
    EXPECT_TRUE(progetto.Tree1.Nodo("G_1")->Expanded);
}

TEST_F(Comandi, HelpOpensTheGuideOfTheLanguage) {
    const QString cartella_help = install.filePath("Help/");
    ASSERT_TRUE(QDir().mkpath(cartella_help));
    QFile guida(cartella_help + "HELP_Viewer_4_IT.pdf");
    ASSERT_TRUE(guida.open(QIODevice::WriteOnly));
    Premi("KEY_HELP");  // no catalogue, no resources: the English one
    Apri_Macchina();
    Premi("KEY_HELP");
    EXPECT_THAT(sistema.Aperti, ElementsAre(cartella_help + "HELP_Viewer_4_UK.pdf", guida.fileName()));
}

// --- tree
// ------------------------------------------------------------------------------------------------------

TEST_F(Comandi, SelectingByProgramIsAClickOnce) {
    Apri_Macchina();
    schermo.Seleziona_Nodo_Albero("P_2");
    EXPECT_EQ(Corrente(), "P_2");
    progetto.Key_Prodotto_Corrente = "changed";
    schermo.Seleziona_Nodo_Albero("P_2");  // selected already: no refresh
    schermo.Seleziona_Nodo_Albero("G_2");  // hidden by the market
    schermo.Seleziona_Nodo_Albero("none");
    EXPECT_EQ(Corrente(), "changed");
    EXPECT_EQ(progetto.Tree1.SelectedItem()->Key, "P_2");
}

TEST_F(Comandi, AClickOpensTheNodeWhenTheCatalogueWantsIt) {
    for (const char* valore : {"NO", "SI"}) {
        Apri_Macchina({{"IMPOSTAZIONE_ESPANDI_NODO_ALBERO", valore}});
        Clic_Nodo("G_1");
        EXPECT_EQ(progetto.Tree1.Nodo("G_1")->Expanded, *valore == 'S');
    }
    schermo.Albero.Nodo_Aperto("G_1", false);
    EXPECT_FALSE(progetto.Tree1.Nodo("G_1")->Expanded);
}

TEST_F(Comandi, TheSearchShowsTheSheetWhateverTheButtonSays) {
    Apri_Macchina();
    Bottone("KEY_DISEGNO").Pressed = true;
    schermo.Consulta_Catalogo(false);
    for (const char* key : {"P_1", "P_3"}) {
        schermo.Albero.Cerca_Nodo_Albero("Albero a camme");
        EXPECT_EQ(Corrente(), key);
        EXPECT_EQ(Zona(), 5);
    }
}

TEST_F(Comandi, TheSerialNumberMarksNodes) {
    Apri(Macchina().Riga("Matricola_Nodo", {{"Key_Prodotto", "P_2"}, {"Matricola", "d'1"}}));
    Clic_Nodo("P_1");
    const int prima = vista.Ricostruzioni;
    Filtra("d'1");
    EXPECT_EQ(vista.Ricostruzioni, prima + 1);
    EXPECT_TRUE(progetto.Tree1.Nodo("P_2")->Bold);
    EXPECT_FALSE(progetto.Tree1.Nodo("P_1")->Bold);
    EXPECT_EQ(Corrente(), "");
    Filtra("");
    EXPECT_FALSE(progetto.Tree1.Nodo("P_2")->Bold);
    EXPECT_TRUE(Messaggi().isEmpty());
}

TEST_F(Comandi, ASerialNumberThatCantBeAskedForIsTold) {
    Apri(Macchina().Rimuovi_Tabella("Matricola_Nodo"));
    Filtra("12");
    EXPECT_EQ(Messaggi().filter("/critical").size(), 1);
}

}  // namespace

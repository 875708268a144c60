// The change of language and market, and the languages of the home page.

#include <QDir>

#include "vista_finta.h"

namespace {

class Lingua : public Con_Programma {
  protected:
    static Catalogo_Di_Prova Con_Scelta() {
        return Macchina().Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO");
    }
    void Sceglie(const QString& lingua, const QString& mercato) {
        vista.Alla_Lingua_Mercato = [=, this] { schermo.Accesso.Scegli_Lingua_Mercato(lingua, mercato); };
        Premi("KEY_LINGUA");
    }
    /// The resource package, with the languages of `Catalogo_Di_Prova` and three more.
    void Installa_Risorse() {
        Catalogo_Di_Prova risorse;
        const char* lingue[][2] = {{"4", "DE"}, {"5", "ES"}, {"6", "PT"}};
        for (const auto& [id, chiave] : lingue)
            risorse.Riga("Lingue", {{"ID", id}, {"Chiave", chiave}, {"Descrizione_Lingua", chiave}});
        ASSERT_TRUE(QDir(install.path()).mkpath("Data"));
        risorse.Voce_Database("Data_TzVwRk.QLD").Pacchetto(install.filePath("Data"), "data40.qld");
    }
};

TEST_F(Lingua, AnotherLanguageReloadsAtOnceAndGoesHome) {
    Apri(Con_Scelta());
    Clic_Nodo("P_1");
    const int testi = vista.Testi;
    Sceglie("English", "France");
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(Corrente(), "");
    EXPECT_TRUE(progetto.Tree1.Esiste_Nodo_Albero("G_2"));  // of market 3
    EXPECT_EQ(progetto.Tree1.Titolo, "Trial");
    EXPECT_GT(vista.Testi, testi);
}

TEST_F(Lingua, ALanguageThatCantBeShownChangesNothingButTheMessage) {
    const std::pair<Catalogo_Di_Prova, const char*> casi[] = {
        {Con_Scelta().Cambia("Albero_Web", 2, "Testo_Visualizzato_3", std::nullopt), "G_1"},
        {Con_Scelta().Rimuovi_Colonna("Albero_Web", "Testo_Visualizzato_3"), "Testo_Visualizzato_3"},
        {Con_Scelta().Rimuovi_Colonna("Traduzioni_Viewer_System", "Traduzione_3"), "Traduzione_3"}};
    for (const auto& [catalogo, manca] : casi) {
        SCOPED_TRACE(manca);
        Apri(catalogo);
        schermo.Consulta_Catalogo(false);
        Clic_Nodo("P_1");
        progetto.Prodotti_Selezionati.Add("P_1");
        const int testi = vista.Testi;
        Sceglie("Français", "France");
        ASSERT_EQ(Messaggi().filter("/critical").size(), 1);
        EXPECT_TRUE(Messaggi().last().contains(manca)) << Messaggi().last().toStdString();
        EXPECT_EQ(progetto.Lingua + progetto.Mercato + Corrente(), "11P_1");
        EXPECT_EQ(progetto.Tree1.Titolo + progetto.Tree1.SelectedItem()->Key, "ProvaP_1");
        EXPECT_EQ(progetto.Albero.Item("P_1").Testo_Visualizzato_.Testo(), "Albero a camme");
        EXPECT_EQ(progetto.Prodotti_Selezionati.Count(), 1);
        EXPECT_EQ(vista.Testi, testi);
        EXPECT_EQ(Zona(), 5);
        schermo.Consulta_Catalogo(false);  // nothing is left to be loaded
        messaggi.Mostrati.clear();
        Sceglie("English", "Italia");
        EXPECT_EQ(progetto.Tree1.Titolo, "Trial");
        EXPECT_THAT(Messaggi(), testing::IsEmpty());
    }
}

TEST_F(Lingua, TheHomePageOffersLanguagesWhileNoCatalogueIsOpen) {
    Installa_Risorse();
    schermo.Apertura.Avvia({});
    EXPECT_TRUE(Stato().ImageCombo_lingua);
    EXPECT_FALSE(Stato().Label_Consulta_Cat);
    EXPECT_EQ(vista.Lingue_Home.Voci.size(), 5u);
    EXPECT_EQ(vista.Lingue_Home.Corrente, 1);  // language 2, as at the first start
    Apri(Macchina());
    EXPECT_FALSE(Stato().ImageCombo_lingua);
    EXPECT_TRUE(Stato().Label_Consulta_Cat);
    schermo.Apertura.Apri_Catalogo(cartella.filePath("missing.TZF"));
    EXPECT_TRUE(Stato().ImageCombo_lingua);
    EXPECT_FALSE(Stato().Label_Consulta_Cat);
    EXPECT_EQ(vista.Lingue_Home.Corrente, 0);  // that of the catalogue lives on
    EXPECT_TRUE(sistema.Contenuto_Temporaneo().filter("Data_TzVwRk").isEmpty());
}

TEST_F(Lingua, ALanguageOfTheHomePageIsTakenOver) {
    schermo.Apertura.Avvia({});
    EXPECT_FALSE(Stato().ImageCombo_lingua);
    schermo.Home.Scegli_Lingua_Home("ES");  // without resources there is none
    EXPECT_EQ(progetto.Lingua, "2");
    Installa_Risorse();
    const int testi = vista.Testi;
    schermo.Home.Scegli_Lingua_Home("ES");
    EXPECT_EQ(progetto.Lingua, "5");
    EXPECT_EQ(vista.Testi, testi + 1);
    Apri(Macchina());
    schermo.Home.Scegli_Lingua_Home("DE");  // an open catalogue has its own
    EXPECT_EQ(progetto.Lingua, "1");
}

}  // namespace

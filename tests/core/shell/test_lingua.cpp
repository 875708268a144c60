// The change of language and market, and the languages of the home page.

#include <gmock/gmock.h>

#include <QDir>

#include "vista_finta.h"

using testing::ElementsAre;

namespace {

class Lingua : public testing::Test {
  protected:
    static Catalogo_Di_Prova Macchina() {
        Catalogo_Di_Prova c = Programma_Di_Prova::Macchina();
        return c.Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO");
    }
    void Sceglie_Nel_Dialogo(const char* lingua, const char* mercato) {
        p.vista.Alla_Lingua_Mercato = [this, lingua, mercato] {
            p.controllo.Accesso().Scegli_Lingua_Mercato(QString::fromUtf8(lingua),
                                                        QString::fromUtf8(mercato));
        };
    }
    /// The resource package, with the languages of `Catalogo_Di_Prova` and three more.
    void Installa_Risorse() {
        Catalogo_Di_Prova risorse;
        const char* lingue[][2] = {{"4", "DE"}, {"5", "ES"}, {"6", "PT"}};
        for (const auto& [id, chiave] : lingue)
            risorse.Riga("Lingue", {{"ID", id}, {"Chiave", chiave}, {"Descrizione_Lingua", chiave}});
        ASSERT_TRUE(QDir(p.install.path()).mkpath("Data"));
        risorse.Voce_Database("Data_TzVwRk.QLD").Pacchetto(p.install.filePath("Data"), "data40.qld");
    }
    QStringList Lingue_Home() const {
        QStringList testi;
        for (const Voce_Lingua& voce : p.vista.Lingue_Home.Voci)
            testi << voce.Descrizione;
        return testi;
    }
    Programma_Di_Prova p;
};

TEST_F(Lingua, AnotherLanguageReloadsAtOnceAndGoesHome) {
    p.Apri(Macchina());
    p.Premi("KEY_DISEGNO");
    p.controllo.Clic_Nodo("P_1");
    const int testi = p.vista.Testi;
    Sceglie_Nel_Dialogo("English", "France");
    p.controllo.Clic_Bottone("KEY_LINGUA");
    EXPECT_EQ(p.progetto.Lingua, "2");
    EXPECT_EQ(p.progetto.Mercato, "3");
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "");
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
    EXPECT_TRUE(p.progetto.Tree1.Esiste_Nodo_Albero("G_2"));  // of market 3
    EXPECT_EQ(p.progetto.Tree1.Titolo, "Trial");
    EXPECT_EQ(p.progetto.Traduzioni.Item("QUANTITA").Testo, "Quantity");
    EXPECT_GT(p.vista.Testi, testi);
}

TEST_F(Lingua, TheSameChoiceLeavesEverythingAsItIs) {
    p.Apri(Macchina());
    p.controllo.Clic_Nodo("P_1");
    const int zona = p.controllo.Restitusci_Zona_catalogo(), ricostruzioni = p.vista.Ricostruzioni;
    Sceglie_Nel_Dialogo("Italiano", "Italia");
    p.controllo.Clic_Bottone("KEY_LINGUA");
    p.vista.Alla_Lingua_Mercato = {};  // closed without a choice
    p.controllo.Clic_Bottone("KEY_LINGUA");
    EXPECT_EQ(p.vista.Scelte_Lingua, 2);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), zona);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_1");
    EXPECT_EQ(p.vista.Ricostruzioni, ricostruzioni);
}

TEST_F(Lingua, AReloadThatWasPendingIsMadeUpFor) {
    p.Apri(Macchina());
    p.controllo.Clic_Nodo("P_1");
    p.progetto.Ricarica_Necessaria = true;
    p.controllo.Clic_Bottone("KEY_LINGUA");
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "");
}

TEST_F(Lingua, SerialMarksAreForgotten) {
    p.Apri(Macchina().Riga("Matricola_Nodo", {{"Key_Prodotto", "P_2"}, {"Matricola", "77"}}));
    p.vista.Matricola = "77";
    p.controllo.Applica_Filtro_Matricola();
    ASSERT_TRUE(p.progetto.Tree1.Nodo("P_2")->Bold);
    Sceglie_Nel_Dialogo("Français", "Italia");
    p.controllo.Clic_Bottone("KEY_LINGUA");
    EXPECT_FALSE(p.progetto.Tree1.Nodo("P_2")->Bold);
}

TEST_F(Lingua, ALanguageThatCantBeShownIsTold) {
    Catalogo_Di_Prova catalogo = Macchina();
    catalogo.Cambia("Albero_Web", 2, "Testo_Visualizzato_3", std::nullopt);
    p.Apri(catalogo);
    Sceglie_Nel_Dialogo("Français", "Italia");
    p.controllo.Clic_Bottone("KEY_LINGUA");
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Critica);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 1);
    Sceglie_Nel_Dialogo("English", "Italia");  // and can be left again
    p.controllo.Clic_Bottone("KEY_LINGUA");
    EXPECT_EQ(p.progetto.Tree1.Titolo, "Trial");
}

TEST_F(Lingua, AChoiceAtTheLogInIsReloadedOnTheWay) {
    p.Apri(
        Macchina().Riga("Anagrafico", {{"Login", "mario"}}).Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "1"));
    p.vista.Alla_Autentificazione = [this] { p.controllo.Accesso().Accedi("mario", ""); };
    Sceglie_Nel_Dialogo("English", "France");
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_EQ(p.vista.Scelte_Lingua, 1);
    EXPECT_EQ(p.controllo.Restitusci_Zona_catalogo(), 5);
    EXPECT_EQ(p.progetto.Tree1.Titolo, "Trial");
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
}

TEST_F(Lingua, UnreadableLimitsAreTold) {
    p.Apri(Macchina().Rimuovi_Tabella("Gruppi_Utenti"));
    const Scelta_Lingua_Mercato scelta = p.controllo.Accesso().Carica_Lingua_Mercato();
    EXPECT_EQ(scelta.Lingue.Voci.size(), 3u);
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].testo, "MSG_05");  // this catalogue has no text for it
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Critica);
}

TEST_F(Lingua, WithoutACatalogueThereIsNoDialog) {
    p.controllo.Esegui_Comando("KEY_LINGUA");
    EXPECT_EQ(p.vista.Scelte_Lingua, 0);
}

// --- home page
// --------------------------------------------------------------------------------------------------------

TEST_F(Lingua, TheHomePageOffersLanguagesWhileNoCatalogueIsOpen) {
    Installa_Risorse();
    p.controllo.Avvia({});
    EXPECT_TRUE(p.Stato().ImageCombo_lingua);
    EXPECT_FALSE(p.Stato().Label_Consulta_Cat);
    EXPECT_THAT(Lingue_Home(), ElementsAre("Italiano", "English", "Français", "DE", "ES"));
    EXPECT_EQ(p.vista.Lingue_Home.Corrente, 1);  // language 2, as at the first start
    p.Apri(Macchina());
    EXPECT_FALSE(p.Stato().ImageCombo_lingua);
    EXPECT_TRUE(p.Stato().Label_Consulta_Cat);
    p.controllo.Apri_Catalogo(p.cartella.filePath("missing.TZF"));
    EXPECT_TRUE(p.Stato().ImageCombo_lingua);
    EXPECT_FALSE(p.Stato().Label_Consulta_Cat);
    EXPECT_EQ(p.vista.Lingue_Home.Corrente, 0);  // that of the catalogue lives on
    EXPECT_TRUE(p.sistema.Contenuto_Temporaneo().filter("Data_TzVwRk").isEmpty());
}

TEST_F(Lingua, ALanguageOfTheHomePageIsTakenOver) {
    Installa_Risorse();
    p.controllo.Avvia({});
    const int testi = p.vista.Testi;
    p.controllo.Scegli_Lingua_Home("ES");
    EXPECT_EQ(p.progetto.Lingua, "5");
    EXPECT_EQ(p.vista.Testi, testi + 1);
    p.Apri(Macchina());
    p.controllo.Scegli_Lingua_Home("DE");  // an open catalogue has its own
    EXPECT_EQ(p.progetto.Lingua, "1");
}

TEST_F(Lingua, WithoutResourcesNothingIsOffered) {
    p.controllo.Avvia({});
    EXPECT_FALSE(p.Stato().ImageCombo_lingua);
    EXPECT_FALSE(p.Stato().Label_Consulta_Cat);
    p.controllo.Scegli_Lingua_Home("ES");
    EXPECT_EQ(p.progetto.Lingua, "2");
    EXPECT_TRUE(p.messaggi.Mostrati.empty());
}

}  // namespace

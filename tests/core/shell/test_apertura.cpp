#include "vista_finta.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Apertura = Con_Programma;

TEST_F(Apertura, BringsUpTheHomePage) {
    vista.Scelta = Macchina().Pacchetto(cartella.path());
    Premi("KEY_OPEN");
    EXPECT_THAT(Messaggi(), IsEmpty());
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(progetto.Tree1.Count(), 4);  // without the branch of another market
    EXPECT_EQ(progetto.Tree1.Titolo, "Prova");
    EXPECT_GE(vista.Ricostruzioni, 1);
    EXPECT_EQ(impostazioni.Valore("SalvataggioTZF", "1"), vista.Scelta);
    EXPECT_TRUE(Bottone("KEY_DISEGNO").Enabled);
    EXPECT_FALSE(vista.Massimizzata);
    EXPECT_EQ(Stato().Posizione_Splitter_V, 6600);
    EXPECT_TRUE(vista.Mostrato.Etichette_Catalogo);
    ASSERT_FALSE(vista.Barra.Passi.empty());
    EXPECT_TRUE(vista.Barra.Regolare());
    vista.Scelta.clear();  // cancelled
    Premi("KEY_OPEN");
    EXPECT_TRUE(progetto.Progetto_Aperto);
}

TEST_F(Apertura, ObeysTheCataloguesSettings) {
    Apri(Macchina()
             .Sistema("IMPOSTAZIONE_FINESTRA_MASSIMATA", "SI")
             .Sistema("IMPOSTAZIONE_ESPANDI_ALBERO", "SI")
             .Sistema("IMPOSTAZIONE_ALTEZZA_DISTINTA_MINIMA", "SI"));
    EXPECT_TRUE(vista.Massimizzata);
    EXPECT_TRUE(progetto.Tree1.Nodo("G_1")->Expanded);
    EXPECT_EQ(Stato().Posizione_Splitter_V, 7800);
}

TEST_F(Apertura, ASecondCatalogueReplacesTheFirstAndAnotherFileIsIgnored) {
    Apri(Macchina());
    Clic_Nodo("P_1");
    for (const char* percorso : {"/somewhere/guide.pdf", "/none", ""})
        schermo.Apertura.Apri_Catalogo(percorso);
    EXPECT_TRUE(progetto.Progetto_Aperto);
    EXPECT_EQ(Corrente(), "P_1");
    Apri(Catalogo_Di_Prova().Nodo("G_9", "R", "Altro"), "altro.TZF");
    EXPECT_THAT(Messaggi(), IsEmpty());
    EXPECT_THAT(sistema.Contenuto_Temporaneo(), ElementsAre("TZV_00"));
    EXPECT_EQ(progetto.Tree1.Count(), 1);
    EXPECT_EQ(Corrente(), "");
    EXPECT_EQ(Zona(), 1);
}

TEST_F(Apertura, AFailureEndsOnTheEmptyHomePage) {
    Apri(Macchina());
    Bottone("KEY_DISEGNO").Pressed = true;
    Clic_Nodo("P_1");
    ASSERT_EQ(Zona(), 2);
    schermo.Apertura.Apri_Catalogo(cartella.filePath("missing.TZF"));
    EXPECT_THAT(Messaggi(), ElementsAre("Error open file The file was not found."));
    EXPECT_FALSE(progetto.Progetto_Aperto);
    EXPECT_EQ(Zona(), 1);
    EXPECT_FALSE(Bottone("KEY_DISEGNO").Enabled);
    EXPECT_TRUE(Bottone("KEY_OPEN").Enabled);
    EXPECT_FALSE(Stato().Attesa || !Stato().Abilitata);
    EXPECT_EQ(impostazioni.Valore("SalvataggioTZF", "2"), QString());
    Apri(Macchina(), "again.TZF");
    EXPECT_TRUE(progetto.Progetto_Aperto);
}

TEST_F(Apertura, TheDrawingsButtonIsAliveWhateverPageTheCatalogueStartsOn) {
    for (const char* pagina : {"", "SI"}) {
        schermo.Apertura.Apri_Catalogo(cartella.filePath("missing.TZF"));
        ASSERT_FALSE(Bottone("KEY_DISEGNO").Enabled);
        Bottone("KEY_DISEGNO").Pressed = true;
        Apri(Macchina()
                 .Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", "P_1")
                 .Sistema("IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE", pagina));
        EXPECT_EQ(Zona(), *pagina ? 2 : 1);
        EXPECT_TRUE(Bottone("KEY_DISEGNO").Enabled) << pagina;
    }
}

TEST_F(Apertura, AnEmptyTreeReplacesTheFormerOne) {
    Apri(Macchina());
    Apri(Catalogo_Di_Prova().Tabella("Albero_Web",
                                     {"Key_Prodotto", "Key_Padre", "Testo_Visualizzato_1", "Percorso",
                                      "Profondita_Nodo", "Ordine", "Key_Mercato", "Key_Gruppo"},
                                     {}),
         "empty.TZF");
    EXPECT_THAT(Messaggi(), IsEmpty());
    EXPECT_TRUE(progetto.Progetto_Aperto);
    EXPECT_EQ(progetto.Tree1.Count(), 0);
    EXPECT_NO_THROW(Clic_Nodo("P_1"));
}

TEST_F(Apertura, ASerialNumberWithoutItsTableChangesNothing) {
    Apri(Macchina().Rimuovi_Tabella("Matricola_Nodo"));
    Clic_Nodo("P_1");
    Filtra("77");
    ASSERT_EQ(Messaggi().filter("Matricola_Nodo").size(), 1);
    EXPECT_EQ(Corrente() + progetto.Tree1.SelectedItem()->Key, "P_1P_1");
    EXPECT_EQ(progetto.Tree1.Count(), 4);
}

TEST_F(Apertura, ATreeThatCantBeShownIsAFailure) {
    progetto.Lingua = "2";
    Apri(Catalogo_Di_Prova().Nodo("G_1", "R", std::nullopt));
    EXPECT_EQ(Messaggi().filter("/critical").size(), 1);
    EXPECT_FALSE(progetto.Progetto_Aperto);
    EXPECT_EQ(progetto.Lingua + progetto.Mercato + progetto.Gruppo, "2");
    EXPECT_EQ(Zona(), 1);
    EXPECT_FALSE(Stato().Etichette_Catalogo);
    EXPECT_THAT(sistema.Contenuto_Temporaneo(), IsEmpty());
}

TEST_F(Apertura, NothingGetsInBetween) {
    const QString altro = Catalogo_Di_Prova().Pacchetto(cartella.path(), "altro.TZF");
    bool visto = false;
    vista.Alla_Mostra = [&](const Stato_Finestra& stato) {
        if (!stato.Attesa)
            return;
        // What the user might do while the window is locked.
        visto = true;
        EXPECT_TRUE(schermo.Occupato());
        schermo.Apertura.Apri_Catalogo(altro);
        schermo.Comandi.Clic_Link("KEY_DISEGNO");
        Clic_Nodo("P_1");
        schermo.Albero.Nodo_Aperto("G_1", true);
        Filtra("77");
        EXPECT_FALSE(schermo.Apertura.Chiudi());
    };
    const QString percorso = Apri(Macchina());
    EXPECT_TRUE(visto);
    EXPECT_FALSE(schermo.Occupato());
    EXPECT_EQ(progetto.File_Pacchetto, percorso);
    EXPECT_EQ(Corrente(), "");
    EXPECT_FALSE(progetto.Tree1.Nodo("G_1")->Expanded);
    EXPECT_EQ(Zona(), 1);
}

TEST_F(Apertura, WithoutACommandLineTheHomePageIsEmpty) {
    schermo.Apertura.Avvia({});
    EXPECT_EQ(Zona(), 1);
    EXPECT_FALSE(Bottone("KEY_DISEGNO").Enabled);
    EXPECT_EQ(vista.Testi, 1);
    schermo.Apertura.Prima_Attivazione();
    progetto.Stampa_In_Corso = true;
    EXPECT_FALSE(schermo.Apertura.Chiudi());  // a print run keeps the window
}

TEST_F(Apertura, TheCommandLinesCatalogueIsOpened) {
    const QString pacchetto = Catalogo_Di_Prova().Pacchetto(cartella.path());
    schermo.Apertura.Avvia(pacchetto + "|/doc.pdf");
    EXPECT_EQ(progetto.File_Pacchetto, pacchetto);
    for (const int attesa : {6600, 3000}) {  // only the first one counts
        Stato().Posizione_Splitter_V = 3000;
        schermo.Apertura.Prima_Attivazione();
        EXPECT_EQ(Stato().Posizione_Splitter_V, attesa);
    }
    EXPECT_TRUE(schermo.Apertura.Chiudi());
    EXPECT_THAT(sistema.Contenuto_Temporaneo() + sistema.Aperti, IsEmpty())
        << "the command line is forgotten";
}

TEST_F(Apertura, ADocumentIsOpenedWhenTheWindowNeverWasActive) {
    schermo.Apertura.Avvia(cartella.filePath("none.TZF") + "|/doc.pdf");
    EXPECT_TRUE(schermo.Apertura.Chiudi());
    EXPECT_THAT(sistema.Aperti, ElementsAre("/doc.pdf"));
}

}  // namespace

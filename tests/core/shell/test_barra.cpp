#include "vista_finta.h"

namespace {

/// Brings up a zone by its frames.
void Vai_In_Zona(Programma_Di_Prova& p, int zona) {
    Stato_Finestra& stato = p.Stato();
    stato.Frame_Intro = zona == 1 || zona == 4;
    stato.Frame_Immagine_Intro = zona == 1;
    stato.Frame_Main = !stato.Frame_Intro;
    stato.Frame_Prodotto = zona == 2;
    stato.Frame_scheda_Prodotto = zona == 5;
    stato.Frame_Evadi_ordine = zona == 3;
    stato.Frame_Preferiti = zona == 4;
    ASSERT_EQ(p.Zona(), zona);
    p.schermo.Aggiorna_Toolbar();
}

TEST(Barra, EachZoneSetsItsButtons) {
    // One letter for each zone from 1 to 5: enabled, disabled, or "." for as it was.
    const std::pair<const char*, QStringList> righe[] = {
        {"eeede", {"KEY_LUCCHETTO", "KEY_LINGUA", "KEY_CERCA"}},
        {"dedde", {"KEY_DETTAGLI_RICAMBIO"}},
        {"deede", {"KEY_CARELLO_PARZIALE"}},
        {"eeeee", {"KEY_EVADI_ORDINE"}},
        {"ddddd", {"KEY_STAMPA"}},  // no layouts
        {"ddedd", {"KEY_EMAIL"}},
        {"deddd", {"KEY_ZOOM_ALL", "KEY_ZOOM_WIN", "KEY_ZOOM_PIU", "KEY_ZOOM_MENO"}},
        {"e.e..", {"KEY_DISEGNO"}},
        {".....", {"KEY_HOME", "KEY_OPEN", "KEY_PREFERITI", "KEY_HELP", "KEY_CONTATTI"}},
    };
    Programma_Di_Prova p;
    p.Apri(Catalogo_Di_Prova()
               .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", "Autentificazione_singola")
               .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO"));
    for (const bool prima : {true, false})
        for (int zona = 1; zona <= 5; ++zona) {
            for (auto& [chiave, bottone] : p.Stato().Bottoni)
                bottone.Enabled = prima;
            Vai_In_Zona(p, zona);
            qsizetype bottoni = 0;
            for (const auto& [zone, chiavi] : righe) {
                bottoni += chiavi.size();
                for (const QString& chiave : chiavi)
                    EXPECT_EQ(p.Stato().Bottoni.at(chiave).Enabled,
                              zone[zona - 1] == '.' ? prima : zone[zona - 1] == 'e')
                        << chiave.toStdString() << " zone " << zona;
            }
            EXPECT_EQ(bottoni, qsizetype{18});
        }
}

TEST(Barra, WithoutACatalogueOnlyTheRestAnswers) {
    Programma_Di_Prova p;
    p.schermo.Aggiorna_Toolbar();
    QStringList abilitati;
    for (const auto& [chiave, bottone] : p.Stato().Bottoni)
        if (bottone.Enabled)
            abilitati << chiave;
    EXPECT_THAT(abilitati, testing::UnorderedElementsAre("KEY_HOME", "KEY_OPEN", "KEY_PREFERITI", "KEY_HELP",
                                                         "KEY_CONTATTI"));
    EXPECT_FALSE(p.Stato().Etichette_Catalogo || p.Stato().Label_Utente || p.Stato().Label_Lingua_Mercato);
}

TEST(Barra, LogInAndLanguageAreOfferedWhereTheyMakeSense) {
    const std::tuple<const char*, const char*, const char*, bool, bool> casi[] = {
        {"Libera", "0", "LINGUA_NESSUNA", false, false},
        {"Libera", "1", "LINGUA", true, true},
        {"Autentificazione_singola", "0", "", true, false}};
    for (const auto& [accesso, anagrafico, scelta, lucchetto, lingua] : casi) {
        Programma_Di_Prova p;
        p.Apri(Catalogo_Di_Prova()
                   .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", accesso)
                   .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", anagrafico)
                   .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", scelta));
        EXPECT_EQ(p.Bottone("KEY_LUCCHETTO").Enabled, lucchetto) << accesso << anagrafico;
        EXPECT_EQ(p.Stato().Label_Utente, lucchetto) << accesso << anagrafico;
        EXPECT_EQ(p.Bottone("KEY_LINGUA").Enabled, lingua) << scelta;
        EXPECT_EQ(p.Stato().Label_Lingua_Mercato, lingua) << scelta;
    }
}

TEST(Barra, PrintingNeedsALayoutThatIsThere) {
    const std::tuple<const char*, const char*, const char*, bool, bool> casi[] = {
        {"1_1_PAGE_1", "1", "1_1_PAGE_2.mdp", true, false},
        {"1_1_ORDER_2", "1", "1_1_ORDER_1.mdp", false, true},
        {"1_1_PAGE_1", "1", "other.mdp", false, false},
        {"1_1_PAGE_1", "SI", "1_1_PAGE_1.mdp", false, false},
        {"2_1_PAGE_1", "1", "2_1_PAGE_1.mdp", false, false}};
    for (const auto& [chiave, valore, file, pagine, ordine] : casi) {
        Programma_Di_Prova p;
        p.Apri(
            Catalogo_Di_Prova().Sistema(QString("PRINT_EXTENSION_") + chiave, valore).File(file, "layout"));
        for (const auto& [zona, attesa] : {std::pair(2, pagine), std::pair(3, ordine)}) {
            Vai_In_Zona(p, zona);
            EXPECT_EQ(p.Bottone("KEY_STAMPA").Enabled, attesa) << chiave << valore << file;
        }
    }
}

TEST(Barra, TheUpdatesLinkNeedsAnAddress) {
    Programma_Di_Prova p;
    for (const QString indirizzo : {"", "https://host"}) {
        p.impostazioni.Imposta("INSTALLAZIONE", "AGGIORNAMENTI", indirizzo);
        p.schermo.Aggiorna_Toolbar();
        EXPECT_EQ(p.Stato().Label_Aggiornamenti, !indirizzo.isEmpty());
        p.schermo.Home.Visualizza_Aggiornamenti();
        EXPECT_EQ(p.sistema.Aperti.filter("https://host/site/page.wnode?").size(), !indirizzo.isEmpty());
    }
}

}  // namespace

#include <gmock/gmock.h>

#include "vista_finta.h"

namespace {

/// Brings up a zone by its frames.
void Vai_In_Zona(Stato_Finestra& stato, int zona) {
    stato.Frame_Intro = zona == 1 || zona == 4;
    stato.Frame_Immagine_Intro = zona == 1;
    stato.Frame_Main = !stato.Frame_Intro;
    stato.Frame_Prodotto = zona == 2;
    stato.Frame_scheda_Prodotto = zona == 5;
    stato.Frame_Evadi_ordine = zona == 3;
    stato.Frame_Preferiti = zona == 4;
}

constexpr const char* CON_TUTTO[] = {"IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", "Autentificazione_singola",
                                     "UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA_MERCATO"};

Catalogo_Di_Prova Con_Accesso_E_Lingue() {
    Catalogo_Di_Prova catalogo;
    return catalogo.Sistema(CON_TUTTO[0], CON_TUTTO[1]).Sistema(CON_TUTTO[2], CON_TUTTO[3]);
}

struct Riga_Attesa {
    const char* chiave;
    const char* zone;  ///< one letter for each zone from 1 to 5: e, d, or "." for as it was
};

TEST(Barra, EachZoneSetsItsButtons) {
    Programma_Di_Prova p;
    p.Apri(Con_Accesso_E_Lingue());
    const Riga_Attesa righe[] = {{"KEY_LUCCHETTO", "eeede"},
                                 {"KEY_LINGUA", "eeede"},
                                 {"KEY_DETTAGLI_RICAMBIO", "dedde"},
                                 {"KEY_CARELLO_PARZIALE", "deede"},
                                 {"KEY_EVADI_ORDINE", "eeeee"},
                                 {"KEY_CERCA", "eeede"},
                                 {"KEY_STAMPA", "ddddd"},  // no layouts
                                 {"KEY_EMAIL", "ddedd"},
                                 {"KEY_ZOOM_ALL", "deddd"},
                                 {"KEY_ZOOM_WIN", "deddd"},
                                 {"KEY_ZOOM_PIU", "deddd"},
                                 {"KEY_ZOOM_MENO", "deddd"},
                                 {"KEY_DISEGNO", "e.e.."},
                                 {"KEY_HOME", "....."},
                                 {"KEY_OPEN", "....."},
                                 {"KEY_PREFERITI", "....."},
                                 {"KEY_HELP", "....."},
                                 {"KEY_CONTATTI", "....."}};
    ASSERT_EQ(std::size(righe), size_t(Chiavi_Toolbar().size()));
    for (const bool prima : {true, false}) {
        for (int zona = 1; zona <= 5; ++zona) {
            Vai_In_Zona(p.Stato(), zona);
            ASSERT_EQ(p.controllo.Restitusci_Zona_catalogo(), zona);
            for (auto& [chiave, bottone] : p.Stato().Bottoni)
                bottone.Enabled = prima;
            p.controllo.Aggiorna_Toolbar();
            for (const auto& [chiave, zone] : righe) {
                const char attesa = zone[zona - 1];
                EXPECT_EQ(p.Abilitato(chiave), attesa == '.' ? prima : attesa == 'e')
                    << chiave << " zone " << zona;
            }
        }
    }
}

TEST(Barra, WithoutACatalogueOnlyTheRestAnswers) {
    Programma_Di_Prova p;
    p.controllo.Aggiorna_Toolbar();
    int abilitati = 0;
    for (const auto& [chiave, bottone] : p.Stato().Bottoni)
        abilitati += bottone.Enabled;
    EXPECT_EQ(abilitati, 5);
    for (const char* chiave : {"KEY_HOME", "KEY_OPEN", "KEY_PREFERITI", "KEY_HELP", "KEY_CONTATTI"})
        EXPECT_TRUE(p.Abilitato(chiave)) << chiave;
    EXPECT_FALSE(p.Stato().Etichette_Catalogo);
    EXPECT_FALSE(p.Stato().Label_Utente);
    EXPECT_FALSE(p.Stato().Label_Lingua_Mercato);
}

TEST(Barra, LogInAndLanguageAreOfferedWhereTheyMakeSense) {
    struct Caso {
        const char *accesso, *anagrafico, *scelta;
        bool lucchetto, lingua;
    };
    for (const Caso& c : {Caso{"", "", "", false, false},
                          {"Libera", "0", "LINGUA_NESSUNA", false, false},
                          {"Libera", "1", "LINGUA", true, true},
                          {"", "1", "MERCATO", true, true},
                          {"Autentificazione_utente", "", "LINGUA_MERCATO", true, true},
                          {"Autentificazione_singola", "0", "", true, false}}) {
        Programma_Di_Prova p;
        Catalogo_Di_Prova catalogo;
        catalogo.Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", c.accesso)
            .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", c.anagrafico)
            .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", c.scelta);
        p.Apri(catalogo);
        EXPECT_TRUE(p.Stato().Etichette_Catalogo);
        EXPECT_EQ(p.Abilitato("KEY_LUCCHETTO"), c.lucchetto) << c.accesso << c.anagrafico;
        EXPECT_EQ(p.Stato().Label_Utente, c.lucchetto);
        EXPECT_EQ(p.Abilitato("KEY_LINGUA"), c.lingua) << c.scelta;
        EXPECT_EQ(p.Stato().Label_Lingua_Mercato, c.lingua);
    }
}

TEST(Barra, PrintingNeedsALayoutThatIsThere) {
    struct Caso {
        const char *chiave, *valore, *file;
        bool pagine, ordine;
    };
    for (const Caso& c : {Caso{"PRINT_EXTENSION_1_1_PAGE_1", "1", "1_1_PAGE_1.mdp", true, false},
                          {"PRINT_EXTENSION_1_1_PAGE_1", "1", "1_1_PAGE_2.mdp", true, false},
                          {"PRINT_EXTENSION_1_1_PAGE_2", "1", "1_1_PAGE_2.mdp", true, false},
                          {"PRINT_EXTENSION_1_1_ORDER_2", "1", "1_1_ORDER_1.mdp", false, true},
                          {"PRINT_EXTENSION_1_1_PAGE_1", "1", "other.mdp", false, false},
                          {"PRINT_EXTENSION_1_1_PAGE_1", "SI", "1_1_PAGE_1.mdp", false, false},
                          {"PRINT_EXTENSION_2_1_PAGE_1", "1", "2_1_PAGE_1.mdp", false, false}}) {
        Programma_Di_Prova p;
        Catalogo_Di_Prova catalogo;
        p.Apri(catalogo.Sistema(c.chiave, c.valore).File(c.file, "layout"));
        Vai_In_Zona(p.Stato(), 2);
        p.controllo.Aggiorna_Toolbar();
        EXPECT_EQ(p.Abilitato("KEY_STAMPA"), c.pagine) << c.chiave << c.valore << c.file;
        Vai_In_Zona(p.Stato(), 3);
        p.controllo.Aggiorna_Toolbar();
        EXPECT_EQ(p.Abilitato("KEY_STAMPA"), c.ordine) << c.chiave << c.valore << c.file;
    }
}

TEST(Barra, TheUpdatesLinkNeedsAnAddress) {
    Programma_Di_Prova p;
    p.controllo.Aggiorna_Toolbar();
    EXPECT_FALSE(p.Stato().Label_Aggiornamenti);
    p.controllo.Visualizza_Aggiornamenti();
    EXPECT_TRUE(p.sistema.Aperti.isEmpty());
    p.impostazioni.Imposta("INSTALLAZIONE", "AGGIORNAMENTI", "https://host");
    p.controllo.Aggiorna_Toolbar();
    EXPECT_TRUE(p.Stato().Label_Aggiornamenti);
    p.controllo.Visualizza_Aggiornamenti();
    ASSERT_EQ(p.sistema.Aperti.size(), 1);
    EXPECT_TRUE(p.sistema.Aperti[0].startsWith("https://host/site/page.wnode?"));
    EXPECT_TRUE(p.sistema.Aperti[0].endsWith("&LN=2"));
}

}  // namespace

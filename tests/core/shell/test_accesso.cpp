// The log-in gate of the main screen, and what follows a log-in.

#include <gmock/gmock.h>

#include "vista_finta.h"

namespace {

class Accesso : public testing::Test {
  protected:
    /// The machine with user mario (password "m", group 2) and a branch for that group.
    static Catalogo_Di_Prova Macchina(const char* modo, const char* scelta = "LINGUA_NESSUNA") {
        Catalogo_Di_Prova c = Programma_Di_Prova::Macchina();
        c.Nodo("G_9", "R", "Officina", {{"Key_Gruppo", "/2/"}})
            .Riga("Anagrafico", {{"Login", "mario"}, {"Password", "m"}, {"Key_Gruppo", "/2/"}})
            .Riga("Gruppi_Utenti", {{"Key_Gruppo", "1"}})
            .Riga("Gruppi_Utenti", {{"Key_Gruppo", "2"}})
            .Riga("Traduzioni_Viewer_System",
                  {{"Form", "DESCRIZIONE"}, {"Name_Object", "MSG_02"}, {"Traduzione_1", "Sbagliato"}})
            .Sistema("GRUPPO_START", "/1/")
            .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo)
            .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "1")
            .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", scelta);
        return c;
    }
    void Accede_Nel_Dialogo(const char* account, const char* password) {
        p.vista.Alla_Autentificazione = [this, account, password] {
            p.controllo.Accesso().Accedi(account, password);
        };
    }
    int Zona() { return p.controllo.Restitusci_Zona_catalogo(); }
    bool Officina_In_Vista() { return p.progetto.Tree1.Esiste_Nodo_Albero("G_9"); }
    Programma_Di_Prova p;
};

TEST_F(Accesso, WhoIsAskedToLogIn) {
    enum Nel_Dialogo { CHIUDE, ACCEDE, SBAGLIA };
    struct Caso {
        const char *modo, *utente;
        bool forza;
        Nel_Dialogo dialogo;
        bool chiesto, passa;
    };
    for (const Caso& c : {
             // Anybody reads; the dialog comes only when it is asked for.
             Caso{"", "", false, CHIUDE, false, true},
             {"Libera", "", false, CHIUDE, false, true},
             {"Libera", "altri", false, CHIUDE, false, true},
             {"Libera", "", true, CHIUDE, true, true},
             {"Libera", "", true, ACCEDE, true, true},
             {"Libera", "altri", true, SBAGLIA, true, true},
             // A log-in is needed, once.
             {"Autentificazione_utente", "", false, CHIUDE, true, false},
             {"Autentificazione_utente", "", false, SBAGLIA, true, false},
             {"Autentificazione_utente", "", false, ACCEDE, true, true},
             {"Autentificazione_utente", "altri", false, CHIUDE, false, true},
             {"Autentificazione_utente", "altri", true, CHIUDE, true, true},
             {"Autentificazione_utente", "altri", true, ACCEDE, true, true},
             {"Autentificazione_utente", "altri", true, SBAGLIA, true, false},
             {"Autentificazione_singola", "", false, CHIUDE, true, false},
             {"Autentificazione_singola", "", false, ACCEDE, true, true},
             {"Autentificazione_singola", "altri", false, CHIUDE, false, true},
             // No log-in is answered.
             {"Chiusa", "", false, ACCEDE, true, false},
             {"Chiusa", "altri", true, ACCEDE, true, true},
         }) {
        Programma_Di_Prova q;
        q.Apri(Macchina(c.modo));
        q.progetto.Utente = c.utente;
        q.vista.Autentificazioni = 0;
        q.vista.Alla_Autentificazione = [&] {
            EXPECT_FALSE(q.progetto.Ricarica_Necessaria);  // cleared before the dialog
            if (c.dialogo != CHIUDE)
                q.controllo.Accesso().Accedi("mario", c.dialogo == ACCEDE ? "m" : "x");
        };
        q.progetto.Ricarica_Necessaria = true;
        EXPECT_EQ(q.controllo.Verifica_Accesso(c.forza), c.passa) << c.modo << c.utente << c.dialogo;
        EXPECT_EQ(q.vista.Autentificazioni, c.chiesto) << c.modo << c.utente << c.dialogo;
        EXPECT_EQ(q.vista.Scelte_Lingua, 0);  // the catalogue lets nobody choose
    }
}

TEST_F(Accesso, ANewUserChoosesLanguageAndMarket) {
    struct Caso {
        const char *scelta, *account, *password;
        bool chiesto;
    };
    for (const Caso& c : {Caso{"LINGUA", "mario", "m", true},
                          {"MERCATO", "mario", "m", true},
                          {"LINGUA_MERCATO", "mario", "m", true},
                          {"LINGUA_MERCATO", "mario", "wrong", true},  // from altri to nobody
                          {"LINGUA_NESSUNA", "mario", "m", false},
                          {"", "mario", "m", false},
                          {"lingua", "mario", "m", false}}) {
        Programma_Di_Prova q;
        q.Apri(Macchina("Libera", c.scelta));
        q.progetto.Utente = "altri";
        q.vista.Alla_Autentificazione = [&] { q.controllo.Accesso().Accedi(c.account, c.password); };
        EXPECT_TRUE(q.controllo.Verifica_Accesso(true));
        EXPECT_EQ(q.vista.Scelte_Lingua, c.chiesto) << c.scelta << c.password;
        // The same user again changes nothing.
        q.vista.Scelte_Lingua = 0;
        q.controllo.Verifica_Accesso(true);
        EXPECT_EQ(q.vista.Scelte_Lingua, 0) << c.scelta;
    }
}

TEST_F(Accesso, TheLogInThatIsRefusedIsTold) {
    p.Apri(Macchina("Libera"));
    p.progetto.Utente = "mario";
    EXPECT_FALSE(p.controllo.Accesso().Accedi("mario", "secret"));
    ASSERT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(p.messaggi.Mostrati[0].testo, "Sbagliato");
    EXPECT_EQ(p.messaggi.Mostrati[0].icona, Icona::Esclamazione);
    EXPECT_EQ(p.progetto.Utente, "");
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
    EXPECT_TRUE(p.controllo.Accesso().Accedi("mario", "m"));
    EXPECT_EQ(p.messaggi.Mostrati.size(), 1u);
    EXPECT_TRUE(p.progetto.Ricarica_Necessaria);
}

TEST_F(Accesso, AnUnknownModeAnswersNothing) {
    p.Apri(Macchina("Chiusa"));
    p.progetto.Utente = "altri";
    EXPECT_FALSE(p.controllo.Accesso().Accedi("mario", "m"));
    EXPECT_EQ(p.progetto.Utente, "altri");
    EXPECT_TRUE(p.messaggi.Mostrati.empty());
}

TEST_F(Accesso, OpeningAsksOnceAndShowsWhatTheUserMaySee) {
    Accede_Nel_Dialogo("mario", "m");
    p.Apri(Macchina("Autentificazione_utente"));
    EXPECT_EQ(p.vista.Autentificazioni, 1);
    EXPECT_EQ(p.progetto.Gruppo, "/2/");
    EXPECT_TRUE(Officina_In_Vista());
    EXPECT_FALSE(p.progetto.Ricarica_Necessaria);
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_EQ(p.vista.Autentificazioni, 1);
}

TEST_F(Accesso, WithoutALogInTheCatalogueIsOpenAndCantBeRead) {
    p.Apri(Macchina("Autentificazione_utente"));
    EXPECT_TRUE(p.progetto.Progetto_Aperto);
    EXPECT_EQ(Zona(), 1);
    EXPECT_FALSE(Officina_In_Vista());
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(p.vista.Autentificazioni, 2);  // asked again
    EXPECT_EQ(Zona(), 1);
    Accede_Nel_Dialogo("mario", "m");
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Officina_In_Vista());  // reloaded on the way
}

TEST_F(Accesso, ThePadlockLogsInAnotherUserAndReloads) {
    p.Apri(Macchina("Libera"));
    p.vista.Matricola = "123456";
    p.controllo.Clic_Nodo("P_1");
    EXPECT_FALSE(Officina_In_Vista());
    Accede_Nel_Dialogo("mario", "m");
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_EQ(p.vista.Autentificazioni, 1);
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Officina_In_Vista());
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "");  // as after opening
    EXPECT_TRUE(p.Stato().Label_Help_Albero);

    // Closed without a log-in, everything stays as it is.
    p.vista.Alla_Autentificazione = {};
    p.controllo.Clic_Nodo("P_1");
    const int ricostruzioni = p.vista.Ricostruzioni;
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_EQ(p.progetto.Utente, "mario");
    EXPECT_EQ(p.progetto.Key_Prodotto_Corrente, "P_1");
    EXPECT_EQ(p.vista.Ricostruzioni, ricostruzioni);
}

TEST_F(Accesso, ALostLogInGoesHome) {
    Accede_Nel_Dialogo("mario", "m");
    p.Apri(Macchina("Autentificazione_utente"));
    p.controllo.Clic_Bottone("KEY_DISEGNO");
    Accede_Nel_Dialogo("mario", "wrong");
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(p.progetto.Utente, "");
    EXPECT_EQ(p.progetto.Gruppo, "/2/");  // only the user is forgotten
}

TEST_F(Accesso, TheLogInEndsWithTheCatalogue) {
    Accede_Nel_Dialogo("mario", "m");
    p.Apri(Macchina("Autentificazione_utente"));
    p.vista.Alla_Autentificazione = {};
    p.Apri(Macchina("Autentificazione_utente"), "altro.TZF");
    EXPECT_EQ(p.progetto.Utente, "");
    EXPECT_EQ(p.progetto.Gruppo, "/1/");
    EXPECT_FALSE(Officina_In_Vista());
}

TEST_F(Accesso, SerialMarksAreForgottenAndTheFieldKeepsItsText) {
    p.Apri(Macchina("Libera").Riga("Matricola_Nodo", {{"Key_Prodotto", "P_2"}, {"Matricola", "77"}}));
    p.vista.Matricola = "77";
    p.controllo.Applica_Filtro_Matricola();
    ASSERT_TRUE(p.progetto.Tree1.Nodo("P_2")->Bold);
    Accede_Nel_Dialogo("mario", "m");
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_FALSE(p.progetto.Tree1.Nodo("P_2")->Bold);
    EXPECT_EQ(p.vista.Matricola, "77");
}

TEST_F(Accesso, WithoutACatalogueThePadlockDoesNothing) {
    p.controllo.Esegui_Comando("KEY_LUCCHETTO");
    p.controllo.Clic_Bottone("KEY_LUCCHETTO");
    EXPECT_EQ(p.vista.Autentificazioni, 0);
}

}  // namespace

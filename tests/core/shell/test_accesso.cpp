// The log-in gate of the main screen, and what follows a log-in.

#include "vista_finta.h"

namespace {

constexpr char LIBERA[] = "Libera", UTENTE[] = "Autentificazione_utente";

/// The machine with user mario (password "m", group 2) and a branch for that group.
Catalogo_Di_Prova Con_Mario(const char* modo, const char* scelta = "LINGUA_NESSUNA") {
    Catalogo_Di_Prova c = Programma_Di_Prova::Macchina();
    c.Nodo("G_9", "R", "Officina", {{"Key_Gruppo", "/2/"}})
        .Riga("Anagrafico", {{"Login", "mario"}, {"Password", "m"}, {"Key_Gruppo", "/2/"}})
        .Riga("Matricola_Nodo", {{"Key_Prodotto", "P_2"}, {"Matricola", "77"}})
        .Sistema("GRUPPO_START", "/1/")
        .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo)
        .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "1")
        .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", scelta);
    return c;
}

class Accesso : public Con_Programma {
  protected:
    void Accede_Nel_Dialogo(const char* password) {
        vista.Alla_Autentificazione = [this, password] { schermo.Accesso.Accedi("mario", password); };
    }
    bool Officina_In_Vista() { return progetto.Tree1.Esiste_Nodo_Albero("G_9"); }
};

TEST_F(Accesso, WhoIsAskedToLogInAndToChooseALanguage) {
    enum Nel_Dialogo { CHIUDE, ACCEDE, SBAGLIA };
    struct Caso {
        const char *modo, *utente;
        bool forza;
        Nel_Dialogo dialogo;
        bool chiesto, lingua, passa;
    };
    for (const Caso& c : {
             // Anybody reads; the dialog comes only when it is asked for.
             Caso{LIBERA, "", false, CHIUDE, false, false, true},
             {LIBERA, "", true, CHIUDE, true, false, true},
             {LIBERA, "altri", true, ACCEDE, true, true, true},
             {LIBERA, "altri", true, SBAGLIA, true, true, true},  // from altri to nobody
             {LIBERA, "mario", true, ACCEDE, true, false, true},  // the same user again
             // A log-in is needed, once.
             {UTENTE, "", false, CHIUDE, true, false, false},
             {UTENTE, "", false, SBAGLIA, true, false, false},
             {UTENTE, "", false, ACCEDE, true, true, true},
             {UTENTE, "altri", false, CHIUDE, false, false, true},
             {UTENTE, "altri", true, SBAGLIA, true, false, false},
             // No log-in is answered.
             {"Chiusa", "", false, ACCEDE, true, false, false},
             {"Chiusa", "altri", true, ACCEDE, true, false, true},
         }) {
        SCOPED_TRACE(testing::Message() << c.modo << c.utente << c.forza << c.dialogo);
        Programma_Di_Prova p;
        p.Apri(Con_Mario(c.modo, "LINGUA"));
        p.progetto.Utente = c.utente;
        p.vista.Autentificazioni = 0;
        p.vista.Alla_Autentificazione = [&] {
            EXPECT_FALSE(p.progetto.Ricarica_Necessaria);  // cleared before the dialog
            if (c.dialogo != CHIUDE)
                p.schermo.Accesso.Accedi("mario", c.dialogo == ACCEDE ? "m" : "x");
        };
        p.progetto.Ricarica_Necessaria = true;
        EXPECT_EQ(p.schermo.Verifica_Accesso(c.forza), c.passa);
        EXPECT_EQ(p.vista.Autentificazioni, c.chiesto);
        EXPECT_EQ(p.vista.Scelte_Lingua, c.lingua);
    }
}

TEST_F(Accesso, WithoutALogInTheCatalogueIsOpenAndCantBeRead) {
    Apri(Con_Mario(UTENTE));
    EXPECT_TRUE(progetto.Progetto_Aperto);
    EXPECT_FALSE(Officina_In_Vista());
    Premi("KEY_DISEGNO");
    EXPECT_EQ(vista.Autentificazioni, 2);  // asked again
    schermo.Visualizza_Disegno_Esploso("P_1");
    EXPECT_EQ(Zona(), 1);
    Accede_Nel_Dialogo("m");
    Premi("KEY_DISEGNO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Officina_In_Vista());  // reloaded on the way
}

TEST_F(Accesso, ARefusalIsRememberedUntilTheCommandEnds) {
    for (const char* nodo : {"R", "P_1"}) {
        vista.Autentificazioni = 0;
        Bottone("KEY_DISEGNO").Pressed = true;
        vista.Alla_Autentificazione = [this] {
            EXPECT_FALSE(Stato().Frame_Main) << "nothing to be read behind the dialog";
        };
        Apri(Con_Mario(UTENTE)
                 .Sistema("IMPOSTAZIONE_NODO_HOMEPAGE", nodo)
                 .Sistema("IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE", "SI"));
        EXPECT_EQ(vista.Autentificazioni, 1) << nodo;
        for (const char* chiave : {"KEY_DISEGNO", "KEY_EVADI_ORDINE", "KEY_HOME"}) {
            vista.Autentificazioni = 0;
            Premi(chiave);
            EXPECT_EQ(vista.Autentificazioni, 1) << chiave;
            EXPECT_EQ(Zona(), 1) << chiave;
            EXPECT_EQ(vista.Scheda.Nome + Corrente(), "") << chiave;
        }
    }
}

TEST_F(Accesso, WindowsGoWithTheLogIn) {
    Accede_Nel_Dialogo("m");
    Apri(Con_Mario(UTENTE));
    Premi("KEY_DISEGNO");
    Clic_Nodo("P_1");
    schermo.Visualizza_Disegno_Esploso("P_1");
    Premi("KEY_CARELLO_PARZIALE");
    ASSERT_TRUE(progetto.Finestra_Carrello_Aperta);
    Accede_Nel_Dialogo("wrong");
    Premi("KEY_LUCCHETTO");
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta || Bottone("KEY_CARELLO_PARZIALE").Pressed);
}

TEST_F(Accesso, ThePadlockLogsInAnotherUserAndReloads) {
    Apri(Con_Mario(LIBERA));
    Filtra("77");
    ASSERT_TRUE(progetto.Tree1.Nodo("P_2")->Bold);
    Clic_Nodo("P_1");
    Accede_Nel_Dialogo("m");
    Premi("KEY_LUCCHETTO");
    EXPECT_EQ(Zona(), 5);
    EXPECT_TRUE(Officina_In_Vista());
    EXPECT_EQ(Corrente(), "");                       // as after opening
    EXPECT_FALSE(progetto.Tree1.Nodo("P_2")->Bold);  // serial marks are forgotten, the field keeps its text

    vista.Alla_Autentificazione = [] {};  // closed without a log-in, everything stays as it is
    Clic_Nodo("P_1");
    Premi("KEY_LUCCHETTO");
    EXPECT_EQ(progetto.Utente + Corrente(), "marioP_1");
}

TEST_F(Accesso, ALostLogInGoesHomeAndItEndsWithTheCatalogue) {
    Accede_Nel_Dialogo("m");
    Apri(Con_Mario(UTENTE));
    EXPECT_TRUE(Officina_In_Vista());
    Premi("KEY_DISEGNO");
    EXPECT_EQ(vista.Autentificazioni, 1);
    Accede_Nel_Dialogo("wrong");
    Premi("KEY_LUCCHETTO");
    EXPECT_EQ(Messaggi(), QStringList{"MSG_02"});
    EXPECT_EQ(Zona(), 1);
    EXPECT_EQ(progetto.Utente + progetto.Gruppo, "/2/");  // only the user is forgotten
    vista.Alla_Autentificazione = [] {};
    Apri(Con_Mario(UTENTE), "altro.TZF");
    EXPECT_EQ(progetto.Utente + progetto.Gruppo, "/1/");
    EXPECT_FALSE(Officina_In_Vista());
}

}  // namespace

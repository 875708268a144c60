// The log-in: every mode and kind of account.

#include <gmock/gmock.h>

#include "core/users/accesso.h"
#include "support/catalogo_aperto.h"

namespace {

constexpr Esito_Accesso SI = Esito_Accesso::Riuscito, NO = Esito_Accesso::Fallito;

Catalogo_Di_Prova Con_Account(const char* modo, const Valore_Prova& condiviso, const Valore_Prova& password) {
    Catalogo_Di_Prova c;
    return c.Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo)
        .Sistema("GRUPPO_START", "/1/")
        .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN", condiviso)
        .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_PASSWORD", password)
        .Riga("Anagrafico", {{"Login", "mario"}, {"Password", "Segreta"}, {"Key_Gruppo", "/2/"}})
        .Riga("Anagrafico", {{"Login", "libero"}, {"Key_Gruppo", "/3/"}})
        .Riga("Anagrafico", {{"Login", "indirizzo"}, {"Password", "x"}, {"Utente_Tipo", "/0/0/1/"}});
}

TEST(Credenziali, EveryModeAndKindOfAccount) {
    struct Caso {
        const char *modo, *account, *password;
        Esito_Accesso esito;
        const char *utente, *gruppo;  ///< afterwards; before, it is "prima" in group "/9/"
        bool legge = true;
    };
    for (const Caso& caso : {Caso{"", "mario", "Segreta", SI, "mario", "/2/"},
                             {"", "mario", "segreta", NO, "", "/1/"},
                             {"", "tutti", "Aperto", NO, "", "/1/"},  // the shared account is of another mode
                             {"Libera", "libero", "whatever", SI, "libero", "/3/"},
                             {"Libera", "indirizzo", "x", NO, "", "/1/"},
                             {"Libera", "", "", NO, "", "/1/"},
                             {"Autentificazione_singola", "tutti", "Aperto", SI, "tutti", "/1/"},
                             {"Autentificazione_singola", "tutti", "aperto", NO, "", "/9/", false},
                             {"Autentificazione_singola", "mario", "Segreta", SI, "mario", "/2/"},
                             {"Autentificazione_singola", "mario", "Aperto", NO, "", "/9/", false},
                             {"Autentificazione_singola", "x' OR '1'='1", "", NO, "", "/9/", false},
                             {"Autentificazione_utente", "MARIO", "Segreta", SI, "MARIO", "/2/"},
                             {"Autentificazione_utente", "tutti", "Aperto", NO, "", "/9/", false},
                             {"Chiusa", "mario", "Segreta", Esito_Accesso::Ignorato, "prima", "/9/"},
                             // Modes are told with their case, and an unknown one isn't free.
                             {"libera", "mario", "wrong", Esito_Accesso::Ignorato, "prima", "/9/"}}) {
        SCOPED_TRACE(testing::Message() << caso.modo << ": " << caso.account << " / " << caso.password);
        Catalogo_Aperto c(Con_Account(caso.modo, "tutti", "Aperto"));
        Filtri filtri{"1", "1", "/9/", "prima"};
        EXPECT_EQ(Accedi(c.DB, caso.account, caso.password, filtri), caso.esito);
        EXPECT_EQ(filtri.Utente, caso.utente);
        EXPECT_EQ(filtri.Gruppo, caso.gruppo);
        EXPECT_EQ(Autentificazione_Corretta(c.DB, filtri.Utente), caso.legge);
        EXPECT_EQ(Autentificazione_Corretta(c.DB, ""), caso.modo[0] == 0 || caso.modo[0] == 'L');
    }
}

TEST(Credenziali, TheSharedAccountHidesAnotherOfItsName) {
    Catalogo_Aperto c(Con_Account("Autentificazione_singola", "mario", "Aperto"));
    Filtri filtri;
    EXPECT_EQ(Accedi(c.DB, "mario", "Segreta", filtri), NO);
    EXPECT_EQ(Accedi(c.DB, "mario", "Aperto", filtri), SI);
    EXPECT_EQ(filtri.Gruppo, "/1/");
    EXPECT_EQ(Accedi(c.DB, "Mario", "Segreta", filtri), SI);  // not the same text: the other one
    EXPECT_EQ(filtri.Gruppo, "/2/");
}

TEST(Credenziali, WithoutASharedAccountNobodyIsLoggedInByIt) {
    Catalogo_Aperto c(Con_Account("Autentificazione_singola", std::nullopt, std::nullopt));
    Filtri filtri;
    EXPECT_EQ(Accedi(c.DB, "", "x", filtri), NO);
    EXPECT_EQ(Accedi(c.DB, "", "", filtri), SI);
    EXPECT_FALSE(Autentificazione_Corretta(c.DB, filtri.Utente));  // an empty login is nobody
}

}  // namespace

// The log-in: what the dialog's own test, which goes through every mode and kind of account, leaves open.

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
        .Riga("Anagrafico", {{"Login", "mario"}, {"Password", "Segreta"}, {"Key_Gruppo", "/2/"}});
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

TEST(Credenziali, AnotherModeAnswersNoLogInAndIsntFree) {
    Catalogo_Aperto c(Con_Account("libera", "", ""));  // modes are told with their case
    Filtri filtri;
    EXPECT_EQ(Accedi(c.DB, "mario", "wrong", filtri), Esito_Accesso::Ignorato);
    EXPECT_FALSE(Autentificazione_Corretta(c.DB, ""));
    EXPECT_TRUE(Autentificazione_Corretta(c.DB, "mario"));
}

}  // namespace

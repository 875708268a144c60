// The log-in in every mode of access.

#include <gmock/gmock.h>

#include "core/users/accesso.h"
#include "core/users/catalogo_utenti.h"
#include "support/catalogo_aperto.h"

namespace {

constexpr Esito_Accesso SI = Esito_Accesso::Riuscito, NO = Esito_Accesso::Fallito,
                        NIENTE = Esito_Accesso::Ignorato;

struct Caso {
    const char *modo, *account, *password;
    Esito_Accesso esito;
    const char *utente, *gruppo;  ///< afterwards; before, it is "prima" in group "/9/"
};

const Caso CASI[] = {
    // Anybody reads: a wrong log-in goes back to the group at start.
    {"", "mario", "Segreta", SI, "mario", "/2/"},
    {"", "mario", "wrong", NO, "", "/1/"},
    {"Libera", "mario", "Segreta", SI, "mario", "/2/"},
    {"Libera", "ROSSI", "rosso", SI, "ROSSI", "/2/3/"},
    {"Libera", "libero", "anything", SI, "libero", ""},
    {"Libera", "indirizzo", "chiave", NO, "", "/1/"},
    {"Libera", "tutti", "Aperto", NO, "", "/1/"},  // the shared account is of another mode
    {"Libera", "d'angelo", "ali", NO, "", "/1/"},
    {"Libera", "", "", NO, "", "/1/"},
    // One shared account, and those of the address table.
    {"Autentificazione_singola", "tutti", "Aperto", SI, "tutti", "/1/"},
    {"Autentificazione_singola", "tutti", "aperto", NO, "", "/9/"},
    {"Autentificazione_singola", "tutti", "", NO, "", "/9/"},
    {"Autentificazione_singola", "Tutti", "Aperto", NO, "", "/9/"},
    {"Autentificazione_singola", "mario", "Segreta", SI, "mario", "/2/"},
    {"Autentificazione_singola", "mario", "Aperto", NO, "", "/9/"},
    {"Autentificazione_singola", "libero", "", SI, "libero", ""},
    {"Autentificazione_singola", "indirizzo", "chiave", NO, "", "/9/"},
    {"Autentificazione_singola", "x' OR '1'='1", "", NO, "", "/9/"},
    // The address table only.
    {"Autentificazione_utente", "mario", "Segreta", SI, "mario", "/2/"},
    {"Autentificazione_utente", "mario", "segreta", NO, "", "/9/"},
    {"Autentificazione_utente", "tutti", "Aperto", NO, "", "/9/"},
    {"Autentificazione_utente", "libero", "", SI, "libero", ""},
    {"Autentificazione_utente", "indirizzo", "chiave", NO, "", "/9/"},
    {"Autentificazione_utente", "d'angelo", "ali", NO, "", "/9/"},
    {"Autentificazione_utente", "", "", NO, "", "/9/"},
    // Any other value answers no log-in.
    {"Chiusa", "mario", "Segreta", NIENTE, "prima", "/9/"},
    {"libera", "mario", "wrong", NIENTE, "prima", "/9/"},
};

Catalogo_Di_Prova Con_Modo(const char* modo) {
    return Catalogo_Utenti().Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo);
}

TEST(Accesso, EveryModeAndKindOfAccount) {
    for (const Caso& caso : CASI) {
        Catalogo_Aperto c(Con_Modo(caso.modo));
        Filtri filtri{"3", "2", "/9/", "prima"};
        const std::string nome = std::string(caso.modo) + ": " + caso.account + " / " + caso.password;
        EXPECT_EQ(Accedi(c.DB, caso.account, caso.password, filtri), caso.esito) << nome;
        EXPECT_EQ(filtri.Utente, caso.utente) << nome;
        EXPECT_EQ(filtri.Gruppo, caso.gruppo) << nome;
        EXPECT_EQ(filtri.Lingua + filtri.Mercato, "32") << nome;
    }
}

TEST(Accesso, TheSharedAccountHidesAnotherOfItsName) {
    Catalogo_Aperto c(
        Con_Modo("Autentificazione_singola").Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN", "mario"));
    Filtri filtri;
    EXPECT_EQ(Accedi(c.DB, "mario", "Segreta", filtri), NO);
    EXPECT_EQ(Accedi(c.DB, "mario", "Aperto", filtri), SI);
    EXPECT_EQ(filtri.Gruppo, "/1/");
    EXPECT_EQ(Accedi(c.DB, "Mario", "Segreta", filtri), SI);  // not the same text: the other one
    EXPECT_EQ(filtri.Gruppo, "/2/");
}

TEST(Accesso, WithoutASharedAccountNobodyIsLoggedInByIt) {
    Catalogo_Aperto c(Con_Modo("Autentificazione_singola")
                          .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN", std::nullopt)
                          .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_PASSWORD", std::nullopt));
    Filtri filtri;
    EXPECT_EQ(Accedi(c.DB, "", "x", filtri), NO);
    EXPECT_EQ(Accedi(c.DB, "", "", filtri), SI);
    EXPECT_FALSE(Autentificazione_Corretta(c.DB, filtri.Utente));  // an empty login is nobody
}

TEST(Accesso, WhoMayRead) {
    const std::pair<const char*, bool> modi[] = {{"", true},
                                                 {"Libera", true},
                                                 {"Autentificazione_singola", false},
                                                 {"Autentificazione_utente", false},
                                                 {"Chiusa", false}};
    for (const auto& [modo, anche_nessuno] : modi) {
        Catalogo_Aperto c(Con_Modo(modo));
        EXPECT_EQ(Autentificazione_Corretta(c.DB, ""), anche_nessuno) << modo;
        EXPECT_TRUE(Autentificazione_Corretta(c.DB, "mario")) << modo;
    }
    Catalogo_Aperto c(Catalogo_Utenti());  // no such key
    EXPECT_TRUE(Autentificazione_Corretta(c.DB, ""));
}

}  // namespace

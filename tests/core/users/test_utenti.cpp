// What the catalogue's database answers about its accounts.

#include <gmock/gmock.h>

#include "core/users/catalogo_utenti.h"
#include "support/catalogo_aperto.h"

namespace {

TEST(Utenti, AnAccountAndItsPassword) {
    struct Caso {
        const char *login, *password;
        bool valido;
    };
    Catalogo_Aperto c(Catalogo_Utenti());
    for (const Caso& caso : {Caso{"mario", "Segreta", true},
                             {"MARIO", "Segreta", true},  // the engine's "=" ignores case
                             {"mario", "segreta", false},
                             {"mario", "Segreta ", false},
                             {"mario", "", false},
                             {"mario ", "Segreta", false},
                             {"libero", "", true},  // no password: whatever is typed
                             {"libero", "anything", true},
                             {"vuoto", "", true},
                             {"vuoto", "x", false},
                             {"senza tipo", "x", true},
                             {"indirizzo", "chiave", false},  // an address can't log in
                             {"doppio", "primo", true},       // the first row counts
                             {"doppio", "secondo", false},
                             {"nobody", "", false},
                             {"", "", false},
                             {"d'angelo", "ali", false},  // a quote ends the statement
                             {"x' OR '1'='1", "", false},
                             {"x' OR Login='libero", "", false},
                             {"libero' --", "", false},
                             {"libero''", "", false},
                             {"\"libero\"", "", false},
                             {"*", "", false},
                             {"lib%", "", false}}) {
        EXPECT_EQ(c.DB.Utente_Valido(QString::fromUtf8(caso.login), QString::fromUtf8(caso.password)),
                  caso.valido)
            << caso.login << " / " << caso.password;
        EXPECT_FALSE(c.DB.SQL().contains("Segreta"));
    }
}

TEST(Utenti, GroupsOfAnAccount) {
    Catalogo_Aperto c(Catalogo_Utenti());
    const std::pair<const char*, const char*> casi[] = {
        {"mario", "/2/"}, {"Rossi", "/2/3/"}, {"libero", ""},
        {"vuoto", ""},    {"nobody", "/1/"},  // an unknown login has those at start
        {"", ""},         {"d'angelo", ""}};
    for (const auto& [login, gruppi] : casi)
        EXPECT_EQ(c.DB.Restituisci_Gruppi_Appartenneza_Utente(login), gruppi) << login;
}

TEST(Utenti, WithoutATableNobodyIsValid) {
    Catalogo_Aperto c(Catalogo_Utenti().Rimuovi_Tabella("Anagrafico"));
    EXPECT_FALSE(c.DB.Utente_Valido("mario", "Segreta"));
    EXPECT_EQ(c.DB.Restituisci_Gruppi_Appartenneza_Utente("mario"), "");
    QString lingue, mercati;
    EXPECT_FALSE(c.DB.Restituisci_Lingue_Mercati_Validi_Per_Utente("mario", lingue, mercati));
}

struct Gruppo {
    const char *Key_Gruppo, *ID_Lingue, *ID_Mercati;
};

TEST(Utenti, LimitsOfTheGroups) {
    struct Caso {
        const char* nome;
        std::vector<Gruppo> gruppi;
        const char *login, *lingue, *mercati;
    };
    const Caso casi[] = {
        {"one group", {{"2", "/1/3/", "/2/"}, {"1", "/9/", "/9/"}}, "mario", "/1/3/", "/2/"},
        {"NULL is no limit", {{"2", nullptr, "/2/"}}, "mario", "", "/2/"},
        {"rows are joined", {{"2", "/1/", "/2/"}, {"2", "/3/", "/1/"}}, "mario", "/1///3/", "/2///1/"},
        {"NULL on one row", {{"2", "/1/", "/2/"}, {"2", nullptr, "/1/"}}, "mario", "", "/2///1/"},
        {"NULL on the first row", {{"2", nullptr, nullptr}, {"2", "/1/", "/2/"}}, "mario", "", ""},
        {"an empty value", {{"2", "", "/2/"}}, "mario", "", "/2/"},
        {"two groups select nothing", {{"2", "/1/", "/1/"}, {"3", "/1/", "/1/"}}, "rossi", "", ""},
        {"no such group", {{"1", "/1/", "/1/"}}, "mario", "", ""},
        {"no groups: every row", {{"1", "/1/", "/1/"}, {"2", "/2/", "/3/"}}, "libero", "/1///2/", "/1///3/"},
        {"nobody has the group at start", {{"1", "/2/", "/3/"}, {"2", "/1/", "/1/"}}, "", "/2/", "/3/"},
        {"an unknown login too", {{"1", "/2/", "/3/"}}, "nobody", "/2/", "/3/"},
    };
    for (const Caso& caso : casi) {
        Catalogo_Di_Prova catalogo = Catalogo_Utenti();
        for (const Gruppo& g : caso.gruppi)
            catalogo.Riga("Gruppi_Utenti",
                          {{"Key_Gruppo", g.Key_Gruppo},
                           {"ID_Lingue", g.ID_Lingue ? Valore_Prova(g.ID_Lingue) : std::nullopt},
                           {"ID_Mercati", g.ID_Mercati ? Valore_Prova(g.ID_Mercati) : std::nullopt}});
        Catalogo_Aperto c(catalogo);
        QString lingue = "before", mercati = "before";
        EXPECT_TRUE(c.DB.Restituisci_Lingue_Mercati_Validi_Per_Utente(caso.login, lingue, mercati))
            << caso.nome;
        EXPECT_EQ(lingue, caso.lingue) << caso.nome;
        EXPECT_EQ(mercati, caso.mercati) << caso.nome;
    }
}

TEST(Utenti, LimitsThatCantBeReadLimitNothing) {
    Catalogo_Di_Prova catalogo = Catalogo_Utenti();
    catalogo.Riga("Gruppi_Utenti", {{"Key_Gruppo", "2"}, {"ID_Lingue", "/1/"}, {"ID_Mercati", "/1/"}})
        .Riga("Anagrafico", {{"Login", "parole"}, {"Key_Gruppo", "/DEALER/"}});
    const auto fallisce = [](const Catalogo_Di_Prova& c, const QString& login) {
        Catalogo_Aperto aperto(c);
        QString lingue = "before", mercati = "before";
        const bool letti = aperto.DB.Restituisci_Lingue_Mercati_Validi_Per_Utente(login, lingue, mercati);
        return !letti && lingue.isEmpty() && mercati.isEmpty();
    };
    EXPECT_TRUE(fallisce(catalogo, "d'angelo"));
    EXPECT_TRUE(fallisce(catalogo, "parole"));  // group keys aren't quoted: only numbers are understood
    EXPECT_FALSE(fallisce(catalogo, "mario"));
    EXPECT_TRUE(fallisce(catalogo.Rimuovi_Colonna("Gruppi_Utenti", "ID_Mercati"), "mario"));
    EXPECT_TRUE(fallisce(catalogo.Rimuovi_Tabella("Gruppi_Utenti"), "mario"));
}

}  // namespace

// What the catalogue's database answers about its accounts.

#include <gtest/gtest.h>

#include "support/catalogo_aperto.h"

namespace {

/// The group at start is 1; mario is in 2, rossi in 2 and 3, libero in none.
Catalogo_Di_Prova Con_Utenti() {
    Catalogo_Di_Prova c;
    c.Sistema("GRUPPO_START", "/1/");
    const Valore_Prova righe[][4] = {
        {"mario", "Segreta", "/1/0/0/", "/2/"},  {"rossi", "rosso", "/0/1/1/", "/2/3/"},
        {"libero", {}, "/0/1/0/", {}},           {"vuoto", "", "/1/1/1/", ""},
        {"senza tipo", "x", {}, "/3/"},          {"indirizzo", "chiave", "/0/0/1/", "/2/"},
        {"d'angelo", "ali", "/1/0/0/", "/2/"},   {"doppio", "primo", "/1/0/0/", "/2/"},
        {"doppio", "secondo", "/1/0/0/", "/3/"}, {{}, {}, "/1/0/0/", "/2/"},
        {"parole", "x", "/1/0/0/", "/DEALER/"}};
    for (const auto& [login, password, tipo, gruppi] : righe)
        c.Riga("Anagrafico",
               {{"Login", login}, {"Password", password}, {"Utente_Tipo", tipo}, {"Key_Gruppo", gruppi}});
    return c;
}

TEST(Utenti, AnAccountAndItsPassword) {
    // A NULL password takes whatever is typed; the first row of a login counts.
    const QStringList valide{"mario/Segreta", "MARIO/Segreta", "libero/anything",
                             "vuoto/",        "senza tipo/x",  "doppio/primo"};
    // An address can't log in; a quote ends the statement, and nothing of a login is a part of it.
    const QStringList non_valide{"mario/segreta",
                                 "mario/Segreta ",
                                 "mario /Segreta",
                                 "vuoto/x",
                                 "indirizzo/chiave",
                                 "doppio/secondo",
                                 "/",
                                 "d'angelo/ali",
                                 "x' OR '1'='1/",
                                 "libero' --/",
                                 "lib%/"};
    Catalogo_Aperto c(Con_Utenti());
    for (const QString& caso : valide + non_valide)
        EXPECT_EQ(c.DB.Utente_Valido(caso.section('/', 0, 0), caso.section('/', 1)), valide.contains(caso))
            << caso.toStdString();
    EXPECT_FALSE(c.DB.SQL().contains("Segreta"));
}

TEST(Utenti, GroupsOfAnAccount) {
    Catalogo_Aperto c(Con_Utenti());
    // An unknown login has those at start.
    const char* casi[][2] = {{"mario", "/2/"},  {"Rossi", "/2/3/"}, {"libero", ""},
                             {"nobody", "/1/"}, {"", ""},           {"d'angelo", ""}};
    for (const auto& [login, gruppi] : casi)
        EXPECT_EQ(c.DB.Restituisci_Gruppi_Appartenneza_Utente(login), gruppi) << login;
}

/// The limits of a login as "languages & markets", "unreadable" when they are.
QString Limiti(const Catalogo_Di_Prova& catalogo, const char* login) {
    Catalogo_Aperto c(catalogo);
    QString lingue = "before", mercati = "before";
    const bool letti = c.DB.Restituisci_Lingue_Mercati_Validi_Per_Utente(login, lingue, mercati);
    return lingue + " & " + mercati + (letti ? "" : "unreadable");
}

TEST(Utenti, LimitsOfTheGroups) {
    struct Caso {
        const char* nome;
        std::vector<std::array<Valore_Prova, 3>> gruppi;  ///< key, languages, markets
        const char *login, *limiti;
    };
    const Caso casi[] = {
        {"one group", {{"2", "/1/3/", "/2/"}, {"1", "/9/", "/9/"}}, "mario", "/1/3/ & /2/"},
        {"rows are joined", {{"2", "/1/", "/2/"}, {"2", "/3/", "/1/"}}, "mario", "/1///3/ & /2///1/"},
        {"NULL on one row", {{"2", "/1/", "/2/"}, {"2", {}, "/1/"}}, "mario", " & /2///1/"},
        {"NULL on the first row", {{"2", {}, {}}, {"2", "/1/", "/2/"}}, "mario", " & "},
        {"two groups select nothing", {{"2", "/1/", "/1/"}, {"3", "/1/", "/1/"}}, "rossi", " & "},
        {"no groups: every row", {{"1", "/1/", "/1/"}, {"2", "/2/", "/3/"}}, "libero", "/1///2/ & /1///3/"},
        {"nobody has the group at start", {{"1", "/2/", "/3/"}, {"2", "/1/", "/1/"}}, "", "/2/ & /3/"},
        {"a quote in the login", {{"2", "/1/", "/1/"}}, "d'angelo", " & unreadable"},
        {"group keys aren't quoted: only numbers", {{"2", "/1/", "/1/"}}, "parole", " & unreadable"},
    };
    for (const Caso& caso : casi) {
        Catalogo_Di_Prova catalogo = Con_Utenti();
        for (const auto& [gruppo, lingue, mercati] : caso.gruppi)
            catalogo.Riga("Gruppi_Utenti",
                          {{"Key_Gruppo", gruppo}, {"ID_Lingue", lingue}, {"ID_Mercati", mercati}});
        EXPECT_EQ(Limiti(catalogo, caso.login), caso.limiti) << caso.nome;
    }
}

TEST(Utenti, WithoutTheirTablesNothingIsValidOrLimited) {
    Catalogo_Di_Prova catalogo = Con_Utenti();
    EXPECT_EQ(Limiti(catalogo.Rimuovi_Tabella("Gruppi_Utenti"), "mario"), " & unreadable");
    Catalogo_Aperto c(catalogo.Rimuovi_Tabella("Anagrafico"));
    EXPECT_FALSE(c.DB.Utente_Valido("mario", "Segreta"));
    EXPECT_EQ(c.DB.Restituisci_Gruppi_Appartenneza_Utente("mario"), "");
}

}  // namespace

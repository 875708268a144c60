#pragma once

#include "support/catalogo_di_prova.h"

/// A catalogue with accounts of every kind. The group at start is 1, the shared account "tutti" / "Aperto".
inline Catalogo_Di_Prova Catalogo_Utenti() {
    Catalogo_Di_Prova c;
    c.Sistema("GRUPPO_START", "/1/")
        .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN", "tutti")
        .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_PASSWORD", "Aperto");
    struct Riga {
        const char *Login, *Password, *Utente_Tipo, *Key_Gruppo;
    };
    for (const Riga& r : {Riga{"mario", "Segreta", "/1/0/0/", "/2/"},
                          {"rossi", "rosso", "/0/1/1/", "/2/3/"},
                          {"libero", nullptr, "/0/1/0/", nullptr},
                          {"vuoto", "", "/1/1/1/", ""},
                          {"senza tipo", "x", nullptr, "/3/"},
                          {"indirizzo", "chiave", "/0/0/1/", "/2/"},
                          {"d'angelo", "ali", "/1/0/0/", "/2/"},
                          {"doppio", "primo", "/1/0/0/", "/2/"},
                          {"doppio", "secondo", "/1/0/0/", "/3/"},
                          {nullptr, nullptr, "/1/0/0/", "/2/"}}) {
        const auto valore = [](const char* testo) {
            return testo ? Valore_Prova(QString::fromUtf8(testo)) : std::nullopt;
        };
        c.Riga("Anagrafico", {{"Login", valore(r.Login)},
                              {"Password", valore(r.Password)},
                              {"Utente_Tipo", valore(r.Utente_Tipo)},
                              {"Key_Gruppo", valore(r.Key_Gruppo)}});
    }
    return c;
}

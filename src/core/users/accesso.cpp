#include "core/users/accesso.h"

namespace {

QString System(const Class_DBOper& db, const char* key) {
    return db.System_Leggi_Key(QLatin1String(key));
}

QString Gruppo_Iniziale(const Class_DBOper& db) {
    return System(db, "GRUPPO_START");
}

/// The account that everybody shares.
bool E_Account_Condiviso(const Class_DBOper& db, const QString& account) {
    return account == System(db, "IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_LOGIN");
}

}  // namespace

Modo_Accesso Leggi_Modo_Accesso(const Class_DBOper& db) {
    const QString modo = System(db, "IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE");
    if (modo.isEmpty() || modo == u"Libera")
        return Modo_Accesso::Libera;
    if (modo == u"Autentificazione_singola")
        return Modo_Accesso::Singola;
    return modo == u"Autentificazione_utente" ? Modo_Accesso::Utente : Modo_Accesso::Altro;
}

bool Autentificazione_Corretta(const Class_DBOper& db, const QString& utente) {
    return Leggi_Modo_Accesso(db) == Modo_Accesso::Libera || !utente.isEmpty();
}

Esito_Accesso Accedi(const Class_DBOper& db, const QString& account, const QString& password,
                     Filtri& filtri) {
    const Modo_Accesso modo = Leggi_Modo_Accesso(db);
    if (modo == Modo_Accesso::Altro)
        return Esito_Accesso::Ignorato;
    const bool condiviso = modo == Modo_Accesso::Singola && E_Account_Condiviso(db, account);
    const bool valido = condiviso ? password == System(db, "IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE_PASSWORD")
                                  : db.Utente_Valido(account, password);
    if (!valido) {
        if (modo == Modo_Accesso::Libera)
            filtri.Gruppo = Gruppo_Iniziale(db);
        filtri.Utente.clear();
        return Esito_Accesso::Fallito;
    }
    filtri.Utente = account;
    filtri.Gruppo = condiviso ? Gruppo_Iniziale(db) : db.Restituisci_Gruppi_Appartenneza_Utente(account);
    return Esito_Accesso::Riuscito;
}

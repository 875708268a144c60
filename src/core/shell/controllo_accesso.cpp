#include "core/shell/controllo_accesso.h"

#include "core/package/risorse.h"
#include "core/users/accesso.h"

bool Controllo_Accesso::Verifica_Accesso(bool forza) {
    const QString prima = progetto_.Utente;
    if (!forza && ambiente_.Accesso_Rifiutato && !progetto_.Autentificazione_Corretta())
        return false;
    if (forza || !progetto_.Autentificazione_Corretta()) {
        progetto_.Ricarica_Necessaria = false;
        ambiente_.Finestre.Mostra_Autentificazione();
    }
    ambiente_.Accesso_Rifiutato = ambiente_.Gesti > 0 && !progetto_.Autentificazione_Corretta();
    if (!progetto_.Autentificazione_Corretta())
        return false;
    if (progetto_.Utente != prima && Leggi_Modo_Scelta(progetto_.DB) != Modo_Scelta::Nessuna)
        ambiente_.Finestre.Mostra_Lingua_Mercato();
    return true;
}

bool Controllo_Accesso::Accedi(const QString& account, const QString& password) {
    Filtri filtri = progetto_.Filtri_Correnti();
    const Esito_Accesso esito = ::Accedi(progetto_.DB, account, password, filtri);
    if (esito == Esito_Accesso::Fallito) {
        progetto_.Dimentica_Utente_Mostrato();
        Segnala("MSG_02", Icona::Esclamazione);
    }
    progetto_.Imposta_Filtri(filtri);
    if (esito == Esito_Accesso::Riuscito)
        progetto_.Ricarica_Necessaria = true;
    return esito == Esito_Accesso::Riuscito;
}

Scelta_Lingua_Mercato Controllo_Accesso::Carica_Lingua_Mercato() {
    Scelta_Lingua_Mercato scelta = Prepara_Scelta(progetto_.DB, schermo_.Filtri_Correnti());
    if (!scelta.Limiti_Letti)
        Segnala("MSG_05", Icona::Critica);
    return scelta;
}

void Controllo_Accesso::Scegli_Lingua_Mercato(const QString& descrizione_lingua,
                                              const QString& descrizione_mercato) {
    Filtri filtri = progetto_.Filtri_Correnti();
    if (!Accetta_Scelta(progetto_.DB, descrizione_lingua, descrizione_mercato, filtri))
        return;
    progetto_.Imposta_Filtri(filtri);
    progetto_.Ricarica_Necessaria = true;
}

std::optional<Elenco_Lingue> Controllo_Accesso::Lingue_Home() const {
    std::optional<Elenco_Lingue> elenco;
    Con_Dati_Risorsa(progetto_, ambiente_.Cartella_Installazione,
                     [&](const Class_DBOper& db) { elenco = Prepara_Lingue_Home(db, progetto_.Lingua); });
    return elenco;
}

bool Controllo_Accesso::Scegli_Lingua_Home(const QString& descrizione) {
    return Con_Dati_Risorsa(progetto_, ambiente_.Cartella_Installazione, [&](const Class_DBOper& db) {
        progetto_.Lingua = QString::number(db.Restituisci_ID_Lingua(descrizione));
    });
}

void Controllo_Accesso::Segnala(const char* chiave, Icona icona) {
    ambiente_.Messaggi_().Mostra(progetto_.Traduzioni.Item(QLatin1String(chiave)).Testo, icona);
}

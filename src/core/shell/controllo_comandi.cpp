#include "core/shell/controllo_comandi.h"

#include "core/shell/avvio.h"
#include "core/users/accesso.h"

using namespace Qt::StringLiterals;

void Controllo_Comandi::Clic_Bottone(const QString& key) {
    const Comando* comando = Cerca_Comando(key);
    if (ambiente_.Occupato || !comando || !comando->Esegui || !ambiente_.Bottone(key).Enabled)
        return;
    if (comando->Due_Stati)
        ambiente_.Bottone(key).Pressed = !ambiente_.Bottone(key).Pressed;
    schermo_.Esegui_Comando(key);
}

void Controllo_Comandi::Clic_Link(const QString& key) {
    if (!ambiente_.Occupato)
        schermo_.Esegui_Comando(key);
}

void Controllo_Comandi::Esegui_Comando(const QString& key, Schermo_Principale& schermo) {
    if (const Comando* comando = Cerca_Comando(key); comando && comando->Esegui)
        comando->Esegui(schermo);
    Aggiorna_Toolbar();
}

void Controllo_Comandi::Finestra_Caricata(const QString& key, bool caricata) {
    progetto_.*Cerca_Comando(key)->Finestra = caricata;
    if (caricata)
        return;
    ambiente_.Bottone(key).Pressed = false;
    ambiente_.Mostra();
}

// --- the states of the buttons --------------------------------------------------------------------

void Controllo_Comandi::Aggiorna_Toolbar() {
    Stato_Finestra& stato = ambiente_.Stato;
    stato.Label_Aggiornamenti = !Base_Aggiornamenti(progetto_.Desktop().impostazioni).isEmpty();
    const bool aperto = progetto_.Progetto_Aperto;
    stato.Etichette_Catalogo = stato.Label_Utente = stato.Label_Lingua_Mercato = aperto;
    for (const Comando& comando : Comandi())
        if (comando.Del_Catalogo()) {
            Stato_Bottone& bottone = ambiente_.Bottone(comando.Key);
            bottone.Enabled = aperto && Abilitato(comando, bottone.Enabled);
        }
    if (aperto)
        Applica_Esclusioni();
    if (!aperto || !progetto_.Autentificazione_Corretta())
        Chiudi_Finestre();
    ambiente_.Mostra();
}

bool Controllo_Comandi::Abilitato(const Comando& comando, bool prima) {
    switch (comando.In_Zona(schermo_.Restitusci_Zona_catalogo())) {
        case LASCIA:
            break;
        case ABILITA:
            return true;
        case DISABILITA:
            return false;
        case PAGINE:
            return Impaginazione_Presente(u"PAGE"_s);
        case ORDINE:
            return Impaginazione_Presente(u"ORDER"_s);
    }
    return prima;
}

/// Whether the catalogue brings a page layout of this kind along, for the current language and market.
bool Controllo_Comandi::Impaginazione_Presente(const QString& tipo) {
    const QString nome = u"%1_%2_%3_"_s.arg(progetto_.Lingua, progetto_.Mercato, tipo);
    const auto dichiarata = [&](const char* n) {
        return progetto_.DB.System_Leggi_Key(u"PRINT_EXTENSION_"_s + nome + QLatin1String(n)) == u"1";
    };
    if (!dichiarata("1") && !dichiarata("2"))
        return false;
    // Both are extracted, so that the print finds them.
    const QString prima = progetto_.Scompatta_File_Compattato(nome + u"1.mdp"_s);
    const QString seconda = progetto_.Scompatta_File_Compattato(nome + u"2.mdp"_s);
    return !prima.isEmpty() || !seconda.isEmpty();
}

void Controllo_Comandi::Applica_Esclusioni() {
    if (Leggi_Modo_Accesso(progetto_.DB) == Modo_Accesso::Libera &&
        ambiente_.System("PUBBLICA_TZF_INCLUDI_ANAGRAFICO") != u"1")
        ambiente_.Bottone(KEY_LUCCHETTO).Enabled = ambiente_.Stato.Label_Utente = false;
    const QString scelta = ambiente_.System("UNIFICA_NAVIGAZIONE_VIEWER");
    if (scelta.isEmpty() || scelta == u"LINGUA_NESSUNA")
        ambiente_.Bottone(KEY_LINGUA).Enabled = ambiente_.Stato.Label_Lingua_Mercato = false;
}

/// Without a catalogue that may be read no window stays that a button keeps up.
void Controllo_Comandi::Chiudi_Finestre() {
    for (const Comando& comando : Comandi())
        if (comando.Due_Stati && comando.Finestra && progetto_.*comando.Finestra)
            ambiente_.Finestre.Chiudi_Finestra(comando.Key);
}

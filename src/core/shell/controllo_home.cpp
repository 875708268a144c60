#include "core/shell/controllo_home.h"

#include "core/package/risorse.h"
#include "core/shell/avvio.h"

void Controllo_Home::Mostra_Intro() {
    Stato_Finestra& stato = ambiente_.Stato;
    stato.Frame_Intro = stato.Frame_Immagine_Intro = true;
    stato.Frame_Main = stato.Frame_Preferiti = false;
    stato.Frame_Prodotto = stato.Frame_Evadi_ordine = false;
    stato.Frame_scheda_Prodotto = stato.Frame_Scheda_Prodotto_Dett = false;
    Carica_Home();
    ambiente_.Mostra();
}

void Controllo_Home::Carica_Home() {
    Stato_Finestra& stato = ambiente_.Stato;
    std::optional<Elenco_Lingue> lingue;
    if (!progetto_.Progetto_Aperto)
        lingue = accesso_.Lingue_Home();
    stato.Label_Consulta_Cat = progetto_.Progetto_Aperto;
    stato.ImageCombo_lingua = !progetto_.Progetto_Aperto && (lingue || stato.ImageCombo_lingua);
    ambiente_.Vista.Carica_Home(lingue);
}

void Controllo_Home::Comando_Home() {
    if (ambiente_.System("IMPOSTAZIONE_VISUALIZZA_DISEGNO_RICAMBI") == u"SI")
        ambiente_.Bottone(KEY_DISEGNO).Pressed = true;
    if (const QString nodo = ambiente_.System("IMPOSTAZIONE_NODO_HOMEPAGE"); nodo != u"R") {
        schermo_.Seleziona_Nodo_Albero(nodo);
    } else if (!progetto_.Key_Prodotto_Corrente.isEmpty()) {
        progetto_.Key_Prodotto_Corrente.clear();
        progetto_.Tree1.Seleziona(nullptr);
        ambiente_.Vista.Albero_Aggiornato();
        ambiente_.Avvisa(&Stanza::Prodotto_Cambiato);
    }
    if (ambiente_.System("IMPOSTAZIONE_VISUALIZZA_NODO_HOMEPAGE") == u"SI")
        schermo_.Esegui_Comando(KEY_DISEGNO);
    else
        Mostra_Intro();
}

void Controllo_Home::Scegli_Lingua_Home(const QString& descrizione) {
    if (!ambiente_.Occupato && !progetto_.Progetto_Aperto && accesso_.Scegli_Lingua_Home(descrizione))
        ambiente_.Vista.Carica_Testi();
}

void Controllo_Home::Visualizza_Help() {
    QString chiave;
    const auto leggi = [&](const Class_DBOper& db) {
        chiave = db.Restituisci_Key_Lingua_Mercato(progetto_.Lingua.toInt());
    };
    const QString& cartella = ambiente_.Cartella_Installazione;
    if (progetto_.Progetto_Aperto)
        leggi(progetto_.DB);
    else
        Con_Dati_Risorsa(progetto_, cartella, leggi);
    ambiente_.Sistema_().Apri_Con_Predefinito(Percorso_Help(Cartella_Help(cartella), chiave));
}

void Controllo_Home::Visualizza_Aggiornamenti() {
    const QString base = Base_Aggiornamenti(progetto_.Desktop().impostazioni);
    const Versione_Programma v = Versione();
    if (!base.isEmpty())
        ambiente_.Sistema_().Apri_Con_Predefinito(
            Indirizzo_Aggiornamenti(base, v.Maggiore, v.Minore, v.Revisione, progetto_.Lingua.toInt()));
}

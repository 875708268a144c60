#pragma once

#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <functional>

#include "core/shell/controllo_seleziona.h"
#include "core/shell/schermo_principale.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "support/lavagna_finta.h"

/// Windows that only keep what they were told.
class Vista_Finta : public Vista_Principale, public Vista_Finestre {
  public:
    void Mostra(const Stato_Finestra& stato) override {
        Mostrato = stato;
        if (Alla_Mostra)
            Alla_Mostra(stato);
    }
    void Mostra_Pannello(const QString&) override {}
    void Albero_Ricostruito() override { ++Ricostruzioni; }
    void Albero_Aggiornato() override {}
    void Mostra_Scheda(const Scheda_Prodotto& scheda) override { Scheda = scheda; }
    void Carica_Home(const std::optional<Elenco_Lingue>& lingue) override {
        Lingue_Home = lingue.value_or(Lingue_Home);
    }
    void Carica_Testi() override { ++Testi; }
    void Massimizza() override { Massimizzata = true; }
    int Altezza_Interna() const override { return 9000; }
    std::optional<QSizeF> Misura_Foto(const QString&) const override { return QSizeF(400, 100); }
    QString Scegli_Pacchetto() override { return Scelta; }
    Avanzamento& Barra_Avanzamento() override { return Barra; }

    void Mostra_Finestra(const QString& key) override { Caricata(key, true); }
    void Chiudi_Finestra(const QString& key) override { Caricata(key, false); }
    void Mostra_Immagine(const QString& percorso) override { Immagini.append(percorso); }
    void Mostra_Autentificazione() override {
        ++Autentificazioni;
        Alla_Autentificazione();
    }
    void Mostra_Lingua_Mercato() override {
        ++Scelte_Lingua;
        Alla_Lingua_Mercato();
    }
    void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) override { Alla_Scelta(scelta); }

    std::function<void(const QString& key, bool caricata)> Caricata;
    Stato_Finestra Mostrato;
    std::function<void(const Stato_Finestra&)> Alla_Mostra;
    int Ricostruzioni = 0, Testi = 0;
    bool Massimizzata = false;
    Elenco_Lingue Lingue_Home;
    int Autentificazioni = 0, Scelte_Lingua = 0;  ///< dialogs shown
    std::function<void()> Alla_Autentificazione = [] {},
                          Alla_Lingua_Mercato = [] {};  ///< what the user does in them
    std::function<void(Controllo_Seleziona&)> Alla_Scelta = [](Controllo_Seleziona&) {};
    QString Scelta;
    QStringList Immagini;
    Scheda_Prodotto Scheda;
    Lavagna_Finta Lavagna_;
    Avanzamento_Finto Barra;
};

/// The main screen of a program without windows.
struct Programma_Di_Prova {
    Programma_Di_Prova() {
        vista.Caricata = [this](const QString& key, bool caricata) {
            schermo.Comandi.Finestra_Caricata(key, caricata);
        };
    }

    QString Apri(const Catalogo_Di_Prova& catalogo, const QString& nome = QStringLiteral("prova.TZF")) {
        const QString percorso = catalogo.Pacchetto(cartella.path(), nome);
        schermo.Apertura.Apri_Catalogo(percorso);
        return percorso;
    }
    void Premi(const char* chiave) { schermo.Comandi.Clic_Bottone(chiave); }
    void Clic_Nodo(const char* key) { schermo.Albero.Clic_Nodo(key); }
    void Filtra(const char* matricola) { schermo.Albero.Applica_Filtro_Matricola(matricola); }
    Stato_Finestra& Stato() { return schermo.Stato(); }
    Stato_Bottone& Bottone(const char* chiave) { return Stato().Bottoni.at(QLatin1String(chiave)); }
    int Zona() { return schermo.Restitusci_Zona_catalogo(); }
    QString Corrente() { return progetto.Key_Prodotto_Corrente; }
    /// The message boxes as "text/icon".
    QStringList Messaggi() {
        QStringList testi;
        for (const auto& [testo, icona] : messaggi.Mostrati)
            testi << testo + (icona == Icona::Critica ? "/critical" : "");
        return testi;
    }
    /// Two groups, three products of which the first has no drawing and the second no parts, a node for
    /// market 3 only.
    static Catalogo_Di_Prova Macchina() {
        Catalogo_Di_Prova c;
        c.Nodo("G_1", "R", "Motore")
            .Prodotto("P_1", "G_1", "Albero a camme")
            .Prodotto("P_2", "G_1", "Vuoto")
            .Nodo("G_2", "R", "Cambio", {{"Key_Mercato", "/3/"}})
            .Prodotto("P_3", "G_1", "Albero a camme")
            .Parte("P_1", "1", "A1", "Vite")
            .Parte("P_1", "2", "A2", "Dado")
            .Parte("P_3", "1", "A3", "Perno")
            .Cambia("Prodotti", 1, "Flag_2", "0");
        return c;
    }

    QTemporaryDir cartella, install;
    Impostazioni_Finte impostazioni;
    Messaggi_Finti messaggi;
    Sistema_Finto sistema;
    Class_Progetto_Aperto progetto{{impostazioni, messaggi, sistema}};
    Vista_Finta vista;
    Schermo_Principale schermo{progetto, install.path(), vista, vista, vista.Lavagna_};
};

class Con_Programma : public testing::Test, protected Programma_Di_Prova {};

#pragma once

#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <functional>

#include "core/shell/controllo_principale.h"
#include "core/shell/controllo_seleziona.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "support/lavagna_finta.h"

/// A window that only keeps what it was told.
class Vista_Finta : public Vista_Principale {
  public:
    void Mostra(const Stato_Finestra& stato) override {
        Mostrato = stato;
        if (Alla_Mostra)
            Alla_Mostra(stato);
    }
    void Albero_Ricostruito() override { ++Ricostruzioni; }
    void Albero_Aggiornato() override {}
    void Mostra_Pannello(const QString& testo) override { Pannelli.append(testo); }
    void Mostra_Scheda(const Scheda_Prodotto& scheda) override { Scheda = scheda; }
    void Mostra_Immagine(const QString& percorso) override { Immagini.append(percorso); }
    void Mostra_Finestra_Carrello() override { Controllo->Carrello_Caricato(true); }
    void Chiudi_Finestra_Carrello() override { Controllo->Carrello_Caricato(false); }
    void Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) override { Alla_Scelta(scelta); }
    Lavagna_Finta& Tavola() override { return Lavagna_; }
    std::optional<QSizeF> Misura_Foto(const QString&) const override { return QSizeF(400, 100); }
    void Carica_Testi_Finestra() override { ++Testi; }
    void Carica_Dati_Home() override {}
    void Carica_Lingue_Home(const Elenco_Lingue& lingue) override { Lingue_Home = lingue; }
    void Mostra_Autentificazione() override {
        ++Autentificazioni;
        Alla_Autentificazione();
    }
    void Mostra_Lingua_Mercato() override {
        ++Scelte_Lingua;
        Alla_Lingua_Mercato();
    }
    void Massimizza() override { Massimizzata = true; }
    int Altezza_Interna() const override { return 9000; }
    QString Scegli_Pacchetto() override { return Scelta; }
    QString Text_Matricola() const override { return Matricola; }
    Avanzamento& Barra_Avanzamento() override { return Barra; }

    Controllo_Principale* Controllo = nullptr;
    Stato_Finestra Mostrato;
    std::function<void(const Stato_Finestra&)> Alla_Mostra;
    int Ricostruzioni = 0, Testi = 0;
    bool Massimizzata = false;
    Elenco_Lingue Lingue_Home;
    int Autentificazioni = 0, Scelte_Lingua = 0;  ///< dialogs shown
    std::function<void()> Alla_Autentificazione = [] {},
                          Alla_Lingua_Mercato = [] {};  ///< what the user does in them
    std::function<void(Controllo_Seleziona&)> Alla_Scelta = [](Controllo_Seleziona&) {};
    QString Scelta, Matricola;
    QStringList Pannelli, Immagini;
    Scheda_Prodotto Scheda;
    Lavagna_Finta Lavagna_;
    Avanzamento_Finto Barra;
};

/// A program with a controller and a window that isn't there.
struct Programma_Di_Prova {
    Programma_Di_Prova() {
        vista.Controllo = &controllo;
        controllo.Collega(vista);
    }

    QString Apri(const Catalogo_Di_Prova& catalogo, const QString& nome = QStringLiteral("prova.TZF")) {
        const QString percorso = catalogo.Pacchetto(cartella.path(), nome);
        controllo.Apri_Catalogo(percorso);
        return percorso;
    }
    Stato_Finestra& Stato() { return controllo.Stato(); }
    Stato_Bottone& Bottone(const char* chiave) { return Stato().Bottoni.at(QLatin1String(chiave)); }
    int Zona() { return controllo.Restitusci_Zona_catalogo(); }
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
    Controllo_Principale controllo{progetto, {impostazioni, messaggi, sistema}, install.path()};
};

class Con_Programma : public testing::Test, protected Programma_Di_Prova {};

#pragma once
// The drawing's neighbours in tables, over a real catalogue.

#include <gmock/gmock.h>

#include <QHash>
#include <QMap>
#include <QSet>
#include <functional>
#include <optional>
#include <utility>

#include "core/drawing/controllo_disegno.h"
#include "support/catalogo_aperto.h"
#include "support/lavagna_finta.h"

/// What was asked of the canvas and of its neighbours, in order.
using Diario = QStringList;

/// Window, page, cart, detail window and package of a drawing. What they are asked to do goes to the diary.
class Vicini_Di_Prova : public Finestra_Principale,
                        public Pagina_Disegno,
                        public Carrello_Disegno,
                        public Dettaglio_Disegno,
                        public Fonte_File {
  public:
    explicit Vicini_Di_Prova(Diario& diario) : diario_(diario) {}

    qint16 Restitusci_Zona_catalogo() const override { return 2; }
    void Seleziona_Nodo_Albero(const QString& key) override { diario_ << "Nodo " + key; }
    void Seleziona_Prodotto(const QString& key) override { diario_ << "Prodotto " + key; }
    void Visualizza_Disegno_Esploso(const QString& key) override { diario_ << "Disegno " + key; }
    bool Verifica_Accesso(bool) override { return true; }
    void Mostra_Intro() override { diario_ << "Intro"; }
    void Aggiorna_Toolbar() override { diario_ << "Toolbar"; }
    void Pulisci_Barra_Stato() override { diario_ << "Pulisci"; }

    Filtri Filtri_Correnti() const override { return {"1", "1", {}, {}}; }
    QString Prodotto_Corrente() const override { return Prodotto; }
    bool Esiste_Nodo_Albero(const QString& key) const override { return Nodi.contains(key); }
    QString Padre_Nodo_Selezionato() const override { return "G_1"; }
    void Evidenzia_In_Distinta(const QString& key) override { diario_ << "Riga " + key; }
    void Scrivi_Pannello(const QString& testo) override { diario_ << "Pannello " + testo; }

    bool Esiste_Prodotto(const QString& prodotto) const override { return Nel_Carrello.contains(prodotto); }
    bool Esiste_Riga(const QString& prodotto, const QString& riferimento,
                     const QString& codice) const override {
        return Nel_Carrello[prodotto].contains(codice + '-' + (riferimento == u"-" ? codice : riferimento));
    }
    bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                            const QString& riferimento) override {
        diario_ << "Aggiungi " + chiave + ' ' + prodotto + ' ' + riferimento;
        return Esito;
    }

    void Mostra_Riferimento(const QString& riferimento) override { diario_ << "Dettaglio " + riferimento; }
    void Scrivi_Banda(const QString& testo) override { diario_ << "Banda " + testo; }

    QString Scompatta_File_Compattato(const QString& nome) override { return Percorsi.value(nome); }

    QString Prodotto = "P_1";
    QSet<QString> Nodi;
    QMap<QString, QStringList> Nel_Carrello;  ///< lines "code-reference" of a product
    bool Esito = true;                        ///< of an add
    QHash<QString, QString> Percorsi;         ///< files of the package

  private:
    Diario& diario_;
};

/// A system whose pending events do what a test wants, once.
class Sistema_Con_Eventi : public Sistema_Finto {
  public:
    void Esegui_Eventi() override {
        Sistema_Finto::Esegui_Eventi();
        if (auto lavoro = std::exchange(In_Attesa, nullptr))
            lavoro();
    }
    std::function<void()> In_Attesa;
};

/// The drawing over a catalogue that each test completes before it calls `Apri`.
class Con_Disegno : public testing::Test {
  protected:
    Controllo_Disegno& Apri() {
        aperto.emplace(catalogo);
        disegno.emplace(Controllo_Disegno::Vicini{lavagna, aperto->DB, vicini, sistema, vicini, vicini});
        return *disegno;
    }
    /// What was done since the last call.
    Diario Fatto() { return std::exchange(lavagna.chiamate, {}); }

    Catalogo_Di_Prova catalogo;
    Lavagna_Finta lavagna;
    Vicini_Di_Prova vicini{lavagna.chiamate};
    Sistema_Con_Eventi sistema;
    std::optional<Catalogo_Aperto> aperto;
    std::optional<Controllo_Disegno> disegno;
};

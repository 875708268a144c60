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

class Finestra_Diario : public Finestra_Principale {
  public:
    explicit Finestra_Diario(Diario& diario) : diario_(diario) {}
    qint16 Restitusci_Zona_catalogo() const override { return 2; }
    void Seleziona_Nodo_Albero(const QString& key) override { diario_ << "Nodo " + key; }
    void Seleziona_Prodotto(const QString& key) override { diario_ << "Prodotto " + key; }
    void Visualizza_Disegno_Esploso(const QString& key) override { diario_ << "Disegno " + key; }
    bool Verifica_Accesso(bool) override { return true; }
    void Mostra_Intro() override { diario_ << "Intro"; }
    void Aggiorna_Toolbar() override { diario_ << "Toolbar"; }
    void Pulisci_Barra_Stato() override { diario_ << "Pulisci"; }

  private:
    Diario& diario_;
};

class Pagina_Diario : public Pagina_Disegno {
  public:
    explicit Pagina_Diario(Diario& diario) : diario_(diario) {}
    Filtri Filtri_Correnti() const override { return Filtri_; }
    QString Prodotto_Corrente() const override { return Prodotto; }
    bool Esiste_Nodo_Albero(const QString& key) const override { return Nodi.contains(key); }
    QString Padre_Nodo_Selezionato() const override { return Padre; }
    void Evidenzia_In_Distinta(const QString& key) override { diario_ << "Riga " + key; }
    void Scrivi_Pannello(const QString& testo) override { diario_ << "Pannello " + testo; }

    Filtri Filtri_{u"1"_qs, u"1"_qs, QString(), QString()};
    QString Prodotto = u"P_1"_qs, Padre = u"G_1"_qs;
    QSet<QString> Nodi;

  private:
    Diario& diario_;
};

/// A cart of lines "code-reference".
class Carrello_Diario : public Carrello_Disegno {
  public:
    explicit Carrello_Diario(Diario& diario) : diario_(diario) {}
    bool Esiste_Prodotto(const QString& prodotto) const override { return Prodotti.contains(prodotto); }
    bool Esiste_Riga(const QString& prodotto, const QString& riferimento,
                     const QString& codice) const override {
        return Prodotti[prodotto].contains(codice + u'-' + (riferimento == u"-" ? codice : riferimento));
    }
    QStringList Chiavi_Grafiche(const QString& prodotto) const override { return Grafiche[prodotto]; }
    bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                            const QString& riferimento) override {
        diario_ << u"Aggiungi %1 %2 %3"_qs.arg(chiave, prodotto, riferimento);
        return Esito;
    }

    QMap<QString, QStringList> Prodotti, Grafiche;
    bool Esito = true;

  private:
    Diario& diario_;
};

class Dettaglio_Diario : public Dettaglio_Disegno {
  public:
    explicit Dettaglio_Diario(Diario& diario) : diario_(diario) {}
    void Mostra_Riferimento(const QString& riferimento) override { diario_ << "Dettaglio " + riferimento; }
    void Scrivi_Banda(const QString& testo) override { diario_ << "Banda " + testo; }

  private:
    Diario& diario_;
};

/// Package files as a table; a name that isn't in it isn't in the package.
class File_Di_Prova : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override { return Percorsi.value(nome); }
    QHash<QString, QString> Percorsi;
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
        disegno.emplace(Controllo_Disegno::Vicini{lavagna, aperto->DB, file, sistema, finestra, pagina});
        return *disegno;
    }
    /// What was done since the last call.
    Diario Fatto() { return std::exchange(lavagna.chiamate, {}); }

    Catalogo_Di_Prova catalogo;
    Lavagna_Finta lavagna;
    Finestra_Diario finestra{lavagna.chiamate};
    Pagina_Diario pagina{lavagna.chiamate};
    Carrello_Diario carrello{lavagna.chiamate};
    Dettaglio_Diario dettaglio{lavagna.chiamate};
    File_Di_Prova file;
    Sistema_Con_Eventi sistema;
    std::optional<Catalogo_Aperto> aperto;
    std::optional<Controllo_Disegno> disegno;
};

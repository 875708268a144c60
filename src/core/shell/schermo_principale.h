#pragma once

#include "core/shell/controllo_albero.h"
#include "core/shell/controllo_apertura.h"
#include "core/shell/controllo_comandi.h"
#include "core/shell/controllo_home.h"
#include "core/shell/controllo_ordine.h"
#include "core/shell/controllo_prodotto.h"

/// The main screen: its rooms, and what they share. It decides nothing itself: what is asked of it, it hands
/// to the room whose it is.
class Schermo_Principale : public Schermo {
    Ambiente ambiente_;

  public:
    /// Windows and canvas outlive it; nothing is asked of them before the window's load.
    Schermo_Principale(Class_Progetto_Aperto& progetto, QString cartella_installazione,
                       Vista_Principale& vista, Vista_Finestre& finestre, Lavagna& lavagna);

    Controllo_Accesso Accesso;
    Controllo_Home Home;
    Controllo_Apertura Apertura;
    Controllo_Albero Albero;
    Controllo_Prodotto Prodotto;
    Controllo_Ordine Ordine;
    Controllo_Comandi Comandi;

    Class_Progetto_Aperto& Progetto() const { return ambiente_.Progetto; }
    Stato_Finestra& Stato() { return ambiente_.Stato; }
    /// Long work is under way: what the user does is ignored, and the window refuses to close.
    bool Occupato() const { return ambiente_.Occupato; }

    Filtri Filtri_Correnti() const override { return Progetto().Filtri_Correnti(); }
    QString Prodotto_Corrente() const override { return Progetto().Key_Prodotto_Corrente; }
    qint16 Restitusci_Zona_catalogo() const override { return ambiente_.Stato.Zona(); }

    void Mostra_Intro() override { Home.Mostra_Intro(); }
    void Consulta_Catalogo(bool forza) override {
        const Gesto gesto(ambiente_);
        Prodotto.Consulta_Catalogo(forza);
    }
    void Seleziona_Nodo_Albero(const QString& key) override {
        const Gesto gesto(ambiente_);
        Albero.Seleziona_Nodo_Albero(key);
    }
    void Seleziona_Prodotto(const QString& key) override {
        const Gesto gesto(ambiente_);
        Prodotto.Seleziona_Prodotto(key);
    }
    void Visualizza_Disegno_Esploso(const QString& key) override {
        const Gesto gesto(ambiente_);
        Prodotto.Visualizza_Disegno_Esploso(key);
    }
    void Mostra_Nodo(const QString& key) override {
        const Gesto gesto(ambiente_);
        Prodotto.Mostra_Nodo(key);
    }
    void Visualizza_Evasione_Ordine() override {
        const Gesto gesto(ambiente_);
        Ordine.Visualizza_Evasione_Ordine();
    }
    bool Verifica_Accesso(bool forza) override { return Accesso.Verifica_Accesso(forza); }
    bool Ricarica_Catalogo() override { return Apertura.Ricarica_O_Segnala(); }

    void Evidenzia_In_Distinta(const QString& key) override { Prodotto.Evidenzia_In_Distinta(key); }
    void Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                      const QString& riferimento) override {
        Prodotto.Disegno().Evidenzia_Componente_Grafico(prodotto, codice, riferimento);
    }
    void Aggiungi_Al_Carrello(const QString& prodotto, const QString& codice,
                              const QString& riferimento) override {
        const Gesto gesto(ambiente_);
        Ordine.Carrello().Aggiungi_Componente_Carrello_Evidenzia_Tavola(prodotto, codice, riferimento);
    }
    void Mostra_Immagine(const QString& percorso) override;
    void Scrivi_Pannello(const QString& testo) override;

    void Esegui_Comando(const QString& key) override {
        const Gesto gesto(ambiente_);
        Comandi.Esegui_Comando(key, *this);
    }
    void Aggiorna_Toolbar() override { Comandi.Aggiorna_Toolbar(); }
};

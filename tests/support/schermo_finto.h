#pragma once

#include <QStringList>

#include "core/base/schermo.h"

/// A screen that shows nothing: what it is asked to do goes to a diary.
class Schermo_Finto : public Schermo {
  public:
    explicit Schermo_Finto(QStringList& diario) : diario_(diario) {}

    Filtri Filtri_Correnti() const override { return {"1", "1", {}, {}}; }
    QString Prodotto_Corrente() const override { return Corrente; }
    qint16 Restitusci_Zona_catalogo() const override { return Zona; }
    void Mostra_Intro() override { diario_ << "Intro"; }
    void Consulta_Catalogo(bool) override { diario_ << "Catalogo"; }
    void Seleziona_Nodo_Albero(const QString& key) override { diario_ << "Nodo " + key; }
    void Seleziona_Prodotto(const QString& key) override { diario_ << "Prodotto " + key; }
    void Visualizza_Disegno_Esploso(const QString& key) override { diario_ << "Disegno " + key; }
    void Mostra_Nodo(const QString& key) override { diario_ << "Pagina " + key; }
    void Visualizza_Evasione_Ordine() override { diario_ << "Ordine"; }
    bool Verifica_Accesso(bool) override { return true; }
    bool Ricarica_Catalogo() override { return true; }
    void Evidenzia_In_Distinta(const QString& key) override { diario_ << "Riga " + key; }
    void Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                      const QString& riferimento) override {
        diario_ << "Evidenzia " + prodotto + ' ' + codice + ' ' + riferimento;
    }
    void Aggiungi_Al_Carrello(const QString& prodotto, const QString& codice,
                              const QString& riferimento) override {
        diario_ << "Aggiungi " + prodotto + ' ' + codice + ' ' + riferimento;
    }
    void Mostra_Immagine(const QString& percorso) override { diario_ << "Immagine " + percorso; }
    void Scrivi_Pannello(const QString& testo) override { diario_ << "Pannello " + testo; }
    void Esegui_Comando(const QString& key) override { diario_ << "Comando " + key; }
    void Aggiorna_Toolbar() override { diario_ << "Toolbar"; }

    QString Corrente = "P_1";
    qint16 Zona = 2;

  private:
    QStringList& diario_;
};

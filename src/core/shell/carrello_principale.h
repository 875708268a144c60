#pragma once

#include <QString>

#include "core/cart/controllo_carrello.h"
#include "core/drawing/controllo_disegno.h"

class Controllo_Principale;

/// The cart on the main screen: what the cart asks of the screens around it, and what the drawing asks of the
/// cart.
class Carrello_Principale : private Vicini_Carrello, private Carrello_Disegno, private Tavola_Carrello {
  public:
    explicit Carrello_Principale(Controllo_Principale& schermo) : schermo_(schermo) {}
    /// The drawing, once there is a canvas; both outlive the connection.
    void Collega(Lavagna& lavagna, Controllo_Disegno& disegno);
    void Scollega();

    Controllo_Carrello& Controllo() { return controllo_; }

  private:
    // What the cart asks.
    Contesto_Carrello Contesto() override;
    Messaggi& Desktop() override;
    Tavola_Carrello& Tavola() override { return *this; }
    QString Prodotto_Corrente() const override;
    qint16 Restitusci_Zona_catalogo() const override;
    bool Carrello_Aperto() const override;
    void Visualizza_Evasione_Ordine() override;
    void Evidenzia_Componente_Grafico(const QString& prodotto, const QString& codice,
                                      const QString& riferimento) override;
    void Mostra_Riga_Altrove(const Class_Elenco& riga) override;
    bool Mostra_Seleziona_Componente(const QString& chiave, const QString& prodotto,
                                     const QString& riferimento) override;
    void Mostra_Immagine(const QString& percorso) override;

    // The drawing, as the cart paints on it; without a canvas it knows no object.
    void Colora(const QString& nome, quint32 colore) override;
    void Decolora(const QString& nome) override;
    qint16 Stato(const QString& nome) const override;

    // What the drawing asks.
    bool Esiste_Prodotto(const QString& prodotto) const override;
    bool Esiste_Riga(const QString& prodotto, const QString& riferimento,
                     const QString& codice) const override;
    bool Aggiungi_Da_Tavola(const QString& chiave, const QString& prodotto,
                            const QString& riferimento) override;

    Controllo_Principale& schermo_;
    Lavagna* lavagna_ = nullptr;
    Controllo_Disegno* disegno_ = nullptr;
    Controllo_Carrello controllo_{*this};
};

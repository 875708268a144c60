#pragma once

#include <QMap>
#include <QStringList>

#include "core/cart/aggiunta.h"

/// A drawing with some objects and their colours.
class Tavola_Finta : public Tavola_Carrello {
  public:
    explicit Tavola_Finta(QStringList oggetti = {}) : oggetti_(std::move(oggetti)) {}

    void Colora(const QString& nome, Colore colore) override {
        if (oggetti_.contains(nome))
            Colori[nome] = colore;
    }
    void Decolora(const QString& nome) override {
        for (const char* tipo : {"", "CODICI#$#", "ASSOCIAZIONE#$#"})
            Colori.remove(tipo + nome);
    }
    qint16 Stato(const QString& nome) const override { return Colori.contains(nome) ? 0 : 1; }

    QMap<QString, quint32> Colori;

  private:
    QStringList oggetti_;
};

#pragma once

#include <QMap>
#include <QStringList>
#include <optional>
#include <vector>

#include "core/drawing/lavagna.h"

/// A canvas without a picture: hotspots, marks, colours and settings kept in tables, for tests of what stands
/// on the contract. `documenti` says which hotspots a file holds; another path is a missing file. Events are
/// raised by the test.
class Lavagna_Finta : public Lavagna {
  public:
    struct HotSpot {
        QString nome, stringa;  ///< as on the drawing: several names may share a string
    };
    struct Stato {
        bool segnato = false;
        std::optional<Colore> colore, evidenza;
    };

    QMap<QString, std::vector<HotSpot>> documenti;

    QString percorso;            ///< of the file shown
    QMap<QString, Stato> stati;  ///< by hotspot string, of the file shown
    QMap<QString, QVariant> opzioni;
    QString modo = QStringLiteral("SELEZIONA");
    bool visibile = true;
    QStringList chiamate;  ///< each call in order: name and arguments, separated by blanks

    void Svuota() override;
    void Carica_Layout(const QString& file, qint16 indicatore) override;
    void Chiudi() override;
    void Ridisegna(bool valore) override { chiamate << u"Ridisegna %1"_qs.arg(valore); }
    void Visibile(bool valore) override { chiamate << u"Visibile %1"_qs.arg(visibile = valore); }
    void Imposta_Opzione(const QString& nome, const QVariant& valore) override {
        chiamate << u"Imposta_Opzione %1 %2"_qs.arg(nome, valore.toString());
        opzioni[nome] = valore;
    }
    QVariant Leggi_Opzione(const QString& nome) const override { return opzioni.value(nome); }
    void Esegui(const QString& comando, qint16 conteggio) override;
    void Segna_HotSpot(const QString& nome) override;
    void Togli_Segno_HotSpot(const QString& nome) override;
    qint16 Stato_HotSpot(const QString& nome) const override;
    void Colora_HotSpot(const QString& nome, Colore colore) override;
    void Evidenzia_HotSpot(const QString& nome, Colore colore) override;
    void Decolora_HotSpot(const QString& nome) override;
    void Azzera_Evidenziazione(const QString& nome) override;
    void Ferma_Azione() override { chiamate << u"Ferma_Azione"_qs; }

    /// The state of the hotspot of this string or name; null when the drawing has none.
    Stato* Trova(const QString& nome);

  private:
    QString Stringa(const QString& nome) const;
    /// The same to be changed; what is done to a hotspot that isn't there goes nowhere.
    Stato& Di(const QString& nome) {
        Stato* stato = Trova(nome);
        return stato ? *stato : nessuno_;
    }
    Stato nessuno_;
};

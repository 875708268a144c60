#pragma once
// The ports of core/base without a desktop behind them.

#include <QDir>
#include <QHash>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>
#include <utility>
#include <vector>

#include "core/base/porte.h"

/// Settings in memory.
class Impostazioni_Finte : public Impostazioni {
  public:
    QString Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                  const QString& predefinito) const override;
    void Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                const QString& valore) override;

    /// A value of the program's own application, a null text when there is none.
    QString Valore(const QString& sezione, const QString& chiave) const {
        return valori_.value({NOME_APPLICAZIONE, sezione, chiave});
    }
    void Imposta(const QString& sezione, const QString& chiave, const QString& valore) {
        valori_.insert({NOME_APPLICAZIONE, sezione, chiave}, valore);
    }
    int Scritture = 0;

  private:
    QHash<QStringList, QString> valori_;
};

/// Message boxes: what was shown is kept, questions are answered from a list.
class Messaggi_Finti : public Messaggi {
  public:
    struct Messaggio {
        QString testo;
        Icona icona = Icona::Nessuna;
        bool operator==(const Messaggio&) const = default;
    };
    void Mostra(const QString& testo, Icona icona) override { Mostrati.push_back({testo, icona}); }
    bool Chiedi(const QString& testo) override;

    QStringList Testi() const;
    std::vector<Messaggio> Mostrati;
    QStringList Domande;
    QList<bool> Risposte;  ///< answers to come; "no" when there are none left
};

/// A system of its own: private temporary folder, nothing is ever opened.
class Sistema_Finto : public Sistema {
  public:
    QString Cartella_Temporanea() const override {
        return QDir::toNativeSeparators(cartella_.path()) + QDir::separator();
    }
    void Apri_Con_Predefinito(const QString& percorso) override { Aperti.append(percorso); }
    void Esegui_Eventi() override {}
    QChar Separatore_Decimale() const override { return Separatore; }

    /// Names of all that lies in the temporary folder.
    QStringList Contenuto_Temporaneo() const;
    QStringList Aperti;
    QChar Separatore = u',';

  private:
    QTemporaryDir cartella_;
};

/// Progress as it was told.
class Avanzamento_Finto : public Avanzamento {
  public:
    void Avanza(qint64 fatto, qint64 totale) override { Passi.push_back({fatto, totale}); }

    /// Never backwards, never beyond the total.
    bool Regolare() const;
    std::vector<std::pair<qint64, qint64>> Passi;
};

/// A mail program that takes every mail and answers as told.
class Posta_Finta : public Posta {
  public:
    Risultato_Posta Componi(const Messaggio_Posta& messaggio) override {
        Composti.push_back(messaggio);
        return Risposta;
    }
    std::vector<Messaggio_Posta> Composti;
    Risultato_Posta Risposta;
};

/// Printers that keep what they get: the job and the file's content.
class Stampante_Finta : public Stampante {
  public:
    struct Stampato {
        Lavoro_Stampa lavoro;
        QByteArray pdf;
    };
    std::vector<Voce_Stampante> Elenco() const override { return Stampanti; }
    /// A file that isn't there is an error.
    QString Stampa(const QString& percorso, const Lavoro_Stampa& lavoro) override;

    std::vector<Voce_Stampante> Stampanti;
    std::vector<Stampato> Stampati;
    QString Errore;  ///< answered instead of printing, unless ""
};

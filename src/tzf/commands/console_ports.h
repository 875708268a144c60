#pragma once

#include <QHash>
#include <QString>
#include <QTemporaryDir>

#include "core/base/porte.h"
#include "core/package/class_progetto_aperto.h"

/// Settings that live as long as the program.
class ConsoleSettings : public Impostazioni {
  public:
    QString Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                  const QString& predefinito) const override;
    void Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                const QString& valore) override;

  private:
    QHash<QString, QString> values_;
};

/// Messages on the standard error; a question is answered with no.
class ConsoleMessages : public Messaggi {
  public:
    void Mostra(const QString& testo, Icona icona) override;
    bool Chiedi(const QString& testo) override;
};

/// A temporary folder of its own, which goes with the program; nothing is opened.
class ConsoleSystem : public Sistema {
  public:
    QString Cartella_Temporanea() const override;
    void Apri_Con_Predefinito(const QString&) override {}
    void Esegui_Eventi() override {}
    QChar Separatore_Decimale() const override;

  private:
    QTemporaryDir folder_;
};

/// A catalogue, open as in the viewer.
class OpenCatalogue {
  public:
    /// Fails with `ToolError` when the viewer wouldn't open it.
    explicit OpenCatalogue(const QString& package);
    ~OpenCatalogue() { project.Elimina_Progetto_Aperto(); }
    OpenCatalogue(const OpenCatalogue&) = delete;
    OpenCatalogue& operator=(const OpenCatalogue&) = delete;

  private:
    ConsoleSettings settings_;
    ConsoleMessages messages_;
    ConsoleSystem system_;

  public:
    Class_Progetto_Aperto project;
};

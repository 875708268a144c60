#pragma once

#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "core/base/porte.h"

/// A desktop that does nothing: the benchmarks measure the system's own work. A message ends them.
class Desktop : public Impostazioni, public Messaggi, public Sistema {
  public:
    QString Leggi(const QString&, const QString&, const QString&, const QString& predefinito) const override {
        return predefinito;
    }
    void Scrivi(const QString&, const QString&, const QString&, const QString&) override {}
    void Mostra(const QString& testo, Icona) override {
        std::fprintf(stderr, "message: %s\n", qPrintable(testo));
        std::exit(1);
    }
    bool Chiedi(const QString&) override { return false; }
    QString Cartella_Temporanea() const override { return folder.path() + u'/'; }
    void Apri_Con_Predefinito(const QString&) override {}
    void Esegui_Eventi() override {}
    QChar Separatore_Decimale() const override { return u'.'; }

    QTemporaryDir folder;
};

/// Ends the benchmarks when what they stand on didn't work.
inline void Check(bool good, const char* what) {
    if (!good) {
        std::fprintf(stderr, "%s failed\n", what);
        std::exit(1);
    }
}

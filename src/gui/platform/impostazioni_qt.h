#pragma once

#include <QSettings>
#include <QString>

#include "core/base/porte.h"

/// The per-user settings as an ini file: `Viewer_TZ.ini` in the user's configuration folder, or a given file.
class Impostazioni_Qt : public Impostazioni {
  public:
    /// `file` "" stands for the user's own file.
    explicit Impostazioni_Qt(const QString& file = {});
    QString Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                  const QString& predefinito) const override;
    void Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                const QString& valore) override;

  private:
    QSettings impostazioni_;
};

#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>

#include "core/base/porte.h"

/// The small pictures of the resource package, read once each. A picture with "@2x" in its name is the same
/// one for screens of twice the density.
class Immagini_Risorsa {
  public:
    /// `pacchetto`: path of the resource package.
    Immagini_Risorsa(QString pacchetto, const Sistema& sistema)
        : pacchetto_(std::move(pacchetto)), sistema_(sistema) {}
    /// A picture by its entry name; a null one when the package doesn't hold it. `densita` is the screen's
    /// device pixel ratio.
    QPixmap Immagine(const QString& nome, double densita);

  private:
    QPixmap Carica(const QString& nome) const;

    QString pacchetto_;
    const Sistema& sistema_;
    QHash<QString, QPixmap> immagini_;
};

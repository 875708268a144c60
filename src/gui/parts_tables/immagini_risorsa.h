#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QString>
#include <functional>

/// The small pictures of the resource package, read once each. A picture with "@2x" in its name is the same
/// one for screens of twice the density.
class Immagini_Risorsa {
  public:
    /// `leggi` answers the bytes of a file of the resource package by its name; empty when there is none.
    explicit Immagini_Risorsa(std::function<QByteArray(const QString&)> leggi) : leggi_(std::move(leggi)) {}
    /// A picture by its name; a null one when the package doesn't hold it. `densita` is the screen's device
    /// pixel ratio.
    QPixmap Immagine(const QString& nome, double densita);

  private:
    std::function<QByteArray(const QString&)> leggi_;
    QHash<QString, QPixmap> immagini_;
};

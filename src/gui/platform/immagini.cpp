#include "gui/platform/immagini.h"

#include <QImageReader>

namespace {

constexpr qint64 PIXEL_MASSIMI = 64'000'000;
constexpr QSize ASSAGGIO(64, 64);  ///< enough to tell whether a file can be read

/// A reader made ready for the file; its size as shown, none when the file is no picture to show.
std::optional<QSize> Prepara(QImageReader& lettore) {
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    if (!lettore.canRead() || lettore.format().startsWith("svg"))
        return {};
    const QSize misura = lettore.size();
    if (misura.isEmpty() || qint64(misura.width()) * misura.height() > PIXEL_MASSIMI)
        return {};
    return lettore.transformation() & QImageIOHandler::TransformationRotate90 ? misura.transposed() : misura;
}

QImage Leggi(QImageReader& lettore, const QSize& misura, const QSize& massimo) {
    if (misura.width() > massimo.width() || misura.height() > massimo.height()) {
        const QSize ridotta = misura.scaled(massimo, Qt::KeepAspectRatio).expandedTo({1, 1});
        // The reader reduces before it turns a picture.
        lettore.setScaledSize(misura == lettore.size() ? ridotta : ridotta.transposed());
    }
    return lettore.read();
}

}  // namespace

QImage Leggi_Immagine(const QString& file, const QSize& massimo) {
    QImageReader lettore(file);
    const std::optional<QSize> misura = Prepara(lettore);
    return misura ? Leggi(lettore, *misura, massimo) : QImage();
}

std::optional<QSizeF> Misura_File_Immagine(const QString& file) {
    QImageReader lettore(file);
    const std::optional<QSize> misura = Prepara(lettore);
    if (!misura || Leggi(lettore, *misura, ASSAGGIO).isNull())
        return {};
    return QSizeF(*misura);
}

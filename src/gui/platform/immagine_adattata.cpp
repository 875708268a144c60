#include "gui/platform/immagine_adattata.h"

#include <QPainter>

#include "core/base/testo.h"
#include "gui/platform/icone.h"
#include "gui/platform/immagini.h"

namespace {
constexpr QSize PIXEL_MASSIMI(4096, 4096);  ///< a larger picture is reduced when it is read
}  // namespace

void Immagine_Adattata::Predefinita(const QString& nome) {
    predefinita_ = nome;
    updateGeometry();
    update();
}

void Immagine_Adattata::Carica(const QString& file) {
    immagine_ = file.isEmpty() ? QImage() : Leggi_Immagine(file, PIXEL_MASSIMI);
    updateGeometry();
    update();
}

QSize Immagine_Adattata::sizeHint() const {
    if (!immagine_.isNull())
        return immagine_.deviceIndependentSize().toSize().boundedTo(QSize(640, 480));
    return predefinita_.isEmpty() ? QSize(0, 0)
                                  : QSize(560, static_cast<int>(560 / Rapporto_Vettoriale(predefinita_)));
}

void Immagine_Adattata::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    const QRect spazio = contentsRect();
    if (immagine_.isNull()) {
        if (!predefinita_.isEmpty())
            Disegna_Vettoriale(pittore, predefinita_, spazio, palette(),
                               isEnabled() ? QIcon::Normal : QIcon::Disabled);
        return;
    }
    double larghezza = spazio.width(), altezza = spazio.height();
    Adatta_Immagine(immagine_.width(), immagine_.height(), larghezza, altezza, 1.0);
    // A small picture isn't blown up beyond its own size.
    if (larghezza > immagine_.width()) {
        larghezza = immagine_.width();
        altezza = immagine_.height();
    }
    const QRectF posto(spazio.x() + (spazio.width() - larghezza) / 2,
                       spazio.y() + (spazio.height() - altezza) / 2, larghezza, altezza);
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    // Scaled to the device's pixels in one smooth step: drawing a large picture small is rough otherwise.
    const QSize pixel = (posto.size() * devicePixelRatioF()).toSize();
    pittore.drawImage(posto, immagine_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

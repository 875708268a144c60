#include "gui/shell/form_visualizza_immagine.h"

#include <QPainter>

#include "core/base/testo.h"
#include "gui/platform/immagini.h"

namespace {
constexpr QSize PIXEL_MASSIMI(4096, 4096);  ///< a larger picture is reduced when it is read
constexpr QSize MISURA_INIZIALE(800, 600);
constexpr QSize MISURA_MINIMA(160, 120);
}  // namespace

Form_visualizza_Immagine::Form_visualizza_Immagine(QWidget* padre)
    : Finestra_Secondaria("Form_visualizza_Immagine", "Picture", padre, Qt::Window) {
    setMinimumSize(MISURA_MINIMA);
}

void Form_visualizza_Immagine::Ricarica_Immagine() {
    immagine_ = Leggi_Immagine(tag_, PIXEL_MASSIMI);
    if (!isVisible() && !immagine_.isNull())
        resize(sizeHint());
    update();
}

QSize Form_visualizza_Immagine::sizeHint() const {
    if (immagine_.isNull())
        return MISURA_INIZIALE;
    return immagine_.size().scaled(MISURA_INIZIALE, Qt::KeepAspectRatio).expandedTo(MISURA_MINIMA);
}

void Form_visualizza_Immagine::paintEvent(QPaintEvent*) {
    if (immagine_.isNull() || width() == 0 || height() == 0)
        return;
    double larghezza = width(), altezza = height();
    Adatta_Immagine(immagine_.width(), immagine_.height(), larghezza, altezza, 1);
    QPainter pittore(this);
    const QSize pixel = (QSizeF(larghezza, altezza) * devicePixelRatioF()).toSize().expandedTo({1, 1});
    pittore.drawImage(QRectF(0, 0, larghezza, altezza),
                      immagine_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

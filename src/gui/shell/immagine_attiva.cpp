#include "gui/shell/immagine_attiva.h"

#include <QPainter>

#include "gui/platform/icone.h"
#include "gui/platform/immagini.h"

namespace {
constexpr int ORLO = 1;          ///< around an icon, for the frame of the focus
constexpr int DENSITA_FOTO = 2;  ///< a photograph is kept sharp enough for the densest screens
}  // namespace

void Immagine_Attiva::Icona(const QString& nome, int lato, const QString& tag) {
    icona_ = Icona_Tema(nome);
    foto_ = QImage();
    tag_ = tag;
    setFixedSize(lato + 2 * ORLO, lato + 2 * ORLO);
    update();
}

void Immagine_Attiva::Foto(const QString& file, const QSize& misura) {
    icona_ = QIcon();
    foto_ = Leggi_Immagine(file, misura * DENSITA_FOTO);
    tag_ = file;
    setFixedSize(misura.expandedTo({1, 1}));
    update();
}

void Immagine_Attiva::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    if (!foto_.isNull()) {
        pittore.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSize pixel = (QSizeF(size()) * devicePixelRatioF()).toSize();
        pittore.drawImage(rect(), foto_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        icona_.paint(&pittore, rect().adjusted(ORLO, ORLO, -ORLO, -ORLO), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
    Disegna_Fuoco(pittore);
}

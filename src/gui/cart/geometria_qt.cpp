#include "gui/cart/geometria_qt.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "core/base/twips.h"

void Applica_Geometria(QWidget& finestra, const Geometria_Finestra& geometria) {
    const auto pixel = [](float twips) { return Pixel_Da_Twips(static_cast<double>(twips)); };
    const QPoint posto(pixel(geometria.Left), pixel(geometria.Top));
    // The screen on which it stood may be gone.
    const QScreen* schermo = QGuiApplication::screenAt(posto);
    const QRect spazio = (schermo ? schermo : finestra.screen())->availableGeometry();
    const QSize misura = QSize(pixel(geometria.Width), pixel(geometria.Height)).boundedTo(spazio.size());
    finestra.resize(misura);
    finestra.move(std::clamp(posto.x(), spazio.left(), spazio.right() + 1 - misura.width()),
                  std::clamp(posto.y(), spazio.top(), spazio.bottom() + 1 - misura.height()));
}

Geometria_Finestra Geometria_Di(const QWidget& finestra) {
    const auto twips = [](int pixel) { return static_cast<float>(Twips_Da_Pixel(pixel)); };
    return {twips(finestra.x()), twips(finestra.y()), twips(finestra.height()), twips(finestra.width())};
}

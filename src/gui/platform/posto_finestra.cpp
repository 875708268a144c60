#include "gui/platform/posto_finestra.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/base/twips.h"

namespace {

/// Far beyond any screen: a value above it comes from a damaged file.
constexpr float TWIPS_MASSIMI = 1'000'000;
/// Pixels of a frame; the window manager tells the real ones only when the window is up.
constexpr int BORDO = 6, BARRA_TITOLO = 40;

struct Valore_Posto {
    const char* Chiave;
    float Posto_Finestra::*Campo;
    float Minimo;
};
constexpr std::array<Valore_Posto, 4> VALORI{{{"LEFT", &Posto_Finestra::Left, -TWIPS_MASSIMI},
                                              {"TOP", &Posto_Finestra::Top, -TWIPS_MASSIMI},
                                              {"HEIGHT", &Posto_Finestra::Height, 1},
                                              {"WIDTH", &Posto_Finestra::Width, 1}}};

}  // namespace

Posto_Finestra Leggi_Posto(const Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                           const Posto_Finestra& predefinito) {
    Posto_Finestra posto = predefinito;
    for (const auto& [chiave, campo, minimo] : VALORI) {
        try {
            const float valore = numeri.Conversione_Semplice(
                impostazioni.Leggi(NOME_APPLICAZIONE, sezione, QLatin1String(chiave), {}));
            if (valore >= minimo && valore <= TWIPS_MASSIMI)
                posto.*campo = valore;
        } catch (const std::exception&) {  // the default one stays
        }
    }
    return posto;
}

void Scrivi_Posto(Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                  const Posto_Finestra& posto) {
    for (const auto& [chiave, campo, minimo] : VALORI)
        impostazioni.Scrivi(NOME_APPLICAZIONE, sezione, QLatin1String(chiave), numeri.Testo(posto.*campo));
}

QRect Spazio_Interno(const QRect& spazio) {
    return spazio.adjusted(BORDO, BARRA_TITOLO, -BORDO, -BORDO);
}

Posto_Finestra Posto_Sotto_Barra(const QWidget& principale, QSize misura) {
    const auto* finestra = qobject_cast<const QMainWindow*>(&principale);
    const QWidget& sotto = finestra && finestra->centralWidget() ? *finestra->centralWidget() : principale;
    const QPoint angolo = sotto.mapToGlobal(QPoint(sotto.width() - misura.width() - 2 * BORDO, 0));
    const auto twips = [](int pixel) { return static_cast<float>(Twips_Da_Pixel(pixel)); };
    return {twips(angolo.x()), twips(angolo.y()), twips(misura.height()), twips(misura.width())};
}

void Porta_A(QWidget& finestra, QPoint angolo) {
    // The screen on which it stood may be gone.
    const QScreen* schermo = QGuiApplication::screenAt(angolo);
    const QRect spazio = (schermo ? schermo : finestra.screen())->availableGeometry();
    finestra.resize(finestra.size().boundedTo(Spazio_Interno(spazio).size()));
    const QSize resto = Spazio_Interno(spazio).size() - finestra.size();
    finestra.move(std::clamp(angolo.x(), spazio.left(), spazio.left() + std::max(0, resto.width())),
                  std::clamp(angolo.y(), spazio.top(), spazio.top() + std::max(0, resto.height())));
}

void Disponi(QWidget& finestra, const Posto_Finestra& posto) {
    const auto pixel = [](float twips) { return Pixel_Da_Twips(static_cast<double>(twips)); };
    finestra.resize(pixel(posto.Width), pixel(posto.Height));
    Porta_A(finestra, {pixel(posto.Left), pixel(posto.Top)});
}

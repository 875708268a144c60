#include "gui/platform/finestra_secondaria.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "core/base/twips.h"
#include "gui/platform/icone.h"

namespace {

/// Far beyond any screen: a value above it comes from a damaged file.
constexpr float TWIPS_MASSIMI = 1'000'000;

using Posto = Finestra_Secondaria::Posto;

struct Valore_Posto {
    const char* Chiave;
    float Posto::*Campo;
    float Minimo;
};
constexpr std::array<Valore_Posto, 4> VALORI{{{"LEFT", &Posto::Left, -TWIPS_MASSIMI},
                                              {"TOP", &Posto::Top, -TWIPS_MASSIMI},
                                              {"HEIGHT", &Posto::Height, 1},
                                              {"WIDTH", &Posto::Width, 1}}};

Posto Leggi(const Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione, Posto posto) {
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

void Disponi(QWidget& finestra, const Posto& dove) {
    const auto pixel = [](float twips) { return Pixel_Da_Twips(static_cast<double>(twips)); };
    const QPoint posto(pixel(dove.Left), pixel(dove.Top));
    // The screen on which it stood may be gone.
    const QScreen* schermo = QGuiApplication::screenAt(posto);
    const QRect spazio = (schermo ? schermo : finestra.screen())->availableGeometry();
    const QSize misura = QSize(pixel(dove.Width), pixel(dove.Height)).boundedTo(spazio.size());
    finestra.resize(misura);
    finestra.move(std::clamp(posto.x(), spazio.left(), spazio.right() + 1 - misura.width()),
                  std::clamp(posto.y(), spazio.top(), spazio.bottom() + 1 - misura.height()));
}

}  // namespace

Finestra_Secondaria::Finestra_Secondaria(const char* nome, const char* titolo, QWidget* padre,
                                         Qt::WindowFlags tipo)
    : QDialog(padre, tipo) {
    setObjectName(QLatin1String(nome));
    setWindowTitle(QLatin1String(titolo));
    setWindowIcon(Icona_Tema(QStringLiteral("logo")));
}

Finestra_Secondaria::~Finestra_Secondaria() {
    Scarica();
}

void Finestra_Secondaria::Ricorda_Posto(Impostazioni& impostazioni, const Numeri& numeri,
                                        const QString& sezione, const Posto& predefinito) {
    Disponi(*this, Leggi(impostazioni, numeri, sezione, predefinito));
    scrivi_posto_ = [this, &impostazioni, &numeri, sezione] {
        const auto twips = [](int pixel) { return static_cast<float>(Twips_Da_Pixel(pixel)); };
        const Posto posto{twips(x()), twips(y()), twips(height()), twips(width())};
        for (const auto& [chiave, campo, minimo] : VALORI)
            impostazioni.Scrivi(NOME_APPLICAZIONE, sezione, QLatin1String(chiave),
                                numeri.Testo(posto.*campo));
    };
}

void Finestra_Secondaria::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    caricata_ = true;
}

void Finestra_Secondaria::done(int esito) {
    Scarica();
    QDialog::done(esito);
}

void Finestra_Secondaria::Scarica() {
    if (!std::exchange(caricata_, false))
        return;
    if (scrivi_posto_)
        scrivi_posto_();
    emit Scaricata();
}

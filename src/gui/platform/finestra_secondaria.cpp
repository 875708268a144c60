#include "gui/platform/finestra_secondaria.h"

#include <utility>

#include "core/base/twips.h"
#include "gui/platform/icone.h"

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
                                        const QString& sezione, const Posto_Finestra& predefinito) {
    Disponi(*this, Leggi_Posto(impostazioni, numeri, sezione, predefinito));
    scrivi_posto_ = [this, &impostazioni, &numeri, sezione] {
        const auto twips = [](int pixel) { return static_cast<float>(Twips_Da_Pixel(pixel)); };
        Scrivi_Posto(impostazioni, numeri, sezione,
                     {twips(x()), twips(y()), twips(height()), twips(width())});
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

#include "core/shell/geometria_finestra.h"

#include <stdexcept>

namespace {

/// Far beyond any screen: a value above it comes from a damaged file.
constexpr float TWIPS_MASSIMI = 1'000'000;

float Leggi(const Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
            const char* chiave, float minimo, float predefinito) {
    const QString testo = impostazioni.Leggi(NOME_APPLICAZIONE, sezione, QLatin1String(chiave), {});
    try {
        const float valore = numeri.Conversione_Semplice(testo);
        return valore >= minimo && valore <= TWIPS_MASSIMI ? valore : predefinito;
    } catch (const std::exception&) {
        return predefinito;
    }
}

}  // namespace

Geometria_Finestra Leggi_Geometria(const Impostazioni& impostazioni, const Numeri& numeri,
                                   const QString& sezione, const Geometria_Finestra& predefinita) {
    const auto leggi = [&](const char* chiave, float minimo, float valore) {
        return Leggi(impostazioni, numeri, sezione, chiave, minimo, valore);
    };
    return {leggi("LEFT", -TWIPS_MASSIMI, predefinita.Left), leggi("TOP", -TWIPS_MASSIMI, predefinita.Top),
            leggi("HEIGHT", 1, predefinita.Height), leggi("WIDTH", 1, predefinita.Width)};
}

void Scrivi_Geometria(Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                      const Geometria_Finestra& geometria) {
    const auto scrivi = [&](const char* chiave, float valore) {
        impostazioni.Scrivi(NOME_APPLICAZIONE, sezione, QLatin1String(chiave), numeri.Testo(valore));
    };
    scrivi("LEFT", geometria.Left);
    scrivi("TOP", geometria.Top);
    scrivi("HEIGHT", geometria.Height);
    scrivi("WIDTH", geometria.Width);
}

#include "gui/drawing/pittore_hotspot.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double FORZA_CHIARO = .62;  ///< how far a tint goes from white to its colour
constexpr double FORZA_SCURO = .72;   ///< and from black
constexpr int LUCE_DI_MEZZO = 110;    ///< a ground below this lightness is dark

QColor Verso(const QColor& da, Colore colore, double parte) {
    const QColor a = QColor::fromRgb(colore);
    const auto canale = [parte](int x, int y) { return static_cast<int>(x + (y - x) * parte + .5); };
    return QColor(canale(da.red(), a.red()), canale(da.green(), a.green()), canale(da.blue(), a.blue()));
}

}  // namespace

Pittore_HotSpot::Pittore_HotSpot(Mappa_HotSpot& mappa)
    : mappa_(mappa), scuri_(mappa.Documento().Elementi().size()) {}

void Pittore_HotSpot::Imposta_Fondo(const Immagine_Pagina& pagina) {
    fondo_ = pagina;
    scuri_.assign(scuri_.size(), {});
}

bool Pittore_HotSpot::Scuro(int elemento) {
    auto& scuro = scuri_[static_cast<size_t>(elemento)];
    if (scuro || fondo_.immagine.isNull())
        return scuro.value_or(false);
    // The ground is what most of the silhouette shows, so the middle one of some samples.
    const Sagoma& sagoma = mappa_.Sagoma_Di(elemento);
    const QRectF area = sagoma.Area();
    std::vector<int> luci;
    constexpr int CAMPIONI = 8;
    for (int i = 0; i < CAMPIONI * CAMPIONI; ++i) {
        const QPointF punto = area.topLeft() + QPointF((i % CAMPIONI + .5) / CAMPIONI * area.width(),
                                                       (i / CAMPIONI + .5) / CAMPIONI * area.height());
        const QPoint pixel = (punto * fondo_.scala).toPoint() - fondo_.area.topLeft();
        if (sagoma.Contiene(punto) && fondo_.immagine.rect().contains(pixel))
            luci.push_back(
                qGray(reinterpret_cast<const QRgb*>(fondo_.immagine.constScanLine(pixel.y()))[pixel.x()]));
    }
    const auto mezzo = luci.begin() + static_cast<ptrdiff_t>(luci.size() / 2);
    std::nth_element(luci.begin(), mezzo, luci.end());
    scuro = !luci.empty() && *mezzo < LUCE_DI_MEZZO;
    return *scuro;
}

void Pittore_HotSpot::Tinge(QPainter& pittore, int elemento, const Aspetto_HotSpot& aspetto, double scala,
                            double pixel) {
    const bool scuro = Scuro(elemento);
    if (aspetto.riempimento) {
        pittore.setCompositionMode(scuro ? QPainter::CompositionMode_Screen
                                         : QPainter::CompositionMode_Multiply);
        Riempi(pittore, elemento,
               scuro ? Verso(Verso(Qt::black, *aspetto.riempimento, FORZA_SCURO), 0xffffff, .12)
                     : Verso(Qt::white, *aspetto.riempimento, FORZA_CHIARO),
               scala);
        pittore.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    if (aspetto.bordo)  // a border of the filling's colour stands out by being stronger
        Traccia(pittore, elemento,
                scuro ? Verso(Qt::white, *aspetto.bordo, .75) : Verso(Qt::black, *aspetto.bordo, .8), scala,
                2 * pixel);
}

void Pittore_HotSpot::Contorna(QPainter& pittore, int elemento, const QColor& colore, double scala,
                               double pixel) {
    Traccia(pittore, elemento, Scuro(elemento) ? Qt::black : Qt::white, scala, 4 * pixel);
    Traccia(pittore, elemento, colore, scala, 2 * pixel);
}

void Pittore_HotSpot::Riempi(QPainter& pittore, int elemento, const QColor& colore, double scala) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(colore);
    for (const auto& contorno : mappa_.Sagoma_Di(elemento).Contorni()) {
        poligono_.clear();
        for (const QPointF& punto : contorno)
            poligono_ << punto * scala;
        pittore.drawPolygon(poligono_, Qt::WindingFill);
    }
}

/// A line along the outlines, as the band between two copies of each, moved apart: outlines are smooth, so it
/// needs none of the joins that make a general stroke slow.
void Pittore_HotSpot::Traccia(QPainter& pittore, int elemento, const QColor& colore, double scala,
                              double larghezza) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(colore);
    for (const auto& contorno : mappa_.Sagoma_Di(elemento).Contorni()) {
        const size_t n = contorno.size();
        poligono_.resize(static_cast<qsizetype>(2 * n + 2));
        for (size_t i = 0; i < n; ++i) {
            const QPointF lungo = contorno[(i + 1) % n] - contorno[(i + n - 1) % n];
            const double misura = std::hypot(lungo.x(), lungo.y());
            const QPointF fuori =
                misura > 0 ? QPointF(lungo.y(), -lungo.x()) * (larghezza / 2 / misura) : QPointF();
            poligono_[static_cast<qsizetype>(i)] = contorno[i] * scala + fuori;
            poligono_[static_cast<qsizetype>(2 * n + 1 - i)] = contorno[i] * scala - fuori;
        }
        poligono_[static_cast<qsizetype>(n)] = poligono_[0];
        poligono_[static_cast<qsizetype>(n + 1)] = poligono_[static_cast<qsizetype>(2 * n + 1)];
        pittore.drawPolygon(poligono_, Qt::WindingFill);
    }
}

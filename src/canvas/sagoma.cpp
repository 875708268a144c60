#include "canvas/sagoma.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

namespace {

/// Coverage from which a cell holds ink: low, so that a hairline that crosses the corner of a cell stays
/// closed.
constexpr uchar INCHIOSTRO = 6;

/// Replaces each point by the mean of itself and its neighbours.
std::vector<QPointF> Liscia(const std::vector<QPointF>& punti) {
    std::vector<QPointF> lisci(punti.size());
    for (size_t i = 0, n = punti.size(); i < n; ++i)
        lisci[i] = (punti[(i + n - 1) % n] + 2 * punti[i] + punti[(i + 1) % n]) / 4;
    return lisci;
}

/// Leaves out points that lie within a fraction of a cell of the line through what is kept.
std::vector<QPointF> Semplifica(const std::vector<QPointF>& punti) {
    constexpr double SCARTO = 0.12;
    std::vector<QPointF> tenuti{punti.front()};
    size_t ultimo = 0;
    for (size_t i = 2; i < punti.size(); ++i) {
        const QPointF a = punti[ultimo], d = punti[i] - a;
        const double lunghezza = std::hypot(d.x(), d.y());
        bool lontano = i - ultimo > 24;
        for (size_t k = ultimo + 1; k < i && !lontano; ++k) {
            const QPointF v = punti[k] - a;
            lontano = std::abs(d.x() * v.y() - d.y() * v.x()) > SCARTO * lunghezza;
        }
        if (lontano) {
            ultimo = i - 1;
            tenuti.push_back(punti[ultimo]);
        }
    }
    tenuti.push_back(punti.back());
    return tenuti;
}

}  // namespace

Sagoma::Sagoma(const uchar* copertura, int larghezza, int altezza, int passo, const QRectF& area)
    : area_(area), larghezza_(larghezza), altezza_(altezza) {
    // Flood from outside, through a border of one cell that is always empty: what it can't reach is the
    // silhouette.
    const int largo = larghezza + 2, alto = altezza + 2;
    enum : uchar { DENTRO, MURO, FUORI };
    std::vector<uchar> campo(static_cast<size_t>(largo) * static_cast<size_t>(alto), DENTRO);
    for (int y = 0; y < altezza; ++y)
        for (int x = 0; x < larghezza; ++x)
            if (copertura[y * passo + x] >= INCHIOSTRO)
                campo[static_cast<size_t>((y + 1) * largo + x + 1)] = MURO;
    std::vector<int> da_vedere{0};
    campo[0] = FUORI;
    while (!da_vedere.empty()) {
        const int c = da_vedere.back(), x = c % largo;
        da_vedere.pop_back();
        const auto entra = [&](int vicino) {
            if (campo[static_cast<size_t>(vicino)] == DENTRO) {
                campo[static_cast<size_t>(vicino)] = FUORI;
                da_vedere.push_back(vicino);
            }
        };
        if (x > 0)
            entra(c - 1);
        if (x < largo - 1)
            entra(c + 1);
        if (c >= largo)
            entra(c - largo);
        if (c < largo * (alto - 1))
            entra(c + largo);
    }
    celle_.resize(static_cast<size_t>(larghezza) * static_cast<size_t>(altezza));
    for (int y = 0; y < altezza; ++y)
        for (int x = 0; x < larghezza; ++x) {
            const bool piena = campo[static_cast<size_t>((y + 1) * largo + x + 1)] != FUORI;
            celle_[static_cast<size_t>(y) * static_cast<size_t>(larghezza) + static_cast<size_t>(x)] = piena;
            piene_ += piena;
        }
}

bool Sagoma::Contiene(QPointF punto) const {
    if (Vuota())
        return false;
    const double x = (punto.x() - area_.x()) / area_.width() * larghezza_;
    const double y = (punto.y() - area_.y()) / area_.height() * altezza_;
    return x >= 0 && y >= 0 && x < larghezza_ && y < altezza_ &&
           Piena(static_cast<int>(x), static_cast<int>(y));
}

QPointF Sagoma::In_Pagina(double x, double y) const {
    return {area_.x() + x * area_.width() / larghezza_, area_.y() + y * area_.height() / altezza_};
}

std::vector<std::vector<QPointF>> Sagoma::Contorni() const {
    // Edges between a full and an empty cell, the full one on the right hand of the way: 0 right, 1 down, 2
    // left, 3 up.
    static constexpr std::array<std::array<int, 2>, 4> PASSI = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
    const int largo = larghezza_ + 1;
    std::vector<uchar> lati(static_cast<size_t>(largo) * static_cast<size_t>(altezza_ + 1), 0);
    const auto vertice = [&](int x, int y) -> uchar& { return lati[static_cast<size_t>(y * largo + x)]; };
    for (int y = 0; y < altezza_; ++y)
        for (int x = 0; x < larghezza_; ++x) {
            if (!Piena(x, y))
                continue;
            if (!Piena(x, y - 1))
                vertice(x, y) |= 1;
            if (!Piena(x + 1, y))
                vertice(x + 1, y) |= 2;
            if (!Piena(x, y + 1))
                vertice(x + 1, y + 1) |= 4;
            if (!Piena(x - 1, y))
                vertice(x, y + 1) |= 8;
        }
    std::vector<std::vector<QPointF>> contorni;
    for (int inizio_y = 0; inizio_y <= altezza_; ++inizio_y)
        for (int inizio_x = 0; inizio_x <= larghezza_; ++inizio_x)
            while (vertice(inizio_x, inizio_y)) {
                std::vector<QPointF> punti;
                int x = inizio_x, y = inizio_y, verso = -1;
                while (vertice(x, y)) {
                    // Where two outlines touch at a corner, turn right first: they stay two outlines.
                    int prossimo = verso < 0 ? 0 : (verso + 1) % 4;
                    while (!(vertice(x, y) & (1 << prossimo)))
                        prossimo = (prossimo + (verso < 0 ? 1 : 3)) % 4;
                    vertice(x, y) = static_cast<uchar>(vertice(x, y) & ~(1 << prossimo));
                    const auto [dx, dy] = PASSI[static_cast<size_t>(prossimo)];
                    punti.emplace_back(x + dx / 2.0, y + dy / 2.0);
                    x += dx;
                    y += dy;
                    verso = prossimo;
                }
                punti = Semplifica(Liscia(Liscia(punti)));
                for (QPointF& punto : punti)
                    punto = In_Pagina(punto.x(), punto.y());
                contorni.push_back(std::move(punti));
            }
    return contorni;
}

std::vector<QPointF> Sagoma::Punti_Interni() const {
    // Distance from the border, in cells, by two sweeps.
    std::vector<int> distanza(celle_.size(), 0);
    const auto d = [&](int x, int y) -> int {
        return x < 0 || y < 0 || x >= larghezza_ || y >= altezza_
                   ? 0
                   : distanza[static_cast<size_t>(y * larghezza_ + x)];
    };
    for (int y = 0; y < altezza_; ++y)
        for (int x = 0; x < larghezza_; ++x)
            if (Piena(x, y))
                distanza[static_cast<size_t>(y * larghezza_ + x)] = std::min(d(x - 1, y), d(x, y - 1)) + 1;
    for (int y = altezza_ - 1; y >= 0; --y)
        for (int x = larghezza_ - 1; x >= 0; --x)
            if (Piena(x, y))
                distanza[static_cast<size_t>(y * larghezza_ + x)] =
                    std::min(d(x, y), std::min(d(x + 1, y), d(x, y + 1)) + 1);
    std::vector<int> ordine;
    for (size_t i = 0; i < celle_.size(); ++i)
        if (celle_[i])
            ordine.push_back(static_cast<int>(i));
    std::stable_sort(ordine.begin(), ordine.end(), [&](int a, int b) {
        return distanza[static_cast<size_t>(a)] > distanza[static_cast<size_t>(b)];
    });
    std::vector<QPointF> punti;
    punti.reserve(ordine.size());
    for (const int cella : ordine)
        punti.push_back(In_Pagina(cella % larghezza_ + 0.5, cella / larghezza_ + 0.5));
    return punti;
}

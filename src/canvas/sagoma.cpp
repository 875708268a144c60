#include "canvas/sagoma.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace {

/// Coverage from which a cell holds ink: low, so that a hairline that crosses the corner of a cell stays
/// closed.
constexpr uchar INCHIOSTRO = 6;

/// Replaces each point by a mean of itself and its neighbours.
std::vector<QPointF> Liscia(const std::vector<QPointF>& punti) {
    static constexpr std::array<double, 4> PESI = {20 / 64., 15 / 64., 6 / 64., 1 / 64.};
    const size_t n = punti.size();
    std::vector<QPointF> lisci(n);
    for (size_t i = 0; i < n; ++i) {
        QPointF somma = punti[i] * PESI[0];
        for (size_t k = 1; k < PESI.size(); ++k)
            somma += (punti[(i + k) % n] + punti[(i + n * k - k) % n]) * PESI[k];
        lisci[i] = somma;
    }
    return lisci;
}

/// Leaves out points that lie within a fraction of a cell of the line through what is kept.
std::vector<QPointF> Semplifica(const std::vector<QPointF>& punti) {
    constexpr double SCARTO = 0.25;
    std::vector<QPointF> tenuti{punti.front()};
    size_t ultimo = 0;
    for (size_t i = 2; i < punti.size(); ++i) {
        const QPointF a = punti[ultimo], d = punti[i] - a;
        const double lunghezza = std::sqrt(d.x() * d.x() + d.y() * d.y());
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
    parole_ = static_cast<size_t>(largo + 63) / 64;
    celle_.resize(parole_ * static_cast<size_t>(alto), 0);
    for (int y = 0; y < alto; ++y)
        for (int x = 0; x < largo; ++x)
            if (campo[static_cast<size_t>(y * largo + x)] != FUORI) {
                celle_[static_cast<size_t>(y) * parole_ + static_cast<size_t>(x) / 64] |= quint64(1)
                                                                                          << (x % 64);
                ++piene_;
            }
    Segui_Contorni();
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

void Sagoma::Segui_Contorni() {
    // Edges between a full and an empty cell, the full one on the right hand of the way: 0 right, 1 down, 2
    // left, 3 up.
    static constexpr std::array<std::array<int, 2>, 4> PASSI = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
    // Bit x of a row's word is the cell before x, so x is the line between a bit and the next.
    const int largo = larghezza_ + 1;
    std::vector<uchar> lati(static_cast<size_t>(largo) * static_cast<size_t>(altezza_ + 1), 0);
    const auto vertice = [&](int x, int y) -> uchar& { return lati[static_cast<size_t>(y * largo + x)]; };
    const auto per_ogni_bit = [](quint64 parola, size_t p, auto azione) {
        for (; parola; parola &= parola - 1)
            azione(static_cast<int>(p * 64) + std::countr_zero(parola));
    };
    std::vector<int> inizi;
    for (int y = 0; y <= altezza_; ++y) {
        const quint64* sopra = &celle_[static_cast<size_t>(y) * parole_];
        const quint64* sotto = sopra + parole_;
        for (size_t p = 0; p < parole_; ++p) {
            per_ogni_bit(sotto[p] & ~sopra[p], p, [&](int x) {
                vertice(x - 1, y) |= 1;
                inizi.push_back(y * largo + x - 1);
            });
            per_ogni_bit(sopra[p] & ~sotto[p], p, [&](int x) { vertice(x, y) |= 4; });
            if (y == altezza_)
                continue;
            const quint64 seguente = sotto[p] >> 1 | (p + 1 < parole_ ? sotto[p + 1] << 63 : 0);
            per_ogni_bit(sotto[p] & ~seguente, p, [&](int x) { vertice(x, y) |= 2; });
            per_ogni_bit(~sotto[p] & seguente, p, [&](int x) { vertice(x, y + 1) |= 8; });
        }
    }
    for (const int inizio : inizi) {
        std::vector<QPointF> punti;
        int x = inizio % largo, y = inizio / largo, verso = 0;
        if (!(vertice(x, y) & 1))
            continue;  // part of an outline already followed
        while (vertice(x, y)) {
            // Where two outlines touch at a corner, turn right first: they stay two outlines.
            int prossimo = punti.empty() ? 0 : (verso + 1) % 4;
            while (!(vertice(x, y) & (1 << prossimo)))
                prossimo = (prossimo + 3) % 4;
            vertice(x, y) = static_cast<uchar>(vertice(x, y) & ~(1 << prossimo));
            const auto [dx, dy] = PASSI[static_cast<size_t>(prossimo)];
            punti.emplace_back(x + dx / 2.0, y + dy / 2.0);
            x += dx;
            y += dy;
            verso = prossimo;
        }
        punti = Semplifica(Liscia(punti));
        for (QPointF& punto : punti)
            punto = In_Pagina(punto.x(), punto.y());
        contorni_.push_back(std::move(punti));
    }
}

std::vector<QPointF> Sagoma::Punti_Interni() const {
    // Distance from the border, in cells, by two sweeps.
    std::vector<int> distanza(static_cast<size_t>(larghezza_) * static_cast<size_t>(altezza_), 0);
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
    for (size_t i = 0; i < distanza.size(); ++i)
        if (distanza[i] > 0)
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

#include "canvas/mappa_hotspot.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "canvas/superficie.h"

namespace {

/// Cells of a silhouette: about those of a page of 2048, within bounds that keep small balloons round and
/// large groups quick.
constexpr double CELLE_PAGINA = 2048;
constexpr double PIXEL_MASSIMI = 2e6;  ///< of the drawing that they are made of
constexpr double CELLE_MINIME = 96, CELLE_MASSIME = 512;

int Celle(double lato, double lato_pagina) {
    return static_cast<int>(
        std::ceil(std::clamp(lato / lato_pagina * CELLE_PAGINA, CELLE_MINIME, CELLE_MASSIME)));
}

/// How much the silhouette's grid is wider than the ink, on each side.
double Bordo(const QRectF& ingombro) {
    return std::max(ingombro.width(), ingombro.height()) * .01;
}

}  // namespace

Mappa_HotSpot::Mappa_HotSpot(std::shared_ptr<const Documento_Tavola> documento)
    : documento_(documento),
      disegnatore_(documento->Testo(), documento->Pagina()),
      ingombri_(documento->Elementi().size()),
      sagome_(documento->Elementi().size()) {}

const QRectF& Mappa_HotSpot::Ingombro(int elemento) {
    auto& ingombro = ingombri_[static_cast<size_t>(elemento)];
    if (!ingombro)
        ingombro = disegnatore_.Ingombro(documento_->Elementi()[static_cast<size_t>(elemento)].id) &
                   QRectF({}, documento_->Pagina());
    return *ingombro;
}

/// The ink of an element, one byte to a pixel.
struct Mappa_HotSpot::Copertura {
    QSize pixel;
    double scala;  ///< pixels to a page unit, in both directions: letters are drawn right only so
    qsizetype passo;
    std::vector<uchar> ink;

    /// The part of it that holds any ink.
    QRect Inchiostro() const {
        QRect parte;
        for (int y = 0; y < pixel.height(); ++y) {
            const uchar* riga = &ink[static_cast<size_t>(y * passo)];
            const uchar *fine = riga + pixel.width(), *primo = std::find_if(riga, fine, std::identity());
            if (primo == fine)
                continue;
            while (!fine[-1])
                --fine;
            parte |= QRect(static_cast<int>(primo - riga), y, static_cast<int>(fine - primo), 1);
        }
        return parte;
    }
    /// Fewer, larger pixels: each as strong as the strongest of those that reach into it.
    std::vector<uchar> Ridotta(int larghezza, int altezza) const {
        std::vector<uchar> celle(static_cast<size_t>(larghezza) * static_cast<size_t>(altezza), 0);
        const auto per_ogni_cella = [](int p, int pixel_totali, int celle_totali, auto azione) {
            const qint64 prima = qint64(p) * celle_totali / pixel_totali;
            const qint64 ultima = (qint64(p + 1) * celle_totali - 1) / pixel_totali;
            for (qint64 c = prima; c <= ultima; ++c)
                azione(c);
        };
        for (int y = 0; y < pixel.height(); ++y)
            for (int x = 0; x < pixel.width(); ++x)
                if (const uchar forza = ink[static_cast<size_t>(y * passo + x)])
                    per_ogni_cella(y, pixel.height(), altezza, [&](qint64 riga) {
                        per_ogni_cella(x, pixel.width(), larghezza, [&](qint64 colonna) {
                            uchar& cella = celle[static_cast<size_t>(riga * larghezza + colonna)];
                            cella = std::max(cella, forza);
                        });
                    });
        return celle;
    }
};

Mappa_HotSpot::Copertura Mappa_HotSpot::Disegna(int elemento, const QRectF& area, double scala) const {
    Copertura c{(area.size() * scala).toSize() + QSize(1, 1), scala, 0, {}};
    c.passo = (c.pixel.width() + 3) & ~3;
    c.ink.resize(static_cast<size_t>(c.passo * c.pixel.height()), 0);
    const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COPERTURA, c.ink.data(),
                                           c.pixel.width(), c.pixel.height(), c.passo);
    disegnatore_.Disegna_Elemento(superficie.Contesto(),
                                  documento_->Elementi()[static_cast<size_t>(elemento)].id, area.topLeft(),
                                  scala);
    return c;
}

const Sagoma& Mappa_HotSpot::Sagoma_Di(int elemento) {
    auto& sagoma = sagome_[static_cast<size_t>(elemento)];
    if (sagoma)
        return *sagoma;
    sagoma = std::make_unique<Sagoma>();
    QRectF ingombro = Ingombro(elemento);
    const QSizeF pagina = documento_->Pagina();
    const double lato_pagina = std::max(pagina.width(), pagina.height());
    for (const bool primo : {true, false}) {
        if (ingombro.isNull())
            break;
        const double bordo = Bordo(ingombro);
        const QRectF area = ingombro.adjusted(-bordo, -bordo, bordo, bordo);
        // The cells of the two directions differ, so that a long thin element is followed as well as a round
        // one.
        const int larghezza = Celle(area.width(), lato_pagina), altezza = Celle(area.height(), lato_pagina);
        const Copertura c = Disegna(elemento, area,
                                    std::min(std::max(larghezza / area.width(), altezza / area.height()),
                                             std::sqrt(PIXEL_MASSIMI / (area.width() * area.height()))));
        const QRect ink = c.Inchiostro();
        // The renderer's bounds of a straight line reach to the page's corner: follow what is really there.
        if (primo && (ink.width() < c.pixel.width() / 2 || ink.height() < c.pixel.height() / 2)) {
            ingombro =
                QRectF(area.topLeft() + QPointF(ink.topLeft()) / c.scala, QSizeF(ink.size()) / c.scala);
            ingombri_[static_cast<size_t>(elemento)] = ingombro;
            continue;
        }
        const QSize celle = c.pixel.boundedTo({larghezza, altezza});
        *sagoma = Sagoma(c.Ridotta(celle.width(), celle.height()).data(), celle.width(), celle.height(),
                         celle.width(), QRectF(area.topLeft(), QSizeF(c.pixel) / c.scala));
        break;
    }
    return *sagoma;
}

void Mappa_HotSpot::Prepara() {
    if (pronta_)
        return;
    pronta_ = true;
    const int numero = static_cast<int>(documento_->Elementi().size());
    lato_ = std::clamp(static_cast<int>(std::sqrt(numero)) * 2, 1, 128);
    celle_.assign(static_cast<size_t>(lato_) * static_cast<size_t>(lato_), {});
    const QSizeF pagina = documento_->Pagina();
    const auto cella = [&](double valore, double lato_pagina) {
        return std::clamp(static_cast<int>(valore / lato_pagina * lato_), 0, lato_ - 1);
    };
    for (int e = numero - 1; e >= 0; --e) {
        const QRectF& r = Ingombro(e);
        if (r.isNull())
            continue;
        const double bordo = Bordo(r);
        const int x0 = cella(r.left() - bordo, pagina.width()), x1 = cella(r.right() + bordo, pagina.width());
        const int y0 = cella(r.top() - bordo, pagina.height()),
                  y1 = cella(r.bottom() + bordo, pagina.height());
        if ((x1 - x0 + 1) * (y1 - y0 + 1) > std::max(64, lato_ * 2)) {
            estesi_.push_back(e);
            continue;
        }
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x)
                celle_[static_cast<size_t>(y * lato_ + x)].push_back(e);
    }
}

int Mappa_HotSpot::Elemento_In(QPointF punto) {
    const QSizeF pagina = documento_->Pagina();
    if (punto.x() < 0 || punto.y() < 0 || punto.x() >= pagina.width() || punto.y() >= pagina.height())
        return -1;
    Prepara();
    const int x = std::min(static_cast<int>(punto.x() / pagina.width() * lato_), lato_ - 1);
    const int y = std::min(static_cast<int>(punto.y() / pagina.height() * lato_), lato_ - 1);
    const std::vector<int>& vicini = celle_[static_cast<size_t>(y * lato_ + x)];
    auto a = vicini.cbegin(), b = estesi_.cbegin();
    while (a != vicini.end() || b != estesi_.end()) {
        const int elemento = b == estesi_.end() || (a != vicini.end() && *a > *b) ? *a++ : *b++;
        const QRectF& ingombro = Ingombro(elemento);
        const double bordo = Bordo(ingombro);
        if (ingombro.adjusted(-bordo, -bordo, bordo, bordo).contains(punto) &&
            Sagoma_Di(elemento).Contiene(punto))
            return elemento;
    }
    return -1;
}

std::optional<QPointF> Mappa_HotSpot::Punto_Scoperto(int elemento,
                                                     const std::function<bool(QPointF)>& ammesso) {
    for (const QPointF& punto : Sagoma_Di(elemento).Punti_Interni())
        if (Elemento_In(punto) == elemento && ammesso(punto))
            return punto;
    return {};
}

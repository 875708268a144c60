#include "canvas/mappa_hotspot.h"

#include <algorithm>
#include <cmath>

#include "canvas/superficie.h"

namespace {

/// Cells of a silhouette: about those of a page of 2048, within bounds that keep small balloons round and
/// large groups quick.
constexpr double CELLE_PAGINA = 2048;
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

const Sagoma& Mappa_HotSpot::Sagoma_Di(int elemento) {
    auto& sagoma = sagome_[static_cast<size_t>(elemento)];
    if (sagoma)
        return *sagoma;
    sagoma = std::make_unique<Sagoma>();
    const QRectF& ingombro = Ingombro(elemento);
    if (ingombro.isNull())
        return *sagoma;
    // The two directions are scaled apart, so that a long thin element is followed as well as a round one.
    const QSizeF pagina = documento_->Pagina();
    const double lato_pagina = std::max(pagina.width(), pagina.height());
    const double bordo = Bordo(ingombro);
    const QRectF area = ingombro.adjusted(-bordo, -bordo, bordo, bordo);
    const int larghezza = Celle(area.width(), lato_pagina), altezza = Celle(area.height(), lato_pagina);
    const int passo = (larghezza + 3) & ~3;
    std::vector<uchar> copertura(static_cast<size_t>(passo) * static_cast<size_t>(altezza), 0);
    {
        const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COPERTURA, copertura.data(),
                                               larghezza, altezza, passo);
        disegnatore_.Disegna_Elemento(superficie.Contesto(),
                                      documento_->Elementi()[static_cast<size_t>(elemento)].id,
                                      area.topLeft(), larghezza / area.width(), altezza / area.height());
    }
    *sagoma = Sagoma(copertura.data(), larghezza, altezza, passo, area);
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

#include "gui/drawing/vista_pagina.h"

#include <algorithm>

namespace {

constexpr int MARGINE = 6;  ///< around a fitted page
constexpr double ZOOM_MINIMO = 0.25, ZOOM_MASSIMO = 64;

/// The origin along one side: centred when there is room, else within the page.
double Entro(double origine, double pagina, double finestra) {
    return pagina <= finestra ? (pagina - finestra) / 2 : std::clamp(origine, 0.0, pagina - finestra);
}

}  // namespace

double Vista_Pagina::Scala_Adattata() const {
    return std::min(std::max(1, finestra_.width() - 2 * MARGINE) / pagina_.width(),
                    std::max(1, finestra_.height() - 2 * MARGINE) / pagina_.height());
}

void Vista_Pagina::Imposta_Pagina(QSizeF pagina) {
    pagina_ = pagina;
    Adatta();
}

void Vista_Pagina::Imposta_Finestra(QSize finestra) {
    if (finestra == finestra_)
        return;
    const QPointF centro = In_Pagina(QPointF(finestra_.width(), finestra_.height()) / 2);
    finestra_ = finestra;
    if (adattata_) {
        Adatta();
        return;
    }
    origine_ = centro * scala_ - QPointF(finestra.width(), finestra.height()) / 2;
    Sistema();
}

void Vista_Pagina::Adatta() {
    adattata_ = true;
    if (Vuota())
        return;
    scala_ = Scala_Adattata();
    Sistema();
}

void Vista_Pagina::Ingrandisci(double fattore, QPointF perno) {
    if (Vuota() || !(fattore > 0))
        return;
    const QPointF fermo = In_Pagina(perno);
    const double adattata = Scala_Adattata();
    scala_ = std::clamp(scala_ * fattore, adattata * ZOOM_MINIMO, adattata * ZOOM_MASSIMO);
    adattata_ = false;
    origine_ = fermo * scala_ - perno;
    Sistema();
}

void Vista_Pagina::Ingrandisci_Area(const QRectF& area) {
    if (Vuota() || area.isEmpty())
        return;
    const QPointF centro = In_Pagina(area.center());
    Ingrandisci(std::min(finestra_.width() / area.width(), finestra_.height() / area.height()),
                area.center());
    origine_ = centro * scala_ - QPointF(finestra_.width(), finestra_.height()) / 2;
    Sistema();
}

void Vista_Pagina::Scorri_A(QPointF origine) {
    origine_ = origine;
    Sistema();
}

void Vista_Pagina::Porta_In_Vista(const QRectF& parte) {
    const QRectF r = In_Finestra(parte).adjusted(-MARGINE, -MARGINE, MARGINE, MARGINE);
    const auto passo = [](double inizio, double fine, double finestra) {
        if (inizio < 0 || fine - inizio > finestra)
            return inizio;
        return fine > finestra ? fine - finestra : 0;
    };
    Scorri_A(origine_ + QPointF(passo(r.left(), r.right(), finestra_.width()),
                                passo(r.top(), r.bottom(), finestra_.height())));
}

QSize Vista_Pagina::Corsa() const {
    if (Vuota())
        return {0, 0};
    const QSizeF intera = pagina_ * scala_;
    return QSize(static_cast<int>(intera.width()) - finestra_.width(),
                 static_cast<int>(intera.height()) - finestra_.height())
        .expandedTo({0, 0});
}

void Vista_Pagina::Sistema() {
    origine_ = {Entro(origine_.x(), pagina_.width() * scala_, finestra_.width()),
                Entro(origine_.y(), pagina_.height() * scala_, finestra_.height())};
}

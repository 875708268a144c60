#pragma once

#include <QRegion>
#include <functional>
#include <vector>

#include "gui/drawing/sorgente_pagina.h"

class QPainter;

/// A picture of the page and the same picture with the hotspots tinted, kept so that a repaint is a copy.
class Foglio {
  public:
    bool Vuoto() const { return pagina_.immagine.isNull(); }
    void Svuota() { *this = {}; }
    /// Another picture, not yet tinted.
    void Imposta(const Immagine_Pagina& pagina);

    const Immagine_Pagina& Pagina() const { return pagina_; }
    const QImage& Tinta() const { return tinta_; }

    /// What this part of the page shows (page units) has changed.
    void Sporca(const QRectF& parte);
    /// Makes the changed parts anew, each wider by `bordo` pixels: the page's own picture, then whatever
    /// `tingi` draws, clipped to them. It draws in pixels of the page at the picture's scale, and gets the
    /// parts in the same.
    void Ricomponi(double bordo, const std::function<void(QPainter&, const QRegion&)>& tingi);

  private:
    Immagine_Pagina pagina_;
    QImage tinta_;
    std::vector<QRectF> sporche_;
};

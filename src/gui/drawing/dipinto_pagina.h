#pragma once

#include <QPalette>
#include <memory>

#include "canvas/mappa_hotspot.h"
#include "gui/drawing/foglio.h"
#include "gui/drawing/pittore_hotspot.h"
#include "gui/drawing/stati_hotspot.h"
#include "gui/drawing/vista_pagina.h"

/// The page as it is painted: a picture of the whole, a sharp one of what is seen, the hotspots tinted on
/// both.
class Dipinto_Pagina {
  public:
    static constexpr double BORDO_TINTA = 6;  ///< pixels that lines reach beyond a silhouette

    void Svuota() { *this = {}; }
    /// Where the hotspots are; before, none is tinted.
    void Imposta_Mappa(std::shared_ptr<Mappa_HotSpot> mappa, const Stati_HotSpot& stati);
    /// A new picture of what is seen; the first one of a page shows the whole.
    void Imposta_Immagine(const Immagine_Pagina& immagine, const Stati_HotSpot& stati);
    /// There is a picture of what is seen.
    bool Nitido() const { return !nitida_.Vuoto(); }
    /// A hotspot looks otherwise than before.
    void Sporca(int gruppo);

    /// Paints page and ground into a window of so many pixels to a unit of the view. `contornati` are the
    /// elements of the hotspot under the mouse, or under the keyboard's focus.
    void Dipingi(QPainter& pittore, const Vista_Pagina& vista, double densita, const QPalette& colori,
                 const Stati_HotSpot& stati, const std::vector<int>& contornati, bool fuoco);

  private:
    void Sporca_Attivi(Foglio& foglio, const Stati_HotSpot& stati);
    void Tingi(Foglio& foglio, const Stati_HotSpot& stati, double densita);

    Foglio panoramica_, nitida_;  ///< the whole page as first fitted; what is seen, at its scale
    std::shared_ptr<Mappa_HotSpot> mappa_;
    std::unique_ptr<Pittore_HotSpot> pittore_;
};

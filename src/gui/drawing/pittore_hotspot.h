#pragma once

#include <QColor>
#include <QPolygonF>
#include <optional>
#include <vector>

#include "canvas/mappa_hotspot.h"
#include "core/drawing/lavagna.h"
#include "gui/drawing/sorgente_pagina.h"

class QPainter;

/// How a hotspot shows.
struct Aspetto_HotSpot {
    std::optional<Colore> riempimento, bordo;
    bool Spoglio() const { return !riempimento && !bordo; }
    bool operator==(const Aspetto_HotSpot&) const = default;
};

/// Tints silhouettes. On a light ground the tint darkens what isn't ink, on a dark one it lightens it: the
/// line work stays.
class Pittore_HotSpot {
  public:
    explicit Pittore_HotSpot(Mappa_HotSpot& mappa);

    /// Looks at the untinted page to learn which elements stand on a dark ground.
    void Imposta_Fondo(const Immagine_Pagina& pagina);
    /// Tints an element. The painter's units are pixels of the page drawn at `scala`; lines are `pixel` of
    /// them wide.
    void Tinge(QPainter& pittore, int elemento, const Aspetto_HotSpot& aspetto, double scala, double pixel);
    /// Draws a line around an element.
    void Contorna(QPainter& pittore, int elemento, const QColor& colore, double scala, double pixel);

  private:
    bool Scuro(int elemento);
    void Riempi(QPainter& pittore, int elemento, const QColor& colore, double scala);
    void Traccia(QPainter& pittore, int elemento, const QColor& colore, double scala, double larghezza);

    Mappa_HotSpot& mappa_;
    std::vector<std::optional<bool>> scuri_;
    Immagine_Pagina fondo_;
    QPolygonF poligono_;  ///< at hand, so that drawing needs no memory
};

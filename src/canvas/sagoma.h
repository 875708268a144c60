#pragma once

#include <QPointF>
#include <QRectF>
#include <vector>

/// An element's silhouette: its ink and all that the ink encloses, as a grid of cells over its bounds.
class Sagoma {
  public:
    Sagoma() = default;
    /// From the coverage (one byte a cell, `passo` bytes a line) of `larghezza` x `altezza` cells laid over
    /// `area`, in page units.
    Sagoma(const uchar* copertura, int larghezza, int altezza, int passo, const QRectF& area);

    bool Vuota() const { return piene_ == 0; }
    bool Contiene(QPointF punto) const;
    /// The outlines in page units: closed, smooth, without holes.
    std::vector<std::vector<QPointF>> Contorni() const;
    /// The middles of all cells inside, the most inner first.
    std::vector<QPointF> Punti_Interni() const;
    const QRectF& Area() const { return area_; }

  private:
    bool Piena(int x, int y) const {
        return x >= 0 && y >= 0 && x < larghezza_ && y < altezza_ &&
               celle_[static_cast<size_t>(y) * static_cast<size_t>(larghezza_) + static_cast<size_t>(x)];
    }
    QPointF In_Pagina(double x, double y) const;

    QRectF area_;
    int larghezza_ = 0, altezza_ = 0, piene_ = 0;
    std::vector<bool> celle_;
};

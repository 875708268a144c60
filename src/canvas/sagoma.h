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
    const std::vector<std::vector<QPointF>>& Contorni() const { return contorni_; }
    /// The middles of all cells inside, the most inner first.
    std::vector<QPointF> Punti_Interni() const;
    const QRectF& Area() const { return area_; }

  private:
    /// Also for the cells just outside, which are empty.
    bool Piena(int x, int y) const {
        return celle_[static_cast<size_t>(y + 1) * parole_ + static_cast<size_t>(x + 1) / 64] >>
                   ((x + 1) % 64) &
               1;
    }
    QPointF In_Pagina(double x, double y) const;
    void Segui_Contorni();

    QRectF area_;
    std::vector<std::vector<QPointF>> contorni_;
    int larghezza_ = 0, altezza_ = 0, piene_ = 0;
    size_t parole_ = 0;           ///< words to a row
    std::vector<quint64> celle_;  ///< a bit for each cell, with an empty border of one cell all around
};

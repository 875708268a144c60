#pragma once

#include <QRectF>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "canvas/documento_tavola.h"

/// Memory to draw in: premultiplied ARGB of 32 bits, or one byte of coverage for each pixel.
struct Superficie {
    uchar* dati;
    int larghezza, altezza, passo;  ///< pixels, pixels, bytes from line to line (a multiple of 4)
};

/// Draws a document, whole or element by element. It keeps a parsed copy of its own: one thread at a time may
/// use it, several of them may work side by side.
class Disegnatore {
  public:
    explicit Disegnatore(std::shared_ptr<const Documento_Tavola> documento);
    ~Disegnatore();
    Disegnatore(const Disegnatore&) = delete;
    Disegnatore& operator=(const Disegnatore&) = delete;

    /// False when the renderer refuses the document: then it draws nothing.
    bool Valido() const { return maniglia_ != nullptr; }
    /// Draws the page over what the surface holds; the page point `origine` comes to its top left corner, at
    /// `scala` pixels to a user unit. False when the renderer stopped half-way: what it drew stays.
    bool Disegna(const Superficie& superficie, QPointF origine, double scala) const;
    /// Draws one element's coverage into a surface of one byte to a pixel, at two scales.
    bool Disegna_Copertura(const Superficie& superficie, const QByteArray& id, QPointF origine,
                           double scala_x, double scala_y) const;
    /// What an element's ink takes of the page; empty when it draws nothing.
    QRectF Ingombro(const QByteArray& id) const;
    /// The same of the whole drawing.
    QRectF Ingombro_Del_Disegno() const;

  private:
    std::shared_ptr<const Documento_Tavola> documento_;
    struct Maniglia;
    std::unique_ptr<Maniglia> maniglia_;
};

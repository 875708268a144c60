#pragma once

#include <QByteArray>
#include <QRectF>
#include <memory>

using cairo_t = struct _cairo;

/// Draws an SVG document, whole or element by element, on any surface of cairo: memory, PDF. It keeps a
/// parsed copy of its own: one thread at a time may use it, several of them may work side by side.
class Disegnatore {
  public:
    /// `pagina` in user units; the root's `width` and `height`, if it has them, are in its proportions.
    Disegnatore(const QByteArray& testo, QSizeF pagina);
    ~Disegnatore();
    Disegnatore(const Disegnatore&) = delete;
    Disegnatore& operator=(const Disegnatore&) = delete;

    /// False when the renderer refuses the document: then it draws nothing.
    bool Valido() const { return maniglia_ != nullptr; }
    /// Draws the page over what is there; the page point `origine` comes to the context's origin, at `scala`
    /// of its units to a user unit. False when the renderer stopped half-way: what it drew stays.
    bool Disegna(cairo_t* contesto, QPointF origine, double scala) const;
    /// Draws one element alone.
    bool Disegna_Elemento(cairo_t* contesto, const QByteArray& id, QPointF origine, double scala) const;
    /// What an element's ink takes of the page; empty when it draws nothing.
    QRectF Ingombro(const QByteArray& id) const;
    /// The same of the whole drawing.
    QRectF Ingombro_Del_Disegno() const;

  private:
    QRectF Inchiostro(const char* id) const;

    QSizeF pagina_;
    struct Maniglia;
    std::unique_ptr<Maniglia> maniglia_;
};

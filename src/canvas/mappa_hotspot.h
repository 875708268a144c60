#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "canvas/disegnatore.h"
#include "canvas/documento_tavola.h"
#include "canvas/sagoma.h"

/// Where the hotspots of a document are. Bounds, index and silhouettes are worked out when first asked for
/// and kept. One thread at a time may use it.
class Mappa_HotSpot {
  public:
    explicit Mappa_HotSpot(std::shared_ptr<const Documento_Tavola> documento);

    const Documento_Tavola& Documento() const { return *documento_; }
    /// Works out the bounds of all elements and the index, so that `Elemento_In` answers at once.
    void Prepara();

    /// The element's ink on the page; empty when it draws nothing.
    const QRectF& Ingombro(int elemento);
    const Sagoma& Sagoma_Di(int elemento);
    /// The uppermost element whose silhouette holds the point; -1 outside all of them and off the page.
    int Elemento_In(QPointF punto);
    /// A point of the element where it lies uppermost and that is `ammesso`, as far inside as possible; none
    /// when others cover it.
    std::optional<QPointF> Punto_Scoperto(int elemento, const std::function<bool(QPointF)>& ammesso);

  private:
    struct Copertura;
    /// An element alone.
    Copertura Disegna(int elemento, const QRectF& area, double scala) const;

    std::shared_ptr<const Documento_Tavola> documento_;
    Disegnatore disegnatore_;
    std::vector<std::optional<QRectF>> ingombri_;
    std::vector<std::unique_ptr<Sagoma>> sagome_;

    // The index: a grid of cells over the page, each with the elements that reach into it, the uppermost
    // first. An element that reaches into very many stands in a list of its own.
    bool pronta_ = false;
    int lato_ = 1;
    std::vector<std::vector<int>> celle_;
    std::vector<int> estesi_;
};

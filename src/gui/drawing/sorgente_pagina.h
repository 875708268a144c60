#pragma once

#include <QImage>
#include <QRect>
#include <QSizeF>
#include <QString>
#include <memory>

#include "canvas/documento_tavola.h"

/// A picture of a part of the page. `area` is what it shows, in pixels of the whole page drawn at `scala`
/// pixels to a page unit; it is as large as the picture.
struct Immagine_Pagina {
    QImage immagine;  ///< opaque; null when the page can't be drawn
    double scala = 0;
    QRect area;

    /// The part of the page shown, in page units.
    QRectF Parte() const {
        return {area.x() / scala, area.y() / scala, area.width() / scala, area.height() / scala};
    }
};

/// Where the pictures of a page come from. They are drawn on any thread, one at a time.
class Sorgente_Pagina {
  public:
    virtual ~Sorgente_Pagina() = default;
    virtual QSizeF Pagina() const = 0;
    /// The picture of an area, on white; at a smaller scale, with another area, when this one asks for too
    /// much.
    virtual Immagine_Pagina Disegna(double scala, const QRect& area) = 0;
    /// The document with the hotspots; null for a page without them.
    virtual std::shared_ptr<const Documento_Tavola> Documento() const { return nullptr; }
};

/// The page of an SVG or raster file, told by its content; null when it is neither, or can't be shown.
std::shared_ptr<Sorgente_Pagina> Apri_Pagina(const QString& percorso);

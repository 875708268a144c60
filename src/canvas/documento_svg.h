#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>
#include <pugixml.hpp>

#include "canvas/limiti.h"

/// An SVG document as read and checked, once: what stands on it (a drawing's hotspots, a layout's fields)
/// changes the tree and has the renderer draw `Testo`, so that what is drawn is what was checked.
class Documento_Svg {
  public:
    /// None, with the reason in `rifiuto`, when the file can't be read, is no SVG document, or asks for more
    /// than the limits allow.
    static std::optional<Documento_Svg> Da_File(const QString& percorso, QString& rifiuto,
                                                const Limiti& limiti = {});
    static std::optional<Documento_Svg> Da_Dati(const QByteArray& dati, QString& rifiuto,
                                                const Limiti& limiti = {});

    pugi::xml_document& Albero() { return albero_; }
    /// The tree as it now is, for the renderer.
    QByteArray Testo() const;
    /// The page in user units: the root's `viewBox`; without one, what its `width` and `height` or else its
    /// content tell. Page coordinates, everywhere, run from its top left corner.
    QSizeF Pagina() const { return pagina_; }
    /// The paper's size in millimetres by `width` and `height`; a page that doesn't tell it has 96 units to
    /// the inch.
    QSizeF Carta() const { return carta_; }
    /// How many pixels the whole page may have when it is rendered; infinite for a document without layers.
    double Pixel_Massimi() const { return pixel_massimi_; }
    /// How many pixels a picture of it may have.
    double Pixel_Insieme() const { return pixel_insieme_; }
    /// What isn't shown of it, since it would cost too much.
    const QStringList& Lasciato_Fuori() const { return lasciato_fuori_; }

  private:
    Documento_Svg() = default;
    QString Leggi(const QByteArray& testo, const Limiti& limiti);
    void Misura();

    pugi::xml_document albero_;
    QSizeF pagina_, carta_;
    QStringList lasciato_fuori_;
    double pixel_massimi_ = 0, pixel_insieme_ = 0;
};

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "canvas/limiti.h"

class Documento_Svg;

/// An element of the drawing that bears a hotspot string.
struct Elemento_HotSpot {
    QString nome;   ///< the element's id; without one, the hotspot string
    QByteArray id;  ///< the id under which the renderer knows the element
    int gruppo;     ///< which hotspot it belongs to
};

/// A hotspot: all elements that bear the same string. They act together.
struct Gruppo_HotSpot {
    QString stringa;
    std::vector<int> elementi;  ///< in document order
};

/// A drawing: an SVG document whose elements with `data-hotspot` are hotspots. It never changes, so threads
/// may share it.
class Documento_Tavola {
  public:
    /// Null, with the reason in `rifiuto`, where `Documento_Svg` refuses the document.
    static std::shared_ptr<const Documento_Tavola> Da_File(const QString& percorso,
                                                           QString* rifiuto = nullptr,
                                                           const Limiti& limiti = {});
    static std::shared_ptr<const Documento_Tavola> Da_Dati(const QByteArray& dati, QString* rifiuto = nullptr,
                                                           const Limiti& limiti = {});

    /// The text for the renderer, with an id on each hotspot element.
    const QByteArray& Testo() const { return testo_; }
    /// The page in user units.
    QSizeF Pagina() const { return pagina_; }
    /// How many pixels the whole page may have when it is rendered; infinite for a drawing without layers.
    double Pixel_Massimi() const { return pixel_massimi_; }
    /// How many pixels a picture of it may have.
    double Pixel_Insieme() const { return pixel_insieme_; }
    /// What isn't shown of the drawing, or isn't a hotspot though it could be, since it would cost too much.
    const QStringList& Lasciato_Fuori() const { return lasciato_fuori_; }

    const std::vector<Elemento_HotSpot>& Elementi() const { return elementi_; }
    const std::vector<Gruppo_HotSpot>& Gruppi() const { return gruppi_; }
    /// The hotspot that bears this string or, if none does, that has an element of this name; -1 if there is
    /// none.
    int Gruppo(const QString& nome) const;

    /// The document's own colours of a selection, 0xRRGGBB.
    std::optional<quint32> Colore_Scelta() const { return colore_scelta_; }
    std::optional<quint32> Bordo_Scelta() const { return bordo_scelta_; }

  private:
    Documento_Tavola(Documento_Svg documento, const Limiti& limiti);
    static std::shared_ptr<const Documento_Tavola> Da(std::optional<Documento_Svg> documento,
                                                      const Limiti& limiti);
    void Aggiungi(const QString& nome, const QByteArray& id, const QString& stringa);

    QByteArray testo_;
    QSizeF pagina_;
    double pixel_massimi_ = 0, pixel_insieme_ = 0;
    QStringList lasciato_fuori_;
    std::vector<Elemento_HotSpot> elementi_;
    std::vector<Gruppo_HotSpot> gruppi_;
    QHash<QString, int> per_stringa_, per_nome_;
    std::optional<quint32> colore_scelta_, bordo_scelta_;
};

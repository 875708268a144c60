#pragma once

#include <QString>
#include <QStringList>
#include <limits>
#include <pugixml.hpp>

#include "canvas/limiti.h"

/// What is known of a document before it is given to the renderer, which trusts its input more than a viewer
/// may.
struct Esame {
    QString rifiuto;             ///< why the document isn't shown; "" when it is
    QStringList lasciato_fuori;  ///< what isn't shown of it
    double pixel_massimi = std::numeric_limits<double>::infinity();  ///< page pixels that its layers allow
    double pixel_insieme =
        std::numeric_limits<double>::infinity();  ///< pixels that its fillings allow at once
};

/// Estimates what drawing the document costs: references between elements (a few lines may ask for billions
/// of elements), layers, style rules, text. Takes out rules and dashes that are too dear. `pagina`: the
/// page's longer side, in user units.
Esame Esamina(pugi::xml_document& albero, double pagina, const Limiti& limiti);

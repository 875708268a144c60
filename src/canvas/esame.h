#pragma once

#include <QString>
#include <limits>
#include <pugixml.hpp>

#include "canvas/limiti.h"

/// What is known of a document before it is given to the renderer, which trusts its input more than a viewer
/// may.
struct Esame {
    QString rifiuto;  ///< why the document isn't shown; "" when it is
    double pixel_massimi = std::numeric_limits<double>::infinity();  ///< page pixels that its layers allow
};

/// Looks through the document: references between elements (a few lines may ask for billions of elements),
/// layers, text. Takes out included pictures and filters that are too dear to follow.
Esame Esamina(pugi::xml_document& albero, const Limiti& limiti);

#pragma once

#include <QByteArray>
#include <QString>
#include <limits>
#include <pugixml.hpp>
#include <unordered_map>
#include <vector>

#include "canvas/limiti.h"

/// What is known of a document before it is given to the renderer, which trusts its input more than a viewer
/// may.
struct Esame {
    QString rifiuto;                      ///< why the document isn't shown; "" when it is
    std::vector<pugi::xml_node> hotspot;  ///< elements with `data-hotspot`, in document order
    std::unordered_map<std::string_view, pugi::xml_node>
        id;                                        ///< each id with the first element that bears it
    std::vector<pugi::xml_attribute> da_togliere;  ///< attributes to be emptied: too dear to follow
    double pixel_massimi = std::numeric_limits<double>::infinity();  ///< page pixels that its layers allow
};

/// A look at the raw text, before it is parsed: number of elements and entities. The reason of a refusal, or
/// "".
QString Rifiuto_Del_Testo(const QByteArray& testo, const Limiti& limiti);

/// Looks through the parsed document: nesting, references between elements (a few lines may ask for billions
/// of elements), layers, included pictures, costly filters.
Esame Esamina(const QByteArray& testo, const pugi::xml_node& radice, const Limiti& limiti);

/// An element's or attribute's name without namespace prefix.
std::string_view Nome_Locale(const char* nome);

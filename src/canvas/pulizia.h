#pragma once

#include <QStringList>
#include <pugixml.hpp>

#include "canvas/limiti.h"

/// Leaves of a document only what its examination can follow as the renderer does: references inside the
/// document, style text in its plain form, included pictures within the limits, filters of foreseeable cost.
/// What a reader of the drawing may miss is told in `lasciato_fuori`.
void Pulisci(pugi::xml_document& albero, const Limiti& limiti, QStringList& lasciato_fuori);

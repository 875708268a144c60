#pragma once

#include <QString>

#include "core/base/porte.h"

/// Path of the picture that a click on an `Image` cell shows, "" when the catalogue doesn't hold the entry.
QString Percorso_Immagine_Cella(const QString& voce, Fonte_File& file);
/// A click on a `Document` cell: opens the entry in its own application. Nothing when the catalogue doesn't
/// hold it; what becomes of it isn't reported.
void Apri_Documento_Cella(const QString& voce, Fonte_File& file, Sistema& sistema);

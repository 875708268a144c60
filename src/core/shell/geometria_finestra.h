#pragma once

#include <QString>

#include "core/base/numeri.h"
#include "core/base/porte.h"

/// Where a secondary window stands on the screen, in twips.
struct Geometria_Finestra {
    float Left = 0, Top = 0, Height = 0, Width = 0;
};

/// What the settings keep of a window. A value that is no number, or no size of a window, is the one of
/// `predefinita`.
Geometria_Finestra Leggi_Geometria(const Impostazioni& impostazioni, const Numeri& numeri,
                                   const QString& sezione, const Geometria_Finestra& predefinita);
void Scrivi_Geometria(Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                      const Geometria_Finestra& geometria);

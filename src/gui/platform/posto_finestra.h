#pragma once

#include <QRect>
#include <QWidget>

#include "core/base/numeri.h"
#include "core/base/porte.h"

/// Where a window stands on the screen, in twips: the corner of its frame and its inner size. The settings
/// keep it in a section of the window's own.
struct Posto_Finestra {
    float Left = 0, Top = 0, Height = 0, Width = 0;
};

/// The stored place. A value that is no number, or no size of a window, is the one of `predefinito`.
Posto_Finestra Leggi_Posto(const Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                           const Posto_Finestra& predefinito);
void Scrivi_Posto(Impostazioni& impostazioni, const Numeri& numeri, const QString& sezione,
                  const Posto_Finestra& posto);

/// The part of a screen that the inside of a window may fill, with its frame on the screen too.
QRect Spazio_Interno(const QRect& spazio);
/// The place below the toolbar of `principale`, at its right-hand edge, for a window of this size in pixels.
Posto_Finestra Posto_Sotto_Barra(const QWidget& principale, QSize misura);
/// Moves the window to this corner of its frame, or as near as it can stand wholly on the screen, frame and
/// all.
void Porta_A(QWidget& finestra, QPoint angolo);
/// Gives the window this place, moved and cut so that it stands wholly on a screen that is there, frame and
/// all.
void Disponi(QWidget& finestra, const Posto_Finestra& posto);

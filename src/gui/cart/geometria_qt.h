#pragma once

#include <QWidget>

#include "core/shell/geometria_finestra.h"

/// Places a window as the settings keep it, moved onto a screen that is there.
void Applica_Geometria(QWidget& finestra, const Geometria_Finestra& geometria);
/// Where a window stands now.
Geometria_Finestra Geometria_Di(const QWidget& finestra);

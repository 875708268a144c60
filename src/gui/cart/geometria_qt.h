#pragma once

#include <QWidget>

#include "core/shell/geometria_finestra.h"

/// Places a window as the settings keep it, and wholly on a screen.
void Applica_Geometria(QWidget& finestra, const Geometria_Finestra& geometria);
/// Where a window stands now.
Geometria_Finestra Geometria_Di(const QWidget& finestra);

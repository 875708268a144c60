#pragma once

#include <QtGlobal>

/// A colour 0xRRGGBB.
using Colore = quint32;
inline constexpr Colore VERDE = 0x00FF00;  ///< component under selection, or the hotspot passed over
inline constexpr Colore BLU = 0x0000FF;    ///< component in the cart

#pragma once

/// Screen sizes of the system are twips: 15 of them make one device-independent pixel.
inline constexpr int TWIPS_PER_PIXEL = 15;
inline constexpr int Pixel_Da_Twips(double twips) {
    return static_cast<int>(twips / TWIPS_PER_PIXEL + (twips < 0 ? -0.5 : 0.5));
}
inline constexpr int Twips_Da_Pixel(int pixel) {
    return pixel * TWIPS_PER_PIXEL;
}

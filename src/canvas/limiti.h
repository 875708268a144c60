#pragma once

#include <QtGlobal>

/// What a drawing may ask for. A document beyond a limit is refused, or shown in part, so that somebody
/// else's file never costs more than a few seconds and some hundred megabytes.
struct Limiti {
    qint64 byte_file = 64 << 20;        ///< size of the file on disk
    qint64 byte_documento = 64 << 20;   ///< size of the text, decompressed and with its entities expanded
    int elementi = 250'000;             ///< elements of the document
    double elementi_espansi = 500'000;  ///< elements drawn, each reference counted as what it points to
    int livelli = 256;                  ///< nesting, references included: the renderer recurses on the stack
    int hotspot = 10'000;               ///< elements that are hotspots; the others stay plain drawing
    qint64 caratteri = 250'000;         ///< characters of text
    qint64 pixel_immagini =
        64'000'000;                 ///< pixels of all included pictures together; further ones aren't shown
    double lato_minimo = 1e-3;      ///< shortest side of a page, in user units
    double lato_massimo = 1e6;      ///< longest side
    double memoria_strati = 512e6;  ///< bytes of the layers that opacity, masks and filters need at a time
    double pixel_strati = 2e9;      ///< pixels of all such layers one after the other
};

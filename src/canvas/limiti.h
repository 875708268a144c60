#pragma once

#include <QtGlobal>

/// What a drawing may ask for. A document beyond a limit is refused, or shown in part or less sharp, so that
/// what somebody else's file asks for in few lines costs seconds and some hundred megabytes, not minutes.
struct Limiti {
    qint64 byte_file = 64 << 20;       ///< size of the file on disk
    qint64 byte_documento = 64 << 20;  ///< size of the text, decompressed and with its entities expanded
    int elementi = 250'000;            ///< elements of the document
    double elementi_espansi =
        500'000;                   ///< plain shapes drawn, references and markers counted as what they draw
    int livelli = 256;             ///< nesting, references included: the renderer recurses on the stack
    int hotspot = 10'000;          ///< elements that are hotspots; the others stay plain drawing
    double lavoro_hotspot = 5e6;   ///< elements that are looked at to find where all hotspots are
    qint64 caratteri = 250'000;    ///< characters of text
    double tratti = 5e6;           ///< dashes of all lines
    double confronti_stile = 2e7;  ///< conditions of style rules, tried for each element
    qint64 pixel_immagini = 64'000'000;  ///< of all included pictures together; further ones aren't shown
    double lato_minimo = 1e-3;           ///< shortest side of a page, in user units
    double lato_massimo = 1e6;           ///< longest side
    double memoria_strati = 256e6;   ///< bytes of the layers that opacity, masks and filters need at a time
    double pixel_strati = 4e9;       ///< pixels of all such layers one after the other
    double nanosecondi_tinta = 5e9;  ///< filling all shapes with their colours and patterns
};

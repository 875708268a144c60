#pragma once

#include <string_view>

/// The pixels of a picture given as a `data:` address, told by its header without decoding it. Only PNG, JPEG
/// and GIF count as pictures; anything else, a document inside the document too, gives -1.
double Pixel_Immagine_Inclusa(std::string_view indirizzo);

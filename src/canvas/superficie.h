#pragma once

#include <QtGlobal>

using cairo_t = struct _cairo;

/// A context that draws in the caller's memory, which has to stay as long.
class Superficie_In_Memoria {
  public:
    enum class Formato { COLORI, COPERTURA };  ///< premultiplied ARGB of 32 bits; one byte for each pixel
    /// `passo`: bytes from line to line, a multiple of 4.
    Superficie_In_Memoria(Formato formato, uchar* dati, int larghezza, int altezza, qsizetype passo);
    ~Superficie_In_Memoria();
    Superficie_In_Memoria(const Superficie_In_Memoria&) = delete;
    Superficie_In_Memoria& operator=(const Superficie_In_Memoria&) = delete;

    cairo_t* Contesto() const { return contesto_; }

  private:
    cairo_t* contesto_;
};

#include "canvas/superficie.h"

#include <cairo.h>

Superficie_In_Memoria::Superficie_In_Memoria(Formato formato, uchar* dati, int larghezza, int altezza,
                                             qsizetype passo) {
    cairo_surface_t* superficie = cairo_image_surface_create_for_data(
        dati, formato == Formato::COLORI ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_A8, larghezza, altezza,
        static_cast<int>(passo));
    contesto_ = cairo_create(superficie);
    cairo_surface_destroy(superficie);  // the context holds it
}

Superficie_In_Memoria::~Superficie_In_Memoria() {
    cairo_surface_flush(cairo_get_target(contesto_));
    cairo_destroy(contesto_);
}

#include "canvas/disegnatore.h"

#include <librsvg/rsvg.h>

#include <cmath>

namespace {

template <auto libera>
struct Con {
    template <class T>
    void operator()(T* oggetto) const {
        libera(oggetto);
    }
};
using Contesto = std::unique_ptr<cairo_t, Con<cairo_destroy>>;
using Immagine_Cairo = std::unique_ptr<cairo_surface_t, Con<cairo_surface_destroy>>;

QRectF Rettangolo(const RsvgRectangle& r) {
    const bool finito =
        std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) && std::isfinite(r.height);
    return finito && r.width >= 0 && r.height >= 0 ? QRectF(r.x, r.y, r.width, r.height) : QRectF();
}

}  // namespace

struct Disegnatore::Maniglia {
    std::unique_ptr<RsvgHandle, Con<g_object_unref>> handle;
};

Disegnatore::Disegnatore(std::shared_ptr<const Documento_Tavola> documento)
    : documento_(std::move(documento)) {
    const QByteArray& dati = documento_->Dati();
    // No base address: a reference that leads out of the document can't be resolved.
    RsvgHandle* handle = rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(dati.constData()),
                                                   static_cast<gsize>(dati.size()), nullptr);
    if (!handle)
        return;
    rsvg_handle_set_dpi(handle, 96);
    maniglia_ = std::make_unique<Maniglia>();
    maniglia_->handle.reset(handle);
}

Disegnatore::~Disegnatore() = default;

namespace {

/// Calls `disegna` with a context whose origin is the page's.
template <class Funzione>
bool Su(const Superficie& s, cairo_format_t formato, QPointF origine, double scala_x, double scala_y,
        Funzione disegna) {
    const Immagine_Cairo immagine(
        cairo_image_surface_create_for_data(s.dati, formato, s.larghezza, s.altezza, s.passo));
    const Contesto cr(cairo_create(immagine.get()));
    cairo_scale(cr.get(), scala_x, scala_y);
    cairo_translate(cr.get(), -origine.x(), -origine.y());
    const bool riuscito = disegna(cr.get()) && cairo_status(cr.get()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_flush(immagine.get());
    return riuscito;
}

RsvgRectangle Vista(QSizeF pagina) {
    return {0, 0, pagina.width(), pagina.height()};
}

}  // namespace

bool Disegnatore::Disegna(const Superficie& superficie, QPointF origine, double scala) const {
    if (!Valido())
        return false;
    const RsvgRectangle vista = Vista(documento_->Pagina());
    return Su(superficie, CAIRO_FORMAT_ARGB32, origine, scala, scala, [&](cairo_t* cr) {
        return rsvg_handle_render_document(maniglia_->handle.get(), cr, &vista, nullptr);
    });
}

bool Disegnatore::Disegna_Copertura(const Superficie& superficie, const QByteArray& id, QPointF origine,
                                    double scala_x, double scala_y) const {
    if (!Valido())
        return false;
    const RsvgRectangle vista = Vista(documento_->Pagina());
    const QByteArray indirizzo = '#' + id;
    return Su(superficie, CAIRO_FORMAT_A8, origine, scala_x, scala_y, [&](cairo_t* cr) {
        return rsvg_handle_render_layer(maniglia_->handle.get(), cr, indirizzo.constData(), &vista, nullptr);
    });
}

QRectF Disegnatore::Ingombro(const QByteArray& id) const {
    if (!Valido())
        return {};
    const RsvgRectangle vista = Vista(documento_->Pagina());
    RsvgRectangle inchiostro{};
    const QByteArray indirizzo = '#' + id;
    if (!rsvg_handle_get_geometry_for_layer(maniglia_->handle.get(), indirizzo.constData(), &vista,
                                            &inchiostro, nullptr, nullptr))
        return {};
    return Rettangolo(inchiostro);
}

QRectF Disegnatore::Ingombro_Del_Disegno() const {
    if (!Valido())
        return {};
    const RsvgRectangle vista{0, 0, 100, 100};  // what percentages refer to where nothing tells
    RsvgRectangle inchiostro{};
    if (!rsvg_handle_get_geometry_for_layer(maniglia_->handle.get(), nullptr, &vista, &inchiostro, nullptr,
                                            nullptr))
        return {};
    return Rettangolo(inchiostro);
}

#include "canvas/disegnatore.h"

#include <librsvg/rsvg.h>

#include <cmath>

struct Disegnatore::Maniglia {
    RsvgHandle* handle;
    ~Maniglia() { g_object_unref(handle); }
};

Disegnatore::Disegnatore(const QByteArray& testo, QSizeF pagina) : pagina_(pagina) {
    // No base address: a reference that leads out of the document can't be resolved.
    RsvgHandle* handle = rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(testo.constData()),
                                                   static_cast<gsize>(testo.size()), nullptr);
    if (!handle)
        return;
    rsvg_handle_set_dpi(handle, 96);
    maniglia_.reset(new Maniglia{handle});
}

Disegnatore::~Disegnatore() = default;

bool Disegnatore::Disegna(cairo_t* contesto, QPointF origine, double scala) const {
    return Disegna_Elemento(contesto, {}, origine, scala);
}

bool Disegnatore::Disegna_Elemento(cairo_t* contesto, const QByteArray& id, QPointF origine,
                                   double scala) const {
    if (!Valido())
        return false;
    const RsvgRectangle vista{0, 0, pagina_.width(), pagina_.height()};
    const QByteArray indirizzo = '#' + id;
    cairo_save(contesto);
    cairo_scale(contesto, scala, scala);
    cairo_translate(contesto, -origine.x(), -origine.y());
    const bool riuscito =
        id.isEmpty()
            ? rsvg_handle_render_document(maniglia_->handle, contesto, &vista, nullptr)
            : rsvg_handle_render_layer(maniglia_->handle, contesto, indirizzo.constData(), &vista, nullptr);
    cairo_restore(contesto);
    return riuscito && cairo_status(contesto) == CAIRO_STATUS_SUCCESS;
}

QRectF Disegnatore::Ingombro(const QByteArray& id) const {
    return Inchiostro(('#' + id).constData());
}

QRectF Disegnatore::Ingombro_Del_Disegno() const {
    return Inchiostro(nullptr);
}

QRectF Disegnatore::Inchiostro(const char* id) const {
    const RsvgRectangle vista{0, 0, pagina_.width(), pagina_.height()};
    RsvgRectangle r{};
    if (!Valido() || !rsvg_handle_get_geometry_for_layer(maniglia_->handle, id, &vista, &r, nullptr, nullptr))
        return {};
    // Measured on the page that the root's size tells.
    double larghezza = 0, altezza = 0;
    const bool nota = rsvg_handle_get_intrinsic_size_in_pixels(maniglia_->handle, &larghezza, &altezza);
    const double f = nota && larghezza > 0 ? pagina_.width() / larghezza : 1;
    const QRectF ingombro(r.x * f, r.y * f, r.width * f, r.height * f);
    const bool finito = std::isfinite(ingombro.left()) && std::isfinite(ingombro.top()) &&
                        std::isfinite(ingombro.right()) && std::isfinite(ingombro.bottom());
    return finito && r.width >= 0 && r.height >= 0 ? ingombro : QRectF();
}

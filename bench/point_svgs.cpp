// point_svgs FILE...: makes every shape and text of each file a hotspot, draws each alone with the bare
// renderer, and points at its ink: the canvas has to find that hotspot there, or one that lies above it.
// Tells how many were pointed at and each that was missed; exit code 1 if there is one.

#include <librsvg/rsvg.h>

#include <QRect>
#include <cstdio>
#include <pugixml.hpp>
#include <set>
#include <sstream>

#include "canvas/mappa_hotspot.h"
#include "canvas/superficie.h"

namespace {

constexpr int LATO = 512;  ///< pixels of the squares that elements are drawn in
constexpr int PUNTI = 12;  ///< at which each element is pointed at

/// Gives each drawn element a hotspot string and an id of its own, the same number; tells how many.
int Segna(pugi::xml_node nodo, int numero) {
    static const std::set<std::string> DISEGNATI = {"rect",    "circle", "ellipse", "line", "polyline",
                                                    "polygon", "path",   "text",    "use",  "image"};
    static const std::set<std::string> CONTENITORI = {"g", "a", "svg", "switch"};
    for (pugi::xml_node figlio : nodo.children()) {
        const std::string nome = figlio.name();
        if (CONTENITORI.contains(nome))
            numero = Segna(figlio, numero);
        if (!DISEGNATI.contains(nome))
            continue;
        const std::string chi = std::to_string(numero++);
        figlio.append_attribute("data-hotspot").set_value(chi.c_str());
        if (!figlio.attribute("id"))
            figlio.append_attribute("id").set_value(("shape." + chi).c_str());
    }
    return numero;
}

/// An element as the bare renderer draws it, at `scala` pixels to a page unit, from a point of the page on.
struct Disegnato {
    Disegnato(RsvgHandle* handle, const QByteArray& id, QSizeF pagina, QPointF da, double scala_)
        : origine(da), scala(scala_), copertura(LATO * LATO, 0) {
        const Superficie_In_Memoria superficie(Superficie_In_Memoria::Formato::COPERTURA, copertura.data(),
                                               LATO, LATO, LATO);
        cairo_scale(superficie.Contesto(), scala, scala);
        cairo_translate(superficie.Contesto(), -da.x(), -da.y());
        const RsvgRectangle vista{0, 0, pagina.width(), pagina.height()};
        rsvg_handle_render_layer(handle, superficie.Contesto(), ('#' + id).constData(), &vista, nullptr);
    }
    bool Inchiostrato(int x, int y, uchar minima) const {
        return x >= 0 && y >= 0 && x < LATO && y < LATO &&
               copertura[static_cast<size_t>(y * LATO + x)] >= minima;
    }
    QPointF In_Pagina(int x, int y) const { return origine + QPointF(x + .5, y + .5) / scala; }

    QPointF origine;
    double scala;
    std::vector<uchar> copertura;
};

/// Some points of the page that an element fills with ink, looked for on the page, then close by. Letters
/// have other edges at every scale, so that points at an edge don't count.
std::vector<QPointF> Inchiostro(RsvgHandle* handle, const QByteArray& id, QSizeF pagina) {
    const Disegnato intero(handle, id, pagina, {}, LATO / std::max(pagina.width(), pagina.height()));
    QRect visti;
    for (int y = 0; y < LATO; ++y)
        for (int x = 0; x < LATO; ++x)
            if (intero.Inchiostrato(x, y, 1))
                visti |= QRect(x - 1, y - 1, 3, 3);
    visti &= QRect(0, 0, LATO, LATO);
    if (visti.isEmpty())
        return {};
    const Disegnato vicino(handle, id, pagina, QPointF(visti.topLeft()) / intero.scala,
                           intero.scala * LATO / std::max(visti.width(), visti.height()));
    std::vector<QPointF> dentro;
    constexpr int BORDO = 5;
    for (int y = 0; y < LATO; y += 3)
        for (int x = 0; x < LATO; x += 3) {
            bool pieno = true;
            for (int dy = -BORDO; dy <= BORDO && pieno; ++dy)
                for (int dx = -BORDO; dx <= BORDO && pieno; ++dx)
                    pieno = vicino.Inchiostrato(x + dx, y + dy, 255);
            const QPointF punto = vicino.In_Pagina(x, y);
            if (pieno && punto.x() < pagina.width() && punto.y() < pagina.height())
                dentro.push_back(punto);
        }
    std::vector<QPointF> scelti;
    for (size_t i = 0; i < dentro.size(); i += std::max<size_t>(1, dentro.size() / PUNTI))
        scelti.push_back(dentro[i]);
    return scelti;
}

struct Conto {
    int indicati = 0, mancati = 0, rifiutati = 0;
};

void Indica(const char* percorso, Conto& conto) {
    pugi::xml_document xml;
    xml.load_file(percorso, pugi::parse_full);
    Segna(xml.document_element(), 0);
    std::ostringstream scritto;
    xml.save(scritto, "", pugi::format_raw);
    const std::string testo = scritto.str();
    const auto documento = Documento_Tavola::Da_Dati(QByteArray::fromStdString(testo));
    RsvgHandle* handle =
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(testo.data()), testo.size(), nullptr);
    if (!documento || !handle) {
        ++conto.rifiutati;
        return;
    }
    rsvg_handle_set_dpi(handle, 96);
    Mappa_HotSpot mappa(documento);
    for (size_t e = 0; e < documento->Elementi().size(); ++e) {
        const std::vector<QPointF> punti =
            Inchiostro(handle, documento->Elementi()[e].id, documento->Pagina());
        conto.indicati += !punti.empty();
        for (const QPointF& punto : punti)
            if (const int trovato = mappa.Elemento_In(punto); trovato < static_cast<int>(e)) {
                ++conto.mancati;
                std::printf("%s: %s at %g, %g is %d\n", percorso, documento->Elementi()[e].id.constData(),
                            punto.x(), punto.y(), trovato);
                break;
            }
    }
    g_object_unref(handle);
}

}  // namespace

int main(int argc, char** argv) {
    Conto conto;
    for (int i = 1; i < argc; ++i)
        Indica(argv[i], conto);
    std::printf("%d files, %d refused: %d hotspots pointed at, %d missed\n", argc - 1, conto.rifiutati,
                conto.indicati, conto.mancati);
    return conto.mancati > 0;
}

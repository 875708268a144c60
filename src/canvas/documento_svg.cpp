#include "canvas/documento_svg.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "canvas/albero.h"
#include "canvas/disegnatore.h"
#include "canvas/esame.h"
#include "canvas/lettura.h"

namespace {

constexpr double LATO_MISURA = 1024;  ///< pixels of the longer side of the page that is measured on
constexpr double PIXEL_POLLICE = 96, MM_POLLICE = 25.4;

std::optional<double> Numero(std::string_view& testo) {
    while (!testo.empty() &&
           (std::isspace(static_cast<unsigned char>(testo.front())) || testo.front() == ','))
        testo.remove_prefix(1);
    if (!testo.empty() && testo.front() == '+')
        testo.remove_prefix(1);
    double valore = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (errore != std::errc() || !std::isfinite(valore))
        return {};
    testo.remove_prefix(static_cast<size_t>(fine - testo.data()));
    return valore;
}

/// A length in CSS pixels; none for a relative one.
std::optional<double> Lunghezza(std::string_view testo) {
    const auto valore = Numero(testo);
    if (!valore)
        return {};
    static constexpr std::pair<std::string_view, double> UNITA[] = {{"", 1},
                                                                    {"px", 1},
                                                                    {"pt", PIXEL_POLLICE / 72},
                                                                    {"pc", PIXEL_POLLICE / 6},
                                                                    {"in", PIXEL_POLLICE},
                                                                    {"cm", PIXEL_POLLICE / MM_POLLICE * 10},
                                                                    {"mm", PIXEL_POLLICE / MM_POLLICE}};
    while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.back())))
        testo.remove_suffix(1);
    for (const auto& [unita, pixel] : UNITA)
        if (testo == unita)
            return *valore * pixel;
    return {};
}

/// The four numbers of a `viewBox`.
std::optional<QRectF> Vista(std::string_view vista) {
    const auto x = Numero(vista), y = Numero(vista), larghezza = Numero(vista), altezza = Numero(vista);
    return x && y && larghezza && altezza ? std::optional(QRectF(*x, *y, *larghezza, *altezza))
                                          : std::nullopt;
}

/// The page that the root tells, none when it doesn't.
std::optional<QRectF> Vista_Scritta(const pugi::xml_node& radice) {
    if (const auto vista = Vista(radice.attribute("viewBox").value()))
        return vista;
    const auto larghezza = Lunghezza(radice.attribute("width").value());
    const auto altezza = Lunghezza(radice.attribute("height").value());
    return larghezza && altezza ? std::optional(QRectF(0, 0, *larghezza, *altezza)) : std::nullopt;
}

std::string Testo_Di(double numero) {
    return QByteArray::number(numero, 'g', 17).toStdString();
}

void Scrivi(pugi::xml_node nodo, const char* nome, const std::string& valore) {
    pugi::xml_attribute attributo = nodo.attribute(nome);
    (attributo ? attributo : nodo.append_attribute(nome)).set_value(valore.c_str());
}

}  // namespace

QString Documento_Svg::Leggi(const QByteArray& testo, const Limiti& limiti) {
    QString rifiuto;
    if (!Leggi_Albero(testo, limiti, albero_, rifiuto))
        return rifiuto;
    const QSizeF scritta = Vista_Scritta(albero_.document_element()).value_or(QRectF(0, 0, 100, 100)).size();
    const Esame esame = Esamina(albero_, std::max(scritta.width(), scritta.height()), limiti);
    pixel_massimi_ = esame.pixel_massimi;
    pixel_insieme_ = esame.pixel_insieme;
    lasciato_fuori_ = esame.lasciato_fuori;
    if (!esame.rifiuto.isEmpty())
        return esame.rifiuto;
    Misura();
    const bool sensata = std::min(pagina_.width(), pagina_.height()) >= limiti.lato_minimo &&
                         std::max(pagina_.width(), pagina_.height()) <= limiti.lato_massimo;
    return sensata ? QString() : QStringLiteral("no sensible page size");
}

void Documento_Svg::Misura() {
    pugi::xml_node radice = albero_.document_element();
    const auto larghezza = Lunghezza(radice.attribute("width").value());
    const auto altezza = Lunghezza(radice.attribute("height").value());
    QRectF vista;
    if (const auto scritta = Vista_Scritta(radice))
        vista = *scritta;
    else {                               // a document that doesn't tell its size is as large as what it draws
        Scrivi(radice, "width", "100");  // what percentages refer to
        Scrivi(radice, "height", "100");
        const QRectF tutto = Disegnatore(Testo(), {100, 100}).Ingombro_Del_Disegno();
        vista = {0, 0, tutto.right(), tutto.bottom()};
    }
    pagina_ = vista.size();
    carta_ = (larghezza && altezza ? QSizeF(*larghezza, *altezza) : pagina_) * (MM_POLLICE / PIXEL_POLLICE);
    // The renderer measures on a page of `width` and `height`, in curves no finer than some pixels,
    // and draws on the page that it is told. So the root gets the page's proportions at a size that is
    // measured finely.
    const double finezza = LATO_MISURA / std::max(vista.width(), vista.height());
    const std::string larghezza_misura = Testo_Di(vista.width() * finezza),
                      altezza_misura = Testo_Di(vista.height() * finezza);
    Scrivi(radice, "viewBox",
           Testo_Di(vista.x()) + ' ' + Testo_Di(vista.y()) + ' ' + Testo_Di(vista.width()) + ' ' +
               Testo_Di(vista.height()));
    Scrivi(radice, "width", larghezza_misura);
    Scrivi(radice, "height", altezza_misura);
    Scrivi(radice, "style",
           radice.attribute("style").value() +
               (";width:" + larghezza_misura + "px!important;height:" + altezza_misura + "px!important"));
    for (const char* nome : {"x", "y", "preserveAspectRatio"})
        radice.remove_attribute(nome);
}

QByteArray Documento_Svg::Testo() const {
    return Testo_Di(albero_);
}

std::optional<Documento_Svg> Documento_Svg::Da_Dati(const QByteArray& dati, QString& rifiuto,
                                                    const Limiti& limiti) {
    rifiuto.clear();
    const QByteArray testo = Espandi_Dati(dati, limiti, rifiuto);
    Documento_Svg documento;
    if (rifiuto.isEmpty())
        rifiuto = documento.Leggi(testo, limiti);
    return rifiuto.isEmpty() ? std::optional(std::move(documento)) : std::nullopt;
}

std::optional<Documento_Svg> Documento_Svg::Da_File(const QString& percorso, QString& rifiuto,
                                                    const Limiti& limiti) {
    rifiuto.clear();
    const QByteArray dati = Leggi_File(percorso, limiti, rifiuto);
    return rifiuto.isEmpty() ? Da_Dati(dati, rifiuto, limiti) : std::nullopt;
}

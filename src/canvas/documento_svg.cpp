#include "canvas/documento_svg.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "canvas/albero.h"
#include "canvas/disegnatore.h"
#include "canvas/esame.h"
#include "canvas/lettura.h"

namespace {

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

/// The size that a `viewBox` tells.
std::optional<QSizeF> Vista(std::string_view vista) {
    if (!(Numero(vista) && Numero(vista)))
        return {};
    const auto larghezza = Numero(vista), altezza = Numero(vista);
    return larghezza && altezza ? std::optional(QSizeF(*larghezza, *altezza)) : std::nullopt;
}

}  // namespace

QString Documento_Svg::Leggi(const QByteArray& testo, const Limiti& limiti) {
    QString rifiuto;
    if (!Leggi_Albero(testo, limiti, albero_, rifiuto))
        return rifiuto;
    const Esame esame = Esamina(albero_, limiti);
    pixel_massimi_ = esame.pixel_massimi;
    if (!esame.rifiuto.isEmpty())
        return esame.rifiuto;
    Misura();
    const bool sensata = std::min(pagina_.width(), pagina_.height()) >= limiti.lato_minimo &&
                         std::max(pagina_.width(), pagina_.height()) <= limiti.lato_massimo;
    return sensata ? QString() : QStringLiteral("no sensible page size");
}

void Documento_Svg::Misura() {
    const pugi::xml_node radice = albero_.document_element();
    const auto larghezza = Lunghezza(radice.attribute("width").value());
    const auto altezza = Lunghezza(radice.attribute("height").value());
    if (const auto vista = Vista(radice.attribute("viewBox").value()))
        pagina_ = *vista;
    else if (larghezza && altezza)
        pagina_ = {*larghezza, *altezza};
    else {  // a document that doesn't tell its size is as large as what it draws
        const QRectF tutto = Disegnatore(Testo(), {100, 100}).Ingombro_Del_Disegno();
        pagina_ = {tutto.right(), tutto.bottom()};
    }
    carta_ = (larghezza && altezza ? QSizeF(*larghezza, *altezza) : pagina_) * (MM_POLLICE / PIXEL_POLLICE);
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

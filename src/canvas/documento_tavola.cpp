#include "canvas/documento_tavola.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "canvas/disegnatore.h"
#include "canvas/esame.h"
#include "canvas/lettura.h"

namespace {

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
    static constexpr std::pair<std::string_view, double> UNITA[] = {
        {"", 1}, {"px", 1}, {"pt", 96 / 72.}, {"pc", 16}, {"in", 96}, {"cm", 96 / 2.54}, {"mm", 96 / 25.4}};
    while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.back())))
        testo.remove_suffix(1);
    for (const auto& [unita, pixel] : UNITA)
        if (testo == unita)
            return *valore * pixel;
    return {};
}

/// "#rgb" or "#rrggbb".
std::optional<quint32> Colore(std::string_view testo) {
    if ((testo.size() != 4 && testo.size() != 7) || testo.front() != '#')
        return {};
    std::string cifre(testo.substr(1));
    if (cifre.size() == 3)
        cifre = {cifre[0], cifre[0], cifre[1], cifre[1], cifre[2], cifre[2]};
    quint32 valore = 0;
    const auto [fine, errore] = std::from_chars(cifre.data(), cifre.data() + 6, valore, 16);
    return errore == std::errc() && fine == cifre.data() + 6 ? std::optional(valore) : std::nullopt;
}

/// A stretch of the text to be replaced.
struct Modifica {
    qsizetype inizio, lunghezza;
    QByteArray testo;
};

QByteArray Applica(const QByteArray& testo, std::vector<Modifica> modifiche) {
    if (modifiche.empty())
        return testo;
    std::sort(modifiche.begin(), modifiche.end(),
              [](const auto& a, const auto& b) { return a.inizio < b.inizio; });
    QByteArray nuovo;
    nuovo.reserve(testo.size() + static_cast<qsizetype>(modifiche.size()) * 24);
    qsizetype letto = 0;
    for (const Modifica& modifica : modifiche) {
        if (modifica.inizio < letto)
            continue;  // two reasons for the same change
        nuovo.append(testo.constData() + letto, modifica.inizio - letto).append(modifica.testo);
        letto = modifica.inizio + modifica.lunghezza;
    }
    return nuovo.append(testo.constData() + letto, testo.size() - letto);
}

}  // namespace

/// Makes a document from its text.
class Lettore_Tavola {
  public:
    Lettore_Tavola(QByteArray testo, const Limiti& limiti) : testo_(std::move(testo)), limiti_(limiti) {}

    std::shared_ptr<const Documento_Tavola> Leggi(QString& rifiuto) {
        rifiuto = Rifiuto_Del_Testo(testo_, limiti_);
        if (!rifiuto.isEmpty())
            return nullptr;
        // The parser works in place on a copy: where its strings point tells where they stand in the text.
        copia_ = QByteArray(testo_.constData(), testo_.size());
        pugi::xml_document xml;
        const auto esito =
            xml.load_buffer_inplace(copia_.data(), static_cast<size_t>(copia_.size()),
                                    pugi::parse_escapes | pugi::parse_cdata, pugi::encoding_utf8);
        const pugi::xml_node radice = xml.document_element();
        if (!radice || Nome_Locale(radice.name()) != "svg")
            rifiuto = QStringLiteral("not an SVG document");
        else if (!esito)
            rifiuto = QString::fromLatin1(esito.description());
        if (!rifiuto.isEmpty())
            return nullptr;

        esame_ = Esamina(testo_, radice, limiti_);
        rifiuto = esame_.rifiuto;
        if (!rifiuto.isEmpty())
            return nullptr;
        documento_->pixel_massimi_ = esame_.pixel_massimi;
        documento_->colore_scelta_ = Colore(radice.attribute("data-pickbackcolor").value());
        documento_->bordo_scelta_ = Colore(radice.attribute("data-pickbordercolor").value());
        for (const auto& attributo : esame_.da_togliere)
            Sostituisci(attributo, "");
        for (const pugi::xml_node& nodo : esame_.hotspot)
            Aggiungi_HotSpot(nodo);
        documento_->dati_ = Applica(testo_, std::move(modifiche_));
        Misura(radice);
        const QSizeF pagina = documento_->pagina_;
        if (!(std::min(pagina.width(), pagina.height()) >= limiti_.lato_minimo &&
              std::max(pagina.width(), pagina.height()) <= limiti_.lato_massimo)) {
            rifiuto = QStringLiteral("no sensible page size");
            return nullptr;
        }
        return documento_;
    }

  private:
    qsizetype Posto(const char* stringa) const { return stringa - copia_.constData(); }

    void Sostituisci(const pugi::xml_attribute& attributo, const QByteArray& valore) {
        const qsizetype inizio = Posto(attributo.value());
        const qsizetype fine =
            testo_.indexOf(testo_[inizio - 1], inizio);  // the quote before it also ends it
        modifiche_.push_back({inizio, fine - inizio, valore});
    }

    void Aggiungi_HotSpot(const pugi::xml_node& nodo) {
        const QString stringa = QString::fromUtf8(nodo.attribute("data-hotspot").value());
        if (stringa.isEmpty())
            return;
        const pugi::xml_attribute attributo = nodo.attribute("id");
        const std::string_view scritto = attributo.value();
        Elemento_HotSpot elemento{scritto.empty() ? stringa : QString::fromUtf8(attributo.value()), {}, 0};
        // The renderer takes the first of several elements with one id, and can't address an id with "#" in
        // it.
        const auto primo = esame_.id.find(scritto);
        if (primo != esame_.id.end() && primo->second == nodo &&
            scritto.find_first_of("#/ \t\r\n") == scritto.npos && !scritto.empty()) {
            elemento.id = attributo.value();
        } else {
            do
                elemento.id = "hotspot." + QByteArray::number(++privati_);
            while (esame_.id.contains(
                std::string_view(elemento.id.constData(), static_cast<size_t>(elemento.id.size()))));
            if (attributo)
                Sostituisci(attributo, elemento.id);
            else
                modifiche_.push_back(
                    {Posto(nodo.name()) + static_cast<qsizetype>(std::string_view(nodo.name()).size()), 0,
                     " id=\"" + elemento.id + '"'});
        }
        auto& documento = *documento_;
        const int indice = static_cast<int>(documento.elementi_.size());
        const auto gruppo = documento.per_stringa_.constFind(stringa);
        elemento.gruppo = gruppo != documento.per_stringa_.constEnd()
                              ? *gruppo
                              : static_cast<int>(documento.gruppi_.size());
        if (gruppo == documento.per_stringa_.constEnd()) {
            documento.per_stringa_.insert(stringa, elemento.gruppo);
            documento.gruppi_.push_back({stringa, {}});
        }
        documento.gruppi_[static_cast<size_t>(elemento.gruppo)].elementi.push_back(indice);
        if (!documento.per_nome_.contains(elemento.nome))
            documento.per_nome_.insert(elemento.nome, elemento.gruppo);
        documento.elementi_.push_back(std::move(elemento));
    }

    void Misura(const pugi::xml_node& radice) {
        std::string_view vista = radice.attribute("viewBox").value();
        if (!(Numero(vista) && Numero(vista))) {
            Misura_Senza_Vista(radice);
            return;
        }
        const auto larghezza = Numero(vista), altezza = Numero(vista);
        if (larghezza && altezza)
            documento_->pagina_ = {*larghezza, *altezza};
    }

    void Misura_Senza_Vista(const pugi::xml_node& radice) {
        const auto larghezza = Lunghezza(radice.attribute("width").value());
        const auto altezza = Lunghezza(radice.attribute("height").value());
        if (larghezza && altezza) {
            documento_->pagina_ = {*larghezza, *altezza};
            return;
        }
        // A document that doesn't tell its size is as large as what it draws.
        const QRectF tutto = Disegnatore(documento_).Ingombro_Del_Disegno();
        documento_->pagina_ = {tutto.right(), tutto.bottom()};
    }

    QByteArray testo_, copia_;
    const Limiti& limiti_;
    Esame esame_;
    std::shared_ptr<Documento_Tavola> documento_ = std::make_shared<Documento_Tavola>();
    std::vector<Modifica> modifiche_;
    int privati_ = 0;
};

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da_Testo(const QByteArray& testo, QString motivo,
                                                                   QString* rifiuto, const Limiti& limiti) {
    auto documento = motivo.isEmpty() ? Lettore_Tavola(testo, limiti).Leggi(motivo) : nullptr;
    if (rifiuto)
        *rifiuto = motivo;
    return documento;
}

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da_File(const QString& percorso, QString* rifiuto,
                                                                  const Limiti& limiti) {
    QString motivo;
    const QByteArray testo = Leggi_Xml(percorso, limiti, motivo);
    return Da_Testo(testo, motivo, rifiuto, limiti);
}

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da_Dati(const QByteArray& dati, QString* rifiuto,
                                                                  const Limiti& limiti) {
    QString motivo;
    const QByteArray testo = Prepara_Xml(dati, limiti, motivo);
    return Da_Testo(testo, motivo, rifiuto, limiti);
}

int Documento_Tavola::Gruppo(const QString& nome) const {
    const auto stringa = per_stringa_.constFind(nome);
    return stringa != per_stringa_.constEnd() ? *stringa : per_nome_.value(nome, -1);
}

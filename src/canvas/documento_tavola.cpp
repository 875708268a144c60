#include "canvas/documento_tavola.h"

#include <charconv>
#include <unordered_map>

#include "canvas/albero.h"
#include "canvas/documento_svg.h"

namespace {

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

/// Sees to it that each hotspot element has an id under which the renderer finds it.
class Identita {
  public:
    explicit Identita(const pugi::xml_node& radice) {
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n))
            if (const pugi::xml_attribute id = n.attribute("id"))
                primi_.emplace(id.value(), n);
    }

    QByteArray Di(pugi::xml_node nodo) {
        pugi::xml_attribute attributo = nodo.attribute("id");
        const std::string scritto = attributo.value();
        // The renderer takes the first of several elements with one id, and can't address one with "#" in it.
        const auto primo = primi_.find(scritto);
        if (!scritto.empty() && primo->second == nodo && scritto.find_first_of("#/ \t\r\n") == scritto.npos)
            return QByteArray::fromStdString(scritto);
        QByteArray id;
        do
            id = "hotspot." + QByteArray::number(++privati_);
        while (primi_.contains(id.toStdString()));
        (attributo ? attributo : nodo.append_attribute("id")).set_value(id.constData());
        return id;
    }

  private:
    std::unordered_map<std::string, pugi::xml_node> primi_;
    int privati_ = 0;
};

/// What the renderer looks at to find one element: it draws all inside, and passes by all that stands beside
/// it or beside what it stands in.
class Lavoro_Ricerca {
  public:
    explicit Lavoro_Ricerca(const pugi::xml_node& nodo) { Visita(nodo); }
    double Di(pugi::xml_node nodo) const {
        double lavoro = dentro_.at(nodo.internal_object());
        for (; nodo.parent(); nodo = nodo.parent())
            if (const auto accanto = accanto_.find(nodo.parent().internal_object());
                accanto != accanto_.end())
                lavoro += accanto->second * PASSO;
        return lavoro;
    }

  private:
    static constexpr double PASSO = .03;  ///< passing by, in units of drawing
    double Visita(const pugi::xml_node& nodo) {
        double tutti = 1, figli = 0;
        for (const pugi::xml_node& figlio : nodo)
            if (figlio.type() == pugi::node_element) {
                tutti += Visita(figlio);
                ++figli;
            }
        accanto_[nodo.internal_object()] = figli;
        return dentro_[nodo.internal_object()] = tutti;
    }
    std::unordered_map<const void*, double> dentro_, accanto_;
};

}  // namespace

Documento_Tavola::Documento_Tavola(Documento_Svg documento, const Limiti& limiti)
    : pagina_(documento.Pagina()),
      pixel_massimi_(documento.Pixel_Massimi()),
      pixel_insieme_(documento.Pixel_Insieme()),
      lasciato_fuori_(documento.Lasciato_Fuori()) {
    const pugi::xml_node radice = documento.Albero().document_element();
    colore_scelta_ = Colore(radice.attribute("data-pickbackcolor").value());
    bordo_scelta_ = Colore(radice.attribute("data-pickbordercolor").value());
    Identita identita(radice);
    const Lavoro_Ricerca lavoro(radice);
    double totale = 0;
    for (pugi::xml_node n = radice; n; n = Seguente(radice, n)) {
        const QString stringa = QString::fromUtf8(n.attribute("data-hotspot").value());
        if (stringa.isEmpty())
            continue;
        totale += lavoro.Di(n);
        if (elementi_.size() == static_cast<size_t>(limiti.hotspot) || totale > limiti.lavoro_hotspot) {
            lasciato_fuori_ << QStringLiteral("hotspots, which are too many or nested too much");
            break;
        }
        const QString scritto = QString::fromUtf8(n.attribute("id").value());
        Aggiungi(scritto.isEmpty() ? stringa : scritto, identita.Di(n), stringa);
    }
    testo_ = documento.Testo();
}

void Documento_Tavola::Aggiungi(const QString& nome, const QByteArray& id, const QString& stringa) {
    auto gruppo = per_stringa_.constFind(stringa);
    if (gruppo == per_stringa_.constEnd()) {
        gruppo = per_stringa_.insert(stringa, static_cast<int>(gruppi_.size()));
        gruppi_.push_back({stringa, {}});
    }
    gruppi_[static_cast<size_t>(*gruppo)].elementi.push_back(static_cast<int>(elementi_.size()));
    if (!per_nome_.contains(nome))
        per_nome_.insert(nome, *gruppo);
    elementi_.push_back({nome, id, *gruppo});
}

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da(std::optional<Documento_Svg> documento,
                                                             const Limiti& limiti) {
    if (!documento)
        return nullptr;
    return std::shared_ptr<const Documento_Tavola>(new Documento_Tavola(std::move(*documento), limiti));
}

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da_File(const QString& percorso, QString* rifiuto,
                                                                  const Limiti& limiti) {
    QString motivo;
    return Da(Documento_Svg::Da_File(percorso, rifiuto ? *rifiuto : motivo, limiti), limiti);
}

std::shared_ptr<const Documento_Tavola> Documento_Tavola::Da_Dati(const QByteArray& dati, QString* rifiuto,
                                                                  const Limiti& limiti) {
    QString motivo;
    return Da(Documento_Svg::Da_Dati(dati, rifiuto ? *rifiuto : motivo, limiti), limiti);
}

int Documento_Tavola::Gruppo(const QString& nome) const {
    const auto stringa = per_stringa_.constFind(nome);
    return stringa != per_stringa_.constEnd() ? *stringa : per_nome_.value(nome, -1);
}

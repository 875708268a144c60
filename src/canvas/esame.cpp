#include "canvas/esame.h"

#include <algorithm>
#include <cstring>
#include <set>

#include "canvas/immagini_incluse.h"
#include "canvas/stili.h"

using namespace std::string_view_literals;

namespace {

/// The values of the entities that the document type declares. False when they nest, hold elements, or are
/// parametric: no drawing needs it, and their expansion can't be foreseen.
bool Entita(std::string_view testo, std::vector<std::string_view>& valori) {
    for (size_t p = testo.find("<!ENTITY"); p != testo.npos; p = testo.find("<!ENTITY", p)) {
        p += 8;
        const size_t inizio = testo.find_first_of("\"'", p);
        const size_t chiusa = testo.find('>', p);
        if (testo.substr(p, std::min(inizio, chiusa) - p).find('%') != testo.npos)
            return false;
        if (inizio == testo.npos || chiusa < inizio)
            continue;
        const size_t fine = testo.find(testo[inizio], inizio + 1);
        if (fine == testo.npos)
            return false;
        const std::string_view valore = testo.substr(inizio + 1, fine - inizio - 1);
        for (size_t e = valore.find('&'); e != valore.npos; e = valore.find('&', e + 1))
            if (valore.substr(e, 2) != "&#")
                return false;
        if (valore.find_first_of("<%") != valore.npos || valore.find("&#60;") != valore.npos ||
            valore.find("&#38;") != valore.npos || valore.find("&#x") != valore.npos)
            return false;
        valori.push_back(valore);
        p = fine;
    }
    return true;
}

/// References to entities other than the five of XML and characters by number.
qint64 Conta_Riferimenti_Entita(std::string_view testo) {
    static constexpr std::string_view NOTI[] = {"amp;", "lt;", "gt;", "quot;", "apos;", "#"};
    qint64 numero = 0;
    for (size_t p = testo.find('&'); p != testo.npos; p = testo.find('&', p + 1))
        numero += std::none_of(std::begin(NOTI), std::end(NOTI),
                               [&](std::string_view noto) { return testo.substr(p + 1).starts_with(noto); });
    return numero;
}

int Conta_Elementi(std::string_view testo) {
    int numero = 0;
    for (const char* p = testo.data(); (p = static_cast<const char*>(std::memchr(
                                            p, '<', static_cast<size_t>(testo.data() + testo.size() - p))));)
        if (++p < testo.data() + testo.size() && *p != '/' && *p != '!' && *p != '?')
            ++numero;
    return numero;
}

bool Solo_Per_Riferimento(std::string_view nome) {
    static const std::set<std::string_view> NOMI = {"defs",   "symbol",         "clipPath",
                                                    "mask",   "pattern",        "marker",
                                                    "filter", "linearGradient", "radialGradient"};
    return NOMI.contains(nome);
}

/// Filters that the renderer works out in a time that depends on the picture alone.
bool Filtro_Leggero(std::string_view nome) {
    static const std::set<std::string_view> NOMI = {"feGaussianBlur", "feOffset",      "feFlood",
                                                    "feBlend",        "feComposite",   "feMerge",
                                                    "feMergeNode",    "feColorMatrix", "feComponentTransfer",
                                                    "feFuncR",        "feFuncG",       "feFuncB",
                                                    "feFuncA",        "feDropShadow"};
    return NOMI.contains(nome);
}

struct Nodo {
    int fine;          ///< index after the last element inside
    int livello;       ///< nesting
    int strati_sopra;  ///< layers of the element and of all around it
    double peso;       ///< 1, more with much text or a long path
    bool strato;       ///< drawn on a layer of its own
    bool per_riferimento;
};

struct Costo {
    double elementi = 0, strati = 0;
    int livelli = 0, pila = 0;  ///< deepest nesting, of elements and of layers
};

class Esaminatore {
  public:
    Esaminatore(const Limiti& limiti, Esame& esame) : limiti_(limiti), esame_(esame) {}

    void Visita(const QByteArray& testo, const pugi::xml_node& radice) {
        Raccogli_Stili(testo, radice);
        Raccogli_Nodi(radice);
        if (esame_.rifiuto.isEmpty())
            Stima();
    }

  private:
    void Raccogli_Stili(const QByteArray& testo, const pugi::xml_node& radice) {
        std::vector<std::string_view> valori;
        Entita({testo.constData(), static_cast<size_t>(testo.size())}, valori);
        for (const std::string_view valore : valori) {  // entities are used to abbreviate styles
            for (auto& id : Riferimenti(valore))
                stili_.riferimenti.insert(std::move(id));
            stili_.strato_ovunque = stili_.strato_ovunque || Chiede_Strato(valore);
        }
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n))
            if (Nome_Locale(n.name()) == "style")
                for (const pugi::xml_node figlio : n)
                    stili_.Aggiungi(figlio.value());
    }

    static pugi::xml_node Seguente(const pugi::xml_node& radice, pugi::xml_node n) {
        if (n.first_child())
            return n.first_child();
        while (n != radice && !n.next_sibling())
            n = n.parent();
        return n == radice ? pugi::xml_node() : n.next_sibling();
    }

    void Raccogli_Nodi(const pugi::xml_node& radice) {
        std::vector<int> aperti;
        pugi::xml_node n = radice;
        while (n && esame_.rifiuto.isEmpty()) {
            if (n.type() == pugi::node_element)
                Apri(n, aperti);
            else if (!aperti.empty())
                Testo(n, aperti.back());
            if (n.type() == pugi::node_element && n.first_child()) {
                n = n.first_child();
                continue;
            }
            while (true) {
                if (n.type() == pugi::node_element) {
                    nodi_[static_cast<size_t>(aperti.back())].fine = static_cast<int>(nodi_.size());
                    aperti.pop_back();
                }
                if (n == radice || n.next_sibling())
                    break;
                n = n.parent();
            }
            n = n == radice ? pugi::xml_node() : n.next_sibling();
        }
    }

    void Apri(const pugi::xml_node& n, std::vector<int>& aperti) {
        const int indice = static_cast<int>(nodi_.size()), livello = static_cast<int>(aperti.size()) + 1;
        if (livello > limiti_.livelli) {
            esame_.rifiuto = QStringLiteral("elements nested too deep");
            return;
        }
        const std::string_view nome = Nome_Locale(n.name());
        Nodo nodo{indice + 1,
                  livello,
                  aperti.empty() ? 0 : nodi_[static_cast<size_t>(aperti.back())].strati_sopra,
                  1,
                  stili_.strato_ovunque,
                  Solo_Per_Riferimento(nome)};
        for (const pugi::xml_attribute a : n.attributes())
            Attributo(n, nome, a, indice, nodo);
        nodo.strati_sopra += nodo.strato;
        nodi_.push_back(nodo);
        aperti.push_back(indice);
        if (nome.starts_with("fe") && Nome_Locale(n.parent().name()) == "filter" && !Filtro_Leggero(nome))
            Togli_Filtro(n);
        if (n.attribute("data-hotspot") && static_cast<int>(esame_.hotspot.size()) < limiti_.hotspot)
            esame_.hotspot.push_back(n);
    }

    /// Without its id nothing can use the filter. The renderer stumbles over some matrices already when it
    /// reads them.
    void Togli_Filtro(const pugi::xml_node& primitiva) {
        for (const auto& attributo :
             {primitiva.parent().attribute("id"), primitiva.attribute("kernelMatrix")})
            if (attributo)
                esame_.da_togliere.push_back(attributo);
    }

    void Attributo(const pugi::xml_node& n, std::string_view elemento, const pugi::xml_attribute& a,
                   int indice, Nodo& nodo) {
        const std::string_view nome = a.name(), valore = a.value();
        if (nome == "id") {
            if (esame_.id.emplace(valore, n).second)
                per_id_[valore] = indice;
        } else if (nome == "class") {
            con_classe_++;
            nodo.strato = nodo.strato || stili_.Strato(valore);
        } else if (nome == "style") {
            nodo.strato = nodo.strato || Chiede_Strato(valore);
        } else if (nome == "opacity" || nome == "mask" || nome == "filter") {
            nodo.strato = nodo.strato || (valore != "1" && valore != "none");
        } else if (nome == "d" || nome == "points") {
            nodo.peso += static_cast<double>(valore.size()) / 1000;
        } else if (Nome_Locale(a.name()) == "href" && (elemento == "image" || elemento == "feImage")) {
            Immagine(a);
        }
        if (elemento != "a" && valore.find('#') != valore.npos)
            for (auto& id : Riferimenti(valore))
                riferimenti_.emplace_back(indice, std::move(id));
    }

    void Immagine(const pugi::xml_attribute& a) {
        const std::string_view valore = a.value();
        if (!valore.starts_with("data:"))
            return;
        const double pixel = Pixel_Immagine_Inclusa(valore);
        if (pixel < 0 || pixel_immagini_ + pixel > static_cast<double>(limiti_.pixel_immagini))
            esame_.da_togliere.push_back(a);
        else
            pixel_immagini_ += pixel;
    }

    void Testo(const pugi::xml_node& n, int elemento) {
        const std::string_view nome = Nome_Locale(n.parent().name());
        if ((n.type() != pugi::node_pcdata && n.type() != pugi::node_cdata) || nome == "style" ||
            nome == "script" || nome == "title" || nome == "desc")
            return;
        const auto lunghezza = static_cast<double>(std::strlen(n.value()));
        nodi_[static_cast<size_t>(elemento)].peso += lunghezza / 20;
        caratteri_ += lunghezza;
        if (caratteri_ > static_cast<double>(limiti_.caratteri))
            esame_.rifiuto = QStringLiteral("too much text");
    }

    void Stima() {
        calcolati_.resize(nodi_.size());
        stato_.resize(nodi_.size(), NUOVO);
        Costo totale = Calcola(0, 0);
        Costo fogli;  // an element with a class may use the dearest of what the style sheets name
        for (const std::string& id : stili_.riferimenti)
            if (const auto it = per_id_.find(id); it != per_id_.end()) {
                const Costo uno = Calcola(it->second, 0);
                fogli.elementi = std::max(fogli.elementi, uno.elementi);
                fogli.strati = std::max(fogli.strati, uno.strati);
                fogli.livelli += uno.livelli > 3 ? uno.livelli : 0;  // gradients don't lead on
                fogli.pila = std::max(fogli.pila, uno.pila);
            }
        totale.elementi += con_classe_ * fogli.elementi;
        totale.strati += con_classe_ * fogli.strati;
        totale.livelli += fogli.livelli;
        totale.pila += fogli.pila;
        if (troppo_profondo_ || totale.livelli > limiti_.livelli)
            esame_.rifiuto = QStringLiteral("references nested too deep");
        else if (totale.elementi > limiti_.elementi_espansi)
            esame_.rifiuto = QStringLiteral("too many elements by reference");
        else if (totale.strati > 0)
            esame_.pixel_massimi = std::min(limiti_.memoria_strati / (4 * std::max(1, totale.pila)),
                                            limiti_.pixel_strati / totale.strati);
    }

    /// What drawing an element costs, with all that it refers to. A circle of references counts once, as the
    /// renderer stops there.
    Costo Calcola(int indice, int profondita) {
        const auto i = static_cast<size_t>(indice);
        if (stato_[i] == FATTO)
            return calcolati_[i];
        if (stato_[i] == IN_CORSO)
            return {};
        if (profondita > limiti_.livelli) {
            troppo_profondo_ = true;
            return {};
        }
        stato_[i] = IN_CORSO;
        const Nodo& radice = nodi_[i];
        Costo costo;
        for (int e = indice; e < radice.fine;) {
            const Nodo& nodo = nodi_[static_cast<size_t>(e)];
            if (e != indice && nodo.per_riferimento) {
                e = nodo.fine;
                continue;
            }
            const int livello = nodo.livello - radice.livello + 1;
            const int pila = nodo.strati_sopra - radice.strati_sopra + radice.strato;
            costo.elementi += nodo.peso;
            costo.strati += nodo.strato;
            costo.livelli = std::max(costo.livelli, livello);
            costo.pila = std::max(costo.pila, pila);
            for (auto r = std::lower_bound(riferimenti_.begin(), riferimenti_.end(), e,
                                           [](const auto&voce, int chi) { return voce.first < chi; });
                 r != riferimenti_.end() && r->first == e && !troppo_profondo_; ++r)
                if (const auto it = per_id_.find(r->second); it != per_id_.end()) {
                    const Costo uno = Calcola(it->second, profondita + 1);
                    costo.elementi += uno.elementi;
                    costo.strati += uno.strati;
                    costo.livelli = std::max(costo.livelli, livello + uno.livelli);
                    costo.pila = std::max(costo.pila, pila + uno.pila);
                }
            ++e;
        }
        stato_[i] = FATTO;
        calcolati_[i] = costo;
        return costo;
    }

    enum Stato : char { NUOVO, IN_CORSO, FATTO };

    const Limiti& limiti_;
    Esame& esame_;
    Stili stili_;
    std::vector<Nodo> nodi_;
    std::vector<std::pair<int, std::string>> riferimenti_;  ///< element, id; in order of elements
    std::unordered_map<std::string_view, int> per_id_;
    std::vector<Costo> calcolati_;
    std::vector<Stato> stato_;
    double con_classe_ = 0, pixel_immagini_ = 0, caratteri_ = 0;
    bool troppo_profondo_ = false;
};

}  // namespace

std::string_view Nome_Locale(const char* nome) {
    const char* punti = std::strchr(nome, ':');
    return punti ? punti + 1 : nome;
}

QString Rifiuto_Del_Testo(const QByteArray& testo, const Limiti& limiti) {
    const std::string_view vista(testo.constData(), static_cast<size_t>(testo.size()));
    if (Conta_Elementi(vista) > limiti.elementi)
        return QStringLiteral("too many elements");
    std::vector<std::string_view> valori;
    if (!Entita(vista, valori))
        return QStringLiteral("nested entities");
    size_t massimo = 0;
    for (const std::string_view valore : valori)
        massimo = std::max(massimo, valore.size());
    if (massimo > 0 && static_cast<double>(massimo) * static_cast<double>(Conta_Riferimenti_Entita(vista)) >
                           static_cast<double>(limiti.byte_entita))
        return QStringLiteral("entities expand to too much text");
    return {};
}

Esame Esamina(const QByteArray& testo, const pugi::xml_node& radice, const Limiti& limiti) {
    Esame esame;
    Esaminatore(limiti, esame).Visita(testo, radice);
    return esame;
}

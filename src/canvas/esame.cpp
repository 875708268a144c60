#include "canvas/esame.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <unordered_map>
#include <vector>

#include "canvas/albero.h"
#include "canvas/immagini_incluse.h"
#include "canvas/stili.h"

using namespace std::string_view_literals;

namespace {

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
    pugi::xml_node nodo;
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

    void Visita(const pugi::xml_node& radice) {
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n))
            if (Nome_Locale(n.name()) == "style")
                stili_.Aggiungi(n.text().get());
        Raccogli_Nodi(radice);
        if (!esame_.rifiuto.isEmpty())
            return;
        Stima();
        for (pugi::xml_attribute& immagine : immagini_tolte_)
            immagine.set_value("");
        for (const pugi::xml_node& filtro : filtri_tolti_)
            filtro.parent().remove_child(filtro);
    }

  private:
    void Raccogli_Nodi(const pugi::xml_node& radice) {
        std::vector<int> aperti;
        for (pugi::xml_node n = radice; n && esame_.rifiuto.isEmpty(); n = Seguente(radice, n)) {
            while (!aperti.empty() && nodi_[static_cast<size_t>(aperti.back())].nodo != n.parent())
                Chiudi(aperti);
            Apri(n, aperti);
        }
        while (!aperti.empty())
            Chiudi(aperti);
    }

    void Chiudi(std::vector<int>& aperti) {
        nodi_[static_cast<size_t>(aperti.back())].fine = static_cast<int>(nodi_.size());
        aperti.pop_back();
    }

    void Apri(const pugi::xml_node& n, std::vector<int>& aperti) {
        const int indice = static_cast<int>(nodi_.size());
        const std::string_view nome = Nome_Locale(n.name());
        Nodo nodo{n,
                  indice + 1,
                  static_cast<int>(aperti.size()) + 1,
                  aperti.empty() ? 0 : nodi_[static_cast<size_t>(aperti.back())].strati_sopra,
                  1,
                  stili_.strato_ovunque,
                  Solo_Per_Riferimento(nome)};
        for (const pugi::xml_attribute a : n.attributes())
            Attributo(nome, a, indice, nodo);
        nodo.strati_sopra += nodo.strato;
        if (nome != "style")
            for (const pugi::xml_node figlio : n)
                Testo(figlio, nodo);
        nodi_.push_back(nodo);
        aperti.push_back(indice);
        const pugi::xml_node filtro = n.parent();
        if (nome.starts_with("fe") && Nome_Locale(filtro.name()) == "filter" && !Filtro_Leggero(nome) &&
            (filtri_tolti_.empty() || filtri_tolti_.back() != filtro))
            filtri_tolti_.push_back(filtro);
    }

    void Attributo(std::string_view elemento, const pugi::xml_attribute& a, int indice, Nodo& nodo) {
        const std::string_view nome = a.name(), valore = a.value();
        if (nome == "id") {
            per_id_.emplace(valore, indice);  // the first one counts
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
            immagini_tolte_.push_back(a);
        else
            pixel_immagini_ += pixel;
    }

    void Testo(const pugi::xml_node& n, Nodo& elemento) {
        if (n.type() != pugi::node_pcdata)
            return;
        const auto lunghezza = static_cast<double>(std::strlen(n.value()));
        elemento.peso += lunghezza / 20;
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
    std::vector<pugi::xml_attribute> immagini_tolte_;
    std::vector<pugi::xml_node> filtri_tolti_;
    std::vector<Costo> calcolati_;
    std::vector<Stato> stato_;
    double con_classe_ = 0, pixel_immagini_ = 0, caratteri_ = 0;
    bool troppo_profondo_ = false;
};

}  // namespace

Esame Esamina(pugi::xml_document& albero, const Limiti& limiti) {
    Esame esame;
    Esaminatore(limiti, esame).Visita(albero.document_element());
    return esame;
}

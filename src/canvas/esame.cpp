#include "canvas/esame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <unordered_map>
#include <vector>

#include "canvas/albero.h"
#include "canvas/immagini_incluse.h"
#include "canvas/pulizia.h"
#include "canvas/stili.h"

namespace {

/// Work in units of a plain shape, as measured.
constexpr double PESO_TESTO = 20, PESO_LETTERA = .5, PESO_VERTICE = .01, PESO_PIXEL = 5e-5;
constexpr double PESO_LATO = 2;         ///< of a line as long as the page
constexpr double PESO_INCROCIO = 2e-4;  ///< of each place where a path may cross itself
/// Layers in units of one for opacity.
constexpr double STRATO_PRIMITIVA = 20;
/// Filling the page with a plain colour or with a pattern, in nanoseconds for each pixel.
constexpr double TINTA_PIENA = .5, TINTA_SFUMATA = 7;

template <size_t N>
bool Uno_Di(std::string_view nome, const std::array<std::string_view, N>& nomi) {
    return std::find(nomi.begin(), nomi.end(), nome) != nomi.end();
}

bool Solo_Per_Riferimento(std::string_view nome) {
    static constexpr std::array<std::string_view, 9> NOMI = {"defs",   "symbol",         "clipPath",
                                                             "mask",   "pattern",        "marker",
                                                             "filter", "linearGradient", "radialGradient"};
    return Uno_Di(nome, NOMI);
}

/// The length of a path or list of points, and the number of its vertices, from above.
struct Tracciato {
    double lunghezza = 0, vertici = 0;
};

Tracciato Misura(const char* d) {
    Tracciato t;
    std::array<double, 2> prima{};
    bool relativo = false, solo_y = false, dispari = false;
    double numeri = 0;
    while (*d) {
        if (std::isalpha(static_cast<unsigned char>(*d)) && *d != 'e' && *d != 'E') {
            relativo = std::islower(static_cast<unsigned char>(*d));
            solo_y = *d == 'v' || *d == 'V';
            dispari = false;
            ++d;
            continue;
        }
        char* fine = nullptr;
        const double numero = std::strtod(d, &fine);
        if (fine == d) {
            ++d;
            continue;
        }
        d = fine;
        ++numeri;
        double& ultimo = prima[solo_y || dispari];
        t.lunghezza += std::abs(relativo ? numero : numero - ultimo);
        ultimo = relativo ? ultimo + numero : numero;
        dispari = !dispari;
    }
    t.vertici = numeri / 2;
    return t;
}

struct Nodo {
    pugi::xml_node nodo;
    int fine;               ///< index after the last element inside
    int livello;            ///< nesting
    double peso = 1;        ///< its own work
    double strati = 0;      ///< its own layers
    double tinta = 0;       ///< filling it, in nanoseconds for each pixel of the page
    int strati_sopra = 0;   ///< elements with layers around it, itself included
    double vertici = 0;     ///< at which it bears markers
    double tratteggio = 0;  ///< shortest period of its dashed lines, 0 for none
    int ereditati = 0;      ///< which list of ids all shapes in it use
    bool per_riferimento = false, usa = false;
};

struct Costo {
    double elementi = 0, strati = 0, tinta = 0;
    int livelli = 0, pila = 0;  ///< deepest nesting, of elements and of layers

    void Aggiungi(const Costo& altro, double volte, int livello, int pila_qui) {
        elementi += altro.elementi * volte;
        strati += altro.strati * volte;
        tinta += altro.tinta * volte;
        livelli = std::max(livelli, livello + altro.livelli);
        pila = std::max(pila, pila_qui + altro.pila);
    }
};

class Esaminatore {
  public:
    Esaminatore(double pagina, const Limiti& limiti, Esame& esame)
        : pagina_(pagina), limiti_(limiti), esame_(esame) {}

    void Visita(const pugi::xml_node& radice) {
        Leggi_Fogli(radice);
        std::vector<int> aperti;
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n)) {
            while (!aperti.empty() && nodi_[static_cast<size_t>(aperti.back())].nodo != n.parent())
                Chiudi(aperti);
            Apri(n, aperti);
            if (caratteri_ > static_cast<double>(limiti_.caratteri))
                esame_.rifiuto = QStringLiteral("too much text");
            else if (static_cast<double>(riferimenti_.size()) > limiti_.elementi_espansi)
                esame_.rifiuto = QStringLiteral("too many references");
            if (!esame_.rifiuto.isEmpty())
                return;
        }
        while (!aperti.empty())
            Chiudi(aperti);
        Stima();
        if (tratti_ > limiti_.tratti)
            Togli_Tratteggi(radice);
    }

  private:
    void Leggi_Fogli(const pugi::xml_node& radice) {
        double elementi = 0;
        std::vector<pugi::xml_node> fogli;
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n), ++elementi)
            if (Nome_Locale(n.name()) == "style")
                fogli.push_back(n);
        for (const pugi::xml_node& foglio : fogli)
            fogli_.Aggiungi(foglio.text().get());
        if (fogli_.Peso() * elementi <= limiti_.confronti_stile)
            return;
        fogli_ = {};
        for (const pugi::xml_node& foglio : fogli)
            foglio.text().set("");
        esame_.lasciato_fuori << QStringLiteral("style sheets with too many rules");
    }

    void Chiudi(std::vector<int>& aperti) {
        nodi_[static_cast<size_t>(aperti.back())].fine = static_cast<int>(nodi_.size());
        aperti.pop_back();
    }

    void Apri(const pugi::xml_node& n, std::vector<int>& aperti) {
        const int indice = static_cast<int>(nodi_.size());
        const std::string_view nome = Nome_Locale(n.name());
        Nodo nodo{n, indice + 1, static_cast<int>(aperti.size()) + 1};
        nodo.per_riferimento = Solo_Per_Riferimento(nome);
        nodo.usa = nome == "use";
        Stile stile;
        for (const pugi::xml_attribute a : n.attributes())
            Attributo(a, nome, indice, stile);
        fogli_.Applica(stile, nome, n.attribute("id").value(), n.attribute("class").value());
        for (std::string& id : stile.riferimenti)
            riferimenti_.emplace_back(indice, std::move(id));
        if (!aperti.empty()) {
            const Nodo& sopra = nodi_[static_cast<size_t>(aperti.back())];
            nodo.strati_sopra = sopra.strati_sopra;
            nodo.tratteggio = sopra.tratteggio;
            nodo.ereditati = sopra.ereditati;
        }
        Eredita(stile, nodo);
        nodo.strati = stile.strati;
        nodo.strati_sopra += stile.strati > 0;
        Pesa(n, nome, nodo);
        nodi_.push_back(nodo);
        aperti.push_back(indice);
    }

    void Attributo(const pugi::xml_attribute& a, std::string_view elemento, int indice, Stile& stile) {
        const std::string_view nome = a.name(), valore = a.value();
        if (nome == "id" || nome == "xml:id")
            per_id_.emplace(valore, indice);  // the first one counts
        else if (nome == "style")
            stile.Aggiungi_Tutte(valore);
        else if (Nome_Locale(a.name()) == "href" && elemento != "a") {
            if (std::string id = Riferimento(valore); !id.empty())
                riferimenti_.emplace_back(indice, std::move(id));
        } else {
            stile.Aggiungi(nome, valore);
        }
    }

    void Eredita(const Stile& stile, Nodo& nodo) {
        if (stile.tratteggio > 0)
            nodo.tratteggio = stile.tratteggio;
        if (stile.ereditati.empty())
            return;
        std::vector<std::string> lista = liste_[static_cast<size_t>(nodo.ereditati)];
        for (const std::string& id : stile.ereditati)
            if (std::find(lista.begin(), lista.end(), id) == lista.end())
                lista.push_back(id);
        if (lista == liste_.back()) {
            nodo.ereditati = static_cast<int>(liste_.size()) - 1;
            return;
        }
        nodo.ereditati = static_cast<int>(liste_.size());
        liste_.push_back(std::move(lista));
    }

    void Pesa(const pugi::xml_node& n, std::string_view nome, Nodo& nodo) {
        static constexpr std::array<std::string_view, 7> FORME = {"path",   "polyline", "polygon", "line",
                                                                  "circle", "ellipse",  "rect"};
        if (nome == "text") {
            nodo.peso += PESO_TESTO;
            nodo.vertici = 1;
        }
        if (nome == "image")
            nodo.peso += std::max(0., Pixel_Immagine_Inclusa(
                                          n.attribute(n.attribute("href") ? "href" : "xlink:href").value())) *
                         PESO_PIXEL;
        if (nome.starts_with("fe"))
            nodo.strati += STRATO_PRIMITIVA;
        if (Uno_Di(nome, FORME)) {
            Tracciato t = Misura(n.attribute(nome == "path" ? "d" : "points").value());
            for (const char* lato : {"x1", "y1", "x2", "y2", "r", "rx", "ry", "width", "height"})
                if (const pugi::xml_attribute a = n.attribute(lato))
                    t.lunghezza += 4 * (std::strchr(a.value(), '%') ? pagina_ : std::abs(a.as_double()));
            if (nodo.tratteggio > 0)
                tratti_ += t.lunghezza / nodo.tratteggio;
            // What lies off the page is cut off.
            const double lati = std::min(t.lunghezza / pagina_, 4 * (t.vertici + 4)),
                         parte = std::min(1., lati * lati / 16);
            nodo.vertici = t.vertici + 4;
            nodo.peso += t.vertici * PESO_VERTICE + lati * PESO_LATO + t.vertici * lati * PESO_INCROCIO;
            nodo.tinta = parte * (nodo.ereditati ? TINTA_SFUMATA : TINTA_PIENA);
        }
        if (nome == "style")
            return;
        for (const pugi::xml_node& figlio : n)
            if (figlio.type() == pugi::node_pcdata) {
                const auto lettere = static_cast<double>(std::strlen(figlio.value()));
                nodo.peso += lettere * PESO_LETTERA;
                caratteri_ += lettere;
            }
    }

    void Stima() {
        calcolati_.resize(nodi_.size());
        stato_.resize(nodi_.size(), NUOVO);
        const Costo totale = Calcola(0, 0);
        if (troppo_profondo_ || totale.livelli > limiti_.livelli)
            esame_.rifiuto = QStringLiteral("references nested too deep");
        else if (totale.elementi > limiti_.elementi_espansi)
            esame_.rifiuto = QStringLiteral("too much to draw");
        if (totale.tinta > 0)
            esame_.pixel_insieme = limiti_.nanosecondi_tinta / totale.tinta;
        if (totale.strati > 0)
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
        const int strati_fuori = radice.strati_sopra - (radice.strati > 0);
        Costo costo;
        for (int e = indice; e < radice.fine && !troppo_profondo_;) {
            const Nodo& nodo = nodi_[static_cast<size_t>(e)];
            if (e != indice && nodo.per_riferimento) {
                e = nodo.fine;
                continue;
            }
            const int livello = nodo.livello - radice.livello + 1;
            const int pila = nodo.strati_sopra - strati_fuori;
            costo.elementi += nodo.peso;
            costo.strati += nodo.strati;
            costo.tinta += nodo.tinta;
            costo.livelli = std::max(costo.livelli, livello);
            costo.pila = std::max(costo.pila, pila);
            double usati = nodo.vertici;  // how often the patterns and markers around it are drawn
            for (auto r = std::lower_bound(riferimenti_.begin(), riferimenti_.end(), e,
                                           [](const auto&voce, int chi) { return voce.first < chi; });
                 r != riferimenti_.end() && r->first == e; ++r)
                if (const auto it = per_id_.find(r->second); it != per_id_.end()) {
                    const Costo uno = Calcola(it->second, profondita + 1);
                    costo.Aggiungi(uno, 1, livello, pila);
                    usati += nodo.usa ? uno.elementi / PESO_VERTICE : 0;
                }
            if (usati > 0)
                for (const std::string& id : liste_[static_cast<size_t>(nodo.ereditati)])
                    if (const auto it = per_id_.find(id); it != per_id_.end()) {
                        const bool marca =
                            Nome_Locale(nodi_[static_cast<size_t>(it->second)].nodo.name()) == "marker";
                        costo.Aggiungi(Calcola(it->second, profondita + 1),
                                       marca ? usati : std::max(1., usati * PESO_VERTICE), livello, pila);
                    }
            ++e;
        }
        stato_[i] = FATTO;
        calcolati_[i] = costo;
        return costo;
    }

    void Togli_Tratteggi(const pugi::xml_node& radice) {
        const auto senza =
            [](std::string testo) {  // the renderer passes over a property that it doesn't know
                for (size_t p = 0; p + 16 <= testo.size(); ++p)
                    if (std::equal(
                            testo.begin() + static_cast<ptrdiff_t>(p),
                            testo.begin() + static_cast<ptrdiff_t>(p + 16), "stroke-dasharray",
                            [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; }))
                        testo[p] = '-';
                return testo;
            };
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n)) {
            n.remove_attribute("stroke-dasharray");
            if (pugi::xml_attribute stile = n.attribute("style"))
                stile.set_value(senza(stile.value()).c_str());
            if (Nome_Locale(n.name()) == "style")
                n.text().set(senza(n.text().get()).c_str());
        }
        esame_.lasciato_fuori << QStringLiteral("the gaps of dashed lines, which are too fine");
    }

    enum Stato : char { NUOVO, IN_CORSO, FATTO };

    const double pagina_;  ///< its longer side, in user units
    const Limiti& limiti_;
    Esame& esame_;
    Fogli fogli_;
    std::vector<Nodo> nodi_;
    std::vector<std::pair<int, std::string>> riferimenti_;  ///< element, id; in order of elements
    std::vector<std::vector<std::string>> liste_{{}};       ///< of inherited ids
    std::unordered_map<std::string, int> per_id_;
    std::vector<Costo> calcolati_;
    std::vector<Stato> stato_;
    double caratteri_ = 0, tratti_ = 0;
    bool troppo_profondo_ = false;
};

}  // namespace

Esame Esamina(pugi::xml_document& albero, double pagina, const Limiti& limiti) {
    Esame esame;
    Pulisci(albero, limiti, esame.lasciato_fuori);
    Esaminatore(pagina, limiti, esame).Visita(albero.document_element());
    return esame;
}

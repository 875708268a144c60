#include "canvas/pulizia.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "canvas/albero.h"
#include "canvas/immagini_incluse.h"
#include "canvas/stili.h"

namespace {

/// Filters that the renderer works out in a time that depends on the picture alone.
bool Filtro_Leggero(std::string_view nome) {
    static constexpr std::array<std::string_view, 14> NOMI = {
        "feGaussianBlur", "feOffset",    "feFlood",       "feBlend",     "feComposite",
        "feMerge",        "feMergeNode", "feColorMatrix", "feFuncR",     "feComponentTransfer",
        "feFuncG",        "feFuncB",     "feFuncA",       "feDropShadow"};
    return std::find(NOMI.begin(), NOMI.end(), nome) != NOMI.end();
}

class Pulitore {
  public:
    Pulitore(const Limiti& limiti, QStringList& lasciato_fuori)
        : limiti_(limiti), lasciato_fuori_(lasciato_fuori) {}

    void Pulisci(const pugi::xml_node& radice) {
        std::vector<pugi::xml_node> filtri;
        for (pugi::xml_node n = radice; n; n = Seguente(radice, n)) {
            const std::string_view nome = Nome_Locale(n.name());
            for (pugi::xml_attribute a : n.attributes())
                Attributo(nome, a);
            if (nome == "style")
                n.text().set(Css_Pulito(n.text().get(), true).c_str());
            if (const pugi::xml_node filtro = n.parent();
                nome.starts_with("fe") && Nome_Locale(filtro.name()) == "filter" && !Filtro_Leggero(nome) &&
                (filtri.empty() || filtri.back() != filtro))
                filtri.push_back(filtro);
        }
        for (pugi::xml_node filtro : filtri)
            filtro.parent().remove_child(filtro);
        if (!filtri.empty())
            lasciato_fuori_ << QStringLiteral("filters of unforeseeable cost");
        if (immagini_tolte_)
            lasciato_fuori_ << QStringLiteral("pictures that are too large or of an unknown kind");
    }

  private:
    void Attributo(std::string_view elemento, pugi::xml_attribute a) {
        const std::string_view nome = a.name(), valore = a.value();
        if (Nome_Locale(a.name()) == "href")
            Indirizzo(elemento, a);
        else if (nome == "style" || valore.find('\\') != valore.npos || valore.find("/*") != valore.npos ||
                 valore.find('(') != valore.npos)
            if (nome != "id" && nome != "class" && !nome.starts_with("data-"))
                a.set_value(Css_Pulito(valore, false).c_str());
    }

    /// Only to an element of the document, or to a picture in the address itself.
    void Indirizzo(std::string_view elemento, pugi::xml_attribute a) {
        const std::string valore(a.value());
        const size_t inizio = valore.find_first_not_of(" \t\r\n");
        if (inizio == valore.npos || valore[inizio] == '#') {
            a.set_value(inizio == valore.npos ? "" : valore.c_str() + inizio);
            return;
        }
        if ((elemento == "image" || elemento == "feImage") && valore.starts_with("data:")) {
            const double pixel = Pixel_Immagine_Inclusa(valore);
            if (pixel >= 0 && pixel_immagini_ + pixel <= static_cast<double>(limiti_.pixel_immagini)) {
                pixel_immagini_ += pixel;
                return;
            }
            immagini_tolte_ = true;
        }
        a.set_value("");
    }

    const Limiti& limiti_;
    QStringList& lasciato_fuori_;
    double pixel_immagini_ = 0;
    bool immagini_tolte_ = false;
};

}  // namespace

void Pulisci(pugi::xml_document& albero, const Limiti& limiti, QStringList& lasciato_fuori) {
    Pulitore(limiti, lasciato_fuori).Pulisci(albero.document_element());
}

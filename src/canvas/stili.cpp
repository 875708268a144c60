#include "canvas/stili.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace {

std::string_view Rifila(std::string_view testo) {
    while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.front())))
        testo.remove_prefix(1);
    while (!testo.empty() && std::isspace(static_cast<unsigned char>(testo.back())))
        testo.remove_suffix(1);
    return testo;
}

}  // namespace

std::vector<std::string> Riferimenti(std::string_view testo) {
    std::vector<std::string> trovati;
    testo = Rifila(testo);
    if (testo.empty())
        return trovati;
    if (testo.front() == '#') {
        trovati.emplace_back(testo.substr(1));
        return trovati;
    }
    for (size_t p = testo.find("url("); p != std::string_view::npos; p = testo.find("url(", p)) {
        p += 4;
        const size_t fine = std::min(testo.find(')', p), testo.size());
        std::string_view id = Rifila(testo.substr(p, fine - p));
        if (!id.empty() && (id.front() == '"' || id.front() == '\''))
            id = id.substr(1, id.size() < 2 ? 0 : id.size() - 2);
        id = Rifila(id);
        if (!id.empty() && id.front() == '#')
            trovati.emplace_back(id.substr(1));
    }
    return trovati;
}

bool Chiede_Strato(std::string_view dichiarazioni) {
    static constexpr std::array<std::string_view, 5> PROPRIETA = {"opacity", "mask", "filter",
                                                                  "mix-blend-mode", "isolation"};
    size_t p = 0;
    while (p < dichiarazioni.size()) {
        const size_t fine = std::min(dichiarazioni.find(';', p), dichiarazioni.size());
        const std::string_view una = dichiarazioni.substr(p, fine - p);
        const size_t punti = una.find(':');
        if (punti != std::string_view::npos) {
            const std::string_view nome = Rifila(una.substr(0, punti)),
                                   valore = Rifila(una.substr(punti + 1));
            if (std::find(PROPRIETA.begin(), PROPRIETA.end(), nome) != PROPRIETA.end() && valore != "none" &&
                valore != "1" && valore != "normal" && valore != "auto")
                return true;
        }
        p = fine + 1;
    }
    return false;
}

void Stili::Aggiungi(std::string_view foglio) {
    size_t p = 0;
    while (p < foglio.size()) {
        const size_t aperta = foglio.find('{', p);
        if (aperta == std::string_view::npos)
            break;
        const size_t chiusa = std::min(foglio.find('}', aperta), foglio.size());
        const std::string_view selettori = foglio.substr(p, aperta - p);
        const std::string_view corpo = foglio.substr(aperta + 1, chiusa - aperta - 1);
        for (auto& id : Riferimenti(corpo))
            riferimenti.insert(std::move(id));
        if (Chiede_Strato(corpo)) {
            bool con_classe = false;
            for (size_t punto = selettori.find('.'); punto != std::string_view::npos;
                 punto = selettori.find('.', punto)) {
                const size_t inizio = ++punto;
                while (punto < selettori.size() &&
                       (std::isalnum(static_cast<unsigned char>(selettori[punto])) ||
                        selettori[punto] == '-' || selettori[punto] == '_'))
                    ++punto;
                classi_con_strato.emplace(selettori.substr(inizio, punto - inizio));
                con_classe = true;
            }
            strato_ovunque = strato_ovunque || !con_classe;
        }
        p = chiusa + 1;
    }
}

bool Stili::Strato(std::string_view classi) const {
    if (strato_ovunque)
        return true;
    size_t p = 0;
    while (p < classi.size()) {
        const size_t fine = std::min(classi.find_first_of(" \t\r\n", p), classi.size());
        if (classi_con_strato.contains(classi.substr(p, fine - p)))
            return true;
        p = fine + 1;
    }
    return false;
}

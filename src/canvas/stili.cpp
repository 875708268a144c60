#include "canvas/stili.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>

namespace {

using Testo = std::string_view;

bool Bianco(char c) {
    return std::isspace(static_cast<unsigned char>(c));
}

bool Di_Nome(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_' || (c & 0x80);
}

Testo Rifila(Testo testo) {
    while (!testo.empty() && Bianco(testo.front()))
        testo.remove_prefix(1);
    while (!testo.empty() && Bianco(testo.back()))
        testo.remove_suffix(1);
    return testo;
}

std::string Minuscolo(Testo testo) {
    std::string minuscolo(testo);
    for (char& c : minuscolo)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return minuscolo;
}

template <class Azione>
void Per_Ogni(Testo testo, Testo separatori, Azione azione) {
    while (true) {
        const size_t fine = testo.find_first_of(separatori);
        if (const Testo parte = Rifila(testo.substr(0, fine)); !parte.empty())
            azione(parte);
        if (fine == testo.npos)
            return;
        testo.remove_prefix(fine + 1);
    }
}

/// Comments become blanks, escapes the letter, digit, "-" or "_" that they stand for, any other "_".
std::string Senza_Veli(Testo testo) {
    std::string chiaro;
    for (size_t i = 0; i < testo.size(); ++i) {
        if (testo.substr(i, 2) == "/*") {
            i = std::min(testo.find("*/", i + 2), testo.size()) + 1;
            chiaro += ' ';
        } else if (testo.substr(i, 4) == "<!--" || testo.substr(i, 3) == "-->") {
            i += testo[i] == '<' ? 3 : 2;
            chiaro += ' ';
        } else if (testo[i] == '\\') {
            unsigned codice = 0;
            size_t cifre = 0;
            while (cifre < 6 && i + 1 < testo.size() &&
                   std::isxdigit(static_cast<unsigned char>(testo[i + 1]))) {
                codice = codice * 16 +
                         static_cast<unsigned>(std::strtoul(std::string(1, testo[++i]).c_str(), nullptr, 16));
                ++cifre;
            }
            if (cifre && i + 1 < testo.size() && Bianco(testo[i + 1]))
                ++i;
            if (!cifre && i + 1 < testo.size())
                codice = static_cast<unsigned char>(testo[++i]);
            const char c = codice < 128 ? static_cast<char>(codice) : '_';
            chiaro += Di_Nome(c) ? c : '_';
        } else {
            chiaro += testo[i];
        }
    }
    return chiaro;
}

constexpr std::array<Testo, 4> MARCATORI = {"marker", "marker-start", "marker-mid", "marker-end"};
constexpr double STRATO_FILTRO = 20, STRATO_MASCHERA = 5;

}  // namespace

std::string Css_Pulito(Testo velato, bool foglio) {
    const std::string chiaro = Senza_Veli(velato);
    const Testo testo = chiaro;
    std::string pulito;
    bool dentro = !foglio;  // among declarations
    for (size_t i = 0; i < testo.size(); ++i) {
        const char c = testo[i];
        // What a bracket or quote opens must close before anything that could end the declaration.
        const auto chiusa = [&](Testo fermate, char chiude) {
            const size_t fine = testo.find_first_of(fermate, i + 1);
            return fine != testo.npos && testo[fine] == chiude ? fine : testo.npos;
        };
        if (c == '{' || c == '}') {
            const bool vale = foglio && dentro == (c == '}');
            pulito += vale ? c : ' ';
            dentro = vale ? !dentro : dentro;
        } else if (c == '@') {
            size_t fine = dentro ? i : testo.find_first_of(";{", i);
            if (fine != testo.npos && testo[fine] == '{')
                for (int aperte = 0; fine < testo.size(); ++fine)
                    if ((aperte += (testo[fine] == '{') - (testo[fine] == '}')) == 0)
                        break;
            i = std::min(fine, testo.size());
            pulito += ' ';
        } else if (c == '"' || c == '\'') {
            const size_t fine = chiusa(c == '"' ? "\"{};()[]@\r\n" : "'{};()[]@\r\n", c);
            pulito += fine == testo.npos ? Testo(" ") : testo.substr(i, fine - i + 1);
            i = fine == testo.npos ? i : fine;
        } else if (c == '(') {
            const size_t fine = chiusa("(){};[]@", ')');
            if (fine == testo.npos) {
                pulito += ' ';
            } else if (pulito.size() >= 3 && Minuscolo(Testo(pulito).substr(pulito.size() - 3)) == "url") {
                Testo dove = Rifila(testo.substr(i + 1, fine - i - 1));
                if (dove.size() > 1 && (dove.front() == '"' || dove.front() == '\'') &&
                    dove.back() == dove.front())
                    dove = Rifila(dove.substr(1, dove.size() - 2));
                const bool qui = dove.starts_with('#') && dove.find_first_of("\"'") == dove.npos;
                pulito.replace(pulito.size() - 3, 3, qui ? "url(" + std::string(dove) + ")" : "none");
                i = fine;
            } else {
                pulito += testo.substr(i, fine - i + 1);
                i = fine;
            }
        } else if (c == '[') {
            const size_t fine = chiusa("[](){};@", ']');
            pulito += fine == testo.npos ? Testo(" ") : testo.substr(i, fine - i + 1);
            i = fine == testo.npos ? i : fine;
        } else {
            pulito += c == ')' || c == ']' || (c == ';' && !dentro) ? ' ' : c;
        }
    }
    if (foglio && dentro)
        pulito += '}';
    return pulito;
}

std::string Riferimento(Testo testo) {
    testo = Rifila(testo);
    if (testo.starts_with('#'))
        return std::string(testo.substr(1));
    const size_t inizio = testo.find("url(#");
    const size_t fine = inizio == testo.npos ? inizio : testo.find(')', inizio);
    return fine == testo.npos ? std::string() : std::string(testo.substr(inizio + 5, fine - inizio - 5));
}

void Stile::Aggiungi(Testo scritto, Testo valore) {
    const std::string nome = Minuscolo(scritto);
    valore = Rifila(valore);
    if (valore == "none")
        return;
    if (nome == "filter")
        strati += STRATO_FILTRO;
    else if (nome == "mask")
        strati += STRATO_MASCHERA;
    else if ((nome == "opacity" && valore != "1") || (nome == "mix-blend-mode" && valore != "normal") ||
             (nome == "isolation" && valore != "auto"))
        strati += 1;
    else if (nome == "stroke-dasharray") {
        double periodo = 0;
        Per_Ogni(valore, ", \t\r\n", [&](Testo numero) {
            periodo += std::abs(std::strtod(std::string(numero).c_str(), nullptr));
        });
        if (periodo > 0)
            tratteggio = tratteggio > 0 ? std::min(tratteggio, periodo) : periodo;
    }
    // Several filters may follow each other.
    for (size_t p = valore.find("url("); p != valore.npos; p = valore.find("url(", p + 1)) {
        const bool eredita = nome == "fill" || nome == "stroke" ||
                             std::find(MARCATORI.begin(), MARCATORI.end(), nome) != MARCATORI.end();
        if (std::string id = Riferimento(valore.substr(p)); !id.empty())
            (eredita ? ereditati : riferimenti).push_back(std::move(id));
    }
}

void Stile::Aggiungi_Tutte(Testo dichiarazioni) {
    Per_Ogni(dichiarazioni, ";", [&](Testo una) {
        if (const size_t punti = una.find(':'); punti != una.npos)
            Aggiungi(Rifila(una.substr(0, punti)), Rifila(una.substr(punti + 1)));
    });
}

void Stile::Unisci(const Stile& altro) {
    strati = std::max(strati, altro.strati);
    if (altro.tratteggio > 0)
        tratteggio = tratteggio > 0 ? std::min(tratteggio, altro.tratteggio) : altro.tratteggio;
    const auto unisci = [](std::vector<std::string>& miei, const std::vector<std::string>& suoi) {
        for (const std::string& id : suoi)
            if (std::find(miei.begin(), miei.end(), id) == miei.end())
                miei.push_back(id);
    };
    unisci(riferimenti, altro.riferimenti);
    unisci(ereditati, altro.ereditati);
}

void Fogli::Aggiungi(Testo foglio) {
    for (size_t p = 0; p < foglio.size();) {
        const size_t aperta = std::min(foglio.find('{', p), foglio.size());
        const size_t chiusa = std::min(foglio.find('}', aperta), foglio.size());
        if (aperta == foglio.size())
            return;
        Stile stile;
        stile.Aggiungi_Tutte(foglio.substr(aperta + 1, chiusa - aperta - 1));
        Per_Ogni(foglio.substr(p, aperta - p), ",",
                 [&](Testo selettore) { Aggiungi_Regola(selettore, stile); });
        p = chiusa + 1;
    }
}

void Fogli::Aggiungi_Regola(Testo selettore, const Stile& stile) {
    constexpr double PESO_FRATELLI = 1000;  // looks at all elements before this one
    peso_ += 1;
    for (const char c : selettore)
        peso_ += c == '~' ? PESO_FRATELLI : c == ' ' || c == '>' || c == '+' || c == '[' || c == ':';
    // The last part tells which elements it is about; one of its conditions is enough.
    const Testo ultimo = selettore.substr(selettore.find_last_of(" \t\r\n>+~") + 1);
    const size_t condizione = ultimo.find_first_of(".#");
    std::string chiave = "*";
    if (ultimo.find_first_of("(:[|") != ultimo.npos)
        chiave = "*";
    else if (condizione != ultimo.npos)
        chiave = ultimo.substr(condizione, ultimo.find_first_of(".#", condizione + 1) - condizione);
    else if (!ultimo.empty())
        chiave = ultimo;
    per_chiave_[chiave].Unisci(stile);
}

void Fogli::Applica(Stile& stile, Testo nome, Testo id, Testo classi) const {
    if (per_chiave_.empty())
        return;
    const auto unisci = [&](Testo chiave) {
        if (const auto it = per_chiave_.find(chiave); it != per_chiave_.end())
            stile.Unisci(it->second);
    };
    unisci("*");
    unisci(nome);
    if (!id.empty())
        unisci('#' + std::string(id));
    Per_Ogni(classi, " \t\r\n", [&](Testo classe) { unisci('.' + std::string(classe)); });
}

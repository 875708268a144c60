#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Style text as the renderer and the check both read it: without comments, escapes, rules that load or
/// nest, unbalanced brackets, and references that lead out of the document. A sheet, or the declarations
/// (the value) of one element.
std::string Css_Pulito(std::string_view testo, bool foglio);

/// The id that a text refers to as `url(#id)`, or as "#id" when the text is nothing else; "" for none.
std::string Riferimento(std::string_view testo);

/// What the style of an element asks of the renderer, as far as it costs time.
struct Stile {
    void Aggiungi(std::string_view nome, std::string_view valore);
    /// "name: value; ..."
    void Aggiungi_Tutte(std::string_view dichiarazioni);
    void Unisci(const Stile& altro);

    double strati = 0;                     ///< layers of its own, as so many plain ones
    double tratteggio = 0;                 ///< shortest period of a dashed line, 0 for none
    std::vector<std::string> riferimenti;  ///< ids used by the element itself: masks, filters
    std::vector<std::string> ereditati;    ///< by it and by all in it: patterns, gradients, markers
};

/// The style sheets of a document.
class Fogli {
  public:
    void Aggiungi(std::string_view foglio);
    /// What the rules that may hold for an element add to its style: by its name, id, classes (separated by
    /// blanks), or whatever it is.
    void Applica(Stile& stile, std::string_view nome, std::string_view id, std::string_view classi) const;
    /// How much work it is to find the rules of one element: 1 for each simple one.
    double Peso() const { return peso_; }

  private:
    void Aggiungi_Regola(std::string_view selettore, const Stile& stile);

    std::map<std::string, Stile, std::less<>> per_chiave_;  ///< "name", "#id", ".class" or "*"
    double peso_ = 0;
};

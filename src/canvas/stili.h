#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

/// The ids that a text refers to as `url(#id)`, or as "#id" when the text is nothing else.
std::vector<std::string> Riferimenti(std::string_view testo);
/// The declarations of a style make the renderer draw on a layer of its own: opacity, mask, filter, blending.
bool Chiede_Strato(std::string_view dichiarazioni);

/// What the style sheets of a document may do to its elements, as far as it costs time.
struct Stili {
    void Aggiungi(std::string_view foglio);
    /// An element with these classes (separated by blanks) may be drawn on a layer of its own.
    bool Strato(std::string_view classi) const;

    std::set<std::string, std::less<>> riferimenti;  ///< ids named by the sheets
    std::set<std::string, std::less<>> classi_con_strato;
    bool strato_ovunque = false;  ///< a rule without a class asks for a layer
};

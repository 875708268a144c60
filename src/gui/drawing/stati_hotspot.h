#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "core/drawing/lavagna.h"
#include "gui/drawing/pittore_hotspot.h"

/// How a hotspot stands.
struct Stato_Gruppo {
    bool segnato = false;
    std::optional<Colore> colore;    ///< lasting
    std::optional<Colore> evidenza;  ///< momentary
};

/// How the hotspots of a page stand, and so how they look.
class Stati_HotSpot {
  public:
    /// Another page with so many hotspots, all plain; the colours of a selection go with the old one.
    void Imposta_Pagina(size_t gruppi);
    const Stato_Gruppo& operator[](int gruppo) const { return stati_[static_cast<size_t>(gruppo)]; }
    /// Changes a hotspot; true when it looks otherwise than before.
    bool Cambia(int gruppo, const std::function<void(Stato_Gruppo&)>& modifica);
    /// The hotspots that aren't plain.
    const std::set<int>& Attivi() const { return attivi_; }
    /// Those of them that are highlighted.
    std::vector<int> Evidenziati() const;
    Aspetto_HotSpot Aspetto(int gruppo) const { return Aspetto(stati_[static_cast<size_t>(gruppo)]); }

    /// Filling and border of a selection, none for the usual ones.
    std::optional<Colore> colore_scelta, bordo_scelta;
    bool fase = true;  ///< highlights are in their visible half

  private:
    Aspetto_HotSpot Aspetto(const Stato_Gruppo& stato) const;

    std::vector<Stato_Gruppo> stati_;
    std::set<int> attivi_;
};

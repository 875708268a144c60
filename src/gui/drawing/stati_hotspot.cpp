#include "gui/drawing/stati_hotspot.h"

namespace {

constexpr Colore SCELTA_PREDEFINITA = 0xffc800;

}  // namespace

void Stati_HotSpot::Imposta_Pagina(size_t gruppi) {
    *this = {};
    stati_.resize(gruppi);
}

bool Stati_HotSpot::Cambia(int gruppo, const std::function<void(Stato_Gruppo&)>& modifica) {
    Stato_Gruppo& stato = stati_[static_cast<size_t>(gruppo)];
    const Aspetto_HotSpot prima = Aspetto(stato);
    modifica(stato);
    if (stato.segnato || stato.colore || stato.evidenza)
        attivi_.insert(gruppo);
    else
        attivi_.erase(gruppo);
    return Aspetto(stato) != prima;
}

std::vector<int> Stati_HotSpot::Evidenziati() const {
    std::vector<int> evidenziati;
    for (const int gruppo : attivi_)
        if ((*this)[gruppo].evidenza)
            evidenziati.push_back(gruppo);
    return evidenziati;
}

/// A marked hotspot is a selection: it has the selection's border, and its filling until it is coloured.
Aspetto_HotSpot Stati_HotSpot::Aspetto(const Stato_Gruppo& stato) const {
    const Colore scelta = colore_scelta.value_or(SCELTA_PREDEFINITA);
    Aspetto_HotSpot aspetto;
    if (stato.evidenza && fase)
        aspetto.riempimento = stato.evidenza;
    else if (stato.colore)
        aspetto.riempimento = stato.colore;
    else if (stato.segnato)
        aspetto.riempimento = scelta;
    if (stato.segnato)
        aspetto.bordo = bordo_scelta.value_or(stato.colore.value_or(scelta));
    return aspetto;
}

#include "core/parts_tables/evidenza.h"

namespace {

/// Answers whether anything changed.
bool Imposta_Grassetto(Griglia& griglia, int riga, bool grassetto) {
    bool cambiata = false;
    for (int c = 0; c < griglia.Cols(); ++c) {
        Cella& cella = griglia.At(riga, c);
        cambiata = cambiata || cella.Bold != grassetto;
        cella.Bold = grassetto;
    }
    return cambiata;
}

}  // namespace

int Colonna_Codice_Distinta(const Class_DBOper& db, const Filtri& filtri, int colonne_fisse) {
    return db.Restituisci_Numero_Colonna_Primaria_Distinta(filtri.Lingua, filtri.Mercato, filtri.Gruppo) +
           colonne_fisse;
}

bool Ha_Riga(const Griglia& griglia, int colonna, const QString& key) {
    if (colonna < 0 || colonna >= griglia.Cols())
        return false;
    for (int r = 1; r < griglia.Rows(); ++r)
        if (griglia.At(r, colonna).Text == key)
            return true;
    return false;
}

void Evidenzia_Componente_in_distinta(Griglia& griglia, int colonna, const QString& key) {
    const bool colonna_presente = colonna >= 0 && colonna < griglia.Cols();
    bool cambiata = false;
    std::vector<int> trovate;
    for (int r = 1; r < griglia.Rows(); ++r) {
        const bool trovata = colonna_presente && griglia.At(r, colonna).Text == key;
        cambiata = Imposta_Grassetto(griglia, r, trovata) || cambiata;
        if (trovata)
            trovate.push_back(r);
    }
    if ((cambiata || !trovate.empty()) && griglia.Evidenziata)
        griglia.Evidenziata(trovate);
}

void Segna_Riga(Griglia& griglia, int riga) {
    for (int r = 1; r < griglia.Rows(); ++r)
        Imposta_Grassetto(griglia, r, r == riga);
    if (griglia.Evidenziata)
        griglia.Evidenziata({});
}

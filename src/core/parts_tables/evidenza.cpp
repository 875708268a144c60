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

void Porta_In_Vista(Griglia& griglia, int riga) {
    if (!griglia.RowIsVisible(riga))
        griglia.TopRow = riga;
    for (int c = 0; c < griglia.Cols(); ++c)
        if (!griglia.ColIsVisible(c))
            griglia.LeftCol = c;
}

}  // namespace

int Colonna_Codice_Distinta(const Class_DBOper& db, const Filtri& filtri, int colonne_fisse) {
    return db.Restituisci_Numero_Colonna_Primaria_Distinta(filtri.Lingua, filtri.Mercato, filtri.Gruppo) +
           colonne_fisse;
}

void Evidenzia_Componente_in_distinta(Griglia& griglia, int colonna, const QString& key) {
    const int prima_riga = griglia.TopRow, prima_colonna = griglia.LeftCol;
    const bool colonna_presente = colonna >= 0 && colonna < griglia.Cols();
    bool cambiata = false;
    for (int r = 1; r < griglia.Rows(); ++r) {
        const bool trovata = colonna_presente && griglia.At(r, colonna).Text == key;
        cambiata = Imposta_Grassetto(griglia, r, trovata) || cambiata;
        if (trovata)
            Porta_In_Vista(griglia, r);
    }
    cambiata = cambiata || griglia.TopRow != prima_riga || griglia.LeftCol != prima_colonna;
    if (cambiata && griglia.Evidenziata)
        griglia.Evidenziata();
}

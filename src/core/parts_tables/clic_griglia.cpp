#include "core/parts_tables/clic_griglia.h"

#include <stdexcept>

#include "core/griglia/celle.h"

namespace {

using Genere = Azione_Cella::Genere;

void Prendi_Componente(const QString& tag, Genere genere, Azione_Cella& azione) {
    azione.Tipo = genere;
    azione.Codice = Campo_Tag(tag, 2);
    azione.Prodotto = Campo_Tag(tag, 3);
    azione.Riferimento = Campo_Tag(tag, 4);
}

void Prendi_Voce(const QString& tag, Genere genere, Azione_Cella& azione) {
    azione.Tipo = genere;
    azione.Voce = Campo_Tag(tag, 2);
}

bool E_Componente(const QString& tag) {
    return Campo_Tag(tag, 1) == u"Add_Componente";
}

/// A click on a plain cell stands for the component of its row.
void Evidenzia_Riga(const Tag_Griglia& tag, int riga, Azione_Cella& azione) {
    for (int c = 0; c <= Tag_Griglia::ULTIMA_COLONNA; ++c)
        if (E_Componente(tag.At(riga, c))) {
            Prendi_Componente(tag.At(riga, c), Genere::Evidenzia, azione);
            return;
        }
}

}  // namespace

Azione_Cella Clic_Griglia(const Griglia& griglia, const Tag_Griglia& tag) {
    Azione_Cella azione;
    if (griglia.MousePointer == 0)
        return azione;
    azione.Sopra_Righe = true;
    const int r = griglia.MouseRow, c = griglia.MouseCol;
    if (r <= 0 || c <= 0 || r > tag.Ultima_Riga() || c > Tag_Griglia::ULTIMA_COLONNA)
        return azione;
    const QString& testo = tag.At(r, c);
    if (testo.isEmpty())
        Evidenzia_Riga(tag, r, azione);
    else if (const QString genere = Campo_Tag(testo, 1); genere == u"Image")
        Prendi_Voce(testo, Genere::Image, azione);
    else if (genere == u"Document")
        Prendi_Voce(testo, Genere::Document, azione);
    else if (genere == u"Add_Componente")
        Prendi_Componente(testo, Genere::Add_Componente, azione);
    return azione;
}

void Mouse_Move(Griglia& griglia, const Tag_Griglia& tag, int y) {
    if (y > griglia.RowHeight * griglia.Rows()) {
        griglia.MousePointer = 0;
        return;
    }
    griglia.MousePointer = 1;
    const int r = griglia.MouseRow, c = griglia.MouseCol;
    if (r >= 1 && c >= 1 && r <= tag.Ultima_Riga() && c <= Tag_Griglia::ULTIMA_COLONNA &&
        !tag.At(r, c).isEmpty())
        griglia.MousePointer = 99;
}

#include <algorithm>
#include <cmath>

#include "core/base/testo.h"
#include "core/parts_tables/distinta.h"

namespace {

constexpr int BORDO_GRIGLIA = 300;    ///< twips kept free beside the columns
constexpr float CARATTERI_NOTE = 25;  ///< of a column of notes, and of a wider text beside one
const QStringView SEGNO_IMMAGINE = u"##||##";

void Imposta_Titolo(const QString& titolo, Cella& cella) {
    if (!titolo.contains(SEGNO_IMMAGINE)) {
        cella.Picture.clear();
        cella.Text = titolo;
        return;
    }
    const QString immagine = Estrai_Token(titolo, 2, SEGNO_IMMAGINE);
    cella.Text.clear();
    cella.Picture = immagine == FINE_TOKEN ? QString() : immagine;
    cella.PictureAlignment = Allineamento::Centro;
}

/// Wanted width in characters, by the kind of the column.
float Caratteri(const Colonna_Griglia& colonna, bool con_note, const Numeri& numeri) {
    const QString& tipo = colonna.Tipo;
    if (tipo == u"Number" || tipo == u"Price" || tipo == u"Qta" || tipo == u"Quantity" ||
        tipo == u"Dett_Codice")
        return 10;
    if (tipo == u"Document" || tipo == u"Image" || tipo == u"Elimina")
        return 5;
    if (tipo == u"Note")
        return CARATTERI_NOTE;
    const float caratteri = numeri.Converti_Numero(colonna.Size);
    if (tipo == u"Riferimento" || tipo == u"Aggiungi" || tipo == u"Prodotto")
        return caratteri;
    return con_note && caratteri >= CARATTERI_NOTE + 1 ? CARATTERI_NOTE : caratteri;
}

Allineamento Allineamento_Colonna(const QString& tipo) {
    if (tipo == u"Number" || tipo == u"Price" || tipo == u"Price_Totale" || tipo == u"Discount")
        return Allineamento::Destra;
    if (tipo == u"Document" || tipo == u"Image" || tipo == u"Riferimento")
        return Allineamento::Centro;
    return Allineamento::Sinistra;
}

}  // namespace

void Imposta_Colonne_Griglia(const std::vector<Colonna_Griglia>& colonne, const Numeri& numeri,
                             Griglia& griglia) {
    griglia.Cols(static_cast<int>(colonne.size()));
    const bool con_note = std::any_of(colonne.begin(), colonne.end(),
                                      [](const Colonna_Griglia& colonna) { return colonna.Tipo == u"Note"; });
    std::vector<double> larghezze;
    double somma = 0;
    for (int c = 0; c < griglia.Cols(); ++c) {
        const Colonna_Griglia& colonna = colonne[static_cast<size_t>(c)];
        Cella& titolo = griglia.At(0, c);
        Imposta_Titolo(colonna.Titolo, titolo);
        const double caratteri = std::max<double>(std::nearbyint(Caratteri(colonna, con_note, numeri)),
                                                  static_cast<double>(titolo.Text.size()));
        larghezze.push_back(std::round(caratteri * griglia.Larghezza_Spazio));
        somma += larghezze.back();
        griglia.ColAlignment(c, Allineamento_Colonna(colonna.Tipo));
    }
    const double spazio = std::max(griglia.Width - BORDO_GRIGLIA, 0);
    for (int c = 0; c < griglia.Cols(); ++c)
        griglia.ColWidth(
            c,
            somma > 0 ? static_cast<int>(std::round(larghezze[static_cast<size_t>(c)] * spazio / somma)) : 0);
}

#include "core/griglia/colonne_griglia.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "core/base/testo.h"

namespace {

constexpr int BORDO_GRIGLIA = 300;            ///< twips kept free beside the columns
constexpr qint16 LUNGHEZZA_PREDEFINITA = 20;  ///< characters of a text column without a size
const QStringView SEGNO_IMMAGINE = u"##||##";

// Widths in characters.
constexpr int DI_NOTE = 25;       ///< of a column of notes
constexpr int DI_SIZE = -1;       ///< as the size says
constexpr int ACCANTO_NOTE = -2;  ///< likewise, but beside a column of notes no wider than that

struct Regola {
    Genere_Colonna genere;
    QStringView tipo;
    int caratteri;
    Allineamento allineamento;
    QStringView immagine = {};  ///< in place of a title
};

using enum Genere_Colonna;
using enum Allineamento;

constexpr Regola REGOLE[] = {
    {Number, u"Number", 10, Destra},
    {Price, u"Price", 10, Destra},
    {Discount, u"Discount", ACCANTO_NOTE, Destra},
    {Quantity, u"Quantity", 10, Sinistra},
    {Memo, u"Memo", ACCANTO_NOTE, Sinistra},
    {Image, u"Image", 5, Centro},
    {Document, u"Document", 5, Centro},
    {Testo, u"Testo", ACCANTO_NOTE, Sinistra},
    {Nota_Associazione, u"Nota_Associazione", ACCANTO_NOTE, Sinistra},
    {Riferimento, u"Riferimento", DI_SIZE, Centro, u"Riferimenti.GIF"},
    {Aggiungi, u"Aggiungi", DI_SIZE, Sinistra, u"Carrello_header.GIF"},
    {Dett_Codice, u"Dett_Codice", 10, Sinistra, u"prodotto.GIF"},
    {Prodotto, u"Prodotto", DI_SIZE, Sinistra, u"prodotto.GIF"},
    {Elimina, u"Elimina", 5, Sinistra, u"Cestino.GIF"},
    {Qta, u"Qta", 10, Sinistra},
    {Genere_Colonna::Note, u"Note", DI_NOTE, Sinistra},
    {Price_Totale, u"Price_Totale", ACCANTO_NOTE, Destra},
};

const Regola& Regola_Di(Genere_Colonna genere) {
    return REGOLE[static_cast<size_t>(genere)];
}

static_assert(std::all_of(std::begin(REGOLE), std::end(REGOLE), [](const Regola& regola) {
    return &regola - REGOLE == static_cast<std::ptrdiff_t>(regola.genere);
}));

qint16 Dimensione(const QString& size, const Numeri& numeri) {
    const float valore = std::nearbyint(numeri.Converti_Numero(size));
    if (std::fabs(valore) > std::numeric_limits<qint16>::max())
        throw std::overflow_error("Overflow: size of a column");
    return static_cast<qint16>(valore);
}

void Imposta_Titolo(const QString& titolo, Cella& cella) {
    const bool con_immagine = titolo.contains(SEGNO_IMMAGINE);
    const QString immagine = con_immagine ? Estrai_Token(titolo, 2, SEGNO_IMMAGINE) : QString();
    cella.Text = con_immagine ? QString() : titolo;
    cella.Picture = immagine == FINE_TOKEN ? QString() : immagine;
    cella.PictureAlignment = Centro;
}

float Caratteri(const Colonna_Griglia& colonna, bool con_note, const Numeri& numeri) {
    const int regola = Regola_Di(colonna.Genere).caratteri;
    if (regola >= 0)
        return static_cast<float>(regola);
    const float caratteri = numeri.Converti_Numero(colonna.Size);
    return regola == ACCANTO_NOTE && con_note && caratteri >= DI_NOTE + 1 ? DI_NOTE : caratteri;
}

}  // namespace

Colonna_Griglia Colonna_Fissa(Genere_Colonna genere, const QString& nome, const QString& size,
                              const QString& titolo) {
    const Regola& regola = Regola_Di(genere);
    const QString immagine = QStringLiteral("IMMAGINE##||##") + regola.immagine.toString();
    return {genere, titolo.isEmpty() && !regola.immagine.isEmpty() ? immagine : titolo,
            nome,   regola.tipo.toString(),
            size,   size.toShort()};
}

Genere_Colonna Genere_Catalogo(const QString& tipo) {
    for (const Regola& regola : REGOLE)
        if (regola.genere < Testo && regola.tipo == tipo)
            return regola.genere;
    return Testo;
}

Colonna_Griglia Colonna_Catalogo(const QString& tipo, const QString& titolo, const QString& nome,
                                 const QString& size, const Numeri& numeri) {
    Colonna_Griglia colonna{Genere_Catalogo(tipo), titolo, nome, tipo, size};
    if (colonna.Genere == Image || colonna.Genere == Document || colonna.Genere == Memo)
        return colonna;
    const bool numero = colonna.Genere == Number || colonna.Genere == Price;
    colonna.Misura = Dimensione(size, numeri);
    if (colonna.Misura == 0 && !numero)
        colonna.Misura = LUNGHEZZA_PREDEFINITA;
    colonna.Size = QString::number(colonna.Misura);
    if (numero)
        colonna.Maschera =
            colonna.Misura > 0 ? QStringLiteral("0.") + QString(colonna.Misura, u'0') : QStringLiteral("0");
    return colonna;
}

void Imposta_Colonne_Griglia(const std::vector<Colonna_Griglia>& colonne, const Numeri& numeri,
                             Griglia& griglia) {
    griglia.Cols(static_cast<int>(colonne.size()));
    const bool con_note = std::any_of(colonne.begin(), colonne.end(), [](const Colonna_Griglia& colonna) {
        return colonna.Genere == Genere_Colonna::Note;
    });
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
        griglia.ColAlignment(c, Regola_Di(colonna.Genere).allineamento);
    }
    const double spazio = std::max(griglia.Width - BORDO_GRIGLIA, 0);
    for (int c = 0; c < griglia.Cols(); ++c)
        griglia.ColWidth(
            c,
            somma > 0 ? static_cast<int>(std::round(larghezze[static_cast<size_t>(c)] * spazio / somma)) : 0);
}

#include "core/griglia/celle.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include "core/base/testo.h"

namespace {
constexpr qint16 LUNGHEZZA_PREDEFINITA = 20;  ///< characters of a text column without a size
}  // namespace

qint16 Dimensione(const QString& size, const Numeri& numeri) {
    const float valore = std::nearbyint(numeri.Converti_Numero(size));
    if (std::fabs(valore) > std::numeric_limits<qint16>::max())
        throw std::overflow_error("Overflow: size of a column");
    return static_cast<qint16>(valore);
}

QString Size_Normale(const QString& tipo, const QString& size, const Numeri& numeri) {
    if (tipo == u"Image" || tipo == u"Document")
        return size;
    qint16 dimensione = Dimensione(size, numeri);
    if (dimensione == 0 && tipo != u"Number" && tipo != u"Price")
        dimensione = LUNGHEZZA_PREDEFINITA;
    return QString::number(dimensione);
}

QString Maschera_Numero(int decimali) {
    return decimali > 0 ? QStringLiteral("0.") + QString(decimali, u'0') : QStringLiteral("0");
}

QString Taglia(const QString& testo, qint16 lunghezza) {
    if (testo.isEmpty() || testo.size() <= lunghezza)
        return testo;
    if (lunghezza < 0)
        throw std::out_of_range("Invalid procedure call: a text can't be cut to a negative length");
    return testo.first(lunghezza);
}

void Aggiungi_Cella(const QString& cella, QString& riga) {
    if (!riga.isEmpty())
        riga += u'\t';
    riga += cella;
}

bool Riga_Presente(const Griglia& griglia) {
    for (int c = 0; c < griglia.Rows(); ++c)
        if (!griglia.TextMatrix(1, c).isEmpty())
            return true;
    return false;
}

void Lascia_Una_Riga(Griglia& griglia) {
    for (int da_togliere = griglia.Rows() - 2; da_togliere > 0; --da_togliere)
        griglia.RemoveItem(1);
}

QString Campo_Tag(const QString& tag, int n) {
    const QString campo = Estrai_Token(tag, n, u"|");
    return campo == FINE_TOKEN ? QString() : campo;
}

void Mostra_Immagine(Cella& cella, const QString& immagine) {
    cella.Picture = immagine;
    cella.PictureAlignment = Allineamento::Centro;
}

void Scrivi_Allegato(Griglia& griglia, Tag_Griglia& tag, int riga, int colonna, const QString& tipo) {
    Cella& cella = griglia.At(riga, colonna);
    if (Trim(cella.Text).isEmpty())
        return;
    tag.Imposta(riga, colonna, tipo + u'|' + cella.Text);
    cella.Text.clear();
    Mostra_Immagine(cella, tipo == u"Image" ? QStringLiteral("lente.bmp") : QStringLiteral("Grafetta.bmp"));
}

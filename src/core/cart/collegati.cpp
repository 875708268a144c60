#include "core/cart/collegati.h"

#include "core/base/testo.h"

namespace {

constexpr int LIMITE_VOCI = 50;
constexpr QChar BARRA = u'/';

/// The list without the entries of a code.
QString Togli_Codice(const QStringList& voci, const QString& codice) {
    QStringList tenute;
    for (const QString& voce : voci)
        if (Codice_Da_Memo(voce) != codice)
            tenute += Trim(voce);
    return tenute.join(BARRA);
}

/// The list without the entries that are exactly this text.
QString Togli_Voce_Lista(const QString& lista, const QString& voce) {
    QStringList tenute;
    for (const QString& token : Token(lista, u"/"))
        if (Trim(token) != voce)
            tenute += token;
    return tenute.join(BARRA);
}

}  // namespace

void Aggiungi_Memo(Class_Elenco& riga, const Valori_Memo& valori, const QString& codice) {
    for (const QString& valore : valori) {
        if (!riga.Lista_Memo.isEmpty())
            riga.Lista_Memo += QStringLiteral(" / ");
        riga.Lista_Memo += valore;
        if (riga.Memo_Visti.isEmpty())
            riga.Memo_Visti = BARRA;
        riga.Memo_Visti += codice + BARRA;
    }
}

void Espandi_Collegati(Class_Elenco& riga, const std::function<Valori_Memo(const QString& codice)>& leggi) {
    for (int n = 1; !riga.Lista_Memo.isEmpty() && n < LIMITE_VOCI;) {
        const QStringList voci = Token(riga.Lista_Memo, u"/");
        if (n > voci.size())
            return;
        const QString codice = Codice_Da_Memo(voci[n - 1]);
        if (riga.Memo_Visti.contains(BARRA + codice + BARRA)) {
            riga.Lista_Memo = Togli_Codice(voci, codice);
            continue;
        }
        for (const QString& valore : leggi(codice))
            if (const QString resto = Togli_Voce_Lista(valore, codice); !resto.isEmpty())
                riga.Lista_Memo += BARRA + resto;
        ++n;
    }
}

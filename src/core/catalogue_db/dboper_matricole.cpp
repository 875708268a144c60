// Serial numbers: what a node allows.

#include <cmath>
#include <limits>
#include <optional>

#include "core/catalogue_db/class_dboper.h"

using namespace Qt::StringLiterals;

namespace {
/// A text as a 32-bit whole number: any number, halves rounded to the even neighbour; none when it isn't one
/// or is too large.
std::optional<qint32> Intero_32(const QString& testo) {
    bool numero = false;
    const double valore = std::nearbyint(testo.trimmed().toDouble(&numero));
    if (!numero ||
        !(valore >= std::numeric_limits<qint32>::min() && valore <= std::numeric_limits<qint32>::max()))
        return std::nullopt;
    return static_cast<qint32>(valore);
}

QString Condizione_Numerica(const QString& matricola, qint32 numero) {
    const QString testo = QString::number(static_cast<double>(static_cast<float>(numero)), 'G', 7);
    // Kept: one parenthesis too many. The engine rejects it, and the serial is compared as a text after all.
    return u"(Matricola = '"_s + matricola + u"' OR Min_Matricola_n <="_s + testo +
           u" AND Max_Matricola_n >="_s + testo + u"))"_s;
}

QString Condizione_Testo(const QString& matricola) {
    return u"(Matricola = '"_s + matricola + u"' OR (Min_Matricola <='"_s + matricola +
           u"' AND Max_Matricola >='"_s + matricola + u"'))"_s;
}
}  // namespace

bool Class_DBOper::Matricola_Valida_Prodotto(const QString& prodotto, const QString& matricola) const {
    if (matricola.isEmpty())
        return true;
    const QString inizio = u"SELECT * FROM Matricola_Nodo WHERE "_s +
                           (prodotto.isEmpty() ? QString() : u"Key_Prodotto = '"_s + prodotto + u"' AND "_s);
    if (const auto numero = Intero_32(matricola)) {
        try {
            return !Apri_Recordset(inizio + Condizione_Numerica(matricola, *numero) + u";"_s).EOF_();
        } catch (const Errore_DB&) {
        }
    }
    return !Apri_Recordset(inizio + Condizione_Testo(matricola) + u";"_s).EOF_();
}

QSet<QString> Class_DBOper::Prodotti_Con_Matricola(const QString& matricola) const {
    QSet<QString> prodotti;
    for (auto righe = Apri_Recordset(u"SELECT DISTINCT Key_Prodotto FROM Matricola_Nodo WHERE "_s +
                                     Condizione_Testo(matricola) + u";"_s);
         !righe.EOF_(); righe.MoveNext())
        if (const Valore prodotto = righe.Campo(0); !prodotto.E_Nullo())
            prodotti.insert(Chiave_Senza_Maiuscole(prodotto.Testo()));
    return prodotti;
}

QString Class_DBOper::Chiave_Senza_Maiuscole(QString key) {
    for (QChar& c : key)
        if (c >= u'A' && c <= u'Z')
            c = QChar(c.unicode() + (u'a' - u'A'));
    return key;
}

#include "core/catalogue_db/filtri_sql.h"

#include <QStringList>

#include "core/base/testo.h"

using namespace Qt::StringLiterals;

namespace {
QStringList Valori(const QString& elenco) {
    QStringList valori = Token(elenco, u"/");
    valori.removeAll(QString());
    return valori;
}

QString Contiene(const QString& colonna, const QString& valore) {
    return colonna + u" LIKE '*/"_s + valore + u"/*'"_s;
}

QString Alternative(const QString& colonna, const QString& elenco) {
    QString alternative;
    for (const QString& valore : Valori(elenco))
        alternative += u" OR "_s + Contiene(colonna, valore);
    return alternative;
}

QString Alternative_Mercato(const QString& mercati, const QString& alternative_lingua) {
    QString alternative;
    for (const QString& valore : Valori(mercati)) {
        // Kept: without a language filter each market replaces the one before, so only the last one counts.
        if (alternative_lingua.isEmpty())
            alternative.clear();
        alternative += u" OR "_s + Contiene(QStringLiteral("Key_Mercato"), valore);
    }
    return alternative;
}

QString Alternative_Gruppo(const QString& gruppi) {
    // Kept: whoever's groups are known sees every row with any group, on top of the rows of those groups.
    return Alternative(QStringLiteral("Key_Gruppo"), gruppi) + u" OR NOT (Key_Gruppo IS NULL)"_s;
}
}  // namespace

QString Filtri_SQL::Condizione_Mercato(const QString& mercato) {
    return u"("_s + Contiene(QStringLiteral("Key_Mercato"), mercato) +
           u" OR Key_Mercato = '' OR Key_Mercato IS NULL )"_s;
}

QString Filtri_SQL::Condizione_Struttura(const QString& lingue, const QString& mercati,
                                         const QString& gruppi) {
    const QString lingua = Alternative(QStringLiteral("Key_Lingua"), lingue);
    return u"( Key_Lingua IS NULL OR Key_Lingua = '' "_s + lingua +
           u" ) AND ( Key_Mercato IS NULL OR Key_Mercato = '' "_s + Alternative_Mercato(mercati, lingua) +
           u" ) AND (Key_Gruppo IS NULL OR Key_Gruppo = '' "_s + Alternative_Gruppo(gruppi) + u")"_s;
}

QString Filtri_SQL::Condizione_Componenti(const QString& prodotto, const QString& mercato,
                                          const QString& riferimento, const QString& gruppi,
                                          const QString& codice, const QString& condizione) {
    QStringList clausole;
    if (!prodotto.isEmpty())
        clausole += u"( Key_Prodotto='"_s + prodotto + u"' )"_s;
    if (!mercato.isEmpty())
        clausole += Condizione_Mercato(mercato);
    if (!gruppi.isEmpty()) {
        QStringList termini;
        for (const QString& gruppo : Valori(gruppi))
            termini += u' ' + Contiene(QStringLiteral("Key_Gruppo"), gruppo) + u' ';
        clausole += u"(Key_Gruppo = '' OR Key_Gruppo IS NULL OR "_s + termini.join(u" OR ") + u")"_s;
    }
    if (!riferimento.isEmpty())
        clausole += u"(Key_Riferimento = '"_s + riferimento + u"')"_s;
    if (!codice.isEmpty())
        clausole += u"( Codice_Componente = '"_s + codice + u"' )"_s;
    if (!condizione.isEmpty())
        clausole += u"( "_s + condizione + u" )"_s;
    return clausole.join(u" AND ");
}

#include "core/drawing/hotspot.h"

#include "core/base/testo.h"

namespace {

constexpr qint16 PRODOTTO = 4, SOTTO_PRODOTTO = 5;  ///< kinds of `Tipo_Nodo`

/// The value of a string that leads to a product; a string that ends at its separator names none.
QString Key_Di_Link(const QString& stringa) {
    const QString key = Key_Da_Nodo(stringa);
    return key == FINE_TOKEN ? QString() : key;
}

QString Sotto_Prodotto(const Class_DBOper& db, const QString& codice, const Luogo_HotSpot& luogo) {
    const QString codice_sql = Con_Apici_Raddoppiati(codice);
    for (const QString& padre : {luogo.Prodotto, luogo.Padre_Selezionato}) {
        // A selected node of the top level has no siblings to look among, so there is no link.
        if (padre.isEmpty())
            return {};
        const QString prodotto =
            db.Restituisci_Prodotto_KeyVirtuale(codice_sql, Con_Apici_Raddoppiati(padre));
        if (prodotto != codice_sql)
            return prodotto;
    }
    return codice;
}

}  // namespace

QStringList Nomi_Sulla_Tavola(const QString& key) {
    if (Tipo_Nodo(key) != 0)
        return {key};
    return {key, QStringLiteral("CODICI#$#") + key, QStringLiteral("ASSOCIAZIONE#$#") + key};
}

QString Risolvi_HotSpot(const Class_DBOper& db, const QString& stringa, const Luogo_HotSpot& luogo) {
    const QString associazione =
        db.Restituisci_KeyAssociazione_Prodotto(Con_Apici_Raddoppiati(luogo.Prodotto));
    const QString incrocio = db.Restituisci_KeyProdotto_Cross_Reference(
        Con_Apici_Raddoppiati(stringa), luogo.Mercato, Con_Apici_Raddoppiati(associazione));
    if (!incrocio.isEmpty())
        return Key_Di_Link(incrocio);
    switch (Tipo_Nodo(stringa)) {
        case PRODOTTO:
            return Key_Di_Link(stringa);
        case SOTTO_PRODOTTO: {
            const QString codice = Key_Di_Link(stringa);
            return codice.isEmpty() ? QString() : Sotto_Prodotto(db, codice, luogo);
        }
        default:
            return {};
    }
}

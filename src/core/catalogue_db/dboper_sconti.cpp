// The discount keys of a user, and what the discounts of some keys come to.

#include "core/base/testo.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/class_sconto.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

namespace {

/// The chain of discounts: all of it in single precision, nothing rounded.
struct Catena_Sconti {
    float fattore = 0;  ///< 0: no discount yet
    QString descrizione = QStringLiteral("0");

    /// A discount of 100 percent gives 0, which the next one takes for the start of the chain: kept.
    void Applica(float percento, bool descrivi, const Numeri& numeri) {
        const float sconto = percento / 100.0f;
        fattore = fattore == 0.0f ? 1.0f - sconto : fattore * (1.0f - sconto);
        if (!descrivi)
            return;
        const QString testo = numeri.Testo(percento);
        descrizione = descrizione == u"0" ? testo : descrizione + u'+' + testo;
    }
};

/// The discounts of one row. Kept: only a row with a general discount adds to the description, whichever of
/// its discounts apply.
void Applica_Riga(const Recordset& riga, const Class_Sconto& sconto, qint16 mercato, float quantita,
                  float totale, Catena_Sconti& catena) {
    const Numeri& numeri = sconto.Numeri_();
    const Valore generale = riga.Campo(u"Sconto_Generale");
    const bool descrivi = !generale.E_Nullo();
    if (descrivi) {
        // Converted twice, through its text: kept.
        const float percento = numeri.Converti_Numero(
            numeri.Testo(sconto.Restituisci_ScontoGenerale_Mercato(generale.Testo(), mercato)));
        if (percento / 100.0f > 0.0f)
            catena.Applica(percento, descrivi, numeri);
    }
    float minimo = 0, massimo = 0;
    const auto applica_fra = [&](QStringView colonna, float valore) {
        const Valore testo = riga.Campo(colonna);
        if (testo.E_Nullo())
            return;
        const float percento =
            sconto.Restituisci_ScontoRange_Mercato(testo.Testo(), mercato, minimo, massimo);
        if (percento / 100.0f > 0.0f && minimo <= valore && valore <= massimo)
            catena.Applica(percento, descrivi, numeri);
    };
    applica_fra(u"Sconto_Qta", quantita);
    applica_fra(u"Sconto_Totale", totale);
}

}  // namespace

QString Class_DBOper::Restituisci_Sconto_Appartenneza_Utente(const QString& login) const {
    return Primo_Testo(u"SELECT * FROM Anagrafico WHERE Login = '"_s + login + u"' ;"_s, u"Key_Sconto");
}

QString Class_DBOper::Restituisci_Sconto_Appartenneza_Gruppo(const QString& login,
                                                             const QString& gruppo) const {
    return Con_Trappola(QString(), [&](QString& chiavi) {
        QString gruppi;
        {
            const Recordset utente =
                Apri_Recordset(u"SELECT * FROM Anagrafico WHERE Login = '"_s + login + u"' ;"_s);
            if (!utente.EOF_())
                gruppi = utente.Campo(u"Key_Gruppo").Testo();
            else if (login.isEmpty())
                gruppi = gruppo;
        }
        for (const QString& token : Token(gruppi, u"/")) {
            if (token.isEmpty())
                continue;
            for (auto righe = Apri_Recordset(QStringLiteral("SELECT * FROM Gruppi_Utenti ORDER BY Ordine ;"));
                 !righe.EOF_(); righe.MoveNext())
                if (const Valore key = righe.Campo(u"Key_Gruppo"); !key.E_Nullo() && key.Testo() == token)
                    chiavi += righe.Campo(u"Key_Sconto").Testo();
        }
    });
}

QString Class_DBOper::Restituisci_Sconto_Default() const {
    return System_Leggi_Key(QStringLiteral("GRUPPI_SCONTO_START"));
}

float Class_DBOper::Restituisci_Sconto_Calcolato(const Class_Sconto& sconto, const QString& chiavi,
                                                 qint16 mercato, float quantita, float totale,
                                                 QString& descrizione) const {
    Catena_Sconti catena;
    try {
        Recordset righe = Apri_Recordset(QStringLiteral("SELECT * FROM Sconti ORDER BY Ordine ;"));
        for (const QString& chiave : Token(chiavi, u"/")) {
            righe.MoveFirst();
            for (; !righe.EOF_(); righe.MoveNext()) {
                const Valore key = righe.Campo(u"Key_Sconto");
                if (key.E_Nullo() || key.Testo() != chiave)
                    continue;
                Applica_Riga(righe, sconto, mercato, quantita, totale, catena);
                if (righe.Campo(u"Tipo_Sconto").Testo() == u"F")
                    break;
            }
        }
    } catch (const std::exception&) {
        // A malformed percentage or a missing column: what was worked out so far stands, nobody is told.
    }
    descrizione = catena.descrizione;
    return catena.fattore;
}

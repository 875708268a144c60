// Languages and markets: one table serves as both. Every question scans it from the top, in order of ID.

#include <limits>
#include <optional>
#include <utility>

#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView ATTIVA_LINGUA = u"Attiva_Lingua";
constexpr QStringView ATTIVA_MERCATO = u"Attiva_Mercato";
constexpr QStringView DESCRIZIONE_LINGUA = u"Descrizione_Lingua";
constexpr QStringView DESCRIZIONE_MERCATO = u"Descrizione_Mercato";

bool Attiva(const Recordset& riga, QStringView colonna) {
    return riga.Campo(colonna).Testo() == u"TRUE";
}

/// The row's number; none for NULL. One that isn't 16 bits wide fails.
std::optional<qint16> ID(const Recordset& riga) {
    const Valore valore = riga.Campo(u"ID");
    if (valore.E_Nullo())
        return std::nullopt;
    const qint64 numero = valore.Intero();
    if (numero < std::numeric_limits<qint16>::min() || numero > std::numeric_limits<qint16>::max())
        throw Errore_DB(QStringLiteral("Overflow"));
    return static_cast<qint16>(numero);
}

bool Ha_ID(const Recordset& riga, int numero) {
    const auto id = ID(riga);
    return id && *id == numero;
}

/// NULL equals nothing.
bool Ha_Testo(const Recordset& riga, QStringView colonna, const QString& testo) {
    const Valore valore = riga.Campo(colonna);
    return !valore.E_Nullo() && valore.Testo() == testo;
}

/// `Chiave` of the first row that `condizione` accepts, or another column of it.
template <class Condizione>
QString Testo_Riga(const Class_DBOper& db, QStringView colonna, Condizione condizione) {
    return Con_Trappola(QString(), [&](QString& testo) {
        for (auto righe = db.Recordset_Struttura_Lingue(); !righe.EOF_(); righe.MoveNext())
            if (condizione(righe)) {
                testo = righe.Campo(colonna).Testo();
                return;
            }
    });
}

/// `ID` of the row with this text, else of the first one.
qint16 Numero_Riga(const Class_DBOper& db, QStringView colonna, const QString& testo) {
    return Con_Trappola(qint16{0}, [&](qint16& numero) {
        bool primo = true;
        for (auto righe = db.Recordset_Struttura_Lingue(); !righe.EOF_(); righe.MoveNext()) {
            const auto id = ID(righe);
            if (!id)
                continue;
            const bool trovata = Ha_Testo(righe, colonna, testo);
            if (trovata || std::exchange(primo, false))
                numero = *id;
            if (trovata)
                return;
        }
    });
}

template <class Condizione>
bool Esiste_Riga(const Class_DBOper& db, Condizione condizione) {
    return Con_Trappola(false, [&](bool& esiste) {
        for (auto righe = db.Recordset_Struttura_Lingue(); !righe.EOF_(); righe.MoveNext())
            esiste = esiste || condizione(righe);
    });
}

template <class Condizione>
std::vector<Voce_Lingua> Elenco(const Class_DBOper& db, QStringView descrizione, Condizione condizione) {
    return Con_Trappola(std::vector<Voce_Lingua>(), [&](std::vector<Voce_Lingua>& voci) {
        for (auto righe = db.Recordset_Struttura_Lingue(); !righe.EOF_(); righe.MoveNext()) {
            const Valore chiave = righe.Campo(u"Chiave");
            const Valore testo = righe.Campo(descrizione);
            if (condizione(righe) && !chiave.E_Nullo() && !testo.E_Nullo())
                voci.push_back({chiave.Testo(), testo.Testo(), righe.Campo(u"Immagine").Testo()});
        }
    });
}
}  // namespace

Recordset Class_DBOper::Recordset_Struttura_Lingue() const {
    return Apri_Recordset(QStringLiteral("SELECT * FROM Lingue ORDER BY ID ;"));
}

qint16 Class_DBOper::Restituisci_ID_Lingua(const QString& descrizione) const {
    return Numero_Riga(*this, DESCRIZIONE_LINGUA, descrizione);
}

qint16 Class_DBOper::Restituisci_ID_Mercato(const QString& descrizione) const {
    return Numero_Riga(*this, DESCRIZIONE_MERCATO, descrizione);
}

QString Class_DBOper::Restituisci_Key_Lingua_Mercato(int numero) const {
    return Testo_Riga(*this, u"Chiave", [&](const Recordset& riga) { return Ha_ID(riga, numero); });
}

bool Class_DBOper::Esiste_Lingua(int numero) const {
    return Esiste_Riga(
        *this, [&](const Recordset& riga) { return Attiva(riga, ATTIVA_LINGUA) && Ha_ID(riga, numero); });
}

bool Class_DBOper::Esiste_Mercato(int numero) const {
    return Esiste_Riga(
        *this, [&](const Recordset& riga) { return Attiva(riga, ATTIVA_MERCATO) && Ha_ID(riga, numero); });
}

QString Class_DBOper::Restituisci_Descrizione_Lingua(int numero) const {
    return Testo_Riga(*this, DESCRIZIONE_LINGUA, [&](const Recordset& riga) {
        return Attiva(riga, ATTIVA_LINGUA) && Ha_ID(riga, numero);
    });
}

QString Class_DBOper::Restituisci_Descrizione_Mercato(int numero) const {
    // Kept: the row must be an active language, so a market in any other row isn't found.
    return Testo_Riga(*this, DESCRIZIONE_MERCATO, [&](const Recordset& riga) {
        return Attiva(riga, ATTIVA_LINGUA) && Ha_ID(riga, numero);
    });
}

std::vector<Voce_Lingua> Class_DBOper::Restituisci_Lingue_Disponibili() const {
    return Elenco(*this, DESCRIZIONE_LINGUA, [](const Recordset& r) { return Attiva(r, ATTIVA_LINGUA); });
}

std::vector<Voce_Lingua> Class_DBOper::Restituisci_Mercati_Disponibili() const {
    return Elenco(*this, DESCRIZIONE_MERCATO, [](const Recordset& r) { return Attiva(r, ATTIVA_MERCATO); });
}

std::vector<Voce_Lingua> Class_DBOper::Restituisci_Lingue_Catalogate() const {
    return Elenco(*this, DESCRIZIONE_LINGUA, [](const Recordset&) { return true; });
}

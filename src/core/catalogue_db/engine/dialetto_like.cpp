// The dialect's LIKE.

#include <sqlite3.h>

#include <QChar>
#include <QString>
#include <QVarLengthArray>
#include <memory>
#include <utility>
#include <vector>

#include "core/catalogue_db/engine/dialetto.h"

namespace {
using Caratteri = QVarLengthArray<char32_t, 256>;

/// Characters, not UTF-16 units, without case.
Caratteri Piega(QStringView testo) {
    Caratteri piegati;
    piegati.reserve(testo.size());
    for (qsizetype i = 0; i < testo.size(); ++i) {
        char32_t c = testo[i].unicode();
        if (QChar::isHighSurrogate(c) && i + 1 < testo.size() && testo[i + 1].isLowSurrogate())
            c = QChar::surrogateToUcs4(testo[i], testo[i + 1]), ++i;
        piegati.push_back(c < 0x80 ? (c >= 'A' && c <= 'Z' ? c + 32 : c) : QChar::toCaseFolded(c));
    }
    return piegati;
}

/// A pattern, taken apart once for all the rows it is tried on.
class Modello {
  public:
    explicit Modello(QStringView testo) {
        const Caratteri m = Piega(testo);
        for (qsizetype i = 0; i < m.size(); ++i) {
            if (m[i] == U'*')
                elementi_.push_back({Tipo::Tutti, 0, false, {}});
            else if (m[i] == U'?')
                elementi_.push_back({Tipo::Uno, 0, false, {}});
            else if (m[i] == U'#')
                elementi_.push_back({Tipo::Insieme, 0, false, {{U'0', U'9'}}});
            else if (const qsizetype fine = m[i] == U'[' ? m.indexOf(U']', i) : -1; fine > 0)
                i = Aggiungi_Insieme(m, i + 1, fine);
            else  // a "[" that is never closed stands for itself
                elementi_.push_back({Tipo::Carattere, m[i], false, {}});
        }
    }

    bool Accetta(const Caratteri& testo) const {
        // One step back to the last "*" is enough: time is bounded by text times pattern.
        qsizetype t = 0, t_stella = 0;
        size_t m = 0, m_stella = SIZE_MAX;
        while (t < testo.size()) {
            if (m < elementi_.size() && elementi_[m].tipo == Tipo::Tutti) {
                m_stella = m++;
                t_stella = t;
            } else if (m < elementi_.size() && elementi_[m].Accetta(testo[t])) {
                ++m;
                ++t;
            } else if (m_stella != SIZE_MAX) {
                m = m_stella + 1;
                t = ++t_stella;
            } else {
                return false;
            }
        }
        while (m < elementi_.size() && elementi_[m].tipo == Tipo::Tutti)
            ++m;
        return m == elementi_.size();
    }

  private:
    enum class Tipo { Carattere, Uno, Tutti, Insieme };
    struct Elemento {
        Tipo tipo;
        char32_t carattere;
        bool negato;
        std::vector<std::pair<char32_t, char32_t>> intervalli;

        bool Accetta(char32_t c) const {
            if (tipo != Tipo::Insieme)
                return tipo == Tipo::Uno || c == carattere;
            for (const auto& [da, a] : intervalli)
                if (c >= da && c <= a)
                    return !negato;
            return negato;
        }
    };

    /// "[...]", without its brackets; "[]" is no character at all. Answers the place of the closing bracket.
    qsizetype Aggiungi_Insieme(const Caratteri& m, qsizetype i, qsizetype fine) {
        if (i == fine)
            return fine;
        Elemento insieme{Tipo::Insieme, 0, false, {}};
        if (m[i] == U'!' && i + 1 < fine) {
            insieme.negato = true;
            ++i;
        }
        while (i < fine) {
            const bool intervallo = i + 2 < fine && m[i + 1] == U'-';
            insieme.intervalli.emplace_back(m[i], m[intervallo ? i + 2 : i]);
            i += intervallo ? 3 : 1;
        }
        elementi_.push_back(std::move(insieme));
        return fine;
    }

    std::vector<Elemento> elementi_;
};

QString Testo(sqlite3_value* valore) {
    const auto* testo = reinterpret_cast<const char*>(sqlite3_value_text(valore));
    return QString::fromUtf8(testo, sqlite3_value_bytes(valore));
}

/// "x LIKE y" calls like(y, x).
void Like(sqlite3_context* contesto, int, sqlite3_value** argomenti) {
    if (sqlite3_value_type(argomenti[0]) == SQLITE_NULL || sqlite3_value_type(argomenti[1]) == SQLITE_NULL)
        return;  // NULL
    auto* modello = static_cast<Modello*>(sqlite3_get_auxdata(contesto, 0));
    std::unique_ptr<Modello> nuovo;
    if (modello == nullptr) {
        const QString testo = Testo(argomenti[0]);
        if (testo.size() >
            sqlite3_limit(sqlite3_context_db_handle(contesto), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1)) {
            sqlite3_result_error(contesto, "The pattern of LIKE is too long.", -1);
            return;
        }
        nuovo = std::make_unique<Modello>(testo);
        modello = nuovo.get();
    }
    sqlite3_result_int(contesto, modello->Accetta(Piega(Testo(argomenti[1]))) ? 1 : 0);
    if (nuovo)
        sqlite3_set_auxdata(contesto, 0, nuovo.release(),
                            [](void* vecchio) { delete static_cast<Modello*>(vecchio); });
}
}  // namespace

bool Corrisponde(QStringView testo, QStringView modello) {
    return Modello(modello).Accetta(Piega(testo));
}

void Registra_Like(sqlite3* connessione) {
    sqlite3_create_function(connessione, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                            nullptr, &Like, nullptr, nullptr);
}

#include "core/catalogue_db/engine/dialetto.h"

#include <algorithm>
#include <array>

namespace {
/// Words that the engine reserves and the catalogues' statements use as names only. They are names wherever
/// an operand can stand; behind an operand they stay what the engine takes them for ("... COLLATE NOCASE").
constexpr std::array PAROLE_NOMI = {
    u"ADD",        u"ALTER",       u"AUTOINCREMENT", u"CHECK",      u"COLLATE", u"COMMIT",
    u"CONSTRAINT", u"CREATE",      u"DEFAULT",       u"DEFERRABLE", u"DROP",    u"ESCAPE",
    u"FOREIGN",    u"INDEX",       u"INDEXED",       u"ISNULL",     u"LIMIT",   u"NOTHING",
    u"NOTNULL",    u"PRIMARY",     u"REFERENCES",    u"RETURNING",  u"TABLE",   u"TO",
    u"UNIQUE",     u"TRANSACTION", u"USING"};
/// Of these, the ones that begin a constraint within the definition of a table.
constexpr std::array PAROLE_VINCOLO = {u"CHECK", u"CONSTRAINT", u"FOREIGN", u"PRIMARY", u"UNIQUE"};
/// Words behind which an operand stands.
constexpr std::array PAROLE_PRIMA_DI_OPERANDO = {
    u"SELECT", u"DISTINCT", u"WHERE", u"AND",     u"OR",   u"NOT",  u"BY",   u"ON",
    u"SET",    u"HAVING",   u"LIKE",  u"BETWEEN", u"AS",   u"IS",   u"FROM", u"INTO",
    u"UPDATE", u"JOIN",     u"CASE",  u"WHEN",    u"THEN", u"ELSE", u"ALL",  u"COLUMN"};

bool Una_Di(QStringView parola, const auto& parole) {
    return std::any_of(parole.begin(), parole.end(), [&](const char16_t* una) {
        return parola.compare(QStringView(una), Qt::CaseInsensitive) == 0;
    });
}

bool Di_Parola(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'$' || c.unicode() >= 0x80;
}

class Traduttore {
  public:
    explicit Traduttore(QStringView sql) : sql_(sql) { uscita_.reserve(sql.size() + 8); }

    QString Traduci() {
        while (i_ < sql_.size()) {
            const QChar c = sql_[i_];
            if (c.isSpace())
                uscita_ += sql_[i_++];
            else if (c == u'\'' || c == u'`')
                Copia_Fino_A(c);
            else if (c == u'[')
                Copia_Fino_A(u']');
            else if (c == u'"')
                Testo_Tra_Virgolette();
            else if (Di_Parola(c))
                Parola();
            else
                Segno();
        }
        return uscita_;
    }

  private:
    /// Strings and bracketed names pass untouched; a doubled quote inside is two strings side by side here.
    void Copia_Fino_A(QChar chiusura) {
        const qsizetype fine = sql_.indexOf(chiusura, i_ + 1);
        const qsizetype dopo = fine < 0 ? sql_.size() : fine + 1;
        uscita_ += sql_.sliced(i_, dopo - i_);
        i_ = dopo;
        operando_ = false;
    }

    void Testo_Tra_Virgolette() {
        QString testo;
        for (qsizetype i = i_ + 1; i < sql_.size(); ++i) {
            if (sql_[i] != u'"') {
                testo += sql_[i];
            } else if (i + 1 < sql_.size() && sql_[i + 1] == u'"') {
                testo += sql_[i++];
            } else {
                uscita_ += u'\'' + testo.replace(u'\'', QStringLiteral("''")) + u'\'';
                i_ = i + 1;
                operando_ = false;
                return;
            }
        }
        uscita_ += sql_.sliced(i_);  // never closed: the engine says so
        i_ = sql_.size();
    }

    void Parola() {
        const qsizetype inizio = i_;
        while (i_ < sql_.size() && Di_Parola(sql_[i_]))
            ++i_;
        const QStringView parola = sql_.sliced(inizio, i_ - inizio);
        const bool prima = comando_.isEmpty();
        if (prima)
            comando_ = parola;
        if (!prima && operando_ && Una_Di(parola, PAROLE_NOMI) &&
            !(In_Definizione() && Una_Di(parola, PAROLE_VINCOLO))) {
            uscita_ += u'[' + parola.toString() + u']';
            operando_ = false;
            return;
        }
        uscita_ += parola;
        operando_ = Una_Di(parola, PAROLE_PRIMA_DI_OPERANDO);
        if (prima && parola.compare(u"DELETE", Qt::CaseInsensitive) == 0)
            Salta_Stella();
    }

    /// "DELETE * FROM": the engine knows it without the star.
    void Salta_Stella() {
        qsizetype i = i_;
        while (i < sql_.size() && sql_[i].isSpace())
            ++i;
        if (i >= sql_.size() || sql_[i] != u'*')
            return;
        i_ = i + 1;
        if (i_ < sql_.size() && !sql_[i_].isSpace())
            uscita_ += u' ';
    }

    void Segno() {
        const QChar c = sql_[i_++];
        uscita_ += c;
        // The dialect has no comments: a value that breaks out of its quotes can't hide the rest of a text.
        if (i_ < sql_.size() && ((c == u'-' && sql_[i_] == u'-') || (c == u'/' && sql_[i_] == u'*')))
            uscita_ += u' ';
        operando_ = c != u')';
    }

    bool In_Definizione() const {
        return comando_.compare(u"CREATE", Qt::CaseInsensitive) == 0 ||
               comando_.compare(u"ALTER", Qt::CaseInsensitive) == 0;
    }

    QStringView sql_;
    QString uscita_;
    QStringView comando_;    ///< the statement's first word
    bool operando_ = false;  ///< an operand can stand here
    qsizetype i_ = 0;
};
}  // namespace

QString Traduci_Dialetto(const QString& sql) {
    return Traduttore(sql).Traduci();
}

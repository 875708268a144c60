#include "core/base/numeri.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

#include "core/base/testo.h"

namespace {

bool E_Cifra(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool E_Separatore(QChar c) {
    return c == u'.' || c == u',';
}

/// The separator of a locale that has neither "." nor ",". Its texts are read with "." in its place.
bool E_Di_Altra_Scrittura(QChar separatore) {
    return !E_Separatore(separatore);
}

/// What a keyboard of another script types, in the digits and separators of the catalogues.
QString Nelle_Nostre_Cifre(QString testo, QChar separatore) {
    constexpr QChar SEPARATORE_ARABO(u'\u066B');
    for (QChar& c : testo)
        if (c == SEPARATORE_ARABO || (c == separatore && E_Di_Altra_Scrittura(separatore)))
            c = u'.';
        else if (c.unicode() > 0x7F && c.category() == QChar::Number_DecimalDigit)
            c = QChar(static_cast<char16_t>(u'0' + c.digitValue()));
    return testo;
}

/// What the scan leaves of a text.
struct Scansione {
    std::string mantissa;  ///< "", "-", or digits with at most one "." anywhere, a "-" in front
    std::string esponente;
    bool esponente_negativo = false;
};

Scansione Scandisci(QStringView testo) {
    Scansione s;
    bool nell_esponente = false;
    bool decimali = false;
    bool cifre_viste = false;
    bool cifre_finite = false;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const QChar c = testo[i];
        if (E_Cifra(c)) {
            cifre_viste = true;
            if (nell_esponente)
                s.esponente += c.toLatin1();
            else if (!cifre_finite)
                s.mantissa += c.toLatin1();
        } else if (E_Separatore(c)) {
            if (!decimali)
                s.mantissa += '.';
            decimali = true;
        } else if (c == u'+' || c == u'-') {
            // Kept: a leading "+" counts as a minus.
            if (i == 0)
                s.mantissa.assign(1, '-');
            else
                s.esponente_negativo = c == u'-';
        } else if (c == u'E') {
            nell_esponente = true;
        } else if (nell_esponente) {
            break;
        } else if (cifre_viste) {
            cifre_finite = true;
        }
    }
    return s;
}

bool Vale_Zero(const QString& testo) {
    return testo.isEmpty() || testo == u"." || testo == u"," || testo == FINE_TOKEN;
}

/// The text as a number. Fails on a text without digits and on a number out of range of the type.
template <class Tipo>
Tipo In_Numero(const std::string& testo) {
    Tipo numero = 0;
    const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
    if (esito.ec == std::errc::invalid_argument)
        throw std::invalid_argument("Type mismatch");
    if (esito.ec == std::errc::result_out_of_range) {
        // Said of numbers too near to zero as well, and those are 0.
        if (testo.find_first_of("123456789") < testo.find('.'))
            throw std::overflow_error("Overflow");
        return 0;
    }
    return numero;
}

double Potenza_Di_Dieci(const Scansione& s) {
    const double esponente = In_Numero<double>(s.esponente);
    const double potenza = std::pow(10.0, s.esponente_negativo ? -esponente : esponente);
    if (std::isinf(potenza))
        throw std::overflow_error("Overflow");
    return potenza;
}

/// A plain decimal number: 0.`cifre` times 10 to the power of `punto`.
struct Decimale {
    bool negativo = false;
    QString cifre;
    qint64 punto = 0;
};

/// Reads one plain number: sign, digits with at most one separator, exponent. False for anything else.
bool Leggi_Decimale(QStringView testo, Decimale& numero) {
    qsizetype i = 0;
    if (i < testo.size() && (testo[i] == u'+' || testo[i] == u'-'))
        numero.negativo = testo[i++] == u'-';
    bool separatore = false;
    for (; i < testo.size() && (E_Cifra(testo[i]) || (!separatore && E_Separatore(testo[i]))); ++i) {
        if (E_Separatore(testo[i])) {
            separatore = true;
            continue;
        }
        numero.cifre += testo[i];
        if (!separatore)
            ++numero.punto;
    }
    if (numero.cifre.isEmpty())
        return false;
    if (i < testo.size() && testo[i].toUpper() == u'E') {
        const QStringView esponente = testo.sliced(i + 1);
        const bool con_segno = esponente.startsWith(u'+') || esponente.startsWith(u'-');
        if (esponente.size() <= con_segno || !E_Cifra(esponente[con_segno]))
            return false;
        bool riuscito = false;
        const int valore = esponente.toInt(&riuscito);
        // Beyond double precision a text is no number for the masks.
        if (!riuscito || valore > std::numeric_limits<double>::max_exponent10)
            return false;
        numero.punto += valore;
        i = testo.size();
    }
    return i == testo.size();
}

/// Rounds to `decimali` places, half away from zero; afterwards `cifre` are exactly the digits before the
/// point, without leading zeros, and `decimali` after it.
void Arrotonda(Decimale& numero, qsizetype decimali) {
    const qint64 tenute = numero.punto + decimali;
    if (tenute < 0) {
        numero.cifre.clear();
    } else if (tenute < numero.cifre.size()) {
        const bool in_su = numero.cifre[tenute] >= u'5';
        numero.cifre.truncate(tenute);
        qsizetype i = tenute;
        while (in_su && i > 0 && numero.cifre[i - 1] == u'9')
            numero.cifre[--i] = u'0';
        if (in_su && i > 0)
            numero.cifre[i - 1] = QChar(numero.cifre[i - 1].unicode() + 1);
        else if (in_su)
            numero.cifre.prepend(u'1');
    } else {
        numero.cifre = numero.cifre.leftJustified(tenute, u'0');
    }
    numero.cifre = numero.cifre.rightJustified(decimali, u'0');
    while (numero.cifre.size() > decimali && numero.cifre.startsWith(u'0'))
        numero.cifre.remove(0, 1);
}

}  // namespace

QChar Separatore_Per_Cifre_Latine(const QLocale& locale) {
    const QChar separatore = locale.decimalPoint().front();
    return E_Separatore(separatore) ? separatore : QChar(u'.');
}

QChar Numeri::Restituisci_Separatore_Decimale() const {
    if (!separatore_)
        separatore_ = sistema_.Separatore_Decimale();
    return *separatore_;
}

/// Fails on what can't be converted.
float Numeri::Scandisci_Numero(const QString& testo) const {
    const Scansione s = Scandisci(Nelle_Nostre_Cifre(testo, Restituisci_Separatore_Decimale()));
    if (s.esponente.empty())
        return s.mantissa.empty() || s.mantissa == "-" ? 0 : In_Numero<float>(s.mantissa);
    const double numero = In_Numero<double>(s.mantissa) * Potenza_Di_Dieci(s);
    if (std::fabs(numero) > std::numeric_limits<float>::max())
        throw std::overflow_error("Overflow");
    return static_cast<float>(numero);
}

float Numeri::Converti_Numero(const QString& testo) const {
    if (Vale_Zero(testo))
        return 0;
    try {
        return Scandisci_Numero(testo);
    } catch (const std::exception& errore) {
        messaggi_.Mostra(
            QStringLiteral("Errore durante la conversione dei numeri ") + QString::fromUtf8(errore.what()),
            Icona::Nessuna);
        return 0;
    }
}

std::optional<float> Numeri::Numero_Semplice(const QString& testo) const {
    Decimale decimale;
    if (!Leggi_Decimale(Trim(testo), decimale))
        return std::nullopt;
    try {
        return Scandisci_Numero(testo);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

float Numeri::Conversione_Semplice(const QString& testo) const {
    const QChar separatore = Restituisci_Separatore_Decimale();
    const QChar decimale = E_Di_Altra_Scrittura(separatore) ? QChar(u'.') : separatore;
    const QString cifre = Nelle_Nostre_Cifre(Trim(testo), separatore);
    Scansione s;
    bool in_frazione = false;
    qsizetype i = 0;
    if (i < cifre.size() && (cifre[i] == u'+' || cifre[i] == u'-') && cifre[i++] == u'-')
        s.mantissa.assign(1, '-');
    for (; i < cifre.size() && cifre[i].toUpper() != u'E'; ++i) {
        const QChar c = cifre[i];
        if (E_Cifra(c)) {
            s.mantissa += c.toLatin1();
        } else if (c == decimale && !in_frazione) {
            s.mantissa += '.';
            in_frazione = true;
        } else if (!E_Separatore(c) || c == decimale || in_frazione) {
            throw std::invalid_argument("Type mismatch");
        }
    }
    const bool con_esponente = i < cifre.size();
    if (con_esponente && ++i < cifre.size() && (cifre[i] == u'+' || cifre[i] == u'-'))
        s.esponente_negativo = cifre[i++] == u'-';
    for (; i < cifre.size(); ++i) {
        if (!E_Cifra(cifre[i]))
            throw std::invalid_argument("Type mismatch");
        s.esponente += cifre[i].toLatin1();
    }
    if (con_esponente && s.esponente.empty())
        throw std::invalid_argument("Type mismatch");
    if (con_esponente)
        s.mantissa.append(s.esponente_negativo ? "e-" : "e").append(s.esponente);
    return In_Numero<float>(s.mantissa);
}

QString Numeri::Testo(float numero) const {
    constexpr int CIFRE = std::numeric_limits<float>::digits10 + 1;
    const bool intero = numero == std::trunc(numero) && std::fabs(numero) < 1e15f;
    return QString::number(static_cast<double>(numero), intero ? 'f' : 'g', intero ? 0 : CIFRE)
        .toUpper()
        .replace(u'.', Restituisci_Separatore_Decimale());
}

QString Numeri::Formatta(float numero, QStringView maschera) const {
    if (!std::isfinite(numero))
        throw std::overflow_error("Overflow");
    // As many digits as tell the number apart from every other single: a mask may ask for all of them.
    char cifre[64];
    const auto fine = std::to_chars(std::begin(cifre), std::end(cifre), numero);
    return Formatta(QString::fromLatin1(cifre, fine.ptr - cifre), maschera);
}

QString Numeri::Numero_Per_SQL(const QString& testo) const {
    const QString zero = QStringLiteral("0");
    if (Vale_Zero(testo))
        return zero;
    const Scansione s = Scandisci(Nelle_Nostre_Cifre(testo, Restituisci_Separatore_Decimale()));
    try {
        const QString mantissa = QString::fromStdString(s.mantissa);
        if (s.esponente.empty()) {
            In_Numero<double>(s.mantissa);
            return mantissa;
        }
        // The mantissa goes through single precision here: kept.
        const double numero = Converti_Numero(mantissa) * Potenza_Di_Dieci(s);
        return std::isinf(numero) ? zero
                                  : QString::number(numero, 'g', std::numeric_limits<double>::digits10);
    } catch (const std::exception&) {
        return zero;
    }
}

QString Numeri::Formatta(const QString& testo, QStringView maschera) const {
    Decimale numero;
    if (!Leggi_Decimale(Trim(testo), numero))
        return testo;

    const qsizetype punto = maschera.indexOf(u'.');
    const QStringView maschera_intera = punto < 0 ? maschera : maschera.first(punto);
    const QStringView maschera_decimale = punto < 0 ? QStringView() : maschera.sliced(punto + 1);
    Arrotonda(numero, maschera_decimale.size());

    QString intero = numero.cifre.chopped(maschera_decimale.size());
    QString decimali = numero.cifre.last(maschera_decimale.size());
    const bool nullo = intero.isEmpty() && decimali.count(u'0') == decimali.size();
    intero = intero.rightJustified(maschera_intera.count(u'0'), u'0');
    while (decimali.endsWith(u'0') && maschera_decimale[decimali.size() - 1] == u'#')
        decimali.chop(1);
    if (!decimali.isEmpty())
        decimali.prepend(Restituisci_Separatore_Decimale());
    return (numero.negativo && !nullo ? QStringLiteral("-") : QString()) + intero + decimali;
}

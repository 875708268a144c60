#include "core/catalogue_db/engine/valore.h"

#include <QLocale>
#include <charconv>
#include <cmath>

namespace {
QString Testo_Da_Numero(double numero) {
    const double grandezza = std::fabs(numero);
    const bool leggibile = grandezza == 0 || (grandezza >= 1e-5 && grandezza < 1e15);
    return QString::number(numero, leggibile ? 'f' : 'g', QLocale::FloatingPointShortest);
}

/// The number at the start of a text; `fino` answers how many characters it took, 0 for none.
double Numero_Iniziale(const QByteArray& testo, qsizetype& fino) {
    const char* inizio = testo.constData();
    const char* fine = inizio + testo.size();
    const char* primo = inizio + (testo.startsWith('+') ? 1 : 0);
    const char cifra = primo < fine ? (*primo == '-' && primo + 1 < fine ? primo[1] : *primo) : '\0';
    fino = 0;
    // "inf" and "nan" are words here, not numbers.
    if ((cifra < '0' || cifra > '9') && cifra != '.')
        return 0;
    double numero = 0;
    const auto [dopo, errore] = std::from_chars(primo, fine, numero);
    if (errore != std::errc())
        return 0;
    fino = dopo - inizio;
    return numero;
}
}  // namespace

Valore Valore::Da_Testo(QByteArrayView utf8) {
    QString testo = QString::fromUtf8(utf8);
    const bool torna = !utf8.startsWith("\xEF\xBB\xBF") &&
                       (!testo.contains(QChar::ReplacementCharacter) || utf8.isValidUtf8());
    return torna ? Valore(std::move(testo)) : Valore(Grezzo{utf8.toByteArray(), true});
}

bool Valore::E_Testo() const {
    const auto* grezzo = std::get_if<Grezzo>(&dato_);
    return std::holds_alternative<QString>(dato_) || (grezzo != nullptr && grezzo->E_Testo);
}

QString Valore::Testo() const {
    if (const auto* testo = std::get_if<QString>(&dato_))
        return *testo;
    if (const auto* intero = std::get_if<qint64>(&dato_))
        return QString::number(*intero);
    if (const auto* numero = std::get_if<double>(&dato_))
        return Testo_Da_Numero(*numero);
    if (const auto* grezzo = std::get_if<Grezzo>(&dato_))
        return QString::fromUtf8(grezzo->Byte);
    return {};
}

QByteArray Valore::Byte() const {
    const auto* grezzo = std::get_if<Grezzo>(&dato_);
    return grezzo != nullptr ? grezzo->Byte : Testo().toUtf8();
}

double Valore::Numero() const {
    if (const auto* intero = std::get_if<qint64>(&dato_))
        return static_cast<double>(*intero);
    if (const auto* numero = std::get_if<double>(&dato_))
        return *numero;
    qsizetype fino = 0;
    return Numero_Iniziale(Testo().trimmed().toLatin1(), fino);
}

qint64 Valore::Intero() const {
    if (const auto* intero = std::get_if<qint64>(&dato_))
        return *intero;
    double numero = 0;
    if (const auto* esatto = std::get_if<double>(&dato_)) {
        numero = *esatto;
    } else {
        const QByteArray tutto = Testo().trimmed().toLatin1();
        qsizetype fino = 0;
        numero = Numero_Iniziale(tutto, fino);
        if (fino != tutto.size())
            return 0;
    }
    numero = std::nearbyint(numero);  // halves go to the even neighbour
    constexpr double LIMITE = 9.2e18;
    return std::fabs(numero) < LIMITE ? static_cast<qint64>(numero) : 0;
}

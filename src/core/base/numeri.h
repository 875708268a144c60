#pragma once

#include <QLocale>
#include <QString>
#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>

#include "core/base/porte.h"

/// The decimal separator of a locale for numbers in the digits 0 to 9, as all are shown here: its own if that
/// is "." or
/// ",", else ".".
QChar Separatore_Per_Cifre_Latine(const QLocale& locale);

/// Numbers as the catalogues write them, with "." or ",", and as the user reads them.
class Numeri {
  public:
    Numeri(const Sistema& sistema, Messaggi& messaggi) : sistema_(sistema), messaggi_(messaggi) {}

    /// Text to single precision; accepts both separators, that of the user's locale too and digits of any
    /// alphabet, sees further separators away, "E" as exponent (upper case only), a leading "+" as a minus
    /// (kept). "", ".",
    /// ",", the token marker and a text without digits are 0. What can't be converted (too large, a separator
    /// or an exponent without digits before it) shows a message and is 0.
    float Converti_Numero(const QString& testo) const;
    /// The number of a text that `Formatta` takes for one plain number, as `Converti_Numero` reads it; none
    /// for any other text and beyond single precision. No message.
    std::optional<float> Numero_Semplice(const QString& testo) const;
    /// The same scan as SQL text, with "." as the decimal separator; "0" for "" or a bad value.
    QString Numero_Per_SQL(const QString& testo) const;
    /// Text to single precision by the user's locale alone: its separator, groups with the other of "." and
    /// ",", an exponent; blanks around it. So a number with the other separator is misread. Anything else
    /// fails with `std::invalid_argument`, a number too large with `std::overflow_error`.
    float Conversione_Semplice(const QString& testo) const;
    /// A number as text with the user's separator: "2,5". It shows its 7 significant digits, without the
    /// noise that single precision leaves behind them; a whole number shows all of its digits.
    QString Testo(float numero) const;
    /// The decimal separator of the user's locale, asked once and kept.
    QChar Restituisci_Separatore_Decimale() const;

    /// A field shown with a mask of "#", "0" and one ".": rounded half away from zero on its decimal digits,
    /// with the user's separator. "###" shows 0 as "", and "" stays "". A text that isn't one plain number,
    /// with at most one separator, stays as it is.
    QString Formatta(const QString& testo, QStringView maschera) const;
    /// The same for a number, on all digits that it holds; one that isn't finite fails with
    /// `std::overflow_error`.
    QString Formatta(float numero, QStringView maschera) const;

    /// The whole number next to it, halves to the even one, as the catalogues' quantities are rounded. Out of
    /// range of `Intero` it fails with `std::overflow_error`.
    template <class Intero>
    static Intero In_Intero(float numero) {
        const double intero = std::nearbyint(static_cast<double>(numero));
        if (!(intero >= static_cast<double>(std::numeric_limits<Intero>::min()) &&
              intero <= static_cast<double>(std::numeric_limits<Intero>::max())))
            throw std::overflow_error("Overflow");
        return static_cast<Intero>(intero);
    }

  private:
    float Scandisci_Numero(const QString& testo) const;

    const Sistema& sistema_;
    Messaggi& messaggi_;
    mutable std::optional<QChar> separatore_;
};

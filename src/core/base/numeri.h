#pragma once

#include <QString>
#include <optional>

#include "core/base/porte.h"

/// Numbers as the catalogues write them, with "." or ",", and as the user reads them.
class Numeri {
  public:
    Numeri(const Sistema& sistema, Messaggi& messaggi) : sistema_(sistema), messaggi_(messaggi) {}

    /// Text to single precision; accepts both separators, sees further ones away, "E" as exponent (upper case
    /// only), a leading "+" as a minus (kept). "", ".", ",", the token marker and a text without digits are
    /// 0. What can't be converted (too large, a separator or an exponent without digits before it) shows a
    /// message and is 0.
    float Converti_Numero(const QString& testo) const;
    /// The same scan as SQL text, with "." as the decimal separator; "0" for "" or a bad value.
    QString Numero_Per_SQL(const QString& testo) const;
    /// The decimal separator of the user's locale, asked once and kept.
    QChar Restituisci_Separatore_Decimale() const;

    /// A field shown with a mask of "#", "0" and one ".": rounded half away from zero on its decimal digits,
    /// with the user's separator. "###" shows 0 as "", and "" stays "". A text that isn't one plain number,
    /// with at most one separator, stays as it is.
    QString Formatta(const QString& testo, QStringView maschera) const;

  private:
    const Sistema& sistema_;
    Messaggi& messaggi_;
    mutable std::optional<QChar> separatore_;
};

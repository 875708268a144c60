#pragma once

#include <QString>

#include "core/base/numeri.h"

/// Reads the discount strings of table `Sconti`: entries between "|", fields of an entry between "/", the
/// first of them the market. Of several entries for a market the first one counts. The percentage is read by
/// the user's locale alone: with the other decimal separator it is misread or fails
/// (`Numeri::Conversione_Semplice`).
class Class_Sconto {
  public:
    explicit Class_Sconto(const Numeri& numeri) : numeri_(numeri) {}

    /// "market/percent|...": the percentage; 0 when the market isn't in the text.
    float Restituisci_ScontoGenerale_Mercato(const QString& testo, qint16 mercato) const;
    /// "market/percent/min/max|...": the percentage and its bounds. When the market isn't in the text the
    /// answer is 0 and the bounds stay as they were.
    float Restituisci_ScontoRange_Mercato(const QString& testo, qint16 mercato, float& minimo,
                                          float& massimo) const;
    const Numeri& Numeri_() const { return numeri_; }

  private:
    /// The first entry of the market; a null text when there is none.
    QString Voce_Mercato(const QString& testo, qint16 mercato) const;

    const Numeri& numeri_;
};

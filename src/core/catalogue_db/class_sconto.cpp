#include "core/catalogue_db/class_sconto.h"

#include "core/base/testo.h"

QString Class_Sconto::Voce_Mercato(const QString& testo, qint16 mercato) const {
    for (const QString& voce : Token(testo, u"|"))
        if (numeri_.Converti_Numero(Estrai_Token_Barra(voce, 1)) == static_cast<float>(mercato))
            return voce;
    return {};
}

float Class_Sconto::Restituisci_ScontoGenerale_Mercato(const QString& testo, qint16 mercato) const {
    const QString voce = Voce_Mercato(testo, mercato);
    return voce.isNull() ? 0 : numeri_.Conversione_Semplice(Estrai_Token_Barra(voce, 2));
}

float Class_Sconto::Restituisci_ScontoRange_Mercato(const QString& testo, qint16 mercato, float& minimo,
                                                    float& massimo) const {
    const QString voce = Voce_Mercato(testo, mercato);
    if (voce.isNull())
        return 0;
    const float percento = numeri_.Conversione_Semplice(Estrai_Token_Barra(voce, 2));
    minimo = numeri_.Converti_Numero(Estrai_Token_Barra(voce, 3));
    massimo = numeri_.Converti_Numero(Estrai_Token_Barra(voce, 4));
    return percento;
}

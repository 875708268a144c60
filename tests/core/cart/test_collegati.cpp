#include <gmock/gmock.h>

#include <QMap>

#include "core/cart/collegati.h"

namespace {

/// What a line's list becomes, from its own values and those of the other codes.
QString Espandi(const Valori_Memo& propri, const QMap<QString, Valori_Memo>& altri, int* letti = nullptr) {
    Class_Elenco riga;
    Aggiungi_Memo(riga, propri, "K");
    Espandi_Collegati(riga, [&](const QString& codice) {
        if (letti != nullptr)
            ++*letti;
        return altri.value(codice);
    });
    return riga.Lista_Memo;
}

TEST(Collegati, FollowsTheCodes) {
    struct Caso {
        const char* nome;
        Valori_Memo propri;
        QMap<QString, Valori_Memo> altri;
        const char* atteso;
    };
    const Caso casi[] = {{"empty", {""}, {}, ""},
                         {"two values", {"A§2", "B§1"}, {}, "A§2 / B§1"},
                         {"linked", {"A§2"}, {{"A", {"B§3"}}, {"B", {"C§1/D§1"}}}, "A§2/B§3/C§1/D§1"},
                         {"several values of a code", {"A§2"}, {{"A", {"B§3", "", "C§1"}}}, "A§2/B§3/C§1"},
                         {"the line's own code", {"K§1/A§2/ K §9/B§1"}, {}, "A§2/B§1"},
                         {"back to the line's own code", {"A§2"}, {{"A", {"K§1/B§1"}}}, "A§2/B§1"},
                         {"exactly the code", {"A§2"}, {{"A", {"A/B§1"}}}, "A§2/B§1"},
                         {"capitals count", {"k§1"}, {}, "k§1"},
                         {"twice the same", {"A§1/A§2"}, {{"A", {"B§1"}}}, "A§1/A§2/B§1/B§1"}};
    for (const Caso& caso : casi)
        EXPECT_EQ(Espandi(caso.propri, caso.altri), caso.atteso) << caso.nome;
}

TEST(Collegati, ACircleEndsAfter49Entries) {
    int letti = 0;
    const QString lista = Espandi({"A§1"}, {{"A", {"B§1"}}, {"B", {"A§1"}}}, &letti);
    EXPECT_EQ(letti, 49);
    EXPECT_EQ(lista.count('/') + 1, 50);
}

}  // namespace

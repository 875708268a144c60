#include <gtest/gtest.h>

#include <random>

#include "core/base/collezione.h"

namespace {

using Testi = Collezione<QString>;

QString Chiave(int i) {
    return QString("K%1").arg(i);
}

void Aggiungi(Testi& c, const QString& key, const QString& nome) {
    c.Inserisci(key, std::make_shared<QString>(nome));
}

QStringList Nomi(const Testi& c) {
    QStringList nomi;
    for (const QString& nome : c)
        nomi.append(nome);
    return nomi;
}

TEST(Collezione, ReachesRecordsByKeyAndByPositionFromOne) {
    Testi c;
    Aggiungi(c, "a", "first");
    Aggiungi(c, "", "without key");
    Aggiungi(c, "", "without key too");
    Aggiungi(c, "A", "other case, other key");

    EXPECT_EQ(c.Item("a"), "first");
    EXPECT_EQ(c.Item("A"), "other case, other key");
    EXPECT_EQ(c.Item(3), "without key too");
    EXPECT_FALSE(c.Contiene(""));
}

TEST(Collezione, FailsOnWhatIsntThereAndOnAKeyThatIs) {
    Testi c;
    Aggiungi(c, "a", "one");
    EXPECT_THROW(c.Item("b"), Errore_Collezione);
    for (const int posizione : {0, 2})
        EXPECT_THROW(c.Item(posizione), Errore_Collezione) << posizione;
    EXPECT_THROW(c.Remove("b"), Errore_Collezione);
    EXPECT_THROW(Aggiungi(c, "a", "two"), Errore_Collezione);
    EXPECT_EQ(Nomi(c), QStringList{"one"}) << "a refused record leaves nothing behind";
}

// Keys, positions and order against a plain list, through a long random life; a removed key comes back.
TEST(Collezione, KeepsKeysAndPositionsInStepThroughAnyRemovals) {
    std::mt19937 caso(7);
    Testi c;
    QStringList attesi;
    for (int passo = 0; passo < 4000; ++passo) {
        const QString key = Chiave(static_cast<int>(caso() % 400));
        if (const qsizetype i = attesi.indexOf(key); i < 0) {
            Aggiungi(c, key, key);
            attesi.append(key);
        } else {
            passo % 2 == 0 ? c.Remove(key) : c.Remove(i + 1);
            attesi.removeAt(i);
        }
        if (passo % 50 == 0) {
            ASSERT_EQ(Nomi(c), attesi) << "after step " << passo;
            for (qsizetype i = 0; i < attesi.size(); ++i) {
                ASSERT_EQ(c.Item(attesi[i]), attesi[i]) << "after step " << passo;
                ASSERT_EQ(c.Item(i + 1), attesi[i]) << "after step " << passo;
            }
        }
    }
    EXPECT_GT(attesi.size(), 100);
}

// 100,000 removals from the front end at once; were each of them linear, this would run for minutes.
TEST(Collezione, EmptiesFromTheFrontWithoutDelay) {
    Testi c;
    constexpr int RECORD = 100'000;
    c.Riserva(RECORD);
    for (int i = 0; i < RECORD; ++i)
        Aggiungi(c, Chiave(i), QString());
    while (c.Count() > 1)
        c.Remove(1);
    EXPECT_EQ(&c.Item(Chiave(RECORD - 1)), &c.Item(1));
}

}  // namespace

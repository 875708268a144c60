#include <gtest/gtest.h>

#include <QStringList>
#include <random>

#include "core/base/collezione.h"

namespace {

struct Cosa {
    QString nome;
};

QString Chiave(int i) {
    return QStringLiteral("K%1").arg(i);
}

void Aggiungi(Collezione<Cosa>& c, const QString& key, const QString& nome) {
    c.Inserisci(key, std::make_shared<Cosa>(Cosa{nome}));
}

QStringList Nomi(const Collezione<Cosa>& c) {
    QStringList nomi;
    for (const Cosa& cosa : c)
        nomi.append(cosa.nome);
    return nomi;
}

TEST(Collezione, ReachesRecordsByKeyAndByPositionFromOne) {
    Collezione<Cosa> c;
    Aggiungi(c, u"a"_qs, u"first"_qs);
    Aggiungi(c, u""_qs, u"without key"_qs);
    Aggiungi(c, u""_qs, u"without key too"_qs);
    Aggiungi(c, u"A"_qs, u"other case, other key"_qs);

    EXPECT_EQ(c.Count(), 4);
    EXPECT_EQ(c.Item(u"a"_qs).nome, u"first"_qs);
    EXPECT_EQ(c.Item(u"A"_qs).nome, u"other case, other key"_qs);
    EXPECT_EQ(c.Item(1).nome, u"first"_qs);
    EXPECT_EQ(c.Item(3).nome, u"without key too"_qs);
    EXPECT_FALSE(c.Contiene(u""_qs));
}

TEST(Collezione, FailsOnWhatIsntThereAndOnAKeyThatIs) {
    Collezione<Cosa> c;
    Aggiungi(c, u"a"_qs, u"one"_qs);

    EXPECT_THROW(c.Item(u"b"_qs), Errore_Collezione);
    EXPECT_THROW(c.Item(u""_qs), Errore_Collezione);
    EXPECT_THROW(c.Item(0), Errore_Collezione);
    EXPECT_THROW(c.Item(2), Errore_Collezione);
    EXPECT_THROW(c.Remove(u"b"_qs), Errore_Collezione);
    EXPECT_THROW(c.Remove(2), Errore_Collezione);
    EXPECT_THROW(Aggiungi(c, u"a"_qs, u"two"_qs), Errore_Collezione);
    EXPECT_EQ(Nomi(c), QStringList{u"one"_qs}) << "a refused record leaves nothing behind";
}

TEST(Collezione, ARemovedKeyIsFreeAgainAndStandsAtTheEnd) {
    Collezione<Cosa> c;
    for (int i = 1; i <= 3; ++i)
        Aggiungi(c, Chiave(i), Chiave(i));
    c.Remove(Chiave(1));
    Aggiungi(c, Chiave(1), u"again"_qs);

    EXPECT_EQ(Nomi(c), (QStringList{u"K2"_qs, u"K3"_qs, u"again"_qs}));
    EXPECT_EQ(c.Item(Chiave(1)).nome, u"again"_qs);
}

// Keys, positions and order against a plain list, through a long random life.
TEST(Collezione, KeepsKeysAndPositionsInStepThroughAnyRemovals) {
    std::mt19937 caso(7);
    Collezione<Cosa> c;
    QStringList attesi;
    int prossimo = 0;
    for (int passo = 0; passo < 4000; ++passo) {
        if (attesi.isEmpty() || caso() % 5 < 3) {
            const QString nome = Chiave(prossimo++);
            Aggiungi(c, nome, nome);
            attesi.append(nome);
        } else {
            const qsizetype i = static_cast<qsizetype>(caso() % static_cast<unsigned>(attesi.size()));
            if (caso() % 2)
                c.Remove(attesi[i]);
            else
                c.Remove(i + 1);
            attesi.removeAt(i);
        }
        if (passo % 50 == 0) {
            ASSERT_EQ(Nomi(c), attesi) << "after step " << passo;
            for (qsizetype i = 0; i < attesi.size(); ++i) {
                ASSERT_EQ(c.Item(attesi[i]).nome, attesi[i]) << "after step " << passo;
                ASSERT_EQ(c.Item(i + 1).nome, attesi[i]) << "after step " << passo;
            }
        }
    }
    EXPECT_GT(attesi.size(), 100);
}

// 100,000 removals from the front end at once; were each of them linear, this would run for minutes.
TEST(Collezione, EmptiesFromTheFrontWithoutDelay) {
    Collezione<Cosa> c;
    constexpr int RECORD = 100'000;
    c.Riserva(RECORD);
    for (int i = 0; i < RECORD; ++i)
        Aggiungi(c, Chiave(i), QString());
    while (c.Count() > 1)
        c.Remove(1);
    EXPECT_TRUE(c.Contiene(Chiave(RECORD - 1)));
    EXPECT_EQ(&c.Item(Chiave(RECORD - 1)), &c.Item(1));

    c.Svuota();
    EXPECT_EQ(c.Count(), 0);
    Aggiungi(c, Chiave(5), u"new"_qs);
    EXPECT_EQ(c.Item(Chiave(5)).nome, u"new"_qs);
}

}  // namespace

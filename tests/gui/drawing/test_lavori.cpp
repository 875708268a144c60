#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

#include "gui/drawing/lavori.h"

namespace {

TEST(Work, OnlyTheNewestRequestCounts) {
    QSemaphore via;
    std::atomic<int> cominciati = 0;
    std::vector<int> arrivati;
    Fili fili;
    fili.Pool()->setMaxThreadCount(1);
    Ultima_Richiesta<int> lavoro(fili, [&](int chi) { arrivati.push_back(chi); });
    for (int i = 1; i <= 5; ++i) {
        lavoro.Chiedi([&, i] {
            ++cominciati;
            via.acquire();
            return i;
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return cominciati > 0; }));
    }
    via.release(5);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !arrivati.empty(); }));
    EXPECT_EQ(arrivati, std::vector<int>{5});
    EXPECT_EQ(cominciati, 2) << "the first, and the last";
}

TEST(Work, NobodyWaitsForItAtTheEnd) {
    QElapsedTimer tempo;
    tempo.start();
    {
        Fili fili;
        Ultima_Richiesta<int> lavoro(fili, [](int) { ADD_FAILURE() << "told to nobody"; });
        lavoro.Chiedi([] {
            QThread::sleep(3);
            return 1;
        });
        QTest::qWait(50);  // it is under way
    }
    EXPECT_LT(tempo.elapsed(), 1000);
}

}  // namespace

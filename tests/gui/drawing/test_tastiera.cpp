#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>

#include "disegni.h"

namespace {

class Tastiera : public Con_Lavagna {
  protected:
    Tastiera() {
        Carica(disegni.Palloni());
        lavagna.setFocus();
        Eventi();
    }
};

TEST_F(Tastiera, TabWalksTheHotspotsAndEnterClicks) {
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_EQ(Eventi(), QStringList("in b1 CODICI#$#A1"));
    QTest::keyClick(&lavagna, Qt::Key_Return);
    EXPECT_EQ(Eventi(), QStringList("click b1 CODICI#$#A1"));
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_EQ(Eventi(), QStringList({"out b1 CODICI#$#A1", "in 2 2"}));
    QTest::keyClick(&lavagna, Qt::Key_Enter);
    EXPECT_EQ(Eventi(), QStringList("click 2 2"));
    QTest::keyClick(&lavagna, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Eventi(), QStringList({"out 2 2", "in b1 CODICI#$#A1"}));
}

TEST_F(Tastiera, EscapeLeavesTheHotspots) {
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    Eventi();
    QTest::keyClick(&lavagna, Qt::Key_Escape);
    EXPECT_EQ(Eventi(), QStringList("out b1 CODICI#$#A1"));
    QTest::keyClick(&lavagna, Qt::Key_Return);
    EXPECT_EQ(Eventi(), QStringList());
}

TEST_F(Tastiera, TheFocusedHotspotHasARingAndIsScrolledIntoView) {
    const QImage prima = Foto();
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_NE(Foto(), prima);
    for (int i = 0; i < 8; ++i)
        lavagna.Esegui("ZOOM_PIU", 1);
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_TRUE(lavagna.viewport()->rect().contains(lavagna.Introspezione().hotspot[1].area.center()));
}

TEST_F(Tastiera, TabGoesOnBehindTheLastHotspot) {
    QWidget finestra;
    auto* riga = new QHBoxLayout(&finestra);
    auto* dentro = new Lavagna_Widget;
    auto* testo = new QLineEdit;
    riga->addWidget(dentro);
    riga->addWidget(testo);
    dentro->Carica_Layout(disegni.Palloni(), 0);
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    dentro->setFocus();
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(dentro, Qt::Key_Tab);
        EXPECT_TRUE(dentro->hasFocus());
    }
    QTest::keyClick(dentro, Qt::Key_Tab);
    EXPECT_TRUE(testo->hasFocus());
}

TEST_F(Tastiera, EscapeDropsAZoomWindow) {
    lavagna.Esegui("ZOOM_WINDOWS", 1);
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(50, 50));
    Muovi(Qui(150, 150));
    QTest::keyClick(&lavagna, Qt::Key_Escape);
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(150, 150));
    EXPECT_NEAR(lavagna.Introspezione().zoom, 1, 1e-9);
}

}  // namespace

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

TEST_F(Tastiera, TabWalksTheHotspotsEnterClicksAndEscapeLeaves) {
    const QString primo = "b1 CODICI#$#A1";
    const struct {
        Qt::Key tasto;
        QStringList attesi;
    } passi[] = {{Qt::Key_Tab, {"in " + primo}},
                 {Qt::Key_Return, {"click " + primo}},
                 {Qt::Key_Tab, {"out " + primo, "in 2 2"}},
                 {Qt::Key_Enter, {"click 2 2"}},
                 {Qt::Key_Backtab, {"out 2 2", "in " + primo}},
                 {Qt::Key_Escape, {"out " + primo}},
                 {Qt::Key_Return, {}}};
    for (const auto& [tasto, attesi] : passi) {
        QTest::keyClick(&lavagna, tasto, tasto == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(Eventi(), attesi) << tasto;
    }
}

TEST_F(Tastiera, TabBeforeTheHotspotsAreKnownIsMadeUpFor) {
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    QTest::keyClick(&lavagna, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Eventi(), QStringList());
    Attendi();
    EXPECT_EQ(Eventi(), QStringList("in 2 2"));
}

TEST_F(Tastiera, TheFocusedHotspotHasARingAndIsScrolledIntoView) {
    const QImage prima = Foto();
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_NE(Foto(), prima);
    Esegui("ZOOM_PIU", 8);
    QTest::keyClick(&lavagna, Qt::Key_Tab);
    EXPECT_TRUE(lavagna.viewport()->rect().contains(lavagna.Introspezione().hotspot[1].area.center()));
}

TEST_F(Tastiera, TabGoesOnBehindTheLastHotspot) {
    QWidget finestra;
    Lavagna_Widget dentro(&finestra);
    QLineEdit testo(&finestra);
    dentro.Carica_Layout(disegni.Palloni(), 0);
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    dentro.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dentro.Aggiornata(); }));
    for (const bool dentro_ancora : {true, true, false}) {
        QTest::keyClick(&dentro, Qt::Key_Tab);
        EXPECT_EQ(dentro.hasFocus(), dentro_ancora);
    }
    EXPECT_TRUE(testo.hasFocus());
}

}  // namespace

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "disegni.h"

namespace {

class Mouse : public Con_Lavagna {
  protected:
    Mouse() { Carica(disegni.Palloni()); }
    /// As a desktop tells it: the second press comes as a double click.
    void Clicca_Due_Volte(QPoint dove) {
        Clicca(dove);
        QTest::mouseDClick(lavagna.viewport(), Qt::LeftButton, {}, dove);
        QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, dove);
    }
};

TEST_F(Mouse, EntersAndLeavesHotspots) {
    Muovi(Qui(200, 20));
    EXPECT_EQ(fuori_contati, 1);
    EXPECT_EQ(fuori, QPointF(206 * 15, 26 * 15));
    Muovi(Qui(100, 100));
    EXPECT_EQ(Eventi(), QStringList("in b1 CODICI#$#A1"));
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::PointingHandCursor);
    lavagna.Evento.Suggerimento = [](const QString& stringa) { return "<b>" + stringa; };
    QHelpEvent aiuto(QEvent::ToolTip, Qui(100, 100), lavagna.viewport()->mapToGlobal(Qui(100, 100)));
    QApplication::sendEvent(lavagna.viewport(), &aiuto);
    EXPECT_EQ(QToolTip::text(), "&lt;b&gt;CODICI#$#A1") << "a text, never a markup";
    Muovi(Qui(105, 105));
    Muovi(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList({"out b1 CODICI#$#A1", "in 2 2"}));
    QEvent via(QEvent::Leave);
    QApplication::sendEvent(lavagna.viewport(), &via);
    EXPECT_EQ(Eventi(), QStringList("out 2 2"));
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::ArrowCursor);
    Muovi(Qui(100, 100));
    Carica(disegni.Palloni());
    EXPECT_EQ(Eventi(), QStringList({"in b1 CODICI#$#A1", "out b1 CODICI#$#A1"})) << "the page goes";
}

TEST_F(Mouse, ClicksHotspots) {
    Clicca(Qui(100, 100));
    EXPECT_EQ(Eventi("click"), QStringList("click b1 CODICI#$#A1"));
    Clicca(Qui(200, 20));
    QTest::mouseClick(lavagna.viewport(), Qt::RightButton, {}, Qui(100, 100));
    Trascina(Qui(100, 100), Qui(300, 200));
    EXPECT_EQ(Eventi("click"), QStringList()) << "beside it, another button, another hotspot at the end";
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(100, 100));
    lavagna.Ferma_Azione();
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(100, 100));
    EXPECT_EQ(Eventi("click"), QStringList()) << "stopping the action forgets the press";
}

TEST_F(Mouse, ASecondClickIsADoubleClickUnlessTheFirstWasHandled) {
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList({"click 2 2", "double 2 2"}));
    gestito = true;
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList("click 2 2"));
}

TEST_F(Mouse, ADoubleClickDoesNotReachThePageThatTheFirstClickBrings) {
    lavagna.Evento.Click_Su_HotSpot = [this](const QString& nome, const QString&) {
        eventi << "click " + nome;
        lavagna.Ferma_Azione();
        lavagna.Carica_Layout(disegni.Palloni("next.svg"), 0);
        return false;
    };
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList("click 2"));
}

TEST_F(Mouse, WhatComesBeforeTheHotspotsAreKnownIsMadeUpFor) {
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    Muovi(Qui(300, 200));
    Clicca(Qui(100, 100));
    EXPECT_EQ(Eventi(), QStringList()) << "it doesn't wait";
    Attendi();
    EXPECT_EQ(Eventi(), QStringList({"in 2 2", "click b1 CODICI#$#A1"}));
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    Clicca(Qui(100, 100));
    Carica(disegni.Palloni("next.svg"));
    EXPECT_EQ(Eventi("click"), QStringList()) << "it was meant for the page before";
}

TEST_F(Mouse, TheZoomWindowFitsTheRectangleAndPicksNothing) {
    Esegui("ZOOM_WINDOWS");
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::CrossCursor);
    Trascina(Qui(50, 50), Qui(150, 150));
    EXPECT_EQ(Eventi(), QStringList());
    const Stato_Lavagna stato = lavagna.Introspezione();
    EXPECT_EQ(stato.modo, "ZOOM_WINDOWS");
    EXPECT_NEAR(stato.zoom, 3, .2);
    const QPoint centro = stato.hotspot[0].area.center();
    EXPECT_LE((centro - lavagna.viewport()->rect().center()).manhattanLength(), 5);
    Clicca(centro);  // a slip of the hand: no rectangle
    EXPECT_NEAR(Zoom(), stato.zoom, 1e-9);
    Esegui("ZOOM_PAGINA");
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(50, 50));
    Muovi(Qui(150, 150));
    QTest::keyClick(&lavagna, Qt::Key_Escape);  // drops it
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(150, 150));
    EXPECT_NEAR(Zoom(), 1, 1e-9);
}

TEST_F(Mouse, TheWheelZoomsAboutThePointerAndTheHotspotStaysUnderIt) {
    const QPointF dove = Qui(100, 100);
    for (int i = 0; i < 5; ++i) {
        QWheelEvent ruota(dove, lavagna.viewport()->mapToGlobal(dove), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(lavagna.viewport(), &ruota);
    }
    EXPECT_GT(Zoom(), 2);
    EXPECT_LE((lavagna.Introspezione().hotspot[0].area.center() - dove).manhattanLength(), 5);
    Clicca(Qui(175, 100));  // within its outline only as it is now
    EXPECT_EQ(Eventi("click"), QStringList("click b1 CODICI#$#A1"));
}

TEST_F(Mouse, MovesThePageOnlyWhereItIsNotFixed) {
    Esegui("ZOOM_PIU", 5);
    const auto mossa = [this](Qt::MouseButton bottone) {
        const QPoint prima = lavagna.Introspezione().hotspot[0].area.topLeft();
        Trascina({200, 200}, {170, 180}, bottone);
        return lavagna.Introspezione().hotspot[0].area.topLeft() - prima;
    };
    EXPECT_EQ(mossa(Qt::LeftButton), QPoint(0, 0));
    QTest::keyPress(&lavagna, Qt::Key_Space);
    EXPECT_EQ(mossa(Qt::LeftButton), QPoint(-30, -20));
    EXPECT_EQ(mossa(Qt::MiddleButton), QPoint(-30, -20));
    lavagna.Imposta_Opzione("LAVAGNA_FISSA", true);
    EXPECT_EQ(mossa(Qt::MiddleButton), QPoint(0, 0));
    QTest::keyRelease(&lavagna, Qt::Key_Space);
}

}  // namespace

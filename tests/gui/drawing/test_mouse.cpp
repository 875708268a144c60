#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "disegni.h"

namespace {

class Mouse : public Con_Lavagna {};

TEST_F(Mouse, EntersAndLeavesHotspots) {
    Carica(disegni.Palloni());
    Muovi(Qui(200, 20));
    EXPECT_EQ(Eventi(), QStringList());
    EXPECT_EQ(fuori_contati, 1);
    EXPECT_EQ(fuori, QPointF(206 * 15, 26 * 15));
    Muovi(Qui(100, 100));
    EXPECT_EQ(Eventi(), QStringList("in b1 CODICI#$#A1"));
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::PointingHandCursor);
    Muovi(Qui(105, 105));
    EXPECT_EQ(Eventi(), QStringList());
    Muovi(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList({"out b1 CODICI#$#A1", "in 2 2"}));
    EXPECT_EQ(fuori_contati, 1);
    Muovi(Qui(40, 240));
    EXPECT_EQ(Eventi(), QStringList({"out 2 2", "in part CODICI#$#A1"}));
    QEvent via(QEvent::Leave);
    QApplication::sendEvent(lavagna.viewport(), &via);
    EXPECT_EQ(Eventi(), QStringList("out part CODICI#$#A1"));
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Mouse, AnEntryIsFollowedByALeaveWhenThePageGoes) {
    Carica(disegni.Palloni());
    Muovi(Qui(100, 100));
    Eventi();
    Carica(disegni.Palloni());
    EXPECT_EQ(Eventi(), QStringList("out b1 CODICI#$#A1"));
}

TEST_F(Mouse, ClicksHotspots) {
    Carica(disegni.Palloni());
    Muovi(Qui(100, 100));
    Eventi();
    Clicca(Qui(100, 100));
    EXPECT_EQ(Eventi(), QStringList("click b1 CODICI#$#A1"));
    Clicca(Qui(200, 20));
    QTest::mouseClick(lavagna.viewport(), Qt::RightButton, {}, Qui(100, 100));
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(100, 100));
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList()) << "beside it, another button, another hotspot at the end";
}

TEST_F(Mouse, ASecondClickIsADoubleClickUnlessTheFirstWasHandled) {
    Carica(disegni.Palloni());
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList({"click 2 2", "double 2 2"}));
    gestito = true;
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList("click 2 2"));
    Clicca(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList("click 2 2"));
}

TEST_F(Mouse, ADoubleClickDoesNotReachThePageThatTheFirstClickBrings) {
    Carica(disegni.Palloni());
    lavagna.Evento.Click_Su_HotSpot = [this](const QString& nome, const QString&) {
        eventi << "click " + nome;
        lavagna.Ferma_Azione();
        lavagna.Carica_Layout(disegni.Palloni("next.svg"), 0);
        return false;
    };
    Clicca_Due_Volte(Qui(300, 200));
    EXPECT_EQ(Eventi(), QStringList("click 2"));
}

TEST_F(Mouse, AClickThatComesBeforeTheHotspotsAreKnownWaitsForThem) {
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    Clicca(Qui(100, 100));
    EXPECT_EQ(Eventi().filter("click"), QStringList("click b1 CODICI#$#A1"));
}

TEST_F(Mouse, AHoverThatComesBeforeTheHotspotsAreKnownIsToldLater) {
    Muovi(Qui(200, 20));
    lavagna.Carica_Layout(disegni.Palloni(), 0);
    Muovi(Qui(100, 100));
    Attendi();
    QTest::qWait(1);
    EXPECT_EQ(Eventi(), QStringList("in b1 CODICI#$#A1"));
}

TEST_F(Mouse, StoppingTheActionForgetsAPress) {
    Carica(disegni.Palloni());
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(100, 100));
    lavagna.Ferma_Azione();
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(100, 100));
    EXPECT_EQ(Eventi().filter("click"), QStringList());
}

TEST_F(Mouse, TheZoomWindowFitsTheRectangleAndPicksNothing) {
    Carica(disegni.Palloni());
    lavagna.Esegui("ZOOM_WINDOWS", 1);
    EXPECT_EQ(lavagna.viewport()->cursor().shape(), Qt::CrossCursor);
    QTest::mousePress(lavagna.viewport(), Qt::LeftButton, {}, Qui(50, 50));
    Muovi(Qui(150, 150));
    QTest::mouseRelease(lavagna.viewport(), Qt::LeftButton, {}, Qui(150, 150));
    EXPECT_EQ(Eventi(), QStringList());
    const Stato_Lavagna stato = lavagna.Introspezione();
    EXPECT_EQ(stato.modo, "ZOOM_WINDOWS");
    EXPECT_NEAR(stato.zoom, 3, .2);
    const QPoint centro = stato.hotspot[0].area.center();
    EXPECT_NEAR(centro.x(), lavagna.viewport()->width() / 2, 3);
    EXPECT_NEAR(centro.y(), lavagna.viewport()->height() / 2, 3);
    Clicca(centro);  // a slip of the hand: no rectangle
    EXPECT_NEAR(lavagna.Introspezione().zoom, stato.zoom, 1e-9);
    lavagna.Esegui("ZOOM_PAGINA", 1);
    lavagna.Esegui("SELEZIONA", 1);
    Clicca(Qui(100, 100));
    EXPECT_EQ(Eventi().filter("click"), QStringList("click b1 CODICI#$#A1"));
}

TEST_F(Mouse, TheWheelZoomsAboutThePointer) {
    Carica(disegni.Palloni());
    const QPointF dove = Qui(100, 100);
    for (int i = 0; i < 5; ++i) {
        QWheelEvent ruota(dove, lavagna.viewport()->mapToGlobal(dove), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(lavagna.viewport(), &ruota);
    }
    const Stato_Lavagna stato = lavagna.Introspezione();
    EXPECT_GT(stato.zoom, 2);
    EXPECT_NEAR(stato.hotspot[0].area.center().x(), dove.x(), 3);
    EXPECT_NEAR(stato.hotspot[0].area.center().y(), dove.y(), 3);
}

TEST_F(Mouse, MovesThePageOnlyWhereItIsNotFixed) {
    Carica(disegni.Palloni());
    for (int i = 0; i < 5; ++i)
        lavagna.Esegui("ZOOM_PIU", 1);
    const auto trascina = [this](Qt::MouseButton bottone) {
        const QPoint prima = lavagna.Introspezione().hotspot[0].area.topLeft();
        QTest::mousePress(lavagna.viewport(), bottone, {}, QPoint(200, 200));
        Muovi(QPoint(170, 180));
        QTest::mouseRelease(lavagna.viewport(), bottone, {}, QPoint(170, 180));
        return lavagna.Introspezione().hotspot[0].area.topLeft() - prima;
    };
    EXPECT_EQ(trascina(Qt::MiddleButton), QPoint(-30, -20));
    EXPECT_EQ(trascina(Qt::LeftButton), QPoint(0, 0));
    QTest::keyPress(&lavagna, Qt::Key_Space);
    EXPECT_EQ(trascina(Qt::LeftButton), QPoint(-30, -20));
    QTest::keyRelease(&lavagna, Qt::Key_Space);
    lavagna.Imposta_Opzione("LAVAGNA_FISSA", true);
    EXPECT_EQ(trascina(Qt::MiddleButton), QPoint(0, 0));
    QTest::keyPress(&lavagna, Qt::Key_Space);
    EXPECT_EQ(trascina(Qt::LeftButton), QPoint(0, 0));
    QTest::keyRelease(&lavagna, Qt::Key_Space);
}

TEST_F(Mouse, EveryHotspotIsReachedAtItsPlaceAtSeveralZooms) {
    QByteArray svg;
    for (int i = 0; i < 30; ++i)
        svg += "<g data-hotspot='" + QByteArray::number(i) +
               "'><circle fill='none' stroke='black' r='14' cx='" + QByteArray::number(20 + i % 10 * 39) +
               "' cy='" + QByteArray::number(20 + i / 10 * 51) + "'/><text x='" +
               QByteArray::number(14 + i % 10 * 39) + "' y='" + QByteArray::number(24 + i / 10 * 51) + "'>" +
               QByteArray::number(i) + "</text></g>";
    Carica(disegni.Svg("thirty.svg", svg));
    for (int zoom = 0; zoom < 3; ++zoom) {
        for (int i = 0; i < 30; ++i) {
            const QString nome = QString::number(i);
            lavagna.Mostra_HotSpot(nome);
            const auto punto = lavagna.Punto_HotSpot(nome);
            ASSERT_TRUE(punto) << i;
            Muovi(*punto);
            Clicca(*punto);
            EXPECT_EQ(Eventi().filter("click"), QStringList("click " + nome + " " + nome));
        }
        for (int i = 0; i < 6; ++i)
            lavagna.Esegui("ZOOM_PIU", 1);
    }
}

TEST_F(Mouse, ACoveredHotspotHasNoPoint) {
    Carica(disegni.Svg("covered.svg",
                       "<rect data-hotspot='under' x='50' y='50' width='20' height='20'/>"
                       "<rect data-hotspot='over' x='40' y='40' width='40' height='40'/>"));
    EXPECT_FALSE(lavagna.Punto_HotSpot("under"));
    EXPECT_FALSE(lavagna.Punto_HotSpot("none"));
    ASSERT_TRUE(lavagna.Punto_HotSpot("over"));
    Clicca(Qui(60, 60));
    EXPECT_EQ(Eventi().filter("click"), QStringList("click over over"));
}

TEST_F(Mouse, TheToolTipTellsTheValue) {
    Carica(disegni.Palloni());
    Muovi(Qui(100, 100));
    QHelpEvent aiuto(QEvent::ToolTip, Qui(100, 100), lavagna.viewport()->mapToGlobal(Qui(100, 100)));
    QApplication::sendEvent(lavagna.viewport(), &aiuto);
    EXPECT_EQ(QToolTip::text(), "A1");
}

}  // namespace

#include "gui/parts_tables/vista_griglia.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A red square for the name that has one.
QByteArray Quadrato(const QString& nome) {
    return nome == u"rosso.bmp" ? "P3 16 16 255 " + QByteArray("255 0 0 ").repeated(256) : QByteArray();
}

struct Griglia_A_Schermo : testing::Test {
    Griglia_A_Schermo() {
        griglia.Cols(3);
        griglia.TextMatrix(0, 1, "Codice");
        griglia.At(0, 0).Picture = "rosso.bmp";
        griglia.ColAlignment(2, Allineamento::Destra);
        for (const auto& [colonna, twips] : {std::pair{0, 600}, {1, 3000}, {2, 1500}})
            griglia.ColWidth(colonna, twips);
        for (const char* riga : {"1 A.001 1,50", "2 A.002 2,50", "3 A.003 3,50"})
            griglia.AddItem(QString(riga).split(' '));
        griglia.RemoveItem(1);
        griglia.At(1, 1).Bold = true;
        griglia.At(2, 1).Colore = 0xff0000;
        griglia.At(1, 2).Text.clear();
        griglia.At(1, 2).Picture = "rosso.bmp";
        tag.Imposta(1, 2, "Image|a.png");
        vista.resize(400, 300);
        griglia.Cambiata();
        vista.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
    }
    QModelIndex Cella(int riga, int colonna) { return vista.model()->index(riga - 1, colonna); }
    QPoint Punto(int riga, int colonna) { return vista.visualRect(Cella(riga, colonna)).center(); }
    Griglia griglia;
    Tag_Griglia tag{10};
    Immagini_Risorsa immagini{Quadrato};
    Vista_Griglia vista{griglia, tag, immagini};
    QSignalSpy clic{&vista, &Vista_Griglia::Clic_Cella};
};

TEST_F(Griglia_A_Schermo, ShowsTextsWidthsAlignmentAndPictures) {
    EXPECT_EQ(vista.model()->headerData(1, Qt::Horizontal), "Codice");
    EXPECT_EQ(Cella(3, 1).data(), "A.003");
    EXPECT_EQ(vista.columnWidth(1), 200);
    EXPECT_EQ(Cella(1, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_TRUE(Cella(1, 1).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(Cella(2, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    const QImage schermo = vista.grab().toImage();
    EXPECT_EQ(schermo.pixelColor(vista.viewport()->mapTo(&vista, Punto(1, 2))), QColor(Qt::red));
    const QHeaderView& testata = *vista.horizontalHeader();
    const QPoint centro(testata.sectionViewportPosition(0) + testata.sectionSize(0) / 2,
                        testata.height() / 2);
    EXPECT_EQ(schermo.pixelColor(testata.viewport()->mapTo(&vista, centro)), QColor(Qt::red));
}

TEST_F(Griglia_A_Schermo, ANewWidthKeepsTheSelectionAndANewFillStartsAfresh) {
    QObject::connect(&vista, &Vista_Griglia::Ridimensionata, &vista, [this] {
        griglia.ColWidth(1, griglia.Width - 2100);
        griglia.Cambiata();
    });
    vista.setCurrentIndex(Cella(2, 1));
    vista.resize(500, 300);
    QApplication::processEvents();
    EXPECT_EQ(griglia.Width, 7500);
    EXPECT_EQ(vista.columnWidth(1), 360);
    EXPECT_EQ(vista.currentIndex(), Cella(2, 1));
    griglia.AddItem({"4", "A.004"});
    griglia.Cambiata();
    EXPECT_EQ(vista.model()->rowCount(), 4);
    EXPECT_FALSE(vista.currentIndex().isValid());
}

TEST_F(Griglia_A_Schermo, CopiesTheSelectedCells) {
    vista.setFocus();
    vista.setCurrentIndex(Cella(2, 1));
    QTest::keyClick(&vista, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&vista, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().trimmed(), "A.002\t2,50\nA.003\t3,50");
}

TEST_F(Griglia_A_Schermo, TheHandShowsOverACellThatDoesSomething) {
    const QPoint sotto(0, 60);
    for (const auto& [punto, puntatore, forma] :
         {std::tuple(Punto(1, 2), Puntatore::Mano, Qt::PointingHandCursor),
          {Punto(2, 2), Puntatore::Freccia, Qt::ArrowCursor},
          {Punto(3, 2) + sotto, Puntatore::Nessuno, Qt::ArrowCursor}}) {
        QTest::mouseMove(vista.viewport(), punto);
        EXPECT_EQ(vista.Puntatore_Mostrato(), puntatore);
        EXPECT_EQ(vista.viewport()->cursor().shape(), forma);
    }
}

TEST_F(Griglia_A_Schermo, AClickAndEnterTellTheirCell) {
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, Punto(2, 1));
    // Drawn over two cells, it is a selection.
    QTest::mousePress(vista.viewport(), Qt::LeftButton, {}, Punto(1, 1));
    QTest::mouseRelease(vista.viewport(), Qt::LeftButton, {}, Punto(3, 1));
    vista.setCurrentIndex(Cella(1, 2));
    QTest::keyClick(&vista, Qt::Key_Return);
    EXPECT_EQ(QList<QVariantList>(clic), QList<QVariantList>({{2, 1}, {1, 2}}));
}

TEST_F(Griglia_A_Schermo, WhatCoreWantsIsBroughtIntoView) {
    while (griglia.Rows() < 40)
        griglia.AddItem({"4"});
    griglia.ColWidth(1, 9000);
    griglia.Cambiata();
    QApplication::processEvents();
    const int intere = vista.viewport()->height() / vista.rowHeight(0);
    // Rows, the top row before and after; of several the last one wins.
    const std::tuple<std::vector<int>, int, int> casi[] = {
        {{1}, 3, 1}, {{2}, 2, 2},     {{2 + intere}, 3, 3}, {{3 + intere}, 3, 3 + intere},
        {{}, 3, 3},  {{1, 20}, 3, 20}};
    for (const auto& [righe, prima, dopo] : casi) {
        vista.TopRow(prima);
        griglia.Evidenziata(righe);
        EXPECT_EQ(vista.TopRow(), dopo) << prima;
    }
    EXPECT_LT(vista.columnViewportPosition(2), vista.viewport()->width()) << "all columns come into view";
}

TEST_F(Griglia_A_Schermo, PaintsThroughAGridThatShrankMeanwhile) {
    griglia.Cols(1);
    griglia.RemoveItem(3);
    EXPECT_FALSE(vista.grab().isNull());
}

}  // namespace

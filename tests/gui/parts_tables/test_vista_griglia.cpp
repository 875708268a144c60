#include "gui/parts_tables/vista_griglia.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "core/base/twips.h"

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
        for (const char* riga : {"1\tA.001\t1,50", "2\tA.002\t2,50", "3\tA.003\t3,50"})
            griglia.AddItem(riga);
        griglia.RemoveItem(1);
        griglia.At(1, 1).Bold = true;
        griglia.At(2, 1).Colore = 0xff0000;
        griglia.At(1, 2).Text.clear();
        griglia.At(1, 2).Picture = "rosso.bmp";
        tag.Imposta(1, 2, "Image|a.png");
        vista.resize(400, 300);
        vista.Ricarica();
        vista.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&vista));
    }
    QModelIndex Cella(int riga, int colonna) { return vista.model()->index(riga - 1, colonna); }
    QPoint Punto(int riga, int colonna) { return vista.visualRect(Cella(riga, colonna)).center(); }
    /// Row and column that the grid holds to be under the mouse, and its pointer.
    QList<int> Mouse() const { return {griglia.MouseRow, griglia.MouseCol, griglia.MousePointer}; }
    Griglia griglia;
    Tag_Griglia tag{10};
    Immagini_Risorsa immagini{Quadrato};
    Vista_Griglia vista{griglia, tag, immagini};
    QSignalSpy clic{&vista, &Vista_Griglia::Clic_Cella};
};

TEST_F(Griglia_A_Schermo, ShowsTextsWidthsAndAlignment) {
    EXPECT_EQ(vista.model()->headerData(1, Qt::Horizontal), "Codice");
    EXPECT_EQ(Cella(3, 1).data(), "A.003");
    EXPECT_EQ(vista.columnWidth(1), 200);
    EXPECT_EQ(Cella(1, 2).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_TRUE(Cella(1, 1).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(Cella(2, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
}

TEST_F(Griglia_A_Schermo, DrawsPicturesInCellAndHeader) {
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
    EXPECT_EQ(griglia.RowHeight, Twips_Da_Pixel(vista.rowHeight(0)));
    EXPECT_EQ(vista.columnWidth(1), 360);
    EXPECT_EQ(vista.currentIndex(), Cella(2, 1));
    griglia.AddItem("4\tA.004\t");
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
    for (const auto& [riga, puntatore, forma] :
         {std::tuple(1, 99, Qt::PointingHandCursor), {2, 1, Qt::ArrowCursor}}) {
        QTest::mouseMove(vista.viewport(), Punto(riga, 2));
        EXPECT_EQ(Mouse(), QList({riga, 2, puntatore}));
        EXPECT_EQ(vista.viewport()->cursor().shape(), forma);
    }
    QTest::mouseMove(vista.viewport(), Punto(3, 2) + QPoint(0, 60));
    EXPECT_EQ(griglia.MousePointer, 0);
}

TEST_F(Griglia_A_Schermo, AClickAndEnterTellTheirCell) {
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, Punto(2, 1));
    EXPECT_EQ(clic.size(), 1);
    EXPECT_EQ(Mouse().first(2), QList({2, 1}));
    // Drawn over two cells, it is a selection.
    QTest::mousePress(vista.viewport(), Qt::LeftButton, {}, Punto(1, 1));
    QTest::mouseRelease(vista.viewport(), Qt::LeftButton, {}, Punto(3, 1));
    EXPECT_EQ(clic.size(), 1);
    vista.setCurrentIndex(Cella(1, 2));
    QTest::keyClick(&vista, Qt::Key_Return);
    EXPECT_EQ(clic.size(), 2);
    EXPECT_EQ(Mouse().first(2), QList({1, 2}));
}

TEST_F(Griglia_A_Schermo, PaintsThroughAGridThatShrankMeanwhile) {
    griglia.Cols(1);
    griglia.RemoveItem(3);
    EXPECT_FALSE(vista.grab().isNull());
}

}  // namespace

#include "gui/navigation/modello_albero.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QFont>
#include <QIcon>

namespace {

struct Albero_Di_Prova : testing::Test {
    Albero_Di_Prova() {
        Nodo_Visibile& motore = albero.Add(nullptr, QStringLiteral("G_A"), QStringLiteral("Motore"));
        motore.Image = 1;
        motore.SelectedImage = 2;
        Nodo_Visibile& cambio = albero.Add(nullptr, QStringLiteral("G_B"), QStringLiteral("Cambio"));
        cambio.Image = 1;
        // Added after its parent's sibling: what the tree shows first isn't what was added first.
        Nodo_Visibile& carburatore =
            albero.Add(&motore, QStringLiteral("P_1"), QStringLiteral("Carburatore"));
        carburatore.Image = 3;
        carburatore.SelectedImage = 4;
        carburatore.Bold = true;
        modello.Ricarica(albero);
    }
    Albero_Visibile albero;
    Modello_Albero modello;
    QAbstractItemModelTester controllo{&modello, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Albero_Di_Prova, ShowsParentsChildrenAndTexts) {
    ASSERT_EQ(modello.rowCount(), 2);
    const QModelIndex motore = modello.index(0, 0), cambio = modello.index(1, 0);
    EXPECT_EQ(motore.data().toString(), QStringLiteral("Motore"));
    EXPECT_EQ(cambio.data().toString(), QStringLiteral("Cambio"));
    ASSERT_EQ(modello.rowCount(motore), 1);
    EXPECT_EQ(modello.rowCount(cambio), 0);
    const QModelIndex carburatore = modello.index(0, 0, motore);
    EXPECT_EQ(modello.Key(carburatore), QStringLiteral("P_1"));
    EXPECT_EQ(carburatore.parent(), motore);
    EXPECT_EQ(modello.Indice(QStringLiteral("P_1")), carburatore);
    EXPECT_EQ(modello.Key(modello.Indice(1)), QStringLiteral("P_1"));
    EXPECT_FALSE(modello.Indice(QStringLiteral("P_9")).isValid());
}

TEST_F(Albero_Di_Prova, ShowsSerialHitsBold) {
    EXPECT_TRUE(modello.Indice(QStringLiteral("P_1")).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(modello.Indice(QStringLiteral("G_A")).data(Qt::FontRole).isValid());
}

TEST_F(Albero_Di_Prova, TheSelectedNodeHasItsOwnPicture) {
    const QModelIndex indice = modello.Indice(QStringLiteral("P_1"));
    const auto immagine = [&] {
        return indice.data(Qt::DecorationRole).value<QIcon>().pixmap(32, 32).toImage();
    };
    const QImage prima = immagine();
    modello.Selezionato(QStringLiteral("P_1"));
    const QImage scelta = immagine();
    EXPECT_NE(prima, scelta);
    modello.Selezionato({});
    EXPECT_EQ(immagine(), prima);
}

TEST_F(Albero_Di_Prova, OutlivesTheTreeThatItShows) {
    albero.Clear();
    EXPECT_EQ(modello.Indice(QStringLiteral("P_1")).data().toString(), QStringLiteral("Carburatore"));
    modello.Ricarica(albero);
    EXPECT_EQ(modello.rowCount(), 0);
}

}  // namespace

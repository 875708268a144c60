#include "gui/navigation/modello_albero.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QFont>

namespace {

struct Albero_Di_Prova : testing::Test {
    Albero_Di_Prova() {
        Nodo_Visibile& motore = albero.Add(nullptr, "G_A", "Motore");
        albero.Add(nullptr, "G_B", "Cambio");
        // Added after its parent's sibling: what the tree shows first isn't what was added first.
        Nodo_Visibile& carburatore = albero.Add(&motore, "P_1", "Carburatore");
        carburatore.Bold = true;
        modello.Ricarica(albero);
    }
    Albero_Visibile albero;
    Modello_Albero modello;
    QAbstractItemModelTester controllo{&modello, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Albero_Di_Prova, ShowsParentsChildrenAndTextsAndSerialHitsBold) {
    ASSERT_EQ(modello.rowCount(), 2);
    const QModelIndex motore = modello.index(0, 0), cambio = modello.index(1, 0);
    EXPECT_EQ(cambio.data(), "Cambio");
    ASSERT_EQ(modello.rowCount(motore), 1);
    EXPECT_EQ(modello.rowCount(cambio), 0);
    const QModelIndex carburatore = modello.index(0, 0, motore);
    EXPECT_EQ(modello.Indice("P_1"), carburatore);
    EXPECT_EQ(modello.Key(modello.Indice(1)), "P_1");
    EXPECT_FALSE(modello.Indice("P_9").isValid());
    EXPECT_TRUE(carburatore.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(motore.data(Qt::FontRole).isValid());
    albero.Clear();
    EXPECT_EQ(carburatore.data(), "Carburatore") << "it outlives the tree that it shows";
}

}  // namespace

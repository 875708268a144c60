#include "gui/navigation/modello_albero.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QFont>
#include <QIcon>

namespace {

struct Albero_Di_Prova : testing::Test {
    Albero_Di_Prova() {
        Nodo_Visibile& motore = albero.Add(nullptr, "G_A", "Motore");
        albero.Add(nullptr, "G_B", "Cambio");
        // Added after its parent's sibling: what the tree shows first isn't what was added first.
        Nodo_Visibile& carburatore = albero.Add(&motore, "P_1", "Carburatore");
        carburatore.Image = 3;
        carburatore.SelectedImage = 4;
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

TEST_F(Albero_Di_Prova, TheSelectedNodeHasItsOwnPicture) {
    const auto immagine = [this] {
        const QVariant icona = modello.Indice("P_1").data(Qt::DecorationRole);
        return icona.value<QIcon>().pixmap(32, 32).toImage();
    };
    const QImage prima = immagine();
    modello.Selezionato("P_1");
    EXPECT_NE(immagine(), prima);
    modello.Selezionato({});
    EXPECT_EQ(immagine(), prima);
}

}  // namespace

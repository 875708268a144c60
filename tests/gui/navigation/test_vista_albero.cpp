#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QSignalSpy>
#include <QTest>

#include "gui/navigation/pannello_albero.h"

namespace {

using testing::ElementsAre;

struct Albero_A_Schermo : testing::Test {
    Albero_A_Schermo() {
        Nodo_Visibile& a = albero.Add(nullptr, "G_A", "Motore");
        albero.Add(&a, "P_1", "Carburatore");
        albero.Add(&a, "P_2", "Marmitta");
        albero.Add(&albero.Add(nullptr, "G_B", "Cambio"), "P_3", "Alberi");
        albero.Combo_Nodi = {"Motore", "Carburatore", "Marmitta"};
        pannello.resize(300, 500);
        pannello.Ricarica(albero);
        pannello.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&pannello));
    }
    QModelIndex Indice(const char* key) { return tree.Modello().Indice(key); }
    bool Aperto(const char* key) { return tree.isExpanded(Indice(key)); }
    void Clic(const char* key) {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(Indice(key)).center());
    }
    QStringList Chiavi(QSignalSpy& spia) {
        QStringList chiavi;
        while (!spia.isEmpty())
            chiavi.append(spia.takeFirst().first().toString());
        return chiavi;
    }
    Albero_Visibile albero;
    Pannello_Albero pannello;
    Vista_Albero& tree = pannello.Tree1();
    QSignalSpy clic{&tree, &Vista_Albero::Clic_Nodo};
    QSignalSpy aperti{&tree, &Vista_Albero::Nodo_Aperto};
};

TEST_F(Albero_A_Schermo, TheArrowOpensWithoutAClick) {
    const QRect posto = tree.visualRect(Indice("G_A"));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                      {posto.left() - tree.indentation() / 2, posto.center().y()});
    EXPECT_EQ(clic.size(), 0);
    EXPECT_EQ(aperti.value(0), QVariantList({"G_A", true}));
}

TEST_F(Albero_A_Schermo, AClickTellsItsNodeAndTheKeyboardWalksOpensAndRepeats) {
    tree.setFocus();
    Clic("G_A");
    Clic("G_A");
    EXPECT_THAT(Chiavi(clic), ElementsAre("G_A", "G_A"));
    QTest::keyClick(&tree, Qt::Key_Right);
    EXPECT_TRUE(Aperto("G_A"));
    EXPECT_THAT(Chiavi(clic), ElementsAre());
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_THAT(Chiavi(clic), ElementsAre("P_1", "P_2"));
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_THAT(Chiavi(clic), ElementsAre("P_2"));
}

TEST_F(Albero_A_Schermo, WhatCoreSelectsAndOpensIsShownWithoutEcho) {
    albero.Seleziona(albero.Nodo("P_3"));
    pannello.Aggiorna(albero);
    EXPECT_EQ(tree.currentIndex(), Indice("P_3"));
    EXPECT_TRUE(Aperto("G_B") && !Aperto("G_A"));
    for (const bool aperto : {false, true}) {
        albero.Espandi_Albero(aperto);
        pannello.Aggiorna(albero);
        EXPECT_EQ(Aperto("G_A"), aperto);
    }
    pannello.Ricarica(albero);
    EXPECT_TRUE(Aperto("G_A")) << "a rebuilt tree keeps what the core holds open";
    EXPECT_TRUE(tree.selectionModel()->isSelected(Indice("P_3")));
    albero.Seleziona(nullptr);
    pannello.Aggiorna(albero);
    EXPECT_FALSE(tree.selectionModel()->hasSelection());
    EXPECT_EQ(clic.size() + aperti.size(), 0);
}

TEST_F(Albero_A_Schermo, ChoosingACaptionAndNextAskForTheNode) {
    QSignalSpy cerca(&pannello, &Pannello_Albero::Cerca_Nodo);
    auto* combo = pannello.findChild<QComboBox*>("Combo_Nodi");
    combo->setFocus();
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(2, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_THAT(Chiavi(cerca), ElementsAre("Marmitta"));
    QTest::mouseClick(pannello.findChild<QWidget*>("Command_Cerca_Next"), Qt::LeftButton);
    EXPECT_THAT(Chiavi(cerca), ElementsAre("Marmitta"));
    // A rebuilt list keeps the choice, so that "next" goes on.
    albero.Combo_Nodi.prepend("Nuovo");
    pannello.Ricarica(albero);
    EXPECT_EQ(combo->currentText(), "Marmitta");
    EXPECT_EQ(cerca.size(), 0);
}

TEST_F(Albero_A_Schermo, APartOfACaptionIsEnoughAndWhatFitsNothingIsSaid) {
    QSignalSpy cerca(&pannello, &Pannello_Albero::Cerca_Nodo);
    auto* combo = pannello.findChild<QComboBox*>("Combo_Nodi");
    auto* nessuno = pannello.findChild<QWidget*>("Label_Nessun_Nodo");
    for (const auto& [testo, nodo] : {std::pair{"mitt", "Marmitta"}, {"Motore", "Motore"}, {"xyz", ""}}) {
        pannello.Vai_A_Ricerca();
        QTest::keyClicks(combo, testo);
        combo->completer()->popup()->hide();
        QTest::keyClick(combo, Qt::Key_Return);
        EXPECT_EQ(Chiavi(cerca), *nodo ? QStringList{nodo} : QStringList{}) << testo;
        EXPECT_EQ(nessuno->isVisible(), !*nodo) << testo;
    }
    QTest::keyClick(combo, Qt::Key_A);
    EXPECT_FALSE(nessuno->isVisible());
}

TEST_F(Albero_A_Schermo, ASerialNumberThatFitsNothingIsSaid) {
    auto* nessuna = pannello.findChild<QWidget*>("Label_Nessuna_Matricola");
    auto* campo = pannello.findChild<QLineEdit*>("Text_Matricola");
    for (const bool adatta : {false, true}) {
        albero.Nodo("P_1")->Bold = adatta;
        campo->setText(adatta ? "100" : "7");
        QTest::keyClick(campo, Qt::Key_Return);
        pannello.Ricarica(albero);
        EXPECT_EQ(nessuna->isVisible(), !adatta);
        pannello.Ricarica(albero);
        EXPECT_FALSE(nessuna->isVisible()) << "a tree rebuilt for another reason";
    }
}

TEST(Albero_Grande, AHundredThousandNodesAreShownAndOpened) {
    Albero_Visibile albero;
    for (int n = 0; n < 100'000; ++n)
        albero.Add(albero.Nodo(QString("N_%1").arg(n / 100 * 100)), QString("N_%1").arg(n), "Prodotto");
    for (const Nodo_Visibile& nodo : albero.Nodi())
        albero.Combo_Nodi.append(nodo.Text + nodo.Key);
    Pannello_Albero pannello;
    pannello.resize(300, 600);
    pannello.show();
    pannello.Ricarica(albero);
    albero.Espandi_Albero(true);
    albero.Seleziona(albero.Nodo("N_99999"));
    pannello.Aggiorna(albero);
    auto* combo = pannello.findChild<QComboBox*>("Combo_Nodi");
    combo->showPopup();
    QApplication::processEvents();
    EXPECT_EQ(combo->count(), 100'000);
    EXPECT_EQ(pannello.Tree1().Modello().Key(pannello.Tree1().currentIndex()), "N_99999");
    combo->hidePopup();
}

}  // namespace

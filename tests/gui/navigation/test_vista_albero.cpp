#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include "gui/navigation/pannello_albero.h"

namespace {

using testing::ElementsAre;

struct Albero_A_Schermo : testing::Test {
    Albero_A_Schermo() {
        auto& a = Aggiungi(nullptr, "G_A", "Motore");
        Aggiungi(&a, "P_1", "Carburatore");
        Aggiungi(&a, "P_2", "Marmitta");
        auto& b = Aggiungi(nullptr, "G_B", "Cambio");
        Aggiungi(&b, "P_3", "Alberi");
        albero.Titolo = QStringLiteral("TZ");
        albero.Combo_Nodi = {QStringLiteral("Motore"), QStringLiteral("Carburatore"),
                             QStringLiteral("Marmitta")};
        pannello.resize(300, 500);
        pannello.Ricarica(albero);
        pannello.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&pannello));
    }
    Nodo_Visibile& Aggiungi(Nodo_Visibile* padre, const char* key, const char* testo) {
        return albero.Add(padre, QLatin1String(key), QLatin1String(testo));
    }
    QModelIndex Indice(const char* key) { return tree.Modello().Indice(QLatin1String(key)); }
    void Clic(const char* key) {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(Indice(key)).center());
    }
    QStringList Chiavi(QSignalSpy& spia) {
        QStringList chiavi;
        for (const auto& segnale : spia)
            chiavi.append(segnale.first().toString());
        spia.clear();
        return chiavi;
    }
    Albero_Visibile albero;
    Pannello_Albero pannello;
    Vista_Albero& tree = pannello.Tree1();
    QSignalSpy clic{&tree, &Vista_Albero::Clic_Nodo};
    QSignalSpy aperti{&tree, &Vista_Albero::Nodo_Aperto};
};

TEST_F(Albero_A_Schermo, AClickTellsTheNodeOnce) {
    Clic("G_B");
    EXPECT_THAT(Chiavi(clic), ElementsAre(QStringLiteral("G_B")));
    // A click on the current node is one again.
    Clic("G_B");
    EXPECT_THAT(Chiavi(clic), ElementsAre(QStringLiteral("G_B")));
}

TEST_F(Albero_A_Schermo, TheArrowOpensWithoutAClick) {
    const QRect posto = tree.visualRect(Indice("G_A"));
    const QPoint freccia(posto.left() - tree.indentation() / 2, posto.center().y());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, freccia);
    EXPECT_THAT(Chiavi(clic), ElementsAre());
    ASSERT_EQ(aperti.size(), 1);
    EXPECT_EQ(aperti[0][0].toString(), QStringLiteral("G_A"));
    EXPECT_TRUE(aperti[0][1].toBool());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, freccia);
    ASSERT_EQ(aperti.size(), 2);
    EXPECT_FALSE(aperti[1][1].toBool());
}

TEST_F(Albero_A_Schermo, TheKeyboardWalksOpensAndRepeats) {
    tree.setFocus();
    Clic("G_A");
    clic.clear();
    QTest::keyClick(&tree, Qt::Key_Right);
    EXPECT_TRUE(tree.isExpanded(Indice("G_A")));
    EXPECT_THAT(Chiavi(clic), ElementsAre());
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_THAT(Chiavi(clic), ElementsAre(QStringLiteral("P_1"), QStringLiteral("P_2")));
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_THAT(Chiavi(clic), ElementsAre(QStringLiteral("P_2")));
}

TEST_F(Albero_A_Schermo, WhatCoreSelectsAndOpensIsShownWithoutEcho) {
    albero.Seleziona(albero.Nodo(QStringLiteral("P_3")));
    pannello.Aggiorna(albero);
    EXPECT_EQ(tree.Modello().Key(tree.currentIndex()), QStringLiteral("P_3"));
    EXPECT_TRUE(tree.isExpanded(Indice("G_B")));
    EXPECT_FALSE(tree.isExpanded(Indice("G_A")));
    EXPECT_FALSE(tree.visualRect(Indice("P_3")).isEmpty());
    albero.Espandi_Albero(true);
    pannello.Aggiorna(albero);
    EXPECT_TRUE(tree.isExpanded(Indice("G_A")));
    albero.Espandi_Albero(false);
    pannello.Aggiorna(albero);
    EXPECT_FALSE(tree.isExpanded(Indice("G_A")));
    albero.Seleziona(nullptr);
    pannello.Aggiorna(albero);
    EXPECT_FALSE(tree.selectionModel()->hasSelection());
    EXPECT_THAT(Chiavi(clic), ElementsAre());
    EXPECT_EQ(aperti.size(), 0);
}

TEST_F(Albero_A_Schermo, ARebuiltTreeKeepsWhatCoreHoldsOpen) {
    albero.Nodo(QStringLiteral("G_A"))->Expanded = true;
    albero.Nodo(QStringLiteral("P_2"))->Bold = true;
    albero.Seleziona(albero.Nodo(QStringLiteral("P_2")));
    pannello.Ricarica(albero);
    EXPECT_TRUE(tree.isExpanded(Indice("G_A")));
    EXPECT_TRUE(tree.selectionModel()->isSelected(Indice("P_2")));
    EXPECT_EQ(aperti.size(), 0);
}

TEST_F(Albero_A_Schermo, ChoosingACaptionAndNextAskForTheNode) {
    QSignalSpy cerca(&pannello, &Pannello_Albero::Cerca_Nodo);
    auto* combo = pannello.findChild<QComboBox*>(QStringLiteral("Combo_Nodi"));
    EXPECT_EQ(combo->currentIndex(), -1);
    combo->setFocus();
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(2, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_THAT(Chiavi(cerca), ElementsAre(QStringLiteral("Marmitta")));
    QTest::mouseClick(pannello.findChild<QWidget*>(QStringLiteral("Command_Cerca_Next")), Qt::LeftButton);
    EXPECT_THAT(Chiavi(cerca), ElementsAre(QStringLiteral("Marmitta")));
    // A rebuilt list keeps the choice, so that "next" goes on.
    albero.Combo_Nodi.prepend(QStringLiteral("Nuovo"));
    pannello.Ricarica(albero);
    EXPECT_EQ(combo->currentText(), QStringLiteral("Marmitta"));
    EXPECT_EQ(cerca.size(), 0);
}

TEST_F(Albero_A_Schermo, TheSerialNumberIsAppliedByButtonAndEnterAndCleared) {
    QSignalSpy applica(&pannello, &Pannello_Albero::Applica_Matricola);
    auto* campo = pannello.findChild<QLineEdit*>(QStringLiteral("Text_Matricola"));
    QTest::keyClicks(campo, QStringLiteral("123"));
    QTest::mouseClick(pannello.findChild<QWidget*>(QStringLiteral("Command_Matricola")), Qt::LeftButton);
    EXPECT_EQ(applica.size(), 1);
    EXPECT_EQ(pannello.Text_Matricola(), QStringLiteral("123"));
    QTest::keyClick(campo, Qt::Key_Return);
    EXPECT_EQ(applica.size(), 2);
    QTest::mouseClick(pannello.findChild<QWidget*>(QStringLiteral("Command_Reset_Matricola")),
                      Qt::LeftButton);
    EXPECT_EQ(applica.size(), 3);
    EXPECT_EQ(pannello.Text_Matricola(), QString());
}

TEST(Albero_Grande, AHundredThousandNodesDontFreezeTheWindow) {
    Albero_Visibile albero;
    for (int g = 0; g < 1000; ++g) {
        Nodo_Visibile& gruppo =
            albero.Add(nullptr, QStringLiteral("G_%1").arg(g), QStringLiteral("Gruppo %1").arg(g));
        for (int p = 0; p < 99; ++p)
            albero.Add(&gruppo, QStringLiteral("P_%1_%2").arg(g).arg(p),
                       QStringLiteral("Prodotto %1").arg(p * g));
    }
    albero.Combo_Nodi.clear();
    for (const Nodo_Visibile& nodo : albero.Nodi())
        albero.Combo_Nodi.append(nodo.Text + nodo.Key);
    Pannello_Albero pannello;
    pannello.resize(300, 600);
    pannello.show();
    const auto misura = [](auto azione) {
        QElapsedTimer tempo;
        tempo.start();
        azione();
        QApplication::processEvents();
        return tempo.elapsed();
    };
    // Bounds that a quadratic step, or one that measures every entry, breaks by far on any machine.
    EXPECT_LT(misura([&] { pannello.Ricarica(albero); }), 3000);
    albero.Espandi_Albero(true);
    EXPECT_LT(misura([&] { pannello.Aggiorna(albero); }), 3000);
    albero.Seleziona(albero.Nodo(QStringLiteral("P_999_98")));
    EXPECT_LT(misura([&] { pannello.Aggiorna(albero); }), 1000);
    auto* combo = pannello.findChild<QComboBox*>(QStringLiteral("Combo_Nodi"));
    EXPECT_EQ(combo->count(), 100'000);
    EXPECT_LT(misura([&] { combo->showPopup(); }), 3000);
    combo->hidePopup();
}

}  // namespace

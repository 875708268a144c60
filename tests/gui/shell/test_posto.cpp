// Where the main window stands, what it is called, and who has the keyboard.

#include <QScreen>

#include "gui/finestra_di_prova.h"

namespace {

class Posto : public Finestra_Di_Prova {
  protected:
    /// The program is closed and started again.
    void Riavvia() {
        finestra->close();
        altra = std::make_unique<Form_Main>(progetto, cartella.path() + u'/');
        altra->show();
    }
    /// The machine with a long parts list in place of product P_2's empty one.
    static Catalogo_Di_Prova Lunga() {
        Catalogo_Di_Prova catalogo = Macchina();
        for (int i = 0; i < 60; ++i)
            for (const char* prodotto : {"P_1", "P_2"})
                catalogo.Parte(prodotto, QString::number(i + 10), u"L.%1"_qs.arg(i), "Parte");
        return catalogo;
    }
    std::unique_ptr<Form_Main> altra;
};

TEST_F(Posto, AtFirstTheWindowFitsTheScreenWithItsFrame) {
    Mostra();
    EXPECT_TRUE(finestra->screen()->availableGeometry().contains(finestra->frameGeometry()));
}

TEST_F(Posto, NoPageChangesTheWindowsSize) {
    Consulta(Macchina(), "P_1");
    finestra->resize(640, 420);
    for (const char* key : {"KEY_HOME", "KEY_EVADI_ORDINE", "KEY_HOME"}) {
        Comando(key);
        QApplication::processEvents();
        EXPECT_EQ(finestra->size(), QSize(640, 420)) << key;
    }
    finestra->showMaximized();
    Comando("KEY_EVADI_ORDINE");
    EXPECT_TRUE(finestra->isMaximized());
}

TEST_F(Posto, TheWindowComesBackAsItWasLeft) {
    Consulta(Macchina(), "P_1");
    finestra->setGeometry(50, 60, 640, 480);
    const QPoint angolo = finestra->pos();
    auto* divisore = qobject_cast<QSplitter*>(Trova("imgSplitter"));
    QTest::mousePress(divisore->handle(1), Qt::LeftButton, {}, {1, 50});
    QTest::mouseMove(divisore->handle(1), {-60, 50});
    QTest::mouseRelease(divisore->handle(1), Qt::LeftButton, {}, {-60, 50});
    const int albero = divisore->sizes().at(0);
    EXPECT_LT(albero, 300);
    Riavvia();
    EXPECT_EQ(altra->pos(), angolo);
    EXPECT_EQ(altra->size(), QSize(640, 480));
    EXPECT_FALSE(altra->isMaximized());
    altra->Schermo().Apertura.Apri_Catalogo(Macchina().Pacchetto(cartella.path()));
    altra->Schermo().Consulta_Catalogo(false);
    QApplication::processEvents();
    EXPECT_NEAR(altra->findChild<QSplitter*>("imgSplitter")->sizes().at(0), albero, 6);

    altra->showMaximized();
    altra->close();
    altra = std::make_unique<Form_Main>(progetto, cartella.path() + u'/');
    EXPECT_TRUE(altra->isMaximized());
}

TEST_F(Posto, TheHeightThatTheUserGaveThePartsListOutlivesTheCatalogue) {
    Apri(Macchina());
    schermo.Prodotto.Altezza_Distinta_Scelta(3300);
    Apri_Altro(Macchina());
    EXPECT_EQ(finestra->Altezza_Interna() - schermo.Stato().Posizione_Splitter_V, 3300);
}

TEST_F(Posto, TheTitleBarNamesTheCatalogueThatIsOpen) {
    Mostra();
    EXPECT_EQ(finestra->windowTitle(), TITOLO_PROGRAMMA);
    for (const char* titolo : {"Ricambi TZ", ""}) {
        Apri_Altro(Macchina().Sistema("PROPRIETA_PROGETTO_TITOLO", titolo));
        EXPECT_EQ(finestra->windowTitle(), (*titolo ? titolo : "prova") + u" – "_qs + TITOLO_PROGRAMMA);
    }
}

TEST_F(Posto, AnotherProductsListBeginsAtItsFirstRow) {
    Consulta(Lunga(), "P_1");
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    griglia.TopRow(30);
    ASSERT_GT(griglia.TopRow(), 1);
    schermo.Seleziona_Nodo_Albero("P_2");
    EXPECT_EQ(griglia.TopRow(), 1);
}

TEST_F(Posto, TheKeyboardStaysWhereTheUserWorks) {
    Consulta(Macchina(), "P_1");
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    griglia.setFocus();
    // A product without parts takes the list away, one with parts brings it back.
    for (const char* key : {"P_2", "P_3", "P_2", "P_1"}) {
        schermo.Seleziona_Nodo_Albero(key);
        QWidget* atteso = griglia.isVisible() ? &griglia : static_cast<QWidget*>(&finestra->Tree1());
        EXPECT_EQ(finestra->focusWidget(), atteso) << key;
    }
    schermo.Aggiungi_Al_Carrello("P_1", "A.001", "1");
    auto& ordine = *Trova("Griglia_Evadi");
    Comando("KEY_EVADI_ORDINE");
    ASSERT_TRUE(ordine.isVisible());
    EXPECT_EQ(finestra->focusWidget(), &ordine);
    // Who goes elsewhere meanwhile stays there.
    Comando("KEY_EVADI_ORDINE");
    ASSERT_TRUE(griglia.isVisible());
    griglia.setFocus();
    schermo.Seleziona_Nodo_Albero("P_2");
    Trova("Text_Matricola")->setFocus();
    schermo.Seleziona_Nodo_Albero("P_1");
    EXPECT_EQ(finestra->focusWidget(), Trova("Text_Matricola"));
}

}  // namespace

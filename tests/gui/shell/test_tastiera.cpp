#include <QSignalSpy>

#include "gui/finestra_di_prova.h"

namespace {

class Tastiera : public Finestra_Di_Prova {
  protected:
    void Premi(Qt::Key tasto, Qt::KeyboardModifiers modi = {}) {
        QWidget* fuoco = QApplication::focusWidget();
        QTest::keyClick(fuoco ? fuoco : finestra.get(), tasto, modi);
    }
    static std::string Fuoco() {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName().toStdString() : "";
    }
};

TEST_F(Tastiera, EveryButtonHasItsShortcut) {
    Mostra();
    for (QAction* azione : finestra->Toolbar_Main().actions())
        EXPECT_FALSE(azione->shortcut().isEmpty()) << azione->text().toStdString();
}

TEST_F(Tastiera, ShortcutsRunTheCommands) {
    Apri(Macchina());
    Premi(Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(Visibile("Frame_Main"));
    Premi(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(Visibile("Frame_Intro"));
    EXPECT_EQ(sistema.Aperti.size(), 0);
    Premi(Qt::Key_F1);
    ASSERT_EQ(sistema.Aperti.size(), 1);
    EXPECT_TRUE(sistema.Aperti.front().contains(u"HELP_Viewer_4_"));
}

TEST_F(Tastiera, ADisabledCommandsShortcutDoesNothing) {
    Mostra();
    Premi(Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(Visibile("Frame_Main"));
}

TEST_F(Tastiera, TheHomePageStartsOnItsLinks) {
    Mostra();
    EXPECT_EQ(Fuoco(), "Label_Apri_catalogo");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Fuoco(), "Label_Help");
    Premi(Qt::Key_Space);
    EXPECT_EQ(sistema.Aperti.size(), 1);
    Premi(Qt::Key_Return);
    EXPECT_EQ(sistema.Aperti.size(), 2);
}

TEST_F(Tastiera, TheWorkingAreaStartsInTheTree) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    EXPECT_EQ(Fuoco(), "Tree1");
    Premi(Qt::Key_Down);
    EXPECT_FALSE(progetto.Key_Prodotto_Corrente.isEmpty());
}

TEST_F(Tastiera, F6GoesRoundThePanes) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    controllo.Seleziona_Nodo_Albero(QStringLiteral("P_1"));
    finestra->Tree1().setFocus();
    Premi(Qt::Key_F6);
    EXPECT_EQ(Fuoco(), "Griglia_Distinta");
    Premi(Qt::Key_F6);
    EXPECT_EQ(Fuoco(), "KEY_HOME");
    Premi(Qt::Key_F6);
    EXPECT_EQ(Fuoco(), "Tree1");
    Premi(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(Fuoco(), "KEY_HOME");
}

TEST_F(Tastiera, TheTwoFieldsAreAKeyAway) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    Premi(Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(Fuoco(), "Text_Matricola");
    Premi(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Fuoco(), "Combo_Nodi");
}

}  // namespace

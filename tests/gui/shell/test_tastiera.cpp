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

TEST_F(Tastiera, TheHomePageStartsOnItsLinks) {
    Mostra();
    EXPECT_EQ(Fuoco(), "Label_Apri_catalogo");
    Premi(Qt::Key_Tab);
    EXPECT_EQ(Fuoco(), "Label_Help");
    for (const Qt::Key tasto : {Qt::Key_Space, Qt::Key_Return})
        Premi(tasto);
    EXPECT_EQ(sistema.Aperti.size(), 2);
}

TEST_F(Tastiera, TheWorkingAreaStartsInTheTreeAndItsPanesAreAKeyAway) {
    Consulta(Macchina());
    EXPECT_EQ(Fuoco(), "Tree1");

    schermo.Seleziona_Nodo_Albero("P_1");
    finestra->Tree1().setFocus();
    const struct {
        Qt::Key tasto;
        Qt::KeyboardModifier modo;
        const char* fuoco;
    } passi[] = {{Qt::Key_F6, Qt::NoModifier, "Griglia_Distinta"},
                 {Qt::Key_F6, Qt::NoModifier, "KEY_HOME"},
                 {Qt::Key_F6, Qt::NoModifier, "Tree1"},
                 {Qt::Key_F6, Qt::ShiftModifier, "KEY_HOME"}};
    for (const auto& [tasto, modo, fuoco] : passi) {
        Premi(tasto, modo);
        EXPECT_EQ(Fuoco(), fuoco);
    }
}

}  // namespace

// The cart's windows under the hand: editing in place, the keyboard, what is in view, windows that go away.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

#include "carrello_alla_finestra.h"

namespace {

constexpr int QTA = 5, TOTALE = 7, QTA_ORDINE = 6, NOTA_ORDINE = 7;  ///< columns

class Carrello : public Carrello_Alla_Finestra {
  protected:
    /// A product with `parti` parts, all of them in the cart, whose window is up.
    void Riempi(int parti) {
        Catalogo_Di_Prova catalogo = Macchina();
        catalogo.Cambia("Struttura_Componenti", 3, "Tipo_Colonna", "Price");
        for (int i = 1; i <= parti; ++i)
            catalogo.Parte("P_2", QString::number(i), QString("C%1").arg(i), "", {{"Campo03", "10"}});
        impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "WIDTH", "9000");
        impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "HEIGHT", "4500");
        Consulta(catalogo, "P_2");
        for (int i = 1; i <= parti; ++i)
            schermo.Aggiungi_Al_Carrello("P_2", QString("C%1").arg(i), QString::number(i));
        Comando("KEY_CARELLO_PARZIALE");
        Attiva(Finestra_Carrello());
    }
    QLineEdit& Text_Ordine(const char* nome) { return *Griglia_Evadi().findChild<QLineEdit*>(nome); }
    float Quantita(int parte) {
        return Cerca_Riga(progetto.Prodotti_Selezionati, "P_2", QString("C%1-%1").arg(parte))->Quantita;
    }
    /// Where the keyboard is: name of the control, row and column of the cell in its grid.
    QString Fuoco() {
        const QWidget* fuoco = QApplication::focusWidget();
        const QModelIndex cella = Griglia().currentIndex();
        return !fuoco ? QString("nowhere")
                      : QString("%1 %2,%3").arg(fuoco->objectName()).arg(cella.row() + 1).arg(cella.column());
    }
};

TEST_F(Carrello, EachLetterCountsAndTheBoxKeepsItsPlaceAndTheKeyboard) {
    Riempi(40);
    Clic_Cella(Griglia(), 30, QTA);
    QLineEdit& testo = Text("Text_Qta");
    EXPECT_EQ(testo.selectedText(), "1");
    const QRect posto = Griglia().visualRect(Griglia().model()->index(29, QTA));
    EXPECT_EQ(testo.geometry(), posto);
    const int cima = Griglia().TopRow();
    EXPECT_GT(cima, 1);
    QTest::keyClicks(&testo, "12");
    EXPECT_EQ(testo.text(), "12");
    EXPECT_EQ(Quantita(30), 12);
    EXPECT_EQ(Testo(Griglia(), 30, QTA), "12");
    EXPECT_EQ(Testo(Griglia(), 30, TOTALE), "120,00");
    EXPECT_TRUE(testo.isVisible() && testo.hasFocus());
    EXPECT_EQ(Griglia().TopRow(), cima);
    EXPECT_EQ(testo.geometry(), posto);
    Griglia().verticalScrollBar()->setValue(0);
    EXPECT_FALSE(testo.isVisible()) << "after a scroll by hand";
}

TEST_F(Carrello, TheKeyboardAloneEditsAndRemoves) {
    Riempi(3);
    Griglia().setCurrentIndex(Griglia().model()->index(0, 0));
    Griglia().setFocus();
    struct Passo {
        Qt::Key tasto;
        const char* fuoco;
    };
    for (const auto& [tasto, fuoco] :
         {Passo{Qt::Key_F2, "Text_Qta 1,5"}, Passo{Qt::Key_Tab, "Text_Note 1,6"},
          Passo{Qt::Key_Tab, "Text_Qta 2,5"}, Passo{Qt::Key_Backtab, "Text_Note 1,6"},
          Passo{Qt::Key_Down, "Text_Note 2,6"}, Passo{Qt::Key_Up, "Text_Note 1,6"},
          Passo{Qt::Key_Up, "Text_Note 1,6"}, Passo{Qt::Key_Return, "Griglia 1,6"},
          Passo{Qt::Key_Enter, "Text_Note 1,6"}, Passo{Qt::Key_Escape, "Griglia 1,6"},
          Passo{Qt::Key_Down, "Griglia 2,6"}, Passo{Qt::Key_Delete, "Griglia 2,6"}}) {
        QTest::keyClick(QApplication::focusWidget(), tasto);
        EXPECT_EQ(Fuoco(), fuoco) << tasto;
    }
    EXPECT_EQ(Testo(Griglia(), 2, 2), "C3");
    QTest::keyClick(&Griglia(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Testo(Griglia(), 2, 2), "C2");
    QTest::keyClick(&Griglia(), Qt::Key_Delete);
    QTest::keyClick(&Griglia(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Fuoco(), "Griglia 2,6") << "no further cell can be edited";
    QTest::keyClick(&Griglia(), Qt::Key_Escape);
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta);
}

TEST_F(Carrello, TheBoxOutlivesItsOwnMenuAndTakesWhatIsPasted) {
    Riempi(2);
    Comando("KEY_EVADI_ORDINE");
    Clic_Cella(Griglia(), 1, QTA);
    QLineEdit& testo = Text("Text_Qta");
    QTest::keyClicks(&testo, "7");
    QApplication::clipboard()->setText("3");
    for (const char* scelta : {"", "Paste"}) {
        QContextMenuEvent clic(QContextMenuEvent::Mouse, testo.rect().center(),
                               testo.mapToGlobal(testo.rect().center()));
        QApplication::sendEvent(&testo, &clic);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        EXPECT_TRUE(testo.isVisible());
        EXPECT_EQ(Testo(Griglia_Evadi(), 1, QTA_ORDINE), "1") << "the edit isn't over";
        for (QAction* voce : menu->actions())
            if (*scelta && voce->text().remove('&').startsWith(scelta))
                menu->setActiveAction(voce);
        QTest::keyClick(menu, *scelta ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_TRUE(testo.isVisible() && testo.hasFocus()) << scelta;
        EXPECT_EQ(testo.text(), *scelta ? "73" : "7");
    }
    EXPECT_EQ(Quantita(1), 73);
    Clic_Cella(Griglia(), 2, 1);
    EXPECT_FALSE(testo.isVisible());
    EXPECT_EQ(Testo(Griglia_Evadi(), 1, QTA_ORDINE), "73");
}

TEST_F(Carrello, EachFaceFollowsTheOtherWhenTheBoxIsLeft) {
    Riempi(2);
    Comando("KEY_EVADI_ORDINE");
    Clic_Cella(Griglia(), 1, QTA);
    QTest::keyClicks(&Text("Text_Qta"), "7");
    EXPECT_EQ(Testo(Griglia_Evadi(), 1, QTA_ORDINE), "1");
    QTest::keyClick(&Text("Text_Qta"), Qt::Key_Return);
    EXPECT_EQ(Testo(Griglia_Evadi(), 1, QTA_ORDINE), "7");
    Clic_Cella(Griglia_Evadi(), 2, QTA_ORDINE);
    QTest::keyClicks(&Text_Ordine("Text_Qta"), "9");
    EXPECT_EQ(Testo(Griglia(), 2, QTA), "1");
    Clic_Cella(Griglia_Evadi(), 1, NOTA_ORDINE);  // another box
    EXPECT_EQ(Testo(Griglia(), 2, QTA), "9");
    const QString nota = R"(è "urgente" | d'oggi <b>€)";
    for (const QChar c : nota)
        QTest::sendKeyEvent(QTest::Click, &Text_Ordine("Text_Note"), Qt::Key_unknown, c, {});
    EXPECT_EQ(Testo(Griglia_Evadi(), 1, NOTA_ORDINE), nota);
    Clic_Cella(Griglia_Evadi(), 1, 0);
    EXPECT_EQ(Griglia().model()->rowCount(), 3) << "one line and its totals";
}

TEST_F(Carrello, WindowsMayGoInTheMiddleOfAnEdit) {
    Riempi(2);
    Comando("KEY_EVADI_ORDINE");
    for (int volta = 0; volta < 2; ++volta) {
        Clic_Cella(Griglia(), 1, QTA);
        QTest::keyClicks(&Text("Text_Qta"), volta ? "6" : "5");
        Finestra_Carrello().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(finestra->findChild<QWidget*>("Form_Carrello_Prodotto"), nullptr);
        EXPECT_FALSE(finestra->Toolbar_Main().Bottone("KEY_CARELLO_PARZIALE")->property("checked").toBool());
        Comando("KEY_CARELLO_PARZIALE");
    }
    EXPECT_EQ(Testo(Griglia_Evadi(), 1, QTA_ORDINE), "6");
    Clic_Cella(Griglia(), 1, QTA);
    QTest::keyClicks(&Text("Text_Qta"), "8");
    messaggi.Risposte = {true};
    Apri_Altro(Macchina());
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta);
    EXPECT_EQ(progetto.Prodotti_Selezionati.Count(), 0);
    schermo.Seleziona_Nodo_Albero("P_1");
    Comando("KEY_CARELLO_PARZIALE");
    EXPECT_TRUE(Finestra_Carrello().findChild<QWidget*>("Label_Carrello_Vuoto")->isVisible());
    finestra->close();
    EXPECT_FALSE(progetto.Finestra_Carrello_Aperta);
}

TEST_F(Carrello, TheWindowComesBackWhereItWas) {
    Consulta(Macchina(), "P_1");
    Comando("KEY_CARELLO_PARZIALE");
    const QRect prima = Finestra_Carrello().frameGeometry();
    EXPECT_TRUE(finestra->screen()->availableGeometry().contains(prima));
    EXPECT_FALSE(prima.intersects(
        QRect(finestra->Toolbar_Main().mapToGlobal(QPoint(0, 0)), finestra->Toolbar_Main().size())));
    Finestra_Carrello().setGeometry(40, 30, 500, 200);
    Comando("KEY_CARELLO_PARZIALE");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto valore = [&](const char* chiave) {
        return impostazioni.Leggi(NOME_APPLICAZIONE, "WIN_CARRELLO", chiave, "");
    };
    EXPECT_EQ(valore("WIDTH") + ' ' + valore("HEIGHT"), "7500 3000");
    impostazioni.Scrivi(NOME_APPLICAZIONE, "WIN_CARRELLO", "LEFT", "900000");  // a screen that is gone
    Comando("KEY_CARELLO_PARZIALE");
    EXPECT_EQ(Finestra_Carrello().size(), QSize(500, 200));
    EXPECT_TRUE(finestra->screen()->availableGeometry().contains(Finestra_Carrello().frameGeometry()));
}

TEST_F(Carrello, OfSeveralPartsOneIsPickedOrNone) {
    Consulta(Macchina().Parte("P_1", "3", "A.004", "Molla"), "P_1");
    const auto clicca = [&](const std::function<void(QDialog&)>& lavoro) {
        const Nel_Dialogo scelta("Form_Seleziona_componente", lavoro);
        return finestra->Tavola().Evento.Click_Su_HotSpot("3", "3");
    };
    EXPECT_FALSE(clicca([&](QDialog& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), "Aggiungi al carello");
        EXPECT_NEAR(dialogo.geometry().center().x(), finestra->frameGeometry().center().x(), 2);
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    }));
    EXPECT_EQ(progetto.Prodotti_Selezionati.Count(), 0);
    EXPECT_TRUE(clicca([&](QDialog& dialogo) {
        auto& griglia = *dialogo.findChild<Vista_Griglia*>("Griglia");
        QTest::keyClick(&griglia, Qt::Key_Down);
        QTest::keyClick(&griglia, Qt::Key_Return);
    }));
    EXPECT_NE(Cerca_Riga(progetto.Prodotti_Selezionati, "P_1", "A.004-3"), nullptr);
}

}  // namespace

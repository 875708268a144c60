#pragma once

#include <QLineEdit>

#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"

/// The cart under the hand: its window and the order screen.
class Carrello_Alla_Finestra : public Finestra_Di_Prova {
  protected:
    /// Waits until the keyboard really is in a window: one over another counts as active with it.
    static void Attiva(QWidget& finestra) {
        finestra.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &finestra; }));
    }
    QWidget& Finestra_Carrello() {
        auto* trovata = finestra->findChild<QWidget*>("Form_Carrello_Prodotto");
        return trovata ? *trovata : throw std::runtime_error("the cart window isn't up");
    }
    Vista_Griglia& Griglia() { return *Finestra_Carrello().findChild<Vista_Griglia*>("Griglia"); }
    QLineEdit& Text(const char* nome) { return *Finestra_Carrello().findChild<QLineEdit*>(nome); }
    Vista_Griglia& Griglia_Evadi() { return *finestra->findChild<Vista_Griglia*>("Griglia_Evadi"); }

    static void Clic_Cella(Vista_Griglia& griglia, int riga, int colonna) {
        Attiva(*griglia.window());
        const QModelIndex cella = griglia.model()->index(riga - 1, colonna);
        griglia.scrollTo(cella);
        const QPoint posto = griglia.visualRect(cella).center();
        QTest::mouseMove(griglia.viewport(), posto);
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, posto);
    }
    /// A click on the cell with this tag in the row of a reference; false when there is none.
    static bool Clic_Tag(Vista_Griglia& griglia, const QString& tag, const QString& riferimento,
                         int colonna_riferimento) {
        for (int r = 1; r < griglia.Dati().Rows(); ++r)
            for (int c = 0; c < griglia.Dati().Cols(); ++c)
                if (griglia.Tag().At(r, c) == tag &&
                    griglia.Dati().TextMatrix(r, colonna_riferimento) == riferimento) {
                    Clic_Cella(griglia, r, c);
                    return true;
                }
        return false;
    }
    static QString Testo(const Vista_Griglia& griglia, int riga, int colonna) {
        return griglia.model()->index(riga - 1, colonna).data().toString();
    }
};

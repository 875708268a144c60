#include "gui/platform/messaggi_qt.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>

#include <QSignalSpy>
#include <QTimer>

namespace {

/// Runs `azione` on the message box that comes up.
template <class Azione>
void Alla_Comparsa(Azione azione) {
    QTimer::singleShot(0, qApp, [azione] {
        auto* finestra = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(finestra, nullptr);
        azione(*finestra);
    });
}

TEST(Messaggi_Qt_, ShowsTextTitleAndIconUnderAnArrow) {
    QApplication::setOverrideCursor(Qt::WaitCursor);  // it comes up over work
    for (const auto& [icona, attesa] : {std::pair{Icona::Nessuna, QMessageBox::NoIcon},
                                        {Icona::Informazione, QMessageBox::Information},
                                        {Icona::Esclamazione, QMessageBox::Warning},
                                        {Icona::Critica, QMessageBox::Critical}}) {
        bool vista = false;
        Alla_Comparsa([&, attesa = attesa](QMessageBox& finestra) {
            vista = true;
            EXPECT_EQ(finestra.text(), "<b>A & B</b>");
            EXPECT_EQ(finestra.textFormat(), Qt::PlainText);
            EXPECT_EQ(finestra.windowTitle(), TITOLO_PROGRAMMA);
            EXPECT_EQ(finestra.icon(), attesa);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            finestra.button(QMessageBox::Ok)->click();
        });
        Messaggi_Qt().Mostra("<b>A & B</b>", icona);
        EXPECT_TRUE(vista);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QApplication::restoreOverrideCursor();
}

TEST(Messaggi_Qt_, AnswersAQuestion) {
    for (const auto& [bottone, risposta] :
         {std::pair{QMessageBox::Yes, true}, {QMessageBox::No, false}, {QMessageBox::NoButton, false}}) {
        Alla_Comparsa([bottone = bottone](QMessageBox& finestra) {
            bottone ? finestra.button(bottone)->click() : finestra.reject();
        });
        EXPECT_EQ(Messaggi_Qt().Chiedi("?"), risposta) << bottone;
    }
}

TEST(Messaggi_Qt_, ABoxWithoutAnyOtherWindowIsntTheProgramsEnd) {
    QSignalSpy ultima(qApp, &QGuiApplication::lastWindowClosed);
    QTimer::singleShot(0, qApp, [] {
        Alla_Comparsa([](QMessageBox& finestra) { finestra.accept(); });
        Messaggi_Qt().Mostra("x", Icona::Critica);
        QTimer::singleShot(0, qApp, &QApplication::quit);
    });
    QApplication::exec();  // outside of it no window is the last one
    EXPECT_EQ(ultima.count(), 0);
}

}  // namespace

#include "gui/platform/messaggi_qt.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTimer>

#include "gui/platform/sistema_qt.h"

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

TEST(Messaggi_Qt_, ShowsTextTitleAndIcon) {
    struct Caso {
        Icona icona;
        QMessageBox::Icon attesa;
    };
    for (const Caso& caso :
         {Caso{Icona::Nessuna, QMessageBox::NoIcon}, Caso{Icona::Informazione, QMessageBox::Information},
          Caso{Icona::Esclamazione, QMessageBox::Warning}, Caso{Icona::Critica, QMessageBox::Critical}}) {
        bool vista = false;
        Alla_Comparsa([&](QMessageBox& finestra) {
            vista = true;
            EXPECT_EQ(finestra.text(), QStringLiteral("<b>A & B</b>"));
            EXPECT_EQ(finestra.textFormat(), Qt::PlainText);
            EXPECT_EQ(finestra.windowTitle(), TITOLO_PROGRAMMA);
            EXPECT_EQ(finestra.icon(), caso.attesa);
            finestra.button(QMessageBox::Ok)->click();
        });
        Messaggi_Qt().Mostra(QStringLiteral("<b>A & B</b>"), caso.icona);
        EXPECT_TRUE(vista);
    }
}

TEST(Messaggi_Qt_, AnswersAQuestion) {
    Alla_Comparsa([](QMessageBox& finestra) { finestra.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(Messaggi_Qt().Chiedi(QStringLiteral("?")));
    Alla_Comparsa([](QMessageBox& finestra) { finestra.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(Messaggi_Qt().Chiedi(QStringLiteral("?")));
    Alla_Comparsa([](QMessageBox& finestra) { finestra.reject(); });
    EXPECT_FALSE(Messaggi_Qt().Chiedi(QStringLiteral("?")));
}

TEST(Messaggi_Qt_, ShowsAnArrowOverWorkUnderTheHourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Alla_Comparsa([](QMessageBox& finestra) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        finestra.accept();
    });
    Messaggi_Qt().Mostra(QStringLiteral("x"), Icona::Critica);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

TEST(Messaggi_Qt_, ABoxWithoutAnyOtherWindowIsntTheProgramsEnd) {
    QSignalSpy ultima(qApp, &QGuiApplication::lastWindowClosed);
    QTimer::singleShot(0, qApp, [] {
        Alla_Comparsa([](QMessageBox& finestra) { finestra.accept(); });
        Messaggi_Qt().Mostra(QStringLiteral("x"), Icona::Critica);
        QTimer::singleShot(0, qApp, &QApplication::quit);
    });
    QApplication::exec();  // outside of it no window is the last one
    EXPECT_EQ(ultima.count(), 0);
}

TEST(Sistema_Qt_, NamesTheTemporaryFolderWithItsSeparator) {
    const QString cartella = Sistema_Qt().Cartella_Temporanea();
    EXPECT_TRUE(cartella.endsWith(QDir::separator()));
    EXPECT_TRUE(QDir(cartella).exists());
}

}  // namespace

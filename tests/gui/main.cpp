#include <gmock/gmock.h>

#include "gui/platform/programma_qt.h"

int main(int argc, char* argv[]) {
    // The cases are listed at build time too, where nobody has chosen a platform.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    Programma_Qt programma(argc, argv);
    QObject::connect(&programma, &Programma_Qt::Eccezione, [](const QString& testo) {
        ADD_FAILURE() << "the program failed: " << qPrintable(testo);
    });
    QApplication::setStyle("Fusion");
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}

#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    // The cases are listed at build time too, where nobody has chosen a platform.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication programma(argc, argv);
    QApplication::setStyle("Fusion");
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}

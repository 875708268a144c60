#include <QCoreApplication>

#include "tzf/command.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tzf"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TZF_VERSION));
    return runTool(QCoreApplication::arguments());
}

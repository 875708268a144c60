#include <QCoreApplication>
#include <csignal>

#include "tzf/commands/command.h"

int main(int argc, char** argv) {
    // A reader that goes away early must not take the program with it: its temporary folder would stay.
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tzf"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TZF_VERSION));
    return runTool(QCoreApplication::arguments());
}

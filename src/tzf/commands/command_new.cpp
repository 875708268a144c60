#include "tzf/commands/command.h"
#include "tzf/tables/skeleton.h"

namespace {

int makeNew(const CommandLine& line) {
    const QString folder = line.arguments.at(0), option = QStringLiteral("lingue");
    const QStringList languages =
        (line.options.isSet(option) ? line.options.value(option) : QStringLiteral("UK"))
            .split(u',', Qt::SkipEmptyParts);
    const QStringList files = writeSkeleton(folder, languages);
    print(QStringLiteral("%1: %2").arg(folder, files.join(QStringLiteral(", "))));
    print(QStringLiteral("Next: tzf check %1, then tzf pack %1").arg(folder));
    return EXIT_DONE;
}

}  // namespace

Command newCommand() {
    return {QStringLiteral("new"),
            {QStringLiteral("FOLDER")},
            QStringLiteral("makes a source folder to begin with"),
            QStringLiteral(
                "Makes a folder with the source of a small catalogue: a machine with one assembly, its\n"
                "drawing and two parts. It can be packed at once; put your own tree, parts and drawings in\n"
                "place of these."),
            false,
            {{QStringLiteral("lingue"),
              QStringLiteral("Keys of the languages, as IT,UK,FR,DE,ES; the first is the one to start with. "
                             "UK without it."),
              QStringLiteral("KEYS")}},
            makeNew};
}

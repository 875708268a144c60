#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include "tzf/commands/command.h"
#include "tzf/package/pack.h"
#include "tzf/package/source_folder.h"
#include "tzf/package/unpack.h"
#include "tzf/tool_error.h"

namespace {

int pack(const CommandLine& line) {
    const QString folder = line.arguments.at(0);
    QString package = line.arguments.value(1);
    if (package.isEmpty())
        package = SourceFolder::read(folder).output;
    if (package.isEmpty())
        throw UsageError(QStringLiteral("catalogue.json names no \"output\", so the package must be given"));
    const PackReport report = packFolder(folder, package);
    for (const QString& doubt : report.doubts)
        printError(QStringLiteral("warning: ") + doubt);
    for (const QString& file : report.left_out)
        printError(QStringLiteral("left out, because no table names it: %1").arg(file));
    if (!report.left_out.isEmpty())
        printError(QStringLiteral("the option \"keep\" of catalogue.json keeps such files"));
    const auto some = [](qsizetype number, const char* one, const char* more) {
        return QStringLiteral("%1 %2").arg(number).arg(QLatin1String(number == 1 ? one : more));
    };
    QStringList content;
    if (report.has_catalogue)
        content << some(report.nodes, "node", "nodes") << some(report.products, "product", "products")
                << some(report.parts, "part", "parts")
                << some(report.rows, "row of parts lists", "rows of parts lists");
    content << some(report.files, "file", "files");
    if (!report.languages.isEmpty())
        content << QStringLiteral("in ") + report.languages.join(QStringLiteral(", "));
    print(QStringLiteral("%1: %2; %3")
              .arg(package, content.join(QStringLiteral(", ")),
                   QLocale::c().formattedDataSize(QFileInfo(package).size())));
    return EXIT_DONE;
}

int unpack(const CommandLine& line) {
    const QStringList losses = unpackPackage(line.arguments.at(0), line.arguments.at(1),
                                             line.options.isSet(QStringLiteral("force")));
    for (const QString& loss : losses)
        printError(QStringLiteral("warning: ") + loss);
    return EXIT_DONE;
}

}  // namespace

Command packCommand() {
    return {QStringLiteral("pack"),
            {QStringLiteral("FOLDER"), QStringLiteral("[PACKAGE]")},
            QStringLiteral("makes a package from a source folder"),
            QStringLiteral(
                "Makes a package from a folder of CSV tables, media files and a catalogue.json. Without\n"
                "PACKAGE it gets the name that catalogue.json gives, in the current folder. A package\n"
                "that is there already is replaced when the new one is finished."),
            false,
            {},
            pack};
}

Command unpackCommand() {
    return {
        QStringLiteral("unpack"),
        {QStringLiteral("PACKAGE"), QStringLiteral("FOLDER")},
        QStringLiteral("makes a source folder from a package"),
        QStringLiteral("Writes tables, media files and a catalogue.json from which \"pack\" makes the same\n"
                       "package again. FOLDER is made if it isn't there; nothing is written outside it."),
        false,
        {{QStringLiteral("force"), QStringLiteral("Writes into a folder that isn't empty, too.")}},
        unpack};
}

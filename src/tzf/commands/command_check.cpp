#include <QJsonArray>
#include <QJsonObject>

#include "tzf/check/check.h"
#include "tzf/commands/command.h"

namespace {

QString lineOf(const Finding& finding) {
    QString place = finding.table;
    if (finding.row > 0)
        place += QStringLiteral(" row %1").arg(finding.row);
    if (!finding.column.isEmpty())
        place += QStringLiteral(", %1").arg(finding.column);
    return (finding.error ? QStringLiteral("error: ") : QStringLiteral("warning: ")) +
           (place.isEmpty() ? QString() : place + QStringLiteral(": ")) + finding.message;
}

QJsonObject objectOf(const Finding& finding) {
    const auto textOrNull = [](const QString& text) {
        return text.isEmpty() ? QJsonValue() : QJsonValue(text);
    };
    return {{QStringLiteral("severity"), finding.error ? QStringLiteral("error") : QStringLiteral("warning")},
            {QStringLiteral("table"), textOrNull(finding.table)},
            {QStringLiteral("row"), finding.row > 0 ? QJsonValue(finding.row) : QJsonValue()},
            {QStringLiteral("column"), textOrNull(finding.column)},
            {QStringLiteral("message"), finding.message}};
}

int check(const CommandLine& line) {
    const std::vector<Finding> findings = checkCatalogue(line.arguments.at(0));
    QJsonArray array;
    qsizetype errors = 0;
    for (const Finding& finding : findings) {
        errors += finding.error ? 1 : 0;
        if (line.json())
            array.append(objectOf(finding));
        else
            print(lineOf(finding));
    }
    if (line.json())
        print(QJsonDocument(array));
    else if (!findings.empty())
        printError(QStringLiteral("%1 errors, %2 warnings")
                       .arg(errors)
                       .arg(findings.size() - static_cast<size_t>(errors)));
    return errors > 0 ? EXIT_FAULTS : EXIT_DONE;
}

}  // namespace

Command checkCommand() {
    return {QStringLiteral("check"),
            {QStringLiteral("PACKAGE|FOLDER")},
            QStringLiteral("finds what is wrong in a catalogue"),
            QStringLiteral(
                "Examines a package or a source folder and prints one line for each fault, with table and\n"
                "row (the first row below the column names is 1). Ends with 1 when there are errors."),
            true,
            {},
            check};
}

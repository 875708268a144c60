#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <limits>

#include "tzf/check/check.h"
#include "tzf/commands/command.h"

namespace {

QString lineOf(const Finding& finding) {
    QString place = finding.table;
    if (finding.row > 0 && finding.more.isEmpty())
        place += QStringLiteral(" row %1").arg(finding.row);
    if (!finding.more.isEmpty()) {
        constexpr qsizetype SHOWN = 4;
        QStringList rows = {QString::number(finding.row)};
        for (const qint64 row : finding.more.first(std::min(SHOWN, finding.more.size())))
            rows << QString::number(row);
        place += QStringLiteral(" rows ") + rows.join(QStringLiteral(", "));
        if (finding.more.size() > SHOWN)
            place += QStringLiteral(" and %1 more").arg(finding.more.size() - SHOWN);
    }
    if (!finding.column.isEmpty())
        place += QStringLiteral(", %1").arg(finding.column);
    return (finding.error ? QStringLiteral("error: ") : QStringLiteral("warning: ")) +
           (place.isEmpty() ? QString() : place + QStringLiteral(": ")) + finding.message +
           (finding.place.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(finding.place));
}

/// What a finding is about, without the names in it: findings alike are often one mistake.
QString kindOf(const Finding& finding) {
    static const QRegularExpression names(QStringLiteral("\"[^\"]*\"|[^\\s:,;]*[0-9_][^\\s:,;]*"));
    return (finding.error ? QStringLiteral("e") : QString()) + finding.table + u'\n' +
           QString(finding.column).remove(names) + u'\n' + QString(finding.message).remove(names);
}

/// The lines of the findings, at most so many; of many alike the first ones only, unless all are asked for.
QStringList linesOf(const std::vector<Finding>& findings, qsizetype most, bool all) {
    constexpr int ALIKE = 10, SHOWN = 3;
    QHash<QString, int> counts, told;
    for (const Finding& finding : findings)
        ++counts[kindOf(finding)];
    QStringList lines;
    for (const Finding& finding : findings) {
        const QString kind = kindOf(finding);
        const int count = counts.value(kind), number = ++told[kind];
        if (all || count <= ALIKE || number <= SHOWN)
            lines << lineOf(finding);
        if (!all && count > ALIKE && number == SHOWN)
            lines.last() +=
                QStringLiteral(" (and %1 more of this kind; --all shows them)").arg(count - SHOWN);
    }
    if (lines.size() > most) {
        const qsizetype more = lines.size() - most;
        lines.resize(most);
        lines << QStringLiteral("... and %1 more lines").arg(more);
    }
    return lines;
}

QJsonObject objectOf(const Finding& finding) {
    const auto textOrNull = [](const QString& text) {
        return text.isEmpty() ? QJsonValue() : QJsonValue(text);
    };
    QJsonArray more;
    for (const qint64 row : finding.more)
        more.append(row);
    return {{QStringLiteral("severity"), finding.error ? QStringLiteral("error") : QStringLiteral("warning")},
            {QStringLiteral("table"), textOrNull(finding.table)},
            {QStringLiteral("row"), finding.row > 0 ? QJsonValue(finding.row) : QJsonValue()},
            {QStringLiteral("more"), more},
            {QStringLiteral("place"), textOrNull(finding.place)},
            {QStringLiteral("column"), textOrNull(finding.column)},
            {QStringLiteral("message"), finding.message}};
}

int check(const CommandLine& line) {
    const std::vector<Finding> findings = checkCatalogue(line.arguments.at(0));
    QJsonArray array;
    qsizetype errors = 0;
    for (const Finding& finding : findings) {
        errors += finding.error ? 1 : 0;
        array.append(objectOf(finding));
    }
    const qsizetype warnings = static_cast<qsizetype>(findings.size()) - errors;
    const QString max = QStringLiteral("max"), all = QStringLiteral("all");
    const qint64 most = line.options.isSet(max) ? line.number(max, 1) : std::numeric_limits<qint32>::max();
    if (line.json())
        print(QJsonDocument(array));
    else
        for (const QString& text : linesOf(findings, most, line.options.isSet(all)))
            print(text);
    if (line.json())
        return errors > 0 ? EXIT_FAULTS : EXIT_DONE;
    if (!findings.empty())
        printError(QStringLiteral("%1 error%2, %3 warning%4")
                       .arg(errors)
                       .arg(errors == 1 ? QString() : QStringLiteral("s"))
                       .arg(warnings)
                       .arg(warnings == 1 ? QString() : QStringLiteral("s")));
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
            {{QStringLiteral("max"), QStringLiteral("Prints no more than N lines."), QStringLiteral("N")},
             {QStringLiteral("all"), QStringLiteral("Prints every line of faults that are alike.")}},
            check};
}

#include "tzf/commands/filter_options.h"

#include "tzf/tool_error.h"

QList<QCommandLineOption> filterOptions() {
    return {{QStringLiteral("lingua"),
             QStringLiteral("Number of the language; the catalogue's own without it."), QStringLiteral("N")},
            {QStringLiteral("mercato"),
             QStringLiteral("Number of the market; the catalogue's own without it."), QStringLiteral("N")},
            {QStringLiteral("gruppo"), QStringLiteral("Groups of the user, as /a/b/ (\"\" for none)."),
             QStringLiteral("LIST")}};
}

void applyFilters(const CommandLine& line, Class_Progetto_Aperto& project) {
    const auto choose = [&](const QString& option, QString& current) {
        if (!line.options.isSet(option))
            return;
        current = QString::number(line.number(option, 1));
        if (project.DB.Restituisci_Key_Lingua_Mercato(current.toInt()).isEmpty())
            throw ToolError(
                QStringLiteral("--%1: the catalogue has no row %2 in Lingue").arg(option, current));
    };
    choose(QStringLiteral("lingua"), project.Lingua);
    choose(QStringLiteral("mercato"), project.Mercato);
    if (line.options.isSet(QStringLiteral("gruppo")))
        project.Gruppo = line.options.value(QStringLiteral("gruppo"));
    project.Traduzioni.Carica_Testi_Codificati(project.Lingua);
}

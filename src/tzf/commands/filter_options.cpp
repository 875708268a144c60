#include "tzf/commands/filter_options.h"

#include <QMap>

#include "core/catalogue_db/schema.h"
#include "tzf/tool_error.h"

QList<QCommandLineOption> filterOptions() {
    return {{QStringLiteral("lingua"),
             QStringLiteral("Language, by number or key (DE); the catalogue's own without it."),
             QStringLiteral("N|KEY")},
            {QStringLiteral("mercato"),
             QStringLiteral("Market, by number or key; the catalogue's own without it."),
             QStringLiteral("N|KEY")},
            {QStringLiteral("gruppo"), QStringLiteral("Groups of the user, as /a/b/ (\"\" for none)."),
             QStringLiteral("LIST")}};
}

namespace {

/// The keys of the catalogue's languages and markets, by number.
QMap<int, QString> keysOf(const Class_Progetto_Aperto& project) {
    QMap<int, QString> keys;
    for (int number = 1; number <= ULTIMA_LINGUA; ++number)
        if (const QString key = project.DB.Restituisci_Key_Lingua_Mercato(number); !key.isEmpty())
            keys.insert(number, key);
    return keys;
}

}  // namespace

void applyFilters(const CommandLine& line, Class_Progetto_Aperto& project) {
    const auto choose = [&](const QString& option, QString& current) {
        if (!line.options.isSet(option))
            return;
        const QString value = line.options.value(option);
        const QMap<int, QString> keys = keysOf(project);
        bool number = false;
        int found = value.toInt(&number);
        for (auto key = keys.begin(); key != keys.end() && !number; ++key)
            if (key->compare(value, Qt::CaseInsensitive) == 0)
                found = key.key();
        if (!keys.contains(found)) {
            QStringList choice;
            for (auto key = keys.begin(); key != keys.end(); ++key)
                choice << QStringLiteral("%1 (%2)").arg(*key).arg(key.key());
            throw ToolError(QStringLiteral("--%1: the catalogue has no \"%2\"; there are: %3")
                                .arg(option, value, choice.join(QStringLiteral(", "))));
        }
        current = QString::number(found);
    };
    choose(QStringLiteral("lingua"), project.Lingua);
    choose(QStringLiteral("mercato"), project.Mercato);
    if (line.options.isSet(QStringLiteral("gruppo")))
        project.Gruppo = line.options.value(QStringLiteral("gruppo"));
    project.Traduzioni.Carica_Testi_Codificati(project.Lingua);
}

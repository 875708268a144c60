#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

#include "core/archivio/archivio.h"
#include "tzf/commands/command.h"
#include "tzf/package/database_reader.h"
#include "tzf/tool_error.h"

namespace {

int list(const CommandLine& line) {
    const Archivio archive(line.arguments.at(0));
    require(archive.Stato(), line.arguments.at(0));
    QJsonArray array;
    if (!line.json())
        print(QStringLiteral("%1 %2  %3")
                  .arg(QStringLiteral("size"), 12)
                  .arg(QStringLiteral("compressed"), 12)
                  .arg(QStringLiteral("name")));
    for (const Voce_Archivio& entry : archive.Voci()) {
        if (line.json())
            array.append(QJsonObject{{QStringLiteral("name"), entry.Nome},
                                     {QStringLiteral("size"), entry.Byte},
                                     {QStringLiteral("compressed"), entry.Compressi},
                                     {QStringLiteral("encrypted"), entry.Cifrata}});
        else
            print(QStringLiteral("%1 %2  %3%4")
                      .arg(entry.Byte, 12)
                      .arg(entry.Compressi, 12)
                      .arg(entry.Nome, entry.Cifrata || entry.E_Cartella()
                                           ? QString()
                                           : QStringLiteral("  (not encrypted)")));
    }
    if (line.json())
        print(QJsonDocument(array));
    return EXIT_DONE;
}

QJsonObject rowObject(const TableReader& rows) {
    static const QList<QPair<QString, QString>> members = {
        {QStringLiteral("id"), QStringLiteral("ID")},
        {QStringLiteral("key"), QStringLiteral("Chiave")},
        {QStringLiteral("language"), QStringLiteral("Descrizione_Lingua")},
        {QStringLiteral("market"), QStringLiteral("Descrizione_Mercato")},
        {QStringLiteral("image"), QStringLiteral("Immagine")}};
    QJsonObject object;
    for (const auto& [member, column] : members)
        object.insert(member, rows.text(column));
    object.insert(QStringLiteral("id"), rows.text(QStringLiteral("ID")).toInt());
    const auto active = [&](const QString& column) {
        return rows.text(column).compare(u"TRUE", Qt::CaseInsensitive) == 0;
    };
    object.insert(QStringLiteral("active_language"), active(QStringLiteral("Attiva_Lingua")));
    object.insert(QStringLiteral("active_market"), active(QStringLiteral("Attiva_Mercato")));
    return object;
}

int info(const CommandLine& line) {
    const QString& package = line.arguments.at(0);
    const Archivio archive(package);
    require(archive.Stato(), package);
    const qsizetype position = archive.Cerca_Voce(NOME_DATABASE);
    if (position < 0)
        throw ToolError(QStringLiteral("%1: the package holds no catalogue").arg(package));
    const QTemporaryDir temporary;
    QString path;
    require(archive.Scompatta_Voce(position, temporary.path(), path), package);
    const DatabaseReader database(path);

    QJsonObject system, counts;
    if (database.hasTable(QStringLiteral("SYSTEM"))) {
        TableReader rows = database.read(QStringLiteral("SYSTEM"));
        while (rows.next())
            if (!system.contains(rows.text(QStringLiteral("KEY"))))  // the first row of a key counts
                system.insert(rows.text(QStringLiteral("KEY")),
                              rows.text(QStringLiteral("VALORE")).trimmed());
    }
    QJsonArray languages;
    if (database.hasTable(QStringLiteral("Lingue"))) {
        TableReader rows = database.read(QStringLiteral("Lingue"));
        while (rows.next())
            languages.append(rowObject(rows));
    }
    for (const QString& table : database.tables())
        counts.insert(table, database.rows(table));
    if (line.json()) {
        print(QJsonDocument(QJsonObject{{QStringLiteral("system"), system},
                                        {QStringLiteral("languages"), languages},
                                        {QStringLiteral("rows"), counts}}));
        return EXIT_DONE;
    }
    print(QStringLiteral("SYSTEM"));
    for (auto it = system.begin(); it != system.end(); ++it)
        print(QStringLiteral("  %1 = %2").arg(it.key(), it->toString()));
    print(QStringLiteral("Languages and markets"));
    for (const auto value : languages) {
        const QJsonObject row = value.toObject();
        const auto mark = [&](const char* member) {
            return row.value(QLatin1String(member)).toBool() ? "" : " (off)";
        };
        print(QStringLiteral("  %1 %2  %3%4, %5%6")
                  .arg(row.value(QLatin1String("id")).toInt(), 2)
                  .arg(row.value(QLatin1String("key")).toString(),
                       row.value(QLatin1String("language")).toString(),
                       QLatin1String(mark("active_language")), row.value(QLatin1String("market")).toString(),
                       QLatin1String(mark("active_market"))));
    }
    print(QStringLiteral("Rows"));
    for (auto it = counts.begin(); it != counts.end(); ++it)
        print(QStringLiteral("  %1 %2").arg(it->toInteger(), 9).arg(it.key()));
    return EXIT_DONE;
}

}  // namespace

Command listCommand() {
    return {QStringLiteral("list"),
            {QStringLiteral("PACKAGE")},
            QStringLiteral("lists the entries of a package"),
            QStringLiteral("Lists the entries of a package in its order, with their sizes."),
            true,
            {},
            list};
}

Command infoCommand() {
    return {QStringLiteral("info"),
            {QStringLiteral("PACKAGE")},
            QStringLiteral("shows settings, languages and size of a catalogue"),
            QStringLiteral(
                "Shows the keys of SYSTEM, the languages and markets, and the number of rows of the tables."),
            true,
            {},
            info};
}

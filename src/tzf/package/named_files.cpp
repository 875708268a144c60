#include "tzf/package/named_files.h"

#include <QSet>

#include "core/archivio/nomi_voci.h"
#include "core/base/percorsi.h"
#include "core/catalogue_db/schema.h"

namespace {

/// Names without folders and without regard to case: what is written wrong is told as such, not as unnamed.
QString nameOf(const QString& file) {
    return Nome_File(Nome_Di_Ricerca(file.trimmed()), u"/").toCaseFolded();
}

void addColumn(const DatabaseReader& database, const QString& table, const QString& column,
               QSet<QString>& names) {
    TableReader rows = database.read(table);
    const int position = rows.position(column);
    while (position >= 0 && rows.next())
        names.insert(nameOf(rows.text(position)));
}

QSet<QString> namesIn(const DatabaseReader& database) {
    QSet<QString> names;
    QList<std::pair<QString, QString>> columns = {
        {QStringLiteral("Prodotti"), QStringLiteral("Foto_1_Prodotto")},
        {QStringLiteral("Prodotti"), QStringLiteral("Foto_2_Prodotto")},
        {QStringLiteral("Prodotti"), QStringLiteral("Mappa_Associata")},
        {QStringLiteral("Lingue"), QStringLiteral("Immagine")}};
    for (int language = 1; language <= ULTIMA_LINGUA; ++language)
        columns.append({QStringLiteral("Scheda_Prodotti"), QStringLiteral("Allegato_%1").arg(language)});
    const QString model = QStringLiteral("Struttura_Componenti");
    if (database.hasTable(model)) {
        TableReader rows = database.read(model);
        while (rows.next()) {
            const QString kind = rows.text(QStringLiteral("Tipo_Colonna"));
            if (kind == u"Image" || kind == u"Document")
                for (const auto* table : {"Componenti", "Componenti_Web"})
                    columns.append({QLatin1String(table), rows.text(QStringLiteral("Nome_Colonna_Tabella"))});
        }
    }
    for (const auto& [table, column] : std::as_const(columns))
        if (database.hasTable(table))
            addColumn(database, table, column, names);
    return names;
}

/// Layouts and pictures of the home page have names of their own, which settings switch on.
bool hasFixedName(const QString& name) {
    static const QStringList starts = {QStringLiteral("logo_azienda."), QStringLiteral("immagine_intro."),
                                       QStringLiteral("immagine_home."),
                                       QStringLiteral("immagine_contatti.")};
    return name.endsWith(QStringLiteral(".mdp")) ||
           std::any_of(starts.begin(), starts.end(),
                       [&](const QString& start) { return name.startsWith(start); });
}

}  // namespace

QStringList unnamedFiles(const SourceFolder& source, const QString& database) {
    QStringList unnamed;
    if (database.isEmpty())
        return unnamed;
    const QSet<QString> names = namesIn(DatabaseReader(database));
    for (const SourceFile& file : source.files)
        if (const QString name = nameOf(file.entry);
            !names.contains(name) && !hasFixedName(name) && !source.isKept(file.entry))
            unnamed << file.entry;
    return unnamed;
}

#pragma once

#include "support/catalogo_di_prova.h"
#include "tzf/tables/csv.h"
#include "tzf/tool.h"

/// Writes the source folder from which the tool packs the same catalogue, and answers its path.
inline QString sourceOf(const Catalogo_Di_Prova& catalogue, const QString& folder) {
    writeFile(folder + "/catalogue.json", R"({"output": "prova.TZF", "complete": false, "keep": ["*"]})");
    for (const Tabella_Prova& table : catalogue.Tabelle()) {
        if (table.Colonne.isEmpty())
            continue;
        QByteArray csv;
        std::vector<CsvField> fields;
        for (const QString& column : table.Colonne)
            fields.push_back({column.toUtf8(), false});
        appendCsvRow(csv, fields);
        for (const auto& row : table.Righe) {
            fields.clear();
            for (const Valore_Prova& value : row)
                fields.push_back(value ? CsvField{value->toUtf8(), false} : CsvField{});
            appendCsvRow(csv, fields);
        }
        writeFile(folder + '/' + table.Nome + ".csv", csv);
    }
    for (const auto& [entry, content] : catalogue.File())
        writeFile(folder + '/' + entry, content);
    return folder;
}

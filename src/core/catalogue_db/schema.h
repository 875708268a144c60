#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "core/catalogue_db/engine/database.h"

/// A column that the viewer knows.
struct Colonna_Nota {
    QString Nome;
    bool Necessaria = true;  ///< the viewer reads it; without it something doesn't show
    int Lingua = 0;          ///< language number of a column such as `Traduzione_3`, 0 for other columns
};

/// A table that the viewer knows.
struct Tabella_Nota {
    QString Nome;
    bool Necessaria = true;  ///< without it the catalogue can't be walked
    std::vector<Colonna_Nota> Colonne;
};

/// Highest number of a language or market.
inline constexpr int ULTIMA_LINGUA = 11;

/// All tables of a catalogue, with the columns that the viewer knows.
const std::vector<Tabella_Nota>& Tabelle_Note();
/// The names of a table's known columns, in order; none for a table that the viewer doesn't know. The table's
/// name without regard to case.
QStringList Colonne_Note(const QString& tabella);
/// A column as catalogues declare it: `INTEGER`, `REAL` or `TEXT`, with the comparison of that type.
Definizione_Colonna Definizione_Nota(const QString& tabella, const QString& colonna);
/// The comparison that goes with a declared type: texts compare without regard to case.
QString Confronto_Del_Tipo(const QString& tipo);

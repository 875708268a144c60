#pragma once

#include "core/catalogue_db/engine/database.h"

/// Makes a catalogue's database from scratch: compact, with the catalogues' password and the indexes that the
/// viewer's questions want. All operations fail with `Errore_DB`.
class Creazione_Database {
  public:
    /// An existing file is replaced.
    explicit Creazione_Database(const QString& percorso);

    /// Makes a table; the statement adds a row to it, with one value for each column.
    Statement Tabella(const QString& nome, const std::vector<Definizione_Colonna>& colonne) const;
    /// Adds indexes and password, and closes the file. Without it the file is unfinished.
    void Termina();

  private:
    Database database_;
};

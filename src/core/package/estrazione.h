#pragma once

#include <QHash>
#include <QString>
#include <QTemporaryDir>

#include "core/archivio/archivio.h"
#include "core/base/porte.h"

/// Extraction from packages with its memory: which files were extracted, and where to the last time. Entries
/// are found by the end of their names (`Nomi_Voci::Cerca`).
class Estrattore {
  public:
    explicit Estrattore(const Sistema& sistema) : sistema_(sistema) {}

    /// Full path of the extracted file, "" when there is none (`stato` then tells why). A file of the entry's
    /// name beside the package wins over the package's content, and one in the last extraction folder, or one
    /// that came from this very entry to where it would go now, over a new extraction. `cartella` "" is the
    /// system's temporary folder.
    QString Estrai_Da_Pacchetto(const QString& pacchetto, const QString& nome, const QString& cartella,
                                Avanzamento* avanzamento = nullptr, Stato_Archivio* stato = nullptr);
    /// Forgets the last extraction folder, so that the next file comes out of its package.
    void Dimentica_Cartella() { Ultima_Cartella_Estrazione_.clear(); }
    /// Deletes every extracted file that still exists.
    void Elimina_File_Estratti();

  private:
    const Sistema& sistema_;
    QHash<QString, QString> estratti_;  ///< extracted files, and the package and entry that each came from
    QString Ultima_Cartella_Estrazione_;
};

/// One entry of a package in a file for one use, in a fresh folder of its own, which goes with the object. A
/// file beside the package wins here too; that one is copied.
class Estrazione_Privata {
  public:
    Estrazione_Privata(const Sistema& sistema, const QString& pacchetto, const QString& nome);

    /// "" when the entry can't be had; `Stato` then tells why.
    const QString& Percorso() const { return percorso_; }
    Stato_Archivio Stato() const { return stato_; }

  private:
    QTemporaryDir cartella_;
    QString percorso_;
    Stato_Archivio stato_ = ARCHIVIO_OK;
};

/// Copies a file to where none is; the copy is the user's alone (0600). False when it can't, and then there
/// is none.
bool Copia_Privata(const QString& da, const QString& a);

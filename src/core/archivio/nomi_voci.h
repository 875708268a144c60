#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// The form in which an entry's name is looked for: "/" between folders, no blanks at its ends.
QString Nome_Di_Ricerca(const QString& voce);

/// The file name that an entry gets on disk: what follows its last slash of either kind; "" for a name that
/// no file can safely have.
QString Nome_Sicuro(const QString& voce);

/// The one look-up of entries by name, for an archive and for what is yet to become one.
class Nomi_Voci {
  public:
    Nomi_Voci() = default;
    /// Names of the entries in the archive's order.
    explicit Nomi_Voci(const QStringList& voci);

    /// Position of the last entry whose name ends with `nome` (exact case, so "a.jpg" finds "xa.jpg" too:
    /// kept); -1 for none.
    qsizetype Cerca(const QString& nome) const;
    /// The entry's name as it is looked for.
    const QString& Nome(qsizetype posizione) const { return nomi_[posizione]; }

  private:
    QStringList nomi_;
    mutable std::vector<qsizetype> ordine_;  ///< by the names read backwards; made by the first search
};

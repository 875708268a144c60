#pragma once

#include <QString>

#include "core/base/collezione.h"

/// One entry of a product's sheet.
struct Class_scheda {
    QString Key;
    QString Titolo;
    QString Descrizione;
    QString Allegato;       ///< entry of the package, "" for none
    QString Tipo_Allegato;  ///< carried, not shown
};

/// The entries of one product's sheet.
class Collection_scheda {
  public:
    Class_scheda& Add(const QString& key) {
        auto voce = std::make_shared<Class_scheda>();
        voce->Key = key;
        return voci_.Inserisci(key, std::move(voce));
    }
    Class_scheda& Item(const QString& key) const { return voci_.Item(key); }
    Class_scheda& Item(qsizetype posizione) const { return voci_.Item(posizione); }
    qsizetype Count() const { return voci_.Count(); }
    void Remove(const QString& key) { voci_.Remove(key); }
    void Remove(qsizetype posizione) { voci_.Remove(posizione); }
    auto begin() const { return voci_.begin(); }
    auto end() const { return voci_.end(); }

  private:
    Collezione<Class_scheda> voci_;
};

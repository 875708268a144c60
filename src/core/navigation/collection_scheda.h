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
using Collection_scheda = Collection_Record<Class_scheda>;

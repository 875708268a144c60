#pragma once

#include <QString>

/// What filters everything shown. Language and market are `ID`s of table `Lingue`, kept as text.
struct Filtri {
    QString Lingua;
    QString Mercato;
    QString Gruppo;  ///< groups of the user, a list "/a/b/" that names one at least; "" for none
    QString Utente;  ///< login; "" when nobody is logged in
};

#pragma once

#include <QSizeF>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "core/base/porte.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/navigation/collection_albero.h"
#include "core/navigation/collection_scheda.h"

// Layout of the sheet, in twips.
inline constexpr int PASSO_SCHEDA = 60;              ///< between two rows, and below the last
inline constexpr int PASSO_DIDASCALIA_SCHEDA = 120;  ///< between a caption and its value, and below the link
inline constexpr int LARGHEZZA_FOTO_SCHEDA = 3750;   ///< box of a photograph
inline constexpr int ALTEZZA_FOTO_SCHEDA = 3000;

/// One row of titled text on the sheet.
struct Riga_Scheda {
    QString Titolo;
    QString Descrizione;
    QString Allegato;  ///< path of the extracted attachment; "" shows no icon
};

struct Foto_Scheda {
    QString Percorso;
    QSizeF Misura;  ///< twips, fitted into the box
};

/// What the product sheet shows for one node; as it comes, what it shows for none.
struct Scheda_Prodotto {
    bool Label_Help_Albero = true;  ///< the help text stands in place of all else
    bool Link_Disegno = false;      ///< products have a drawing to offer, groups don't
    QString Nome, Codice, Descrizione;
    std::vector<Riga_Scheda> Righe;
    std::optional<Foto_Scheda> Foto_1, Foto_2;
};

/// Size of a picture file in pixels; none when it can't be loaded.
using Misura_Immagine = std::function<std::optional<QSizeF>(const QString& file)>;

/// Fits the picture of a file into the box and answers height divided by width, 0 for a box without width. A
/// file that can't be loaded leaves the box as it was.
double Rapporto_Immagine(const QString& file, double& larghezza, double& altezza,
                         const Misura_Immagine& misura);

/// Replaces the entries of a product's sheet by those of a language; the key's quotes are doubled by the
/// caller. What the catalogue can't give is missing, without a report.
void Carica_Scheda_Prodotto(const Class_DBOper& db, const QString& key, const QString& lingua,
                            Collection_scheda& scheda);

struct Contesto_Scheda {
    const Class_DBOper& DB;
    const Collection_Albero& Albero;
    Fonte_File& File;
    QString Lingua;
    Misura_Immagine Misura;
};

/// The sheet of a node, "" for none. It extracts attachments and photographs; those that the catalogue
/// doesn't hold, and photographs that can't be loaded, are left out. Fails with `Errore_Collezione` on a key
/// that isn't in the model.
Scheda_Prodotto Carica_Scheda(const Contesto_Scheda& contesto, const QString& key);

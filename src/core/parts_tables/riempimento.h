#pragma once
// How a grid is filled, whichever it is: a grid is a list of columns and a source of rows.

#include <QStringList>
#include <functional>
#include <initializer_list>
#include <vector>

#include "core/base/filtri.h"
#include "core/base/numeri.h"
#include "core/base/porte.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/griglia/colonne_griglia.h"
#include "core/localisation/collection_traduzioni.h"

/// What the fill of a grid, and a click on it, work on.
struct Contesto_Griglia {
    const Class_DBOper& DB;
    const Collection_Traduzioni& Traduzioni;
    const Numeri& Numeri_;
    Fonte_File& File;   ///< what the cells name
    Sistema& Sistema_;  ///< opens documents
    Filtri Filtri_;
    /// The access test; false refuses. A log-in in it changes the filters: they are taken anew.
    std::function<bool(Filtri& filtri)> Verifica_Accesso;
    std::function<void()> Mostra_Intro;  ///< what a refusal shows
};

struct Riga_Griglia {
    QStringList Celle;
    QString Codice;       ///< of its component
    QString Chiave = {};  ///< key of the line of the cart that it shows
};

/// Where the columns and rows of one fill come from. What can't be read fails with an exception, which ends
/// the fill.
class Sorgente_Griglia {
  public:
    virtual ~Sorgente_Griglia() = default;
    /// Fills `Colonne`. `con_righe` false: the rows stay as they are.
    virtual void Leggi_Colonne(bool con_righe) = 0;
    /// Fills `Righe`; a last column may come with them.
    virtual void Leggi_Righe() = 0;
    /// The tag of a cell just written. What shows in the place of its text is set there.
    virtual QString Tag(Griglia& griglia, int riga, int colonna, const QString& codice) = 0;

    /// Why there is no row.
    virtual Assenza Motivo() const { return Assenza::Vuota; }

    std::vector<Colonna_Griglia> Colonne;
    std::vector<Riga_Griglia> Righe;
};

/// Fills a grid. `ricarica_righe` false rebuilds the columns only. A grid without rows is hidden and emptied;
/// `Griglia::Motivo` says why. Any failure ends the fill silently with the grid hidden and the rows it had by
/// then; so does a row or a column beyond the tags. The filters of `contesto` are those after the access
/// test. `Griglia::Cambiata` is called once, unless access is refused. Answers the columns, those known so
/// far after a failure.
std::vector<Colonna_Griglia> Riempi_Griglia(Contesto_Griglia& contesto, Sorgente_Griglia& sorgente,
                                            bool ricarica_righe, Griglia& griglia, Tag_Griglia& tag);

/// The columns of the catalogue's model that the filters let through, but those of some kinds.
std::vector<Colonna_Griglia> Colonne_Catalogo(const Contesto_Griglia& contesto,
                                              std::initializer_list<Genere_Colonna> esclusi);
/// What a field shows in a column of the catalogue: a number by its mask, a text cut to its size. A text that
/// has to be cut to a negative length fails with `std::out_of_range`.
QString Cella_Catalogo(const Colonna_Griglia& colonna, const Valore& campo, const Numeri& numeri);
/// The tag of a cell of kind `Image` or `Document`: its text, in the place of which a picture shows; "" for a
/// blank one.
QString Tag_Allegato(const Colonna_Griglia& colonna, Cella& cella);
/// Position of a field; one that isn't there fails with `Errore_DB`.
int Cerca_Campo(const Recordset& record, QStringView nome);

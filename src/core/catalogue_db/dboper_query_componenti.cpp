// The filtered statements on parts. Their texts decide which rows appear, blank by blank.

#include "core/base/testo.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"
#include "core/catalogue_db/filtri_sql.h"

using namespace Qt::StringLiterals;

namespace {
const QString COLONNE_MODELLO = QStringLiteral(
    "SELECT  Nome_Colonna_Tabella, Titolo_Colonna,Key_Lingua,Key_Mercato,Tipo_Colonna "
    "FROM Struttura_Componenti WHERE Visualizzato='Yes' ORDER BY Ordine ASC;");
const QString COLONNE_MODELLO_CON_INDICE = QStringLiteral(
    "SELECT  Nome_Colonna_Tabella, Titolo_Colonna,Key_Lingua,Key_Mercato,Tipo_Colonna,Indice_Primario "
    "FROM Struttura_Componenti WHERE Visualizzato='Yes' ORDER BY Ordine ASC;");

/// The code's column under a fixed name, for a select list; "" without a primary column.
QString Come_Codice(const QString& primaria) {
    return primaria.isEmpty() ? QString() : u"["_s + primaria + u"]as Codice_Componente,"_s;
}

QString Dove(const QString& condizione) {
    return condizione.isEmpty() ? QString() : u" WHERE "_s + condizione;
}
}  // namespace

Recordset Class_DBOper::Recordset_Componenti_Web(const QString& prodotto, const QString& mercato) const {
    const QString colonne = Elenco_Colonne(COLONNE_MODELLO);
    return Apri_Recordset(u"SELECT Key_Riferimento,Tipo_Associazione,"_s + colonne +
                          u",Quantita_min,Key_Nota_1,Key_Nota_2,Key_Nota_3 FROM Componenti_Web WHERE "_s
                          u"Key_Prodotto = '"_s +
                          prodotto + u"' AND "_s + Filtri_SQL::Condizione_Mercato(mercato) +
                          u" ORDER BY Ordine ;"_s);
}

Recordset Class_DBOper::Recordset_Componenti_Web_Filtrato(const QString& prodotto, const QString& mercato,
                                                          const QString& riferimento, const QString& gruppi,
                                                          const QString& codice) const {
    const QString colonne = Elenco_Colonne(COLONNE_MODELLO);
    const QString condizione =
        Filtri_SQL::Condizione_Componenti(prodotto, mercato, riferimento, gruppi, codice, QString());
    return Apri_Recordset(u"SELECT Key_Riferimento,Tipo_Associazione,"_s + colonne +
                          u" FROM Componenti_Web"_s + Dove(condizione) + u" ORDER BY Ordine ;"_s);
}

Recordset Class_DBOper::Recordset_Tabella_Componenti_Web(const QString& prodotto, const QString& mercato,
                                                         const QString& riferimento, const QString& gruppi,
                                                         const QString& codice,
                                                         const QString& condizione) const {
    const QString tutte =
        Filtri_SQL::Condizione_Componenti(prodotto, mercato, riferimento, gruppi, codice, condizione);
    return Apri_Recordset(u"SELECT * FROM Componenti_Web"_s + Dove(tutte) + u" ORDER BY Ordine ;"_s);
}

Recordset Class_DBOper::Recordset_Componenti(const QString& condizione) const {
    QString elenco = u"*,"_s + Come_Codice(Colonna_Primaria());
    elenco.chop(1);
    return Apri_Recordset(u"SELECT "_s + elenco + u" FROM Componenti"_s +
                          (condizione.isEmpty() ? QStringLiteral(" ;") : Dove(condizione) + u";"_s));
}

Recordset Class_DBOper::Recordset_Componenti_Filtrato(const QString& condizione,
                                                      const QString& codice) const {
    const QString primaria = Colonna_Primaria();
    const QString elenco =
        Come_Codice(primaria) + u"NULL as Key_Riferimento, "_s + Elenco_Colonne(COLONNE_MODELLO_CON_INDICE);
    QString tutte = condizione;
    if (!codice.isEmpty() && !primaria.isEmpty()) {
        tutte = u"( "_s + primaria + u" = '"_s + codice + u"' )"_s;
        if (!condizione.isEmpty())
            tutte += u" AND ( "_s + condizione + u" )"_s;
    }
    return Apri_Recordset(u"SELECT "_s + elenco + u" FROM Componenti"_s + Dove(tutte) + u" ;"_s);
}

Recordset Class_DBOper::Recordset_Tabella_Componenti(const QString& codice, const QString& condizione) const {
    const QString primaria = Colonna_Primaria();
    QString elenco = u"*,1 as Tipo_associazione,'-#-' as Key_Prodotto,"_s + Come_Codice(primaria);
    elenco.chop(1);
    QString tutte = condizione;
    if (!primaria.isEmpty()) {
        tutte = primaria + u" = '"_s + codice + u"'"_s;
        if (!condizione.isEmpty())
            tutte += u" AND ("_s + condizione + u" )"_s;
    }
    return Apri_Recordset(u"SELECT "_s + elenco + u" FROM Componenti"_s + Dove(tutte) + u" ;"_s);
}

bool Class_DBOper::Esite_Nota_Tabella_Associazione(const QString& prodotto, const QString& mercato,
                                                   const QString& riferimento, const QString& gruppi,
                                                   const QString& codice, const QString& condizione,
                                                   const QString& lingua) const {
    return Con_Trappola(false, [&](bool& esiste) {
        for (auto righe =
                 Recordset_Tabella_Componenti_Web(prodotto, mercato, riferimento, gruppi, codice, condizione);
             !righe.EOF_() && !esiste; righe.MoveNext()) {
            const QString nota = righe.Campo(u"Key_Nota_1").Testo();
            esiste =
                !nota.isEmpty() &&
                !Restituisci_Traduzioni_Nota_Componenti_Mappe(Con_Apici_Raddoppiati(nota), lingua).isEmpty();
        }
    });
}

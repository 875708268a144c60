// Codes and quantities of parts.

#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

void Class_DBOper::Restituisci_Codice_Componente(const QString& prodotto, const QString& riferimento,
                                                 const QString& mercato, int tipo, QString& elenco) const {
    elenco = Con_Trappola(QStringLiteral("|"), [&](QString& codici) {
        const QString condizione = tipo == 0 ? QString() : u"Tipo_Associazione = "_s + QString::number(tipo);
        auto righe = Recordset_Tabella_Componenti_Web(prodotto, mercato, riferimento, QString(), QString(),
                                                      condizione);
        if (righe.EOF_())
            righe = Recordset_Tabella_Componenti_Web(prodotto, mercato, QString(), QString(), riferimento,
                                                     condizione);
        for (; !righe.EOF_(); righe.MoveNext()) {
            const Valore codice = righe.Campo(u"Codice_Componente");
            if (!codice.E_Nullo())
                codici += codice.Testo() + u'|';
        }
    });
    if (elenco == u"|")
        elenco.clear();
}

void Class_DBOper::Restituisci_Quantita_Componente(const QString& prodotto, const QString& codice,
                                                   const QString& riferimento, const Filtri& filtri,
                                                   QString& quantita) const {
    quantita = Con_Trappola(QString(), [&](QString& risposta) {
        auto righe = Recordset_Tabella_Componenti_Web(prodotto, filtri.Mercato, riferimento, filtri.Gruppo,
                                                      codice, QString());
        if (righe.EOF_()) {
            risposta = Quantita_Da_Componenti(codice, filtri);
            if (risposta.isEmpty())
                risposta = QStringLiteral("1");
            return;
        }
        for (; !righe.EOF_(); righe.MoveNext())
            if (const Valore minima = righe.Campo(u"Quantita_min"); !minima.E_Nullo()) {
                risposta = minima.Testo();
                return;
            }
        risposta = QStringLiteral("1");
    });
}

QString Class_DBOper::Quantita_Da_Componenti(const QString& codice, const Filtri& filtri) const {
    for (auto colonne = Recorset_StrutturaComponenti(filtri.Lingua, filtri.Mercato, filtri.Gruppo);
         !colonne.EOF_(); colonne.MoveNext())
        if (colonne.Campo(u"Tipo_Colonna").Testo() == u"Quantity") {
            const Recordset riga = Recordset_Tabella_Componenti(codice, QString());
            return riga.EOF_() ? QString()
                               : riga.Campo(colonne.Campo(u"Nome_Colonna_Tabella").Testo()).Testo();
        }
    return {};
}

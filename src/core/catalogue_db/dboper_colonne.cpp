// The column model of the parts.

#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"
#include "core/catalogue_db/filtri_sql.h"

using namespace Qt::StringLiterals;

namespace {
bool E_Primaria(const Recordset& riga) {
    const QString primaria = riga.Campo(u"Indice_Primario").Testo();
    return primaria == u"Yes" || primaria == u"Si";
}
}  // namespace

bool Class_DBOper::Esiste_Colonna(const QString& nome, const Recordset& recordset) {
    return recordset.Campi().contains(nome);
}

Recordset Class_DBOper::Recorset_StrutturaComponenti(const QString& lingue, const QString& mercati,
                                                     const QString& gruppi) const {
    return Apri_Recordset(u"SELECT * FROM Struttura_Componenti WHERE Visualizzato = 'YES' AND "_s +
                          Filtri_SQL::Condizione_Struttura(lingue, mercati, gruppi) +
                          u" ORDER BY Ordine ;"_s);
}

QString Class_DBOper::Restituisci_NomeReale_Colonna() const {
    return Con_Trappola(QString(), [&](QString& nome) {
        for (auto righe = Apri_Recordset(
                 QStringLiteral("SELECT Nome_Colonna_Tabella,Indice_Primario FROM Struttura_Componenti "
                                "WHERE Visualizzato='Yes' ORDER BY Ordine ASC;"));
             !righe.EOF_(); righe.MoveNext())
            if (E_Primaria(righe)) {
                nome = righe.Campo(u"Nome_Colonna_Tabella").Testo();
                return;
            }
    });
}

qint16 Class_DBOper::Restituisci_Numero_Colonna_Primaria_Distinta(const QString& lingue,
                                                                  const QString& mercati,
                                                                  const QString& gruppi) const {
    return Con_Trappola(qint16{0}, [&](qint16& numero) {
        auto righe = Apri_Recordset(
            u"SELECT Titolo_Colonna,Indice_Primario FROM Struttura_Componenti WHERE Visualizzato='Yes' AND "_s +
            Filtri_SQL::Condizione_Struttura(lingue, mercati, gruppi) + u"  ORDER BY Ordine ASC;"_s);
        for (qint16 posizione = 0; !righe.EOF_(); righe.MoveNext(), ++posizione)
            if (E_Primaria(righe)) {
                numero = posizione;
                return;
            }
    });
}

void Class_DBOper::Restituisci_Tipo_Size_Colonna(const QString& nome, QString& tipo, QString& size) const {
    tipo.clear();
    size.clear();
    Con_Trappola(false, [&](bool&) {
        const Recordset riga = Apri_Recordset(
            u"SELECT Tipo_colonna,Size FROM Struttura_Componenti WHERE Nome_Colonna_Tabella ='"_s + nome +
            u"' ;"_s);
        if (riga.EOF_())
            return;
        tipo = riga.Campo(0).Testo();
        size = riga.Campo(1).Testo();
    });
}

QString Class_DBOper::Elenco_Colonne(const QString& sql) const {
    QStringList colonne;
    for (auto righe = Apri_Recordset(sql); !righe.EOF_(); righe.MoveNext()) {
        const QString nome = righe.Campo(u"Nome_Colonna_Tabella").Testo();
        const QString titolo = righe.Campo(u"Titolo_Colonna").Testo();
        colonne += nome == titolo ? nome : nome + u" as ["_s + titolo + u"]"_s;
    }
    return colonne.join(u", ");
}

QString Class_DBOper::Colonna_Primaria() const {
    return Primo_Valore(QStringLiteral("SELECT  Nome_Colonna_Tabella FROM Struttura_Componenti "
                                       "WHERE Visualizzato='Yes' AND Indice_Primario ='Yes' ;"))
        .Testo();
}

// Products: their row, their names and translations, the ways from a reference to a product.

#include "core/base/testo.h"
#include "core/catalogue_db/class_dboper.h"
#include "core/catalogue_db/con_trappola.h"

using namespace Qt::StringLiterals;

namespace {
QString Riga_Di(const QString& tabella, const QString& key) {
    return u"SELECT * FROM "_s + tabella + u" WHERE Key_Prodotto = '"_s + key + u"';"_s;
}
QString Riga_Prodotto(const QString& key) {
    return Riga_Di(QStringLiteral("Prodotti"), key);
}
QString Traduzione(const QString& colonna, const QString& key, const QString& lingua) {
    return u"SELECT "_s + colonna + lingua + u" FROM  Traduzioni_Prodotti  WHERE Key_Prodotto = '"_s + key +
           u"' ;"_s;
}
}  // namespace

QString Class_DBOper::Restituisci_NomeTavola_Prodotto(const QString& key) const {
    return Primo_Testo(Riga_Prodotto(key), u"Mappa_Associata");
}

QString Class_DBOper::Restituisci_NomeFoto_1_Prodotto(const QString& key) const {
    return Primo_Testo(Riga_Prodotto(key), u"Foto_1_Prodotto");
}

QString Class_DBOper::Restituisci_NomeFoto_2_Prodotto(const QString& key) const {
    return Primo_Testo(Riga_Prodotto(key), u"Foto_2_Prodotto");
}

QString Class_DBOper::Restituisci_KeyAssociazione_Prodotto(const QString& key) const {
    return Primo_Testo(Riga_Prodotto(key), u"Key_Associazione");
}

bool Class_DBOper::Restituisci_Esistenza_Tavola_Prodotto(const QString& key) const {
    return Con_Trappola(false, [&](bool& esiste) {
        const Recordset riga = Apri_Recordset(Riga_Prodotto(key));
        if (riga.EOF_())
            return;
        const Valore interruttore = riga.Campo(u"Flag_2");
        esiste = interruttore.E_Nullo() || interruttore.Testo().trimmed() == u"1";
    });
}

QString Class_DBOper::Restituisci_Descrizione_Root_albero() const {
    return Primo_Testo(QStringLiteral("SELECT * FROM Albero WHERE Key_Prodotto = 'R' ;"),
                       u"Descrizione_Nodo");
}

QString Class_DBOper::Restituisci_Traduzione_Prodotto(const QString& key, const QString& lingua) const {
    return Con_Trappola(QString(), [&](QString& testo) {
        const Recordset riga = Apri_Recordset(Riga_Di(QStringLiteral("Albero_Web"), key));
        if (riga.EOF_())
            return;
        const Valore valore = riga.Campo(QString(u"Testo_Visualizzato_"_s + lingua));
        testo = valore.E_Nullo() ? key : valore.Testo();
    });
}

QString Class_DBOper::Restituisci_NomeProdotto_Tradotto(const QString& key, const QString& lingua) const {
    if (key.isEmpty())
        return {};
    return Primo_Testo(u"SELECT Testo_Visualizzato_"_s + lingua +
                       u" FROM Albero_Web WHERE Key_Prodotto = '"_s + key + u"';"_s)
        .trimmed();
}

QString Class_DBOper::Restituisci_Prodotto_KeyVirtuale(const QString& associazione,
                                                       const QString& padre) const {
    return Con_Trappola(QString(), [&](QString& prodotto) {
        const Recordset riga = Apri_Recordset(
            u"SELECT Prodotti.Key_Prodotto FROM Prodotti,Albero_Web WHERE Key_Associazione = '"_s +
            associazione +
            u"' AND Prodotti.Key_Prodotto = Albero_Web.Key_Prodotto AND Albero_Web.Key_Padre = '"_s + padre +
            u"' ; "_s);
        prodotto = riga.EOF_() ? associazione : riga.Campo(u"Key_Prodotto").Testo();
    });
}

QString Class_DBOper::Restituisci_KeyProdotto_Cross_Reference(const QString& riferimento,
                                                              const QString& colonna,
                                                              const QString& associazione) const {
    const QString nodo = Primo_Testo(u"SELECT Key_Componente_Distinta_"_s + colonna +
                                     u" FROM Componenti_Mappe WHERE Key_Riferimento = '"_s + riferimento +
                                     u"' AND Key_Associazione='"_s + associazione + u"' ; "_s);
    const qint16 tipo = Tipo_Nodo(nodo);
    return tipo == 4 || tipo == 5 ? nodo : QString();
}

QString Class_DBOper::Restituisci_Descrizione_Tradotta(const QString& key, const QString& lingua) const {
    return Primo_Testo(Traduzione(QStringLiteral("Traduzione_Descrizione_"), key, lingua));
}

QString Class_DBOper::Restituisci_Matricola_Tradotta(const QString& key, const QString& lingua) const {
    return Primo_Testo(Traduzione(QStringLiteral("Traduzione_Matricola_"), key, lingua));
}

QString Class_DBOper::Restituisci_Nota_Tradotta(const QString& key, const QString& lingua) const {
    return Primo_Testo(Traduzione(QStringLiteral("Traduzione_Nota_"), key, lingua));
}

QString Class_DBOper::Restituisci_Traduzioni_Nota_Componenti_Mappe(const QString& nota,
                                                                   const QString& lingua) const {
    if (nota.isEmpty())
        return {};
    return Con_Trappola(QString(), [&](QString& testo) {
        const QString tradotta =
            Primo_Valore(u"SELECT Traduzione_Nota_"_s + lingua +
                         u" FROM Traduzioni_Componenti_Mappe WHERE Key = '"_s + nota + u"' ;"_s)
                .Testo();
        testo = tradotta.trimmed().isEmpty() ? nota : tradotta;
    });
}

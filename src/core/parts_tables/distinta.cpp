#include "core/parts_tables/distinta.h"

#include <QHash>

#include "core/base/testo.h"

namespace {

using enum Genere_Colonna;

class Sorgente_Distinta : public Sorgente_Griglia {
  public:
    Sorgente_Distinta(const Contesto_Griglia& contesto, const QString& prodotto, const QString& riferimento,
                      bool con_aggiungi)
        : contesto_(contesto),
          db_(contesto.DB),
          filtri_(contesto.Filtri_),
          prodotto_(prodotto),
          prodotto_sql_(Con_Apici_Raddoppiati(prodotto)),
          riferimento_sql_(Con_Apici_Raddoppiati(riferimento)),
          con_aggiungi_(con_aggiungi) {}

    void Leggi_Colonne(bool con_righe) override {
        Colonne.push_back(Colonna_Fissa(Riferimento, QStringLiteral("Key_Riferimento"), QStringLiteral("5")));
        if (con_aggiungi_)
            Colonne.push_back(Colonna_Fissa(Aggiungi, QString(), QStringLiteral("5")));
        for (Colonna_Griglia& colonna : Colonne_Catalogo(contesto_, {Discount, Quantity, Memo}))
            Colonne.push_back(std::move(colonna));
        if (db_.System_Leggi_Key(QStringLiteral("IMPOSTAZIONE_VISUALIZZA_QUANTITA")) == u"SI")
            Colonne.push_back(Colonna_Fissa(Testo, QStringLiteral("Quantita_Min"), QStringLiteral("10"),
                                            Testo_Catalogo(QStringLiteral("QUANTITA"))));
        if (!con_righe &&
            db_.Esite_Nota_Tabella_Associazione(prodotto_sql_, filtri_.Mercato, riferimento_sql_,
                                                filtri_.Gruppo, QString(), QString(), filtri_.Lingua))
            Aggiungi_Colonna_Note();
    }

    /// Reads each record once. Whether there is a column of notes is known when all are read: it is the
    /// last one, so the notes wait beside the rows. The rows asked for are those in which
    /// `Esite_Nota_Tabella_Associazione` looks for a note.
    void Leggi_Righe() override {
        Recordset record = db_.Recordset_Tabella_Componenti_Web(
            prodotto_sql_, filtri_.Mercato, riferimento_sql_, filtri_.Gruppo, QString(), QString());
        if (record.EOF_())
            return;
        const int codice = Cerca_Campo(record, u"Codice_Componente");
        const int tipo_associazione = Cerca_Campo(record, u"Tipo_associazione");
        const int nota = record.Posizione(u"Key_Nota_1");
        std::vector<int> campi;
        for (const Colonna_Griglia& colonna : Colonne)
            campi.push_back(colonna.Genere == Aggiungi ? -1 : Cerca_Campo(record, colonna.Nome));
        QStringList note;
        bool con_note = false;
        for (; !record.EOF_(); record.MoveNext()) {
            Riga_Griglia& riga = Righe.emplace_back();
            riga.Codice = record.Campo(codice).Testo();
            riga.Celle.reserve(static_cast<qsizetype>(campi.size()) + 1);
            const bool senza_riferimento = record.Campo(tipo_associazione).Testo() == u"1";
            for (size_t c = 0; c < campi.size(); ++c)
                riga.Celle += Componi_Cella(record, Colonne[c], campi[c], senza_riferimento);
            note += nota < 0 ? QString() : Traduci_Nota(record.Campo(nota).Testo());
            con_note = con_note || !note.last().isEmpty();
        }
        if (!con_note)
            return;
        Aggiungi_Colonna_Note();
        for (size_t r = 0; r < Righe.size(); ++r)
            Righe[r].Celle += note[static_cast<qsizetype>(r)];
    }

    QString Tag(Griglia& griglia, int riga, int colonna, const QString& codice) override {
        const Colonna_Griglia& modello = Colonne[static_cast<size_t>(colonna)];
        Cella& cella = griglia.At(riga, colonna);
        if (modello.Genere == Image || modello.Genere == Document)
            return Tag_Allegato(modello, cella);
        if (modello.Genere != Aggiungi)
            return {};
        cella.Picture = QStringLiteral("Carrello.bmp");
        return QStringLiteral("Add_Componente|") + codice + u'|' + prodotto_ + u'|' +
               griglia.TextMatrix(riga, 0);
    }

  private:
    QString Testo_Catalogo(const QString& key) const { return contesto_.Traduzioni.Item(key).Testo; }

    void Aggiungi_Colonna_Note() {
        Colonne.push_back(
            Colonna_Fissa(Nota_Associazione, QStringLiteral("Key_Nota_1"),
                          db_.System_Leggi_Key(QStringLiteral("IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE")),
                          Testo_Catalogo(QStringLiteral("Note"))));
    }

    QString Componi_Cella(const Recordset& record, const Colonna_Griglia& colonna, int campo,
                          bool senza_riferimento) const {
        if (colonna.Genere == Aggiungi)
            return {};
        if (colonna.Genere != Riferimento)
            return Cella_Catalogo(colonna, record.Campo(campo), contesto_.Numeri_);
        return senza_riferimento ? QStringLiteral("-")
                                 : contesto_.Numeri_.Formatta(record.Campo(campo).Testo(), u"###");
    }

    /// Notes repeat from row to row; each is looked up once for a fill.
    QString Traduci_Nota(const QString& key) {
        if (key.isEmpty())
            return {};
        if (const auto vista = note_.constFind(key); vista != note_.constEnd())
            return *vista;
        const QString key_sql = Con_Apici_Raddoppiati(key);
        const QString testo = db_.Restituisci_Traduzioni_Nota_Componenti_Mappe(key_sql, filtri_.Lingua);
        // A key without a translation comes back as it was asked.
        return *note_.insert(key, testo == key_sql ? key : testo);
    }

    const Contesto_Griglia& contesto_;
    const Class_DBOper& db_;
    const Filtri& filtri_;
    const QString prodotto_, prodotto_sql_, riferimento_sql_;
    const bool con_aggiungi_;
    QHash<QString, QString> note_;
};

}  // namespace

std::vector<Colonna_Griglia> Visualizza_Griglia_Distinta_Prodotto(Contesto_Griglia contesto,
                                                                  const QString& prodotto,
                                                                  const QString& riferimento,
                                                                  bool ricarica_righe, Griglia& griglia,
                                                                  Tag_Griglia& tag, bool con_aggiungi) {
    Sorgente_Distinta sorgente(contesto, prodotto, riferimento, con_aggiungi);
    return Riempi_Griglia(contesto, sorgente, ricarica_righe, griglia, tag);
}

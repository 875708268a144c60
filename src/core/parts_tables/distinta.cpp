#include "core/parts_tables/distinta.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "core/base/testo.h"

namespace {

constexpr qint16 LUNGHEZZA_PREDEFINITA = 20;  ///< characters of a text column without a size

/// What fills the cells of a column.
enum class Riempimento { Numero, Riferimento, Allegato, Aggiungi, Testo };

Riempimento Riempimento_Colonna(const QString& tipo) {
    if (tipo == u"Number" || tipo == u"Price")
        return Riempimento::Numero;
    if (tipo == u"Riferimento")
        return Riempimento::Riferimento;
    if (tipo == u"Image" || tipo == u"Document")
        return Riempimento::Allegato;
    if (tipo == u"Aggiungi")
        return Riempimento::Aggiungi;
    return Riempimento::Testo;
}

/// A `Size` as the whole number it stands for; beyond 16 bits it fails.
qint16 Dimensione(const QString& size, const Numeri& numeri) {
    const float valore = std::nearbyint(numeri.Converti_Numero(size));
    if (std::fabs(valore) > std::numeric_limits<qint16>::max())
        throw std::overflow_error("Overflow: size of a column");
    return static_cast<qint16>(valore);
}

/// One fill of a grid.
class Distinta {
  public:
    Distinta(const Contesto_Distinta& contesto, const QString& prodotto, const QString& riferimento,
             Griglia& griglia, Tag_Griglia& tag)
        : contesto_(contesto),
          db_(contesto.DB),
          filtri_(contesto.Filtri_),
          prodotto_(prodotto),
          prodotto_sql_(Con_Apici_Raddoppiati(prodotto)),
          riferimento_sql_(Con_Apici_Raddoppiati(riferimento)),
          griglia_(griglia),
          tag_(tag) {}

    void Riempi(bool ricarica_righe, bool con_aggiungi) {
        Prepara_Colonne(con_aggiungi);
        if (!ricarica_righe &&
            db_.Esite_Nota_Tabella_Associazione(prodotto_sql_, filtri_.Mercato, riferimento_sql_,
                                                filtri_.Gruppo, QString(), QString(), filtri_.Lingua))
            Aggiungi_Colonna_Note();
        Imposta_Colonne_Griglia(colonne, contesto_.Numeri_, griglia_);
        if (ricarica_righe) {
            Leggi_Righe();
            Scrivi_Righe();
            Scrivi_Tag();
        }
        if (ricarica_righe ? !record_.empty() : Riga_Presente())
            griglia_.Visible = true;
        else
            griglia_.Clear();
    }

    std::vector<Colonna_Griglia> colonne;

  private:
    /// How a column's cells are made from a row; worked out once for all rows.
    struct Campo {
        Riempimento riempimento;
        int posizione = -1;  ///< field of the row; -1 for none
        QString maschera;    ///< of numbers
        qint16 lunghezza = 0;
    };

    struct Record {
        QString codice;
        QString riga;  ///< its cells between tabs; "" when all are empty
        QString nota;
    };

    void Prepara_Colonne(bool con_aggiungi) {
        colonne.push_back({QStringLiteral("IMMAGINE##||##Riferimenti.GIF"), QStringLiteral("Key_Riferimento"),
                           QStringLiteral("Riferimento"), QStringLiteral("5")});
        if (con_aggiungi)
            colonne.push_back({QStringLiteral("IMMAGINE##||##Carrello_header.GIF"), QString(),
                               QStringLiteral("Aggiungi"), QStringLiteral("5")});
        Aggiungi_Colonne_Catalogo();
        if (db_.System_Leggi_Key(QStringLiteral("IMPOSTAZIONE_VISUALIZZA_QUANTITA")) == u"SI")
            colonne.push_back({contesto_.Traduzioni.Item(QStringLiteral("QUANTITA")).Testo,
                               QStringLiteral("Quantita_Min"), QStringLiteral("Testo"),
                               QStringLiteral("10")});
    }

    void Aggiungi_Colonna_Note() {
        colonne.push_back({contesto_.Traduzioni.Item(QStringLiteral("Note")).Testo,
                           QStringLiteral("Key_Nota_1"), QStringLiteral("Nota_Associazione"),
                           db_.System_Leggi_Key(QStringLiteral("IMPOSTAZIONE_LARGHEZZA_COLONNA_NOTE"))});
    }

    void Aggiungi_Colonne_Catalogo() {
        Recordset modello = db_.Recorset_StrutturaComponenti(filtri_.Lingua, filtri_.Mercato, filtri_.Gruppo);
        for (; !modello.EOF_(); modello.MoveNext()) {
            const QString tipo = modello.Campo(u"Tipo_Colonna").Testo();
            if (tipo == u"Discount" || tipo == u"Quantity" || tipo == u"Memo")
                continue;
            Valore titolo = modello.Campo(QStringLiteral("Traduzione_") + filtri_.Lingua);
            if (titolo.E_Nullo())
                titolo = modello.Campo(u"Titolo_Colonna");
            QString size = modello.Campo(u"Size").Testo();
            if (tipo != u"Image" && tipo != u"Document") {
                qint16 dimensione = Dimensione(size, contesto_.Numeri_);
                if (dimensione == 0 && tipo != u"Number" && tipo != u"Price")
                    dimensione = LUNGHEZZA_PREDEFINITA;
                size = QString::number(dimensione);
            }
            colonne.push_back({titolo.Testo(), modello.Campo(u"Nome_Colonna_Tabella").Testo(), tipo, size});
        }
    }

    /// Looks as far as there are rows, not columns: kept; the first cell of a filled row isn't empty.
    bool Riga_Presente() const {
        for (int c = 0; c < griglia_.Rows(); ++c)
            if (!griglia_.TextMatrix(1, c).isEmpty())
                return true;
        return false;
    }

    /// Reads each record once. Whether there is a column of notes is known when all are read: it is the
    /// last one, so the notes wait beside the lines. The rows asked for are those in which
    /// `Esite_Nota_Tabella_Associazione` looks for a note.
    void Leggi_Righe() {
        for (int da_togliere = griglia_.Rows() - 2; da_togliere > 0; --da_togliere)
            griglia_.RemoveItem(1);
        Recordset righe = db_.Recordset_Tabella_Componenti_Web(
            prodotto_sql_, filtri_.Mercato, riferimento_sql_, filtri_.Gruppo, QString(), QString());
        if (!righe.EOF_())
            Cerca_Campi(righe);
        bool con_note = false;
        for (; !righe.EOF_(); righe.MoveNext()) {
            Record record{righe.Campo(codice_).Testo(), Componi_Riga(righe), QString()};
            if (nota_ >= 0)
                record.nota = Traduci_Nota(righe.Campo(nota_).Testo());
            con_note = con_note || !record.nota.isEmpty();
            record_.push_back(std::move(record));
        }
        if (con_note) {
            Aggiungi_Colonna_Note();
            Imposta_Colonne_Griglia(colonne, contesto_.Numeri_, griglia_);
            for (Record& record : record_)
                Aggiungi_Cella(record.nota, record.riga);
        }
    }

    void Scrivi_Righe() {
        for (const Record& record : record_)
            if (!record.riga.isEmpty())
                griglia_.AddItem(record.riga);
        // The row left over from before goes; without a new row it stays: kept.
        if (griglia_.Rows() > 2)
            griglia_.RemoveItem(1);
    }

    void Cerca_Campi(const Recordset& righe) {
        codice_ = Cerca_Campo(righe, u"Codice_Componente");
        tipo_associazione_ = Cerca_Campo(righe, u"Tipo_associazione");
        nota_ = righe.Posizione(u"Key_Nota_1");
        for (const Colonna_Griglia& colonna : colonne) {
            Campo campo{Riempimento_Colonna(colonna.Tipo), -1, QString(), 0};
            if (campo.riempimento != Riempimento::Aggiungi)
                campo.posizione = Cerca_Campo(righe, colonna.Nome);
            if (campo.riempimento == Riempimento::Numero) {
                const int decimali = colonna.Size.toInt();
                campo.maschera =
                    decimali > 0 ? QStringLiteral("0.") + QString(decimali, u'0') : QStringLiteral("0");
            } else if (campo.riempimento == Riempimento::Testo) {
                campo.lunghezza = Dimensione(colonna.Size, contesto_.Numeri_);
            }
            campi_.push_back(campo);
        }
    }

    static int Cerca_Campo(const Recordset& righe, QStringView nome) {
        const int posizione = righe.Posizione(nome);
        if (posizione < 0)
            throw Errore_DB(QStringLiteral("Componenti_Web has no column %1").arg(nome));
        return posizione;
    }

    QString Componi_Riga(const Recordset& righe) {
        QString riga;
        for (const Campo& campo : campi_)
            Aggiungi_Cella(Componi_Cella(righe, campo), riga);
        return riga;
    }

    /// Cells stand between tabs. As long as all were empty no tab is written, so that an empty first cell
    /// moves the others one column to the left: kept.
    static void Aggiungi_Cella(const QString& cella, QString& riga) {
        if (!riga.isEmpty())
            riga += u'\t';
        riga += cella;
    }

    QString Componi_Cella(const Recordset& righe, const Campo& campo) {
        switch (campo.riempimento) {
            case Riempimento::Aggiungi:
                return {};
            case Riempimento::Riferimento:
                if (righe.Campo(tipo_associazione_).Testo() == u"1")
                    return QStringLiteral("-");
                return contesto_.Numeri_.Formatta(righe.Campo(campo.posizione).Testo(), u"###");
            case Riempimento::Numero:
                return contesto_.Numeri_.Formatta(righe.Campo(campo.posizione).Testo(), campo.maschera);
            case Riempimento::Allegato:
                return righe.Campo(campo.posizione).Testo();
            case Riempimento::Testo:
                return Taglia(righe.Campo(campo.posizione).Testo(), campo.lunghezza);
        }
        return {};
    }

    static QString Taglia(const QString& testo, qint16 lunghezza) {
        if (testo.isEmpty() || testo.size() <= lunghezza)
            return testo;
        if (lunghezza < 0)
            throw std::out_of_range("Invalid procedure call: a text can't be cut to a negative length");
        return testo.first(lunghezza);
    }

    /// Notes repeat from row to row; each is looked up once for a fill.
    QString Traduci_Nota(const QString& key) {
        if (key.isEmpty())
            return {};
        const auto nota_vista = note_.constFind(key);
        if (nota_vista != note_.constEnd())
            return *nota_vista;
        const QString key_sql = Con_Apici_Raddoppiati(key);
        const QString testo = db_.Restituisci_Traduzioni_Nota_Componenti_Mappe(key_sql, filtri_.Lingua);
        // A key without a translation comes back as it was asked.
        return *note_.insert(key, testo == key_sql ? key : testo);
    }

    void Scrivi_Tag() {
        for (int r = 1; r < griglia_.Rows(); ++r)
            for (int c = 0; c < griglia_.Cols(); ++c) {
                tag_.Imposta(r, c, QString());
                Scrivi_Tag(r, c, colonne[static_cast<size_t>(c)].Tipo);
            }
    }

    void Scrivi_Tag(int r, int c, const QString& tipo) {
        if (tipo == u"Image")
            Scrivi_Allegato(r, c, QStringLiteral("Image|"), QStringLiteral("lente.bmp"));
        else if (tipo == u"Document")
            Scrivi_Allegato(r, c, QStringLiteral("Document|"), QStringLiteral("Grafetta.bmp"));
        else if (tipo == u"Aggiungi")
            Scrivi_Aggiungi(r, c);
    }

    void Scrivi_Allegato(int r, int c, const QString& genere, const QString& immagine) {
        Cella& cella = griglia_.At(r, c);
        if (Trim(cella.Text).isEmpty())
            return;
        tag_.Imposta(r, c, genere + cella.Text);
        cella.Text.clear();
        Mostra_Immagine(cella, immagine);
    }

    void Scrivi_Aggiungi(int r, int c) {
        // The code is the one of record r, also when a record before it gave no row: kept.
        const auto i = static_cast<size_t>(r - 1);
        const QString codice = i < record_.size() ? record_[i].codice : QString();
        tag_.Imposta(
            r, c,
            QStringLiteral("Add_Componente|") + codice + u'|' + prodotto_ + u'|' + griglia_.TextMatrix(r, 0));
        Mostra_Immagine(griglia_.At(r, c), QStringLiteral("Carrello.bmp"));
    }

    static void Mostra_Immagine(Cella& cella, const QString& immagine) {
        cella.Picture = immagine;
        cella.PictureAlignment = Allineamento::Centro;
    }

    const Contesto_Distinta& contesto_;
    const Class_DBOper& db_;
    const Filtri& filtri_;
    const QString prodotto_, prodotto_sql_, riferimento_sql_;
    Griglia& griglia_;
    Tag_Griglia& tag_;

    std::vector<Record> record_;  ///< all records found
    std::vector<Campo> campi_;
    int codice_ = -1, tipo_associazione_ = -1, nota_ = -1;
    QHash<QString, QString> note_;
};

}  // namespace

std::vector<Colonna_Griglia> Visualizza_Griglia_Distinta_Prodotto(const Contesto_Distinta& contesto,
                                                                  const QString& prodotto,
                                                                  const QString& riferimento,
                                                                  bool ricarica_righe, Griglia& griglia,
                                                                  Tag_Griglia& tag, bool con_aggiungi) {
    if (!contesto.Verifica_Accesso()) {
        contesto.Mostra_Intro();
        return {};
    }
    griglia.Visible = false;
    Distinta distinta(contesto, prodotto, riferimento, griglia, tag);
    try {
        distinta.Riempi(ricarica_righe, con_aggiungi);
    } catch (const std::exception&) {
        // Nothing is reported: what can't be read shows as missing data.
    }
    if (griglia.Cambiata)
        griglia.Cambiata();
    return distinta.colonne;
}

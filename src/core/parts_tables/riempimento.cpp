#include "core/parts_tables/riempimento.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "core/base/testo.h"

namespace {

/// Some cell of row 1 has a text. Looks as far as there are rows, not columns: kept; fails beyond the
/// columns.
bool Riga_Presente(const Griglia& griglia) {
    for (int c = 0; c < griglia.Rows(); ++c)
        if (!griglia.TextMatrix(1, c).isEmpty())
            return true;
    return false;
}

/// Answers whether the source has any row.
bool Ricarica_Righe(Sorgente_Griglia& sorgente, const Numeri& numeri, Griglia& griglia, Tag_Griglia& tag) {
    while (griglia.Rows() > 2)
        griglia.RemoveItem(1);
    const size_t colonne = sorgente.Colonne.size();
    sorgente.Leggi_Righe();
    if (sorgente.Colonne.size() != colonne)
        Imposta_Colonne_Griglia(sorgente.Colonne, numeri, griglia);
    for (Riga_Griglia& riga : sorgente.Righe)
        griglia.AddItem(std::move(riga.Celle));
    // The row left over from before goes; without a new row it stays: kept.
    if (griglia.Rows() > 2)
        griglia.RemoveItem(1);
    if (sorgente.Righe.empty()) {
        griglia.Motivo = sorgente.Motivo();
        return false;
    }
    if (!tag.Ammette(griglia.Rows() - 1))
        griglia.Motivo = Assenza::Troppe_Righe;
    // Row r takes the code of record r, also when a record before it gave no row: kept.
    for (int r = 1; r < griglia.Rows(); ++r) {
        const Riga_Griglia& riga = sorgente.Righe[static_cast<size_t>(r - 1)];
        for (int c = 0; c < griglia.Cols(); ++c)
            tag.Imposta(r, c, sorgente.Tag(griglia, r, c, riga.Codice));
        tag.Riga(r, riga.Chiave);
    }
    return true;
}

QString Taglia(const QString& testo, qint16 lunghezza) {
    if (testo.isEmpty() || testo.size() <= lunghezza)
        return testo;
    if (lunghezza < 0)
        throw std::out_of_range("Invalid procedure call: a text can't be cut to a negative length");
    return testo.first(lunghezza);
}

}  // namespace

std::vector<Colonna_Griglia> Riempi_Griglia(Contesto_Griglia& contesto, Sorgente_Griglia& sorgente,
                                            bool ricarica_righe, Griglia& griglia, Tag_Griglia& tag) {
    if (!contesto.Verifica_Accesso(contesto.Filtri_)) {
        contesto.Mostra_Intro();
        return {};
    }
    griglia.Visible = false;
    const Assenza prima = std::exchange(griglia.Motivo, Assenza::Guasto);
    try {
        sorgente.Leggi_Colonne(ricarica_righe);
        Imposta_Colonne_Griglia(sorgente.Colonne, contesto.Numeri_, griglia);
        if (ricarica_righe ? Ricarica_Righe(sorgente, contesto.Numeri_, griglia, tag)
                           : Riga_Presente(griglia))
            griglia.Visible = true;
        else
            griglia.Clear();
        // The columns alone don't tell why there are no rows.
        if (!ricarica_righe)
            griglia.Motivo = prima;
    } catch (const std::exception&) {
        // Nothing is reported: what can't be read shows as missing data.
    }
    griglia.Segnala_Cambio();
    return std::move(sorgente.Colonne);
}

std::vector<Colonna_Griglia> Colonne_Catalogo(const Contesto_Griglia& contesto,
                                              std::initializer_list<Genere_Colonna> esclusi) {
    const Filtri& filtri = contesto.Filtri_;
    std::vector<Colonna_Griglia> colonne;
    Recordset modello =
        contesto.DB.Recorset_StrutturaComponenti(filtri.Lingua, filtri.Mercato, filtri.Gruppo);
    for (; !modello.EOF_(); modello.MoveNext()) {
        const QString tipo = modello.Campo(u"Tipo_Colonna").Testo();
        if (std::find(esclusi.begin(), esclusi.end(), Genere_Catalogo(tipo)) != esclusi.end())
            continue;
        Valore titolo = modello.Campo(QStringLiteral("Traduzione_") + filtri.Lingua);
        if (titolo.E_Nullo())
            titolo = modello.Campo(u"Titolo_Colonna");
        colonne.push_back(Colonna_Catalogo(tipo, titolo.Testo(),
                                           modello.Campo(u"Nome_Colonna_Tabella").Testo(),
                                           modello.Campo(u"Size").Testo(), contesto.Numeri_));
    }
    return colonne;
}

QString Cella_Catalogo(const Colonna_Griglia& colonna, const Valore& campo, const Numeri& numeri) {
    switch (colonna.Genere) {
        case Genere_Colonna::Price:
            // A price is the single that its total multiplies.
            if (const auto prezzo = numeri.Numero_Semplice(campo.Testo()))
                return numeri.Formatta(*prezzo, colonna.Maschera);
            return campo.Testo();
        case Genere_Colonna::Number:
            return numeri.Formatta(campo.Testo(), colonna.Maschera);
        case Genere_Colonna::Image:
        case Genere_Colonna::Document:
            return campo.Testo();
        default:
            return Taglia(campo.Testo(), colonna.Misura);
    }
}

QString Tag_Allegato(const Colonna_Griglia& colonna, Cella& cella) {
    if (Trim(cella.Text).isEmpty())
        return {};
    cella.Picture = colonna.Genere == Genere_Colonna::Image ? QStringLiteral("lente.bmp")
                                                            : QStringLiteral("Grafetta.bmp");
    return colonna.Tipo + u'|' + std::exchange(cella.Text, QString());
}

int Cerca_Campo(const Recordset& record, QStringView nome) {
    const int posizione = record.Posizione(nome);
    if (posizione < 0)
        throw Errore_DB(QStringLiteral("The components have no column %1").arg(nome));
    return posizione;
}

#include "core/cart/colonne_carrello.h"

#include "core/griglia/celle.h"

namespace {

Genere_Colonna Genere_Catalogo(const QString& tipo) {
    if (tipo == u"Number" || tipo == u"Price")
        return Genere_Colonna::Numero;
    if (tipo == u"Image" || tipo == u"Document")
        return Genere_Colonna::Allegato;
    if (tipo == u"Discount")
        return Genere_Colonna::Sconto;
    return Genere_Colonna::Testo;
}

class Costruttore {
  public:
    explicit Costruttore(const Contesto_Carrello& contesto) : contesto_(contesto) {}

    Modello_Carrello Costruisci(bool con_prodotto) {
        Fissa(Genere_Colonna::Elimina, u"IMMAGINE##||##Cestino.GIF", u"", u"Elimina", u"0");
        if (con_prodotto)
            Fissa(Genere_Colonna::Prodotto, u"IMMAGINE##||##prodotto.GIF", u"", u"Prodotto", u"25");
        Fissa(Genere_Colonna::Riferimento, u"IMMAGINE##||##Riferimenti.GIF", u"Key_Associazioni",
              u"Riferimento", u"5");
        Aggiungi_Colonne_Catalogo();
        Fissa(Genere_Colonna::Qta, Testo(QStringLiteral("QUANTITA")), u"", u"Qta", u"0");
        Fissa(Genere_Colonna::Note, Testo(QStringLiteral("NOTE")), u"", u"Note", u"0");
        Aggiungi_Totali();
        return std::move(modello_);
    }

  private:
    QString Testo(const QString& key) const { return contesto_.Traduzioni.Item(key).Testo; }

    void Aggiungi(const Colonna_Griglia& titolo, const Colonna_Carrello& colonna) {
        modello_.Titoli.push_back(titolo);
        modello_.Colonne.push_back(colonna);
    }
    void Fissa(Genere_Colonna genere, QStringView titolo, QStringView nome, QStringView tipo,
               QStringView size) {
        Aggiungi({titolo.toString(), nome.toString(), tipo.toString(), size.toString()}, {genere});
    }

    void Aggiungi_Colonne_Catalogo() {
        const Filtri& filtri = contesto_.Filtri_;
        for (Recordset righe =
                 contesto_.DB.Recorset_StrutturaComponenti(filtri.Lingua, filtri.Mercato, filtri.Gruppo);
             !righe.EOF_(); righe.MoveNext()) {
            const QString tipo = righe.Campo(u"Tipo_Colonna").Testo();
            const QString nome = righe.Campo(u"Nome_Colonna_Tabella").Testo();
            if (tipo == u"Memo")
                modello_.Colonne_Memo += nome;
            else if (tipo != u"Quantity")
                Aggiungi_Colonna_Catalogo(righe, tipo, nome);
        }
    }

    void Aggiungi_Colonna_Catalogo(const Recordset& riga, const QString& tipo, const QString& nome) {
        Valore titolo = riga.Campo(QStringLiteral("Traduzione_") + contesto_.Filtri_.Lingua);
        if (titolo.E_Nullo())
            titolo = riga.Campo(u"Titolo_Colonna");
        const QString size = Size_Normale(tipo, riga.Campo(u"Size").Testo(), contesto_.Numeri_);
        Colonna_Carrello colonna{Genere_Catalogo(tipo), static_cast<int>(modello_.Campi.size())};
        if (colonna.Genere == Genere_Colonna::Numero)
            colonna.Decimali = size.toInt();
        else if (colonna.Genere == Genere_Colonna::Testo)
            colonna.Lunghezza = size.toShort();
        if (tipo == u"Price" && modello_.Primo_Prezzo < 0)
            modello_.Primo_Prezzo = colonna.Campo;
        modello_.Campi += nome;
        Aggiungi({titolo.Testo(), nome, tipo, size}, colonna);
    }

    void Aggiungi_Totali() {
        const size_t fino = modello_.Titoli.size();
        for (size_t i = 0; i < fino; ++i) {
            const Colonna_Griglia prezzo = modello_.Titoli[i];
            if (prezzo.Tipo != u"Price")
                continue;
            Colonna_Carrello totale = modello_.Colonne[i];
            totale.Genere = Genere_Colonna::Totale;
            // The field of a total is the number of its price column, from 1.
            Aggiungi({prezzo.Titolo + Testo(QStringLiteral("TOTALE")), QString::number(i + 1),
                      QStringLiteral("Price_Totale"), prezzo.Size},
                     totale);
        }
    }

    const Contesto_Carrello& contesto_;
    Modello_Carrello modello_;
};

}  // namespace

Modello_Carrello Colonne_Carrello(const Contesto_Carrello& contesto, bool con_prodotto) {
    return Costruttore(contesto).Costruisci(con_prodotto);
}

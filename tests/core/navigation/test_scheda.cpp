#include <gmock/gmock.h>

#include <QFile>

#include "core/navigation/scheda.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Files on disk, under the names of a package's entries.
class File_Su_Disco : public Fonte_File {
  public:
    explicit File_Su_Disco(const Sistema& sistema) : cartella_(sistema.Cartella_Temporanea()) {}
    void Metti(const QString& nome) {
        QFile file(cartella_ + nome);
        if (!file.open(QIODevice::WriteOnly))
            throw std::runtime_error("can't write " + nome.toStdString());
        presenti_.append(nome);
    }
    /// Extracted once and gone since.
    void Perdi(const QString& nome) { QFile::remove(cartella_ + nome); }
    QString Percorso(const QString& nome) const { return cartella_ + nome; }
    QString Scompatta_File_Compattato(const QString& nome) override {
        Chiesti.append(nome);
        return presenti_.contains(nome) ? Percorso(nome) : QString();
    }
    QStringList Chiesti;

  private:
    QString cartella_;
    QStringList presenti_;
};

class Scheda : public testing::Test {
  protected:
    Scheda() {
        catalogo.Nodo("G_1", "R", u" Gruppo "_qs)
            .Nodo("P_1", "G_1", u"Pompa"_qs)
            .Nodo("X_1", "G_1", u"Speciale"_qs)
            .Nodo("P_d'2", "G_1", u"Pompa d'acqua"_qs);
    }
    void Voce(const QString& key, const QString& ordine, const Valore_Prova& titolo,
              const Valore_Prova& descrizione, const Valore_Prova& allegato = std::nullopt) {
        catalogo.Riga(u"Scheda_Prodotti"_qs, {{"Key_Prodotto", key},
                                              {"Ordine", ordine},
                                              {"Titolo_1", titolo},
                                              {"Descrizione_1", descrizione},
                                              {"Allegato_1", allegato},
                                              {"Titolo_2", "title"},
                                              {"Tipo_Allegato_1", " PDF "}});
    }
    void Foto(const QString& key, const Valore_Prova& foto_1, const Valore_Prova& foto_2) {
        catalogo.Riga(u"Prodotti"_qs,
                      {{"Key_Prodotto", key}, {"Foto_1_Prodotto", foto_1}, {"Foto_2_Prodotto", foto_2}});
    }
    Class_DBOper& DB() {
        if (!aperto) {
            aperto.emplace(catalogo);
            Carica_Struttura_Albero_Web(aperto->DB, u"1"_qs, albero);
        }
        return aperto->DB;
    }
    Scheda_Prodotto Carica(const QString& key, const QString& lingua = u"1"_qs) {
        return Carica_Scheda({DB(), albero, file, lingua,
                              [this](const QString& percorso) -> std::optional<QSizeF> {
                                  const auto it = misure.constFind(percorso);
                                  return it == misure.constEnd() ? std::nullopt : std::optional(*it);
                              }},
                             key);
    }
    /// Rows as "title|description|attachment".
    static QStringList Testi(const Scheda_Prodotto& scheda) {
        QStringList testi;
        for (const Riga_Scheda& riga : scheda.Righe)
            testi << riga.Titolo + u'|' + riga.Descrizione + u'|' + riga.Allegato;
        return testi;
    }

    Catalogo_Di_Prova catalogo;
    std::optional<Catalogo_Aperto> aperto;
    Collection_Albero albero;
    Sistema_Finto sistema;
    File_Su_Disco file{sistema};
    QHash<QString, QSizeF> misure;
};

TEST_F(Scheda, WithoutANodeTheHelpTextStands) {
    const Scheda_Prodotto scheda = Carica({});
    EXPECT_TRUE(scheda.Label_Help_Albero);
    EXPECT_FALSE(scheda.Link_Disegno);
    EXPECT_THAT(scheda.Righe, IsEmpty());
    EXPECT_EQ(scheda.Altezza_Foto(), 0);
}

TEST_F(Scheda, ShowsNameCodeAndDescriptionInTheLanguage) {
    catalogo.Riga(u"Traduzioni_Prodotti"_qs, {{"Key_Prodotto", "P_1"},
                                              {"Traduzione_Matricola_1", "M-1"},
                                              {"Traduzione_Descrizione_1", "Una pompa"},
                                              {"Traduzione_Descrizione_2", "A pump"}});
    Scheda_Prodotto scheda = Carica(u"P_1"_qs);
    EXPECT_FALSE(scheda.Label_Help_Albero);
    EXPECT_EQ(scheda.Nome, u"Pompa");
    EXPECT_EQ(scheda.Codice, u"M-1");
    EXPECT_EQ(scheda.Descrizione, u"Una pompa");
    scheda = Carica(u"P_1"_qs, u"2"_qs);
    EXPECT_EQ(scheda.Codice, QString());
    EXPECT_EQ(scheda.Descrizione, u"A pump");
    scheda = Carica(u"G_1"_qs);  // no translations at all
    EXPECT_EQ(scheda.Nome, u"Gruppo");
    EXPECT_EQ(scheda.Codice + scheda.Descrizione, QString());
    EXPECT_EQ(Carica(u"P_d'2"_qs).Nome, u"Pompa d'acqua");
}

TEST_F(Scheda, OnlyProductsOfferADrawing) {
    const std::pair<const char*, bool> casi[] = {{"P_1", true}, {"X_1", true}, {"G_1", false}, {"R", false}};
    for (const auto& [key, link] : casi)
        EXPECT_EQ(Carica(QString::fromUtf8(key)).Link_Disegno, link) << key;
}

TEST_F(Scheda, EntriesComeInTheirOrderWithoutEmptyOnes) {
    Voce(u"P_1"_qs, u"3"_qs, u" Uso "_qs, u" Lento "_qs);
    Voce(u"P_1"_qs, u"1"_qs, u"Solo titolo"_qs, std::nullopt);
    Voce(u"P_1"_qs, u"2"_qs, u"  "_qs, std::nullopt, u"vuota.pdf"_qs);
    Voce(u"P_1"_qs, u"10"_qs, std::nullopt, u"Solo testo"_qs);
    Voce(u"P_d'2"_qs, u"1"_qs, u"Altra"_qs, u""_qs);
    file.Metti(u"vuota.pdf"_qs);
    EXPECT_THAT(Testi(Carica(u"P_1"_qs)),
                ElementsAre(u"Solo titolo||"_qs, u"Uso|Lento|"_qs, u"|Solo testo|"_qs));
    EXPECT_THAT(file.Chiesti, IsEmpty());  // an entry that isn't shown unpacks nothing
    EXPECT_EQ(Testi(Carica(u"P_1"_qs, u"2"_qs)).size(), 4);
    EXPECT_THAT(Testi(Carica(u"P_1"_qs, u"3"_qs)), IsEmpty());
    EXPECT_THAT(Testi(Carica(u"P_d'2"_qs)), ElementsAre(u"Altra||"_qs));
    EXPECT_THAT(Testi(Carica(u"G_1"_qs)), IsEmpty());
}

TEST_F(Scheda, AnAttachmentShowsWhenThePackageHoldsIt) {
    file.Metti(u"guida.pdf"_qs);
    Voce(u"P_1"_qs, u"1"_qs, u"A"_qs, u""_qs, u" guida.pdf "_qs);
    Voce(u"P_1"_qs, u"2"_qs, u"B"_qs, u""_qs, u"assente.pdf"_qs);
    Voce(u"P_1"_qs, u"3"_qs, u"C"_qs, u""_qs, u" "_qs);
    EXPECT_THAT(Testi(Carica(u"P_1"_qs)),
                ElementsAre(u"A||"_qs + file.Percorso(u"guida.pdf"_qs), u"B||"_qs, u"C||"_qs));
    EXPECT_THAT(file.Chiesti, ElementsAre(u"guida.pdf"_qs, u"assente.pdf"_qs));
}

TEST_F(Scheda, EntriesAreReplacedAtEachShowing) {
    for (int i = 0; i < 12; ++i)
        Voce(u"P_1"_qs, QString::number(i), u"t%1"_qs.arg(i), u""_qs);
    Carica(u"P_1"_qs);
    EXPECT_EQ(Carica(u"P_1"_qs).Righe.size(), 12u);
    const auto voci = albero.Item(u"P_1"_qs).Collection_Scheda_Prodotto();
    ASSERT_EQ(voci->Count(), 12);
    EXPECT_EQ(voci->Item(1).Key, u"Key_0");
    EXPECT_EQ(voci->Item(u"Key_11"_qs).Titolo, u"t11");
    EXPECT_EQ(voci->Item(12).Tipo_Allegato, u"PDF");
}

TEST_F(Scheda, WhatTheCatalogueLacksIsMissing) {
    catalogo.Rimuovi_Tabella(u"Scheda_Prodotti"_qs)
        .Rimuovi_Tabella(u"Traduzioni_Prodotti"_qs)
        .Rimuovi_Tabella(u"Prodotti"_qs);
    const Scheda_Prodotto scheda = Carica(u"P_1"_qs);
    EXPECT_EQ(scheda.Nome, u"Pompa");
    EXPECT_THAT(scheda.Righe, IsEmpty());
    EXPECT_FALSE(scheda.Foto_1 || scheda.Foto_2);
    EXPECT_THROW(Carica(u"P_9"_qs), Errore_Collezione);
}

TEST_F(Scheda, APhotographFillsItsBoxInItsProportions) {
    file.Metti(u"foto.png"_qs);
    Foto(u"P_1"_qs, u" foto.png "_qs, std::nullopt);
    struct Caso {
        QSizeF immagine, attesa;
    };
    const Caso casi[] = {
        {{400, 100}, {3750, 937.5}}, {{100, 400}, {750, 3000}}, {{10, 8}, {3750, 3000}},
        {{1, 1}, {3000, 3000}},      {{0, 100}, {3750, 3000}},  // no width: the box itself
        {{100, 0}, {3750, 0}},
    };
    for (const Caso& caso : casi) {
        misure[file.Percorso(u"foto.png"_qs)] = caso.immagine;
        const Scheda_Prodotto scheda = Carica(u"P_1"_qs);
        ASSERT_TRUE(scheda.Foto_1);
        EXPECT_EQ(scheda.Foto_1->Percorso, file.Percorso(u"foto.png"_qs));
        EXPECT_EQ(scheda.Foto_1->Misura, caso.attesa) << caso.immagine.width();
        EXPECT_EQ(scheda.Altezza_Foto(), caso.attesa.height());
        EXPECT_FALSE(scheda.Foto_2);
    }
}

TEST_F(Scheda, APhotographThatCantBeShownIsLeftOut) {
    for (const char* nome : {"buona.png", "rotta.png", "sparita.png"})
        file.Metti(QString::fromUtf8(nome));
    file.Perdi(u"sparita.png"_qs);
    for (const char* nome : {"buona.png", "sparita.png"})
        misure[file.Percorso(QString::fromUtf8(nome))] = QSizeF(10, 8);
    const std::pair<Valore_Prova, bool> casi[] = {{u"buona.png"_qs, true},    {u"rotta.png"_qs, false},
                                                  {u"sparita.png"_qs, false}, {u"assente.png"_qs, false},
                                                  {u"  "_qs, false},          {std::nullopt, false}};
    for (const auto& [nome, presente] : casi) {
        catalogo.Svuota_Tabella(u"Prodotti"_qs);
        Foto(u"P_1"_qs, std::nullopt, nome);
        aperto.reset();
        albero.Svuota();
        const Scheda_Prodotto scheda = Carica(u"P_1"_qs);
        EXPECT_FALSE(scheda.Foto_1);
        EXPECT_EQ(scheda.Foto_2.has_value(), presente) << nome.value_or(u"NULL"_qs).toStdString();
        EXPECT_EQ(scheda.Altezza_Foto(), presente ? 3000 : 0);
    }
}

TEST(Rapporto_Immagine, FitsTheBoxInPlace) {
    const auto misura = [](const QString& file) -> std::optional<QSizeF> {
        if (file == u"larga")
            return QSizeF(400, 100);
        return std::nullopt;
    };
    double larghezza = 800, altezza = 600;
    EXPECT_EQ(Rapporto_Immagine(u"larga"_qs, larghezza, altezza, misura), 0.25);
    EXPECT_EQ(larghezza, 800);
    EXPECT_EQ(altezza, 200);
    EXPECT_EQ(Rapporto_Immagine(u"rotta"_qs, larghezza, altezza, misura), 0.25);
    EXPECT_EQ(altezza, 200);
    larghezza = 0;
    EXPECT_EQ(Rapporto_Immagine(u"rotta"_qs, larghezza, altezza, misura), 0);
}

}  // namespace

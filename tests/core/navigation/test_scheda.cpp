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
        catalogo.Nodo("G_1", "R", " Gruppo ")
            .Nodo("P_1", "G_1", "Pompa")
            .Nodo("X_1", "G_1", "Speciale")
            .Nodo("P_d'2", "G_1", "Pompa d'acqua");
    }
    /// Entries of a sheet: order, title, description and attachment in language 1.
    void Voci(const QString& key, const std::vector<std::array<Valore_Prova, 4>>& voci) {
        for (const auto& [ordine, titolo, descrizione, allegato] : voci)
            catalogo.Riga("Scheda_Prodotti", {{"Key_Prodotto", key},
                                              {"Ordine", ordine},
                                              {"Titolo_1", titolo},
                                              {"Descrizione_1", descrizione},
                                              {"Allegato_1", allegato},
                                              {"Titolo_2", "title"},
                                              {"Tipo_Allegato_1", " PDF "}});
    }
    void Foto(const Valore_Prova& foto_1, const Valore_Prova& foto_2) {
        catalogo.Tabella("Prodotti", {"Key_Prodotto", "Foto_1_Prodotto", "Foto_2_Prodotto"},
                         {{"P_1", foto_1, foto_2}});
    }
    Class_DBOper& DB() {
        if (!aperto) {
            aperto.emplace(catalogo);
            Carica_Struttura_Albero_Web(aperto->DB, "1", albero);
        }
        return aperto->DB;
    }
    Scheda_Prodotto Carica(const QString& key, const QString& lingua = "1") {
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
}

TEST_F(Scheda, ShowsNameCodeAndDescriptionInTheLanguage) {
    catalogo.Riga("Traduzioni_Prodotti", {{"Key_Prodotto", "P_1"},
                                          {"Traduzione_Matricola_1", "M-1"},
                                          {"Traduzione_Descrizione_1", "Una pompa"},
                                          {"Traduzione_Descrizione_2", "A pump"}});
    Scheda_Prodotto scheda = Carica("P_1");
    EXPECT_FALSE(scheda.Label_Help_Albero);
    EXPECT_EQ(scheda.Nome, u"Pompa");
    EXPECT_EQ(scheda.Codice, u"M-1");
    EXPECT_EQ(scheda.Descrizione, u"Una pompa");
    scheda = Carica("P_1", "2");
    EXPECT_EQ(scheda.Codice, QString());
    EXPECT_EQ(scheda.Descrizione, u"A pump");
    scheda = Carica("G_1");  // no translations at all
    EXPECT_EQ(scheda.Nome, u"Gruppo");
    EXPECT_EQ(scheda.Codice + scheda.Descrizione, QString());
    EXPECT_EQ(Carica("P_d'2").Nome, u"Pompa d'acqua");
}

TEST_F(Scheda, OnlyProductsOfferADrawing) {
    const std::pair<const char*, bool> casi[] = {{"P_1", true}, {"X_1", true}, {"G_1", false}, {"R", false}};
    for (const auto& [key, link] : casi)
        EXPECT_EQ(Carica(QString::fromUtf8(key)).Link_Disegno, link) << key;
}

TEST_F(Scheda, EntriesComeInTheirOrderWithoutEmptyOnes) {
    Voci("P_1", {{"3", " Uso ", " Lento "},
                 {"1", "Solo titolo"},
                 {"2", "  ", {}, "vuota.pdf"},
                 {"10", {}, "Solo testo"}});
    Voci("P_d'2", {{"1", "Altra", ""}});
    file.Metti("vuota.pdf");
    EXPECT_THAT(Testi(Carica("P_1")), ElementsAre("Solo titolo||", "Uso|Lento|", "|Solo testo|"));
    EXPECT_THAT(file.Chiesti, IsEmpty());  // an entry that isn't shown unpacks nothing
    EXPECT_EQ(Testi(Carica("P_1", "2")).size(), 4);
    EXPECT_THAT(Testi(Carica("P_1", "3")), IsEmpty());
    EXPECT_THAT(Testi(Carica("P_d'2")), ElementsAre("Altra||"));
    EXPECT_THAT(Testi(Carica("G_1")), IsEmpty());
}

TEST_F(Scheda, AnAttachmentShowsWhenThePackageHoldsIt) {
    file.Metti("guida.pdf");
    Voci("P_1", {{"1", "A", "", " guida.pdf "}, {"2", "B", "", "assente.pdf"}, {"3", "C", "", " "}});
    EXPECT_THAT(Testi(Carica("P_1")), ElementsAre("A||" + file.Percorso("guida.pdf"), "B||", "C||"));
    EXPECT_THAT(file.Chiesti, ElementsAre("guida.pdf", "assente.pdf"));
}

TEST_F(Scheda, EntriesAreReplacedAtEachShowing) {
    for (int i = 0; i < 12; ++i)
        Voci("P_1", {{QString::number(i), QString("t%1").arg(i)}});
    Carica("P_1");
    EXPECT_EQ(Carica("P_1").Righe.size(), 12u);
    const auto voci = albero.Item("P_1").Collection_Scheda_Prodotto();
    ASSERT_EQ(voci->Count(), 12);
    EXPECT_EQ(voci->Item(1).Key, "Key_0");
    EXPECT_EQ(voci->Item("Key_11").Titolo, "t11");
    EXPECT_EQ(voci->Item(12).Tipo_Allegato, "PDF");
}

TEST_F(Scheda, WhatTheCatalogueLacksIsMissing) {
    catalogo.Rimuovi_Tabella("Scheda_Prodotti")
        .Rimuovi_Tabella("Traduzioni_Prodotti")
        .Rimuovi_Tabella("Prodotti");
    const Scheda_Prodotto scheda = Carica("P_1");
    EXPECT_EQ(scheda.Nome, u"Pompa");
    EXPECT_THAT(scheda.Righe, IsEmpty());
    EXPECT_FALSE(scheda.Foto_1 || scheda.Foto_2);
    EXPECT_THROW(Carica("P_9"), Errore_Collezione);
}

TEST_F(Scheda, APhotographFillsItsBoxInItsProportions) {
    file.Metti("foto.png");
    Foto(" foto.png ", {});
    // Without a width it takes the box itself.
    const std::pair<QSizeF, QSizeF> casi[] = {
        {{400, 100}, {3750, 937.5}}, {{0, 100}, {3750, 3000}}, {{100, 0}, {3750, 0}}};
    for (const auto& [immagine, attesa] : casi) {
        misure[file.Percorso("foto.png")] = immagine;
        const Scheda_Prodotto scheda = Carica("P_1");
        ASSERT_TRUE(scheda.Foto_1);
        EXPECT_EQ(scheda.Foto_1->Percorso, file.Percorso("foto.png"));
        EXPECT_EQ(scheda.Foto_1->Misura, attesa) << immagine.width();
        EXPECT_FALSE(scheda.Foto_2);
    }
}

TEST_F(Scheda, APhotographThatCantBeShownIsLeftOut) {
    for (const char* nome : {"buona.png", "rotta.png", "sparita.png"})
        file.Metti(nome);
    file.Perdi("sparita.png");
    for (const char* nome : {"buona.png", "sparita.png"})
        misure[file.Percorso(nome)] = QSizeF(10, 8);
    const std::pair<Valore_Prova, bool> casi[] = {{"buona.png", true},    {"rotta.png", false},
                                                  {"sparita.png", false}, {"assente.png", false},
                                                  {"  ", false},          {std::nullopt, false}};
    for (const auto& [nome, presente] : casi) {
        Foto({}, nome);
        aperto.reset();
        albero.Svuota();
        const Scheda_Prodotto scheda = Carica("P_1");
        EXPECT_FALSE(scheda.Foto_1);
        EXPECT_EQ(scheda.Foto_2.has_value(), presente) << qPrintable(nome.value_or("NULL"));
    }
}

TEST(Rapporto_Immagine, FitsTheBoxInPlace) {
    const auto misura = [](const QString& file) {
        return file == "larga" ? std::optional(QSizeF(400, 100)) : std::nullopt;
    };
    double larghezza = 800, altezza = 600;
    for (const char* file : {"larga", "rotta"}) {
        EXPECT_EQ(Rapporto_Immagine(file, larghezza, altezza, misura), 0.25);
        EXPECT_EQ(larghezza, 800);
        EXPECT_EQ(altezza, 200);
    }
    larghezza = 0;
    EXPECT_EQ(Rapporto_Immagine("rotta", larghezza, altezza, misura), 0);
}

}  // namespace

#include <gmock/gmock.h>

#include <QFile>

#include "core/parts_tables/allegati_griglia.h"
#include "core/parts_tables/evidenza.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;

/// Rows of reference, code and description.
class Evidenza : public testing::Test {
  protected:
    void SetUp() override {
        griglia.Cols(3);
        for (const char* riga : {"1\tC1\tDado", "2\tC2\tVite", "2\tC3\tC2", "3\tC2\tVite"})
            griglia.AddItem(QString::fromUtf8(riga));
        griglia.RemoveItem(1);
        griglia.Evidenziata = [this] { ++avvisi; };
        griglia.Cambiata = [] { ADD_FAILURE() << "no row has changed"; };
    }
    std::vector<int> Grassetto() const {
        std::vector<int> righe;
        for (int r = 0; r < griglia.Rows(); ++r) {
            int celle = 0;
            for (int c = 0; c < griglia.Cols(); ++c)
                celle += griglia.At(r, c).Bold;
            EXPECT_TRUE(celle == 0 || celle == griglia.Cols()) << "row " << r;
            if (celle > 0)
                righe.push_back(r);
        }
        return righe;
    }
    Griglia griglia;
    int avvisi = 0;
};

TEST_F(Evidenza, MarksEveryMatchingRowAndNoOther) {
    Evidenzia_Componente_in_distinta(griglia, 1, u"C2"_qs);
    EXPECT_THAT(Grassetto(), ElementsAre(2, 4));
    Evidenzia_Componente_in_distinta(griglia, 1, u"C3"_qs);
    EXPECT_THAT(Grassetto(), ElementsAre(3));
    for (const QString& key : {u"C"_qs, u"c3"_qs, u"C3 "_qs, u"C9"_qs, u""_qs}) {
        Evidenzia_Componente_in_distinta(griglia, 1, key);
        EXPECT_THAT(Grassetto(), ElementsAre()) << key.toStdString();
    }
    Evidenzia_Componente_in_distinta(griglia, 2, u"C2"_qs);
    EXPECT_THAT(Grassetto(), ElementsAre(3));
}

TEST_F(Evidenza, AColumnThatIsntThereMatchesNothing) {
    for (const int colonna : {-1, 3, 100}) {
        Evidenzia_Componente_in_distinta(griglia, 0, u"1"_qs);
        Evidenzia_Componente_in_distinta(griglia, colonna, u"1"_qs);
        EXPECT_THAT(Grassetto(), ElementsAre()) << colonna;
    }
}

TEST_F(Evidenza, TheViewIsToldOfChangesOnly) {
    Evidenzia_Componente_in_distinta(griglia, 1, u"C9"_qs);
    EXPECT_EQ(avvisi, 0);
    Evidenzia_Componente_in_distinta(griglia, 1, u"C2"_qs);
    Evidenzia_Componente_in_distinta(griglia, 1, u"C2"_qs);
    EXPECT_EQ(avvisi, 1);
    griglia.Righe_In_Vista = 2;
    Evidenzia_Componente_in_distinta(griglia, 1, u"C2"_qs);
    EXPECT_EQ(avvisi, 2);  // row 4 has to be scrolled to
}

TEST_F(Evidenza, TheLastMatchingRowIsBroughtIntoView) {
    struct Caso {
        const char* key;
        int in_vista, prima, dopo;
    };
    const Caso casi[] = {
        {"C1", 2, 1, 1}, {"C1", 2, 3, 1}, {"C2", 2, 1, 4},
        {"C2", 1, 4, 4}, {"C3", 2, 2, 2},                   // in view as it is
        {"C3", 2, 1, 3}, {"C9", 2, 3, 3}, {"C2", 0, 1, 1},  // 0: all rows are in view
        {"C2", 3, 2, 2},
    };
    for (const Caso& caso : casi) {
        griglia.Righe_In_Vista = caso.in_vista;
        griglia.TopRow = caso.prima;
        Evidenzia_Componente_in_distinta(griglia, 1, QString::fromUtf8(caso.key));
        EXPECT_EQ(griglia.TopRow, caso.dopo) << caso.key << ' ' << caso.in_vista << ' ' << caso.prima;
    }
}

TEST_F(Evidenza, AColumnOutOfViewBecomesTheLeftOne) {
    for (int c = 0; c < 3; ++c)
        griglia.ColWidth(c, 1000);
    struct Caso {
        int larghezza, prima, dopo;
    };
    const Caso casi[] = {
        {3000, 0, 0}, {2001, 0, 0},  // a part of the last one can be seen
        {2000, 0, 2}, {3000, 1, 0},  // scrolled too far
        {0, 2, 2},                   // nothing known of the view: all is in it
    };
    for (const Caso& caso : casi) {
        griglia.Larghezza_Vista = caso.larghezza;
        griglia.LeftCol = caso.prima;
        Evidenzia_Componente_in_distinta(griglia, 1, u"C1"_qs);
        EXPECT_EQ(griglia.LeftCol, caso.dopo) << caso.larghezza << ' ' << caso.prima;
    }
    griglia.Larghezza_Vista = 3000;
    griglia.LeftCol = 1;
    Evidenzia_Componente_in_distinta(griglia, 1, u"C9"_qs);
    EXPECT_EQ(griglia.LeftCol, 1);
}

TEST(Colonna_Codice_Distinta, FollowsTheFixedColumns) {
    Catalogo_Di_Prova catalogo;
    const Filtri filtri{u"1"_qs, u"1"_qs, QString(), QString()};
    EXPECT_EQ(Colonna_Codice_Distinta(Catalogo_Aperto(catalogo).DB, filtri, 1), 1);
    catalogo.Riga(u"Struttura_Componenti"_qs, {{"Nome_Colonna_Tabella", "Campo00"},
                                               {"Visualizzato", "Yes"},
                                               {"Ordine", "0"},
                                               {"Tipo_Colonna", "Memo"}});
    EXPECT_EQ(Colonna_Codice_Distinta(Catalogo_Aperto(catalogo).DB, filtri, 2), 3);
}

class File_Di_Prova : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override {
        return nome == u"presente.png" ? Presente : nome == u"sparito.pdf" ? u"/non/c'è.pdf"_qs : QString();
    }
    QString Presente;
};

TEST(Allegati_Griglia, OpenWhatThePackageHolds) {
    Sistema_Finto sistema;
    File_Di_Prova file;
    file.Presente = sistema.Cartella_Temporanea() + u"presente.png"_qs;
    QFile su_disco(file.Presente);
    ASSERT_TRUE(su_disco.open(QIODevice::WriteOnly));

    EXPECT_EQ(Percorso_Immagine_Cella(u"presente.png"_qs, file), file.Presente);
    EXPECT_EQ(Percorso_Immagine_Cella(u"sparito.pdf"_qs, file), QString());
    EXPECT_EQ(Percorso_Immagine_Cella(u"assente"_qs, file), QString());

    // Whether a document's file is there is left to the desktop.
    for (const char* voce : {"presente.png", "sparito.pdf", "assente", ""})
        Apri_Documento_Cella(QString::fromUtf8(voce), file, sistema);
    EXPECT_THAT(sistema.Aperti, ElementsAre(file.Presente, u"/non/c'è.pdf"_qs));
}

}  // namespace

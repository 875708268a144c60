#include "core/parts_tables/evidenza.h"

#include <gmock/gmock.h>

#include <QFile>

#include "core/parts_tables/allegati_griglia.h"
#include "support/catalogo_aperto.h"

namespace {

using testing::ElementsAre;

/// Rows of reference, code and description.
class Evidenza : public testing::Test {
  protected:
    Evidenza() {
        griglia.Cols(3);
        for (const char* riga : {"1\tC1\tDado", "2\tC2\tVite", "2\tC3\tC2", "3\tC2\tVite"})
            griglia.AddItem(riga);
        griglia.RemoveItem(1);
        griglia.Evidenziata = [this] { ++avvisi; };
        griglia.Cambiata = [] { ADD_FAILURE() << "no row has changed"; };
    }
    /// The bold rows, joined by blanks.
    QString Grassetto() const {
        QStringList righe;
        for (int r = 0; r < griglia.Rows(); ++r) {
            int celle = 0;
            for (int c = 0; c < griglia.Cols(); ++c)
                celle += griglia.At(r, c).Bold;
            EXPECT_TRUE(celle == 0 || celle == griglia.Cols()) << "row " << r;
            if (celle > 0)
                righe << QString::number(r);
        }
        return righe.join(' ');
    }
    Griglia griglia;
    int avvisi = 0;
};

TEST_F(Evidenza, MarksEveryMatchingRowAndNoOther) {
    struct Caso {
        int colonna;
        const char* key;
        const char* righe;
    };
    const Caso casi[] = {{1, "C2", "2 4"}, {1, "C3", "3"}, {1, "C", ""}, {1, "c3", ""},
                         {1, "C3 ", ""},   {2, "C2", "3"}, {1, "", ""},  {0, "1", "1"},
                         {-1, "1", ""},    {0, "1", "1"},  {3, "1", ""}};
    for (const Caso& caso : casi) {
        Evidenzia_Componente_in_distinta(griglia, caso.colonna, caso.key);
        EXPECT_EQ(Grassetto(), caso.righe) << caso.colonna << ' ' << caso.key;
    }
}

TEST_F(Evidenza, TheViewIsToldOfChangesOnly) {
    Evidenzia_Componente_in_distinta(griglia, 1, "C9");
    EXPECT_EQ(avvisi, 0);
    Evidenzia_Componente_in_distinta(griglia, 1, "C2");
    Evidenzia_Componente_in_distinta(griglia, 1, "C2");
    EXPECT_EQ(avvisi, 1);
    griglia.Righe_In_Vista = 2;
    Evidenzia_Componente_in_distinta(griglia, 1, "C2");
    EXPECT_EQ(avvisi, 2);  // row 4 has to be scrolled to
}

TEST_F(Evidenza, TheLastMatchingRowIsBroughtIntoView) {
    struct Caso {
        const char* key;
        int in_vista, prima, dopo;
    };
    // C3 at 2 is in view as it is; with 0 rows in view all are.
    const Caso casi[] = {{"C1", 2, 3, 1}, {"C2", 2, 1, 4}, {"C2", 1, 4, 4}, {"C3", 2, 2, 2},
                         {"C3", 2, 1, 3}, {"C9", 2, 3, 3}, {"C2", 0, 1, 1}, {"C2", 3, 2, 2}};
    for (const Caso& caso : casi) {
        griglia.Righe_In_Vista = caso.in_vista;
        griglia.TopRow = caso.prima;
        Evidenzia_Componente_in_distinta(griglia, 1, caso.key);
        EXPECT_EQ(griglia.TopRow, caso.dopo) << caso.key << ' ' << caso.in_vista << ' ' << caso.prima;
    }
}

TEST_F(Evidenza, AColumnOutOfViewBecomesTheLeftOne) {
    for (int c = 0; c < 3; ++c)
        griglia.ColWidth(c, 1000);
    struct Caso {
        const char* key;
        int larghezza, prima, dopo;
    };
    const Caso casi[] = {
        {"C1", 3000, 0, 0}, {"C1", 2001, 0, 0},  // a part of the last one can be seen
        {"C1", 2000, 0, 2}, {"C1", 3000, 1, 0},  // scrolled too far
        {"C1", 0, 2, 2},                         // nothing known of the view: all is in it
        {"C9", 3000, 1, 1},
    };
    for (const Caso& caso : casi) {
        griglia.Larghezza_Vista = caso.larghezza;
        griglia.LeftCol = caso.prima;
        Evidenzia_Componente_in_distinta(griglia, 1, caso.key);
        EXPECT_EQ(griglia.LeftCol, caso.dopo) << caso.key << ' ' << caso.larghezza << ' ' << caso.prima;
    }
}

TEST(Colonna_Codice_Distinta, FollowsTheFixedColumns) {
    Catalogo_Di_Prova catalogo;
    const Filtri filtri{"1", "1", {}, ""};
    EXPECT_EQ(Colonna_Codice_Distinta(Catalogo_Aperto(catalogo).DB, filtri, 1), 1);
    catalogo.Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo00"},
                                           {"Visualizzato", "Yes"},
                                           {"Ordine", "0"},
                                           {"Tipo_Colonna", "Memo"}});
    EXPECT_EQ(Colonna_Codice_Distinta(Catalogo_Aperto(catalogo).DB, filtri, 2), 3);
}

class File_Di_Prova : public Fonte_File {
  public:
    QString Scompatta_File_Compattato(const QString& nome) override { return Percorsi.value(nome); }
    QHash<QString, QString> Percorsi;
};

TEST(Allegati_Griglia, OpenWhatThePackageHolds) {
    Sistema_Finto sistema;
    File_Di_Prova file;
    QFile su_disco(sistema.Cartella_Temporanea() + "presente.png");
    ASSERT_TRUE(su_disco.open(QIODevice::WriteOnly));
    file.Percorsi = {{"presente.png", su_disco.fileName()}, {"sparito.pdf", "/non/c'è.pdf"}};

    EXPECT_EQ(Percorso_Immagine_Cella("presente.png", file), su_disco.fileName());
    EXPECT_EQ(Percorso_Immagine_Cella("sparito.pdf", file), "");
    EXPECT_EQ(Percorso_Immagine_Cella("assente", file), "");

    // Whether a document's file is there is left to the desktop.
    for (const char* voce : {"presente.png", "sparito.pdf", "assente", ""})
        Apri_Documento_Cella(voce, file, sistema);
    EXPECT_THAT(sistema.Aperti, ElementsAre(su_disco.fileName(), "/non/c'è.pdf"));
}

}  // namespace

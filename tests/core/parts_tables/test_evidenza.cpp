#include "core/parts_tables/evidenza.h"

#include <gmock/gmock.h>

#include <QTemporaryFile>

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
};

TEST_F(Evidenza, MarksEveryMatchingRowAndNoOther) {
    const std::tuple<int, const char*, const char*> casi[] = {{1, "C2", "2 4"}, {1, "c3", ""}, {1, "C3 ", ""},
                                                              {2, "C2", "3"},   {1, "", ""},   {0, "1", "1"},
                                                              {-1, "1", ""},    {3, "1", ""}};
    for (const auto& [colonna, key, righe] : casi) {
        Evidenzia_Componente_in_distinta(griglia, colonna, key);
        EXPECT_EQ(Grassetto(), righe) << colonna << ' ' << key;
    }
}

TEST_F(Evidenza, TheLastMatchingRowIsBroughtIntoView) {
    // Key, rows in view (0: all are), top row before and after.
    const std::tuple<const char*, int, int, int> casi[] = {{"C1", 2, 3, 1}, {"C2", 2, 1, 4}, {"C3", 2, 2, 2},
                                                           {"C3", 2, 1, 3}, {"C9", 2, 3, 3}, {"C2", 0, 1, 1}};
    for (const auto& [key, in_vista, prima, dopo] : casi) {
        griglia.Righe_In_Vista = in_vista;
        griglia.TopRow = prima;
        Evidenzia_Componente_in_distinta(griglia, 1, key);
        EXPECT_EQ(griglia.TopRow, dopo) << key << ' ' << in_vista << ' ' << prima;
    }
}

TEST_F(Evidenza, AColumnOutOfViewBecomesTheLeftOne) {
    for (int c = 0; c < 3; ++c)
        griglia.ColWidth(c, 1000);
    // Width of the view, left column before and after.
    const int casi[][3] = {{3000, 0, 0},
                           {2001, 0, 0},  // a part of the last one can be seen
                           {2000, 0, 2},
                           {3000, 1, 0},  // scrolled too far
                           {0, 2, 2}};    // nothing known of the view: all is in it
    for (const auto& [larghezza, prima, dopo] : casi) {
        griglia.Larghezza_Vista = larghezza;
        griglia.LeftCol = prima;
        Evidenzia_Componente_in_distinta(griglia, 1, "C1");
        EXPECT_EQ(griglia.LeftCol, dopo) << larghezza << ' ' << prima;
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
    QTemporaryFile su_disco;
    ASSERT_TRUE(su_disco.open());
    file.Percorsi = {{"presente.png", su_disco.fileName()}, {"sparito.pdf", "/non/c'è.pdf"}};
    EXPECT_EQ(Percorso_Immagine_Cella("presente.png", file), su_disco.fileName());
    // Whether a document's file is there is left to the desktop.
    for (const char* voce : {"sparito.pdf", "assente"}) {
        EXPECT_EQ(Percorso_Immagine_Cella(voce, file), "");
        Apri_Documento_Cella(voce, file, sistema);
    }
    EXPECT_THAT(sistema.Aperti, ElementsAre("/non/c'è.pdf"));
}

}  // namespace

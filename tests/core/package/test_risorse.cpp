#include "core/package/risorse.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "core/localisation/finestra_finta.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "support/zip_di_prova.h"

using testing::IsEmpty;

namespace {

class Risorse : public testing::Test {
  protected:
    static Catalogo_Di_Prova Con_Testo(const QString& testo) {
        Catalogo_Di_Prova catalogo;
        catalogo.Riga("Traduzioni_Viewer_System", {{"Form", "Form_Prova"},
                                                   {"Name_Object", "Label_Prova"},
                                                   {"Traduzione_1", testo + " it"},
                                                   {"Traduzione_2", testo + " en"}});
        return catalogo;
    }
    void Installa(const QByteArray& database) {
        QDir(install_.path()).mkpath("Data");
        Scrivi_Zip(Percorso_Risorse(install_.path()),
                   {{"Data_TzVwRk.QLD", database}, {"pictures/lente.bmp", "a lens"}});
    }
    QByteArray Database_Con_Testo() { return Leggi_Tutto(Con_Testo("resource").Database(install_.path())); }

    QTemporaryDir cartella_, install_;
    Impostazioni_Finte impostazioni_;
    Messaggi_Finti messaggi_;
    Sistema_Finto sistema_;
    Class_Progetto_Aperto p_{{impostazioni_, messaggi_, sistema_}};
    Finestra_Finta finestra_;
    QString& testo_ = finestra_.controlli.emplace_back(Stato_Controllo{"Label", "Label_Prova"}).testo;
};

TEST_F(Risorse, TextsWithoutACatalogueComeFromTheResourcePackage) {
    Installa(Database_Con_Testo());
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    EXPECT_EQ(testo_, "resource en");
    EXPECT_EQ(p_.Traduzioni.Item("QUANTITA").Testo, "Quantity");  // stays for the message boxes
    EXPECT_EQ(Leggi_Risorsa(p_, install_.path(), "lente.bmp"), "a lens");
    EXPECT_EQ(Leggi_Risorsa(p_, install_.path(), "none.bmp"), "");
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());

    const QString accanto = Con_Testo("beside").Database(install_.filePath("Data"), "Data_TzVwRk.QLD");
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    EXPECT_EQ(testo_, "beside en");
    EXPECT_TRUE(QFile::exists(accanto));
    ASSERT_EQ(p_.Apri_Progetto_TZF(Con_Testo("catalogue").Pacchetto(cartella_.path())), 1);
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    EXPECT_EQ(testo_, "catalogue it") << "an open catalogue has texts of its own";
}

TEST_F(Risorse, WithoutUsableTextsTheWindowStaysAsDesigned) {
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    EXPECT_EQ(Leggi_Risorsa(p_, install_.path(), "lente.bmp"), "");
    EXPECT_FALSE(Con_Dati_Risorsa(p_, install_.path(), [](const Class_DBOper&) { FAIL(); }));
    Installa("garbage");
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    Installa(Leggi_Tutto(
        Catalogo_Di_Prova().Rimuovi_Tabella("Traduzioni_Viewer_System").Database(cartella_.path())));
    Carica_Testi_Finestra(p_, install_.path(), finestra_);
    EXPECT_EQ(testo_, "designed");
    EXPECT_THAT(messaggi_.Testi(), IsEmpty());
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
}

}  // namespace

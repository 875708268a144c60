// The foot of the home page: languages without a catalogue, the second way in with one.

#include <QComboBox>
#include <QDir>

#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"

namespace {

class Lingue_Home : public Finestra_Di_Prova {
  protected:
    void Installa_Risorse() {
        Catalogo_Di_Prova risorse;
        const char* altre[][2] = {{"4", "Deutsch"}, {"5", "Español"}, {"6", "Português"}};
        for (const auto& [id, nome] : altre)
            risorse.Riga("Lingue",
                         {{"ID", id}, {"Chiave", id}, {"Descrizione_Lingua", QString::fromUtf8(nome)}});
        risorse.Riga("Traduzioni_Viewer_System", {{"Form", "Form_Main"},
                                                  {"Name_Object", "Label_scelta_Lingua"},
                                                  {"Traduzione_2", "Language"},
                                                  {"Traduzione_4", "Sprache"}});
        ASSERT_TRUE(QDir(cartella.path()).mkpath(QStringLiteral("Data")));
        risorse.Voce_Database("Data_TzVwRk.QLD").Pacchetto(cartella.filePath("Data"), "data40.qld");
    }
    QComboBox& Lista() { return *qobject_cast<QComboBox*>(Trova("ImageCombo_lingua")); }
};

TEST_F(Lingue_Home, AChosenLanguageIsSpokenAtOnceAndKept) {
    Installa_Risorse();
    Mostra();
    ASSERT_TRUE(Visibile("ImageCombo_lingua"));
    EXPECT_TRUE(Visibile("Label_scelta_Lingua"));
    EXPECT_FALSE(Visibile("Image_consulta_Catalogo"));
    EXPECT_FALSE(Visibile("Label_Consulta_Cat"));
    EXPECT_EQ(Lista().count(), 5);
    EXPECT_EQ(Lista().currentText(), QStringLiteral("English"));
    EXPECT_EQ(Testo("Label_scelta_Lingua"), QStringLiteral("Language"));
    Lista().setFocus();
    QTest::keyClick(&Lista(), Qt::Key_End);
    QTest::keyClick(&Lista(), Qt::Key_Up);
    EXPECT_EQ(Lista().currentText(), QStringLiteral("Deutsch"));
    EXPECT_EQ(progetto.Lingua, QStringLiteral("4"));
    EXPECT_EQ(Testo("Label_scelta_Lingua"), QStringLiteral("Sprache"));
}

TEST_F(Lingue_Home, WithACatalogueTheSecondWayInStandsThere) {
    Installa_Risorse();
    Apri(Macchina());
    EXPECT_FALSE(Visibile("ImageCombo_lingua"));
    EXPECT_FALSE(Visibile("Label_scelta_Lingua"));
    for (const char* link : {"Image_consulta_Catalogo", "Label_Consulta_Cat"}) {
        Clic(link);
        EXPECT_TRUE(Visibile("Frame_Main")) << link;
        Comando("KEY_HOME");
    }
}

TEST_F(Lingue_Home, WithoutResourcesThereIsNeither) {
    Mostra();
    for (const char* nome :
         {"ImageCombo_lingua", "Label_scelta_Lingua", "Image_consulta_Catalogo", "Label_Consulta_Cat"})
        EXPECT_FALSE(Visibile(nome)) << nome;
}

}  // namespace

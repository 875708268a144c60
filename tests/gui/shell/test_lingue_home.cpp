// The foot of the home page: languages without a catalogue, the second way in with one.

#include <QComboBox>
#include <QDir>

#include "gui/finestra_di_prova.h"

namespace {

class Lingue_Home : public Finestra_Di_Prova {
  protected:
    void Installa_Risorse() {
        Catalogo_Di_Prova risorse;
        const char* altre[][2] = {{"4", "Deutsch"}, {"5", "Español"}, {"6", "Português"}};
        for (const auto& [id, nome] : altre)
            risorse.Riga("Lingue", {{"ID", id}, {"Chiave", id}, {"Descrizione_Lingua", nome}});
        risorse.Riga("Traduzioni_Viewer_System", {{"Form", "Form_Main"},
                                                  {"Name_Object", "Label_scelta_Lingua"},
                                                  {"Traduzione_2", "Language"},
                                                  {"Traduzione_4", "Sprache"}});
        ASSERT_TRUE(QDir(cartella.path()).mkpath("Data"));
        risorse.Voce_Database("Data_TzVwRk.QLD").Pacchetto(cartella.filePath("Data"), "data40.qld");
    }
    QComboBox& Lista() { return *qobject_cast<QComboBox*>(Trova("ImageCombo_lingua")); }
};

TEST_F(Lingue_Home, AChosenLanguageIsSpokenAtOnceAndKept) {
    Installa_Risorse();
    Mostra();
    EXPECT_FALSE(Visibile("Label_Consulta_Cat"));
    EXPECT_EQ(Lista().count(), 5);
    EXPECT_EQ(Lista().currentText(), "English");
    EXPECT_EQ(Testo("Label_scelta_Lingua"), "Language");
    Lista().setFocus();
    QTest::keyClick(&Lista(), Qt::Key_End);
    QTest::keyClick(&Lista(), Qt::Key_Up);
    EXPECT_EQ(Lista().currentText(), "Deutsch");
    EXPECT_EQ(progetto.Lingua, "4");
    EXPECT_EQ(Testo("Label_scelta_Lingua"), "Sprache");
    Apri_Altro(Macchina());  // then the second way in stands there
    EXPECT_FALSE(Visibile("ImageCombo_lingua") || Visibile("Label_scelta_Lingua"));
    for (const char* link : {"Image_consulta_Catalogo", "Label_Consulta_Cat"}) {
        Clic(link);
        EXPECT_TRUE(Visibile("Frame_Main")) << link;
        Comando("KEY_HOME");
    }
}

}  // namespace

// The foot of the home page: languages without a catalogue, the second way in with one.

#include <QComboBox>
#include <QDir>

#include "gui/finestra_di_prova.h"

namespace {

constexpr const char* LINGUE[] = {"ImageCombo_lingua", "Label_scelta_Lingua"};
constexpr const char* SECONDO_INGRESSO[] = {"Image_consulta_Catalogo", "Label_Consulta_Cat"};

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
    for (const char* nome : LINGUE)
        EXPECT_TRUE(Visibile(nome)) << nome;
    for (const char* nome : SECONDO_INGRESSO)
        EXPECT_FALSE(Visibile(nome)) << nome;
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
    for (const char* nome : LINGUE)
        EXPECT_FALSE(Visibile(nome)) << nome;
    for (const char* link : SECONDO_INGRESSO) {
        Clic(link);
        EXPECT_TRUE(Visibile("Frame_Main")) << link;
        Comando("KEY_HOME");
    }
}

TEST_F(Lingue_Home, WithoutResourcesThereIsNeither) {
    Mostra();
    for (const char* nome : {LINGUE[0], LINGUE[1], SECONDO_INGRESSO[0], SECONDO_INGRESSO[1]})
        EXPECT_FALSE(Visibile(nome)) << nome;
}

}  // namespace

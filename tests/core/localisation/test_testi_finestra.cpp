#include <gtest/gtest.h>

#include "core/base/testo.h"
#include "finestra_finta.h"

namespace {

class Testi_Finestra : public Testi {
  protected:
    Stato_Oggetto& Aggiungi(const char* tipo, const char* nome) {
        return finestra.oggetti.emplace_back(Stato_Oggetto{.tipo = tipo, .nome = nome});
    }
    /// Caption and tool tip of a control, counted from 0.
    QString Su(size_t oggetto) const {
        return finestra.oggetti[oggetto].testo + u'|' + finestra.oggetti[oggetto].suggerimento;
    }
};

TEST_F(Testi_Finestra, EachTypeTakesWhatIsItsOwn) {
    const std::pair<QStringList, const char*> casi[] = {
        {{"Form", "Label", "CheckBox", "Frame", "OptionButton", "CommandButton", "Menu"}, "caption|tip"},
        {{"Image", "TextBox", "ComboBox", "VScrollBar", "HScrollBar"}, "designed|tip"},
        {{"Toolbar", "SSTab", "ListView", "TreeView", "label"}, "designed|designed tip"}};
    Righe("('Form_Prova','X',NULL,'  caption ',' tip  ')");
    for (const auto& [tipi, atteso] : casi)
        for (const QString& tipo : tipi) {
            finestra.oggetti = {{.tipo = tipo, .nome = "X"}};
            testi.Carica_Testi_Form(finestra, "2");
            EXPECT_EQ(Su(0), atteso) << qPrintable(tipo);
        }
}

TEST_F(Testi_Finestra, PartsOfToolbarsTabsAndLists) {
    const QString fine = FINE_TOKEN;
    const std::pair<const char*, QStringList> casi[] = {{"'a/b/c'", {"a", "b", "c", fine, fine}},
                                                        {"'a/b/c'", {"a", "b"}},
                                                        {"'a//c/'", {"a", "", "c", fine}},
                                                        {"NULL", {fine, fine}},
                                                        {"'a'", {}}};
    for (const auto& [testo, attese] : casi) {
        database.Esegui("DELETE * FROM Traduzioni_Viewer_System");
        Righe(QString("('Form_Prova','Parti',NULL,%1,'tip')").arg(testo));
        for (const char* tipo : {"Toolbar", "SSTab", "ListView"}) {
            finestra.oggetti = {{.tipo = tipo, .nome = "Parti"}};
            finestra.oggetti[0].parti.resize(attese.size());
            testi.Carica_Testi_Form(finestra, "2");
            EXPECT_EQ(finestra.oggetti[0].parti, attese) << tipo << ' ' << testo;
        }
    }
}

TEST_F(Testi_Finestra, MembersOfControlArraysGoByTheirIndex) {
    for (const int indice : {2, 0, 7})
        Aggiungi("Label", "Serie").indice = indice;
    Aggiungi("Label", "Serie");
    // NULL becomes empty, and only blanks are trimmed.
    Righe("('Form_Prova','Serie','0','zero',NULL), ('Form_Prova','Serie','2',' two\r\n',NULL)");
    testi.Carica_Testi_Form(finestra, "2");
    EXPECT_EQ(Su(0), "two\r\n|");
    EXPECT_EQ(Su(1), "zero|");
    EXPECT_EQ(Su(2), "designed|designed tip");
    EXPECT_EQ(Su(3), "zero|") << "no array member: the first row whatever its index";
}

TEST_F(Testi_Finestra, ARefusedAssignmentStopsNothing) {
    Aggiungi("Label", "A").rifiuta = true;
    Aggiungi("Label", "L'ultima");
    for (const char* nome : {"A", "L''ultima", "Form_Prova"})
        Righe(QString("('Form_Prova','%1',NULL,'caption','tip')").arg(nome));
    testi.Carica_Testi_Form(finestra, "2");
    EXPECT_EQ(Su(0), "designed|tip");
    EXPECT_EQ(Su(1), "caption|tip");
    EXPECT_EQ(finestra.titolo, "caption");
}

TEST_F(Testi_Finestra, Title) {
    Righe("('Form_Prova','Form_Prova',' ','  the title ',NULL)");
    for (const auto& [lingua, titolo] : {std::pair("12", "designed title"), {"2", "the title"}, {"1", ""}}) {
        testi.Carica_Testi_Form(finestra, lingua);
        EXPECT_EQ(finestra.titolo, titolo);
    }
}

TEST_F(Testi_Finestra, WithoutALanguageATableOrADatabaseTheDesignStays) {
    Aggiungi("Label", "A");
    Aggiungi("Toolbar", "T").parti = {"designed part"};
    for (const char* nome : {"A", "T", "Form_Prova"})
        Righe(QString("('Form_Prova','%1',NULL,'text','tip')").arg(nome));
    for (const char* lingua : {"", "12"})
        testi.Carica_Testi_Form(finestra, lingua);
    database.Esegui("ALTER TABLE Traduzioni_Viewer_System RENAME TO Altra");
    testi.Carica_Testi_Form(finestra, "2");
    testi.Chiudi_Database_Traduzioni();
    testi.Carica_Testi_Form(finestra, "2");

    EXPECT_EQ(Su(0), "designed|designed tip");
    EXPECT_EQ(finestra.oggetti[1].parti, QStringList{"designed part"});
    EXPECT_EQ(finestra.titolo, "designed title");
    EXPECT_TRUE(messaggi.Mostrati.empty());
}

}  // namespace

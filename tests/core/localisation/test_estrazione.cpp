#include <gtest/gtest.h>

#include "finestra_finta.h"

namespace {

class Estrazione : public Testi {
  protected:
    /// All rows, fields joined by "|", NULL as "(null)".
    QStringList Estratti() {
        QStringList righe;
        for (Recordset r = database.Apri_Recordset(
                 "SELECT Name_Object, [Index], Traduzione_1, Traduzione_Tooltiptext_1 "
                 "FROM Oggetti_Form WHERE Form = 'Form_Prova'");
             !r.EOF_(); r.MoveNext()) {
            QStringList campi;
            for (int i = 0; i < r.Count(); ++i)
                campi.append(r.Campo(i).E_Nullo() ? "(null)" : r.Campo(i).Testo());
            righe.append(campi.join(u'|'));
        }
        return righe;
    }
};

TEST_F(Estrazione, AsksFirst) {
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(messaggi.Domande, QStringList{"Estrapola testi"});
    EXPECT_EQ(Estratti(), QStringList());
}

TEST_F(Estrazione, WritesARowForEachControlAndForTheWindow) {
    for (const char* tipo : {"Label", "Form", "Menu", "Image", "TextBox", "ComboBox", "VScrollBar",
                             "HScrollBar", "SSTab", "Toolbar", "ListView", "TreeView"})
        finestra.controlli.push_back({.tipo = tipo,
                                      .nome = QString("un ") + tipo,
                                      .testo = "text",
                                      .suggerimento = "tip",
                                      .parti = {"uno", "due"}});
    finestra.controlli.push_back(
        {.tipo = "Label", .nome = "Serie", .testo = "  ", .suggerimento = "", .indice = 3});
    finestra.titolo = "L'officina";
    messaggi.Risposte = {true};
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti().join("\n"), R"(un Label| |text|tip
un Form| |text|tip
un Menu| |text| 
un Image| | |tip
un TextBox| | |tip
un ComboBox| | |tip
un VScrollBar| | | 
un HScrollBar| | | 
un SSTab| |uno/due| 
un Toolbar| |uno/due| 
un ListView| |uno/due|tip
Serie|3| | 
Form_Prova| |L'officina|(null))");
}

TEST_F(Estrazione, ASecondTimeUpdates) {
    finestra.controlli = {{.tipo = "Label", .nome = "A", .testo = "l'olio"},
                          {.tipo = "Label", .nome = "B", .testo = "one", .suggerimento = "", .indice = 1},
                          {.tipo = "Label", .nome = "B", .testo = "two", .suggerimento = "", .indice = 2}};
    messaggi.Risposte = {true, true};
    testi.Estrapola_Oggetti_Form(finestra);
    finestra.controlli[0].testo = "l'acqua";
    finestra.controlli[0].suggerimento = "l'aria";
    finestra.controlli[2].testo = "three";
    finestra.titolo = "new title";
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti(), (QStringList{"A| |l'acqua|l'aria", "B|1|one| ", "B|2|three| ",
                                       "Form_Prova| |new title|(null)"}));
}

TEST_F(Estrazione, FailsWhereItCantWrite) {
    database.Esegui("DROP TABLE Oggetti_Form");
    messaggi.Risposte = {true};
    EXPECT_THROW(testi.Estrapola_Oggetti_Form(finestra), Errore_DB);
}

}  // namespace

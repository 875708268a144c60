#include <gtest/gtest.h>

#include "finestra_finta.h"

namespace {

class Estrazione : public Testi {
  protected:
    /// All rows, fields joined by "|", a tool tip that is NULL as "(null)".
    QStringList Estratti() {
        QStringList righe;
        for (Recordset r = database.Apri_Recordset(
                 "SELECT Name_Object || '|' || [Index] || '|' || Traduzione_1 || '|' || "
                 "coalesce(Traduzione_Tooltiptext_1, '(null)') FROM Oggetti_Form WHERE Form = 'Form_Prova'");
             !r.EOF_(); r.MoveNext())
            righe.append(r.Campo(0).Testo());
        return righe;
    }
};

TEST_F(Estrazione, WritesARowForEachControlAndForTheWindow) {
    for (const char* tipo :
         {"Label", "Menu", "Image", "VScrollBar", "SSTab", "Toolbar", "ListView", "TreeView"})
        finestra.oggetti.push_back({tipo, QString("un ") + tipo, "text", "tip", {}, {"uno", "due"}});
    finestra.oggetti.push_back({"Label", "Serie", "  ", "", 3});
    finestra.titolo = "L'officina";
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(messaggi.Domande, QStringList{"Estrapola testi"});
    EXPECT_EQ(Estratti(), QStringList()) << "the answer was no";
    messaggi.Risposte = {true};
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti().join("\n"), R"(un Label| |text|tip
un Menu| |text| 
un Image| | |tip
un VScrollBar| | | 
un SSTab| |uno/due| 
un Toolbar| |uno/due| 
un ListView| |uno/due|tip
Serie|3| | 
Form_Prova| |L'officina|(null))");
}

TEST_F(Estrazione, ASecondTimeUpdates) {
    finestra.oggetti = {{"Label", "B", "l'olio", "tip", 1}, {"Label", "B", "two", "", 2}};
    messaggi.Risposte = {true, true};
    testi.Estrapola_Oggetti_Form(finestra);
    finestra.oggetti[0].testo = "l'acqua";
    finestra.oggetti[0].suggerimento = "l'aria";
    finestra.titolo = "new title";
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti(), (QStringList{"B|1|l'acqua|l'aria", "B|2|two| ", "Form_Prova| |new title|(null)"}));
}

TEST_F(Estrazione, FailsWhereItCantWrite) {
    database.Esegui("DROP TABLE Oggetti_Form");
    messaggi.Risposte = {true};
    EXPECT_THROW(testi.Estrapola_Oggetti_Form(finestra), Errore_DB);
}

}  // namespace

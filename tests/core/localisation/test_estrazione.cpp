#include <gtest/gtest.h>

#include "finestra_finta.h"
#include "support/fakes.h"

namespace {

class Estrazione : public testing::Test {
  protected:
    Estrazione() { testi.Apri_Database_Traduzioni(sorgente.Percorso(), Database::Modo::Scrittura); }
    QStringList Estratti() {
        return sorgente.Righe(
            u"SELECT Name_Object, [Index], Traduzione_1, Traduzione_Tooltiptext_1 "
            "FROM Oggetti_Form WHERE Form = 'Form_Prova'"_qs);
    }
    Database_Testi sorgente;
    Messaggi_Finti messaggi;
    Collection_Traduzioni testi{messaggi};
    Finestra_Finta finestra;
};

TEST_F(Estrazione, AsksFirst) {
    finestra.controlli = {{.tipo = u"Label"_qs, .nome = u"A"_qs}};
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(messaggi.Domande, QStringList{u"Estrapola testi"_qs});
    EXPECT_EQ(Estratti(), QStringList());
}

TEST_F(Estrazione, WritesARowForEachControlAndForTheWindow) {
    const QStringList parti{u"uno"_qs, u"due"_qs};
    for (const char* tipo : {"Label", "Form", "Menu", "Image", "TextBox", "ComboBox", "VScrollBar",
                             "HScrollBar", "SSTab", "Toolbar", "ListView", "TreeView"})
        finestra.controlli.push_back({.tipo = QString::fromUtf8(tipo),
                                      .nome = u"un "_qs + QString::fromUtf8(tipo),
                                      .testo = u"text"_qs,
                                      .suggerimento = u"tip"_qs,
                                      .parti = parti});
    finestra.controlli.push_back({.tipo = u"Label"_qs, .nome = u"Serie"_qs, .indice = 3, .testo = u"  "_qs});
    finestra.titolo = u"L'officina"_qs;
    messaggi.Risposte = {true};
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti(), (QStringList{
                              u"un Label| |text|tip"_qs,
                              u"un Form| |text|tip"_qs,
                              u"un Menu| |text| "_qs,
                              u"un Image| | |tip"_qs,
                              u"un TextBox| | |tip"_qs,
                              u"un ComboBox| | |tip"_qs,
                              u"un VScrollBar| | | "_qs,
                              u"un HScrollBar| | | "_qs,
                              u"un SSTab| |uno/due| "_qs,
                              u"un Toolbar| |uno/due| "_qs,
                              u"un ListView| |uno/due|tip"_qs,
                              u"Serie|3| | "_qs,
                              u"Form_Prova| |L'officina|(null)"_qs,
                          }));
}

TEST_F(Estrazione, ASecondTimeUpdates) {
    finestra.controlli = {{.tipo = u"Label"_qs, .nome = u"A"_qs, .testo = u"l'olio"_qs},
                          {.tipo = u"Label"_qs, .nome = u"B"_qs, .indice = 1, .testo = u"one"_qs},
                          {.tipo = u"Label"_qs, .nome = u"B"_qs, .indice = 2, .testo = u"two"_qs}};
    messaggi.Risposte = {true, true};
    testi.Estrapola_Oggetti_Form(finestra);
    finestra.controlli[0].testo = u"l'acqua"_qs;
    finestra.controlli[0].suggerimento = u"l'aria"_qs;
    finestra.controlli[2].testo = u"three"_qs;
    finestra.titolo = u"new title"_qs;
    testi.Estrapola_Oggetti_Form(finestra);
    EXPECT_EQ(Estratti(), (QStringList{u"A| |l'acqua|l'aria"_qs, u"B|1|one| "_qs, u"B|2|three| "_qs,
                                       u"Form_Prova| |new title|(null)"_qs}));
}

TEST_F(Estrazione, FailsWhereItCantWrite) {
    sorgente.Esegui(u"DROP TABLE Oggetti_Form"_qs);
    messaggi.Risposte = {true};
    EXPECT_THROW(testi.Estrapola_Oggetti_Form(finestra), Errore_DB);
}

}  // namespace

#include <gmock/gmock.h>

#include <QLabel>

#include <QToolButton>

#include "core/base/testo.h"
#include "gui/finestra_di_prova.h"

namespace {

using testing::ElementsAre;

class Finestra : public Finestra_Di_Prova {
  protected:
    /// The frames of the screens that are visible.
    QStringList Zone() const {
        QStringList zone;
        for (const char* nome : {"Frame_Intro", "Frame_Main", "Frame_Prodotto", "Frame_scheda_Prodotto"})
            if (Visibile(nome))
                zone.append(nome);
        return zone;
    }
    QToolButton& Bottone(const char* key) const {
        return *qobject_cast<QToolButton*>(finestra->Toolbar_Main().Bottone(key));
    }
};

TEST_F(Finestra, WithoutACatalogueOnlyTheHomePageIsThere) {
    Mostra();
    EXPECT_EQ(Zone(), QStringList{"Frame_Intro"});
    EXPECT_TRUE(Visibile("Label_Apri_catalogo"));
    for (const char* nome : {"Label_consulta_catalogo", "Label_Info", "ImageCombo_lingua"})
        EXPECT_FALSE(Visibile(nome)) << nome;
    EXPECT_TRUE(Bottone("KEY_OPEN").isEnabled());
    EXPECT_FALSE(Bottone("KEY_DISEGNO").isEnabled());
}

TEST_F(Finestra, HasAButtonForEachCommandThatExistsAndNoOther) {
    for (const ::Comando& comando : Comandi())
        EXPECT_EQ(finestra->Toolbar_Main().Bottone(comando.Key) != nullptr, comando.Esegui != nullptr)
            << qPrintable(comando.Key);
}

TEST_F(Finestra, AnOpenCatalogueShowsItsDataAndItsLink) {
    Apri(Macchina()
             .Sistema("PROPRIETA_PROGETTO_TITOLO", "Ricambi <b>TZ</b>")
             .Sistema("PROPRIETA_PROGETTO_VERSIONE", "3.2"));
    EXPECT_TRUE(Visibile("Label_Info"));
    EXPECT_EQ(Testo("Label_Info_titolo_dato"), "Ricambi <b>TZ</b>");
    EXPECT_EQ(Testo("Label_Info_Release_Dato"), "3.2");
    // A text of a catalogue is a text, whatever it looks like.
    EXPECT_EQ(qobject_cast<QLabel*>(Trova("Label_Info_titolo_dato"))->textFormat(), Qt::PlainText);
    Clic("Label_consulta_catalogo");
    EXPECT_THAT(Zone(), ElementsAre("Frame_Main", "Frame_scheda_Prodotto"));
    EXPECT_TRUE(Visibile("Label_Help_Albero"));
    Comando("KEY_HOME");
    EXPECT_THAT(Zone(), ElementsAre("Frame_Intro"));
}

TEST_F(Finestra, AClickOnAProductShowsItsPartsList) {
    Consulta(Macchina());
    Clic_Nodo("G_A");
    finestra->Tree1().expand(finestra->Tree1().Modello().Indice("G_A"));
    Clic_Nodo("P_1");
    EXPECT_THAT(Zone(), ElementsAre("Frame_Main", "Frame_Prodotto"));
    ASSERT_TRUE(Visibile("Griglia_Distinta"));
    const QAbstractItemModel& modello = *finestra->Griglia_Distinta().model();
    ASSERT_EQ(modello.rowCount(), 3);
    EXPECT_EQ(modello.index(1, 2).data(), "A.002");

    Clic_Nodo("P_2");
    EXPECT_FALSE(Visibile("Griglia_Distinta"));
    EXPECT_TRUE(Visibile("Label_Nessun_Componente"));
}

TEST_F(Finestra, AListThatCantBeReadIsntCalledEmpty) {
    Consulta(Macchina().Cambia("Struttura_Componenti", 1, "Nome_Colonna_Tabella", "assente"), "P_1");
    EXPECT_TRUE(Visibile("Label_Distinta_Guasta"));
    EXPECT_FALSE(Visibile("Label_Nessun_Componente"));
}

TEST_F(Finestra, TheSerialNumberMarksItsNodes) {
    Consulta(Macchina());

    const Modello_Albero& modello = finestra->Tree1().Modello();
    const auto grassetto = [&] { return modello.Indice("P_3").data(Qt::FontRole).value<QFont>().bold(); };
    for (const bool con_tastiera : {false, true}) {
        QTest::keyClicks(Trova("Text_Matricola"), "100");
        con_tastiera ? QTest::keyClick(Trova("Text_Matricola"), Qt::Key_Return) : Clic("Command_Matricola");
        EXPECT_TRUE(grassetto());
        EXPECT_TRUE(finestra->Tree1().isExpanded(modello.Indice("G_B")));
        Clic("Command_Reset_Matricola");
        EXPECT_FALSE(grassetto());
        EXPECT_EQ(Testo("Text_Matricola"), "");
    }
}

TEST_F(Finestra, TakesItsTextsFromTheCatalogue) {
    Catalogo_Di_Prova catalogo = Macchina();
    Traduci(catalogo, "Form_Main", "Form_Main", "Ricambi");
    Traduci(catalogo, "Form_Main", "Command_Matricola", "Applica");
    Traduci(catalogo, "Form_Main", "Toolbar_Main", "Casa//Apri/Disegno");
    Apri(catalogo);
    EXPECT_EQ(finestra->windowTitle(), "prova – Ricambi");
    EXPECT_EQ(Testo("Command_Matricola"), "Applica");
    EXPECT_EQ(Suggerimenti::Testo(Bottone("KEY_OPEN")), "Apri (Ctrl+O)");
    // Beyond the texts that there are stands the marker of a missing token; it isn't shown.
    EXPECT_EQ(Bottone("KEY_HELP").toolTip(), FINE_TOKEN);
    EXPECT_EQ(Suggerimenti::Testo(Bottone("KEY_HELP")), "F1");
}

TEST_F(Finestra, LongWorkLocksTheWindowUnderTheHourglassAndGivesTheKeyboardBack) {
    Consulta(Macchina());
    finestra->Tree1().setFocus();
    Stato_Finestra stato = schermo.Stato();
    stato.Abilitata = false;
    stato.Attesa = true;
    finestra->Mostra(stato);
    EXPECT_FALSE(Trova("Frame_Main")->isEnabled() || finestra->Toolbar_Main().isEnabled());
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    finestra->Barra_Avanzamento().Avanza(1, 4);
    EXPECT_EQ(Trova("PB_Avanzamento")->property("value"), 250);
    finestra->Mostra(schermo.Stato());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(Visibile("PB_Avanzamento"));
    EXPECT_EQ(QApplication::focusWidget(), &finestra->Tree1());
}

TEST_F(Finestra, ClosingRemovesTheCatalogueButNotDuringAPrintRun) {
    Apri(Macchina());
    for (const bool in_corso : {true, false}) {
        progetto.Stampa_In_Corso = in_corso;
        EXPECT_EQ(finestra->close(), !in_corso);
        EXPECT_EQ(finestra->isVisible(), in_corso);
        EXPECT_EQ(sistema.Contenuto_Temporaneo().size(), in_corso);
    }
}

TEST_F(Finestra, AClickOnADocumentOpensItInItsApplication) {
    Consulta(Macchina()
                 .Cambia("Struttura_Componenti", 3, "Tipo_Colonna", "Document")
                 .Parte("P_2", "1", "C.001", "Targa", {{"Campo03", "guida.pdf"}})
                 .File("documenti/guida.pdf", "%PDF-1.4"),
             "P_2");
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    ASSERT_TRUE(griglia.isVisible());
    for (const int colonna : {1, griglia.model()->columnCount() - 1}) {
        EXPECT_EQ(sistema.Aperti, QStringList());
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {},
                          griglia.visualRect(griglia.model()->index(0, colonna)).center());
    }
    EXPECT_EQ(sistema.Aperti, QStringList{progetto.Cartella_Temporanea + "guida.pdf"});
    EXPECT_TRUE(QFile::exists(sistema.Aperti.value(0)));
}

TEST_F(Finestra, TheSplitterKeepsBothSidesWide) {
    Consulta(Macchina());
    auto* divisore = qobject_cast<QSplitter*>(Trova("imgSplitter"));
    EXPECT_FALSE(divisore->opaqueResize());
    for (const auto& misure : {QList{1, 5000}, QList{5000, 1}}) {
        divisore->setSizes(misure);
        EXPECT_THAT(divisore->sizes(), testing::Each(testing::Ge(80)));
    }
}

}  // namespace

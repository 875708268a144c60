#include <gmock/gmock.h>

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSplitter>
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
                zone.append(QLatin1String(nome));
        return zone;
    }
    bool Premuto(const char* key) const {
        return qobject_cast<QToolButton*>(finestra->Toolbar_Main().Bottone(QLatin1String(key)))->isChecked();
    }
    bool Abilitato(const char* key) const {
        return finestra->Toolbar_Main().Bottone(QLatin1String(key))->isEnabled();
    }
};

TEST_F(Finestra, WithoutACatalogueOnlyTheHomePageIsThere) {
    Mostra();
    EXPECT_EQ(Zone(), QStringList{QStringLiteral("Frame_Intro")});
    EXPECT_TRUE(Visibile("Label_Apri_catalogo"));
    EXPECT_FALSE(Visibile("Label_consulta_catalogo"));
    EXPECT_FALSE(Visibile("Label_Info"));
    EXPECT_FALSE(Visibile("Label_Info_titolo_dato"));
    EXPECT_TRUE(Abilitato("KEY_OPEN"));
    EXPECT_FALSE(Abilitato("KEY_DISEGNO"));
}

TEST_F(Finestra, HasAButtonForEachCommandThatExistsAndNoOther) {
    Mostra();
    for (const QString& key : Chiavi_Toolbar())
        EXPECT_EQ(finestra->Toolbar_Main().Bottone(key) != nullptr, Comandi_Presenti().contains(key))
            << key.toStdString();
}

TEST_F(Finestra, TheUpdatesLinkIsThereWhenAnAddressIsConfigured) {
    Mostra();
    EXPECT_FALSE(Visibile("Label_Aggiornamenti"));
    impostazioni.Imposta(QStringLiteral("INSTALLAZIONE"), QStringLiteral("AGGIORNAMENTI"),
                         QStringLiteral("https://updates.example"));
    controllo.Aggiorna_Toolbar();
    Clic("Label_Aggiornamenti");
    ASSERT_EQ(sistema.Aperti.size(), 1);
    EXPECT_TRUE(sistema.Aperti.front().startsWith(u"https://updates.example/site/page.wnode?"));
}

TEST_F(Finestra, AnOpenCatalogueShowsItsDataAndItsLink) {
    Catalogo_Di_Prova catalogo = Macchina();
    catalogo.Sistema("PROPRIETA_PROGETTO_TITOLO", "Ricambi <b>TZ</b>")
        .Sistema("PROPRIETA_PROGETTO_VERSIONE", "3.2");
    Apri(catalogo);
    EXPECT_TRUE(Visibile("Label_Info"));
    EXPECT_EQ(Testo("Label_Info_titolo_dato"), QStringLiteral("Ricambi <b>TZ</b>"));
    EXPECT_EQ(Testo("Label_Info_Release_Dato"), QStringLiteral("3.2"));
    // A text of a catalogue is a text, whatever it looks like.
    EXPECT_EQ(qobject_cast<QLabel*>(Trova("Label_Info_titolo_dato"))->textFormat(), Qt::PlainText);
    Clic("Label_consulta_catalogo");
    EXPECT_EQ(Zone(), (QStringList{QStringLiteral("Frame_Main"), QStringLiteral("Frame_scheda_Prodotto")}));
    EXPECT_TRUE(Visibile("Label_Help_Albero"));
}

TEST_F(Finestra, AClickOnAProductShowsItsPartsList) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    Clic_Nodo("G_A");
    finestra->Tree1().expand(finestra->Tree1().Modello().Indice(QStringLiteral("G_A")));
    Clic_Nodo("P_1");
    EXPECT_EQ(Zone(), (QStringList{QStringLiteral("Frame_Main"), QStringLiteral("Frame_Prodotto")}));
    ASSERT_TRUE(Visibile("Griglia_Distinta"));
    const QAbstractItemModel& modello = *finestra->Griglia_Distinta().model();
    ASSERT_EQ(modello.rowCount(), 3);
    EXPECT_EQ(modello.index(1, 1).data().toString(), QStringLiteral("A.002"));
    EXPECT_FALSE(Visibile("Label_Nessun_Componente"));
    EXPECT_EQ(progetto.Key_Prodotto_Corrente, QStringLiteral("P_1"));

    Clic_Nodo("P_2");
    EXPECT_FALSE(Visibile("Griglia_Distinta"));
    EXPECT_TRUE(Visibile("Label_Nessun_Componente"));
}

TEST_F(Finestra, AClickOnADocumentOpensItInItsApplication) {
    Catalogo_Di_Prova catalogo = Macchina();
    catalogo
        .Riga("Struttura_Componenti", {{"Nome_Colonna_Tabella", "Campo04"},
                                       {"Titolo_Colonna", "Guida"},
                                       {"Visualizzato", "Yes"},
                                       {"Ordine", "9"},
                                       {"Tipo_Colonna", "Document"}})
        .Parte("P_2", "1", "C.001", "Targa", {{"Campo04", "guida.pdf"}})
        .File("documenti/guida.pdf", "%PDF-1.4");
    Apri(catalogo);
    Clic("Label_consulta_catalogo");
    controllo.Seleziona_Nodo_Albero(QStringLiteral("P_2"));
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    ASSERT_TRUE(griglia.isVisible());
    const auto clic = [&](int colonna) {
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {},
                          griglia.visualRect(griglia.model()->index(0, colonna)).center());
    };
    const int documenti = griglia.model()->columnCount() - 1;
    clic(1);
    EXPECT_EQ(sistema.Aperti, QStringList());
    clic(documenti);
    EXPECT_EQ(sistema.Aperti, QStringList{progetto.Cartella_Temporanea + QStringLiteral("guida.pdf")});
    EXPECT_TRUE(QFile::exists(sistema.Aperti.value(0)));
}

TEST_F(Finestra, TheColumnsFillTheGridAtEveryWidth) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    controllo.Seleziona_Nodo_Albero(QStringLiteral("P_1"));
    const Griglia& dati = finestra->Griglia_Distinta().Dati();
    for (const QSize misura : {QSize(900, 600), QSize(760, 600)}) {
        finestra->resize(misura);
        QApplication::processEvents();
        EXPECT_EQ(dati.Width, finestra->Griglia_Distinta().width() * 15);
        int somma = 0;
        for (int c = 0; c < dati.Cols(); ++c)
            somma += dati.ColWidth(c);
        EXPECT_NEAR(somma, dati.Width - 300, dati.Cols());
        EXPECT_EQ(finestra->Griglia_Distinta().model()->rowCount(), 3);
    }
}

TEST_F(Finestra, TheTwoStateButtonFollowsCore) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    const bool prima = Premuto("KEY_DISEGNO");
    EXPECT_EQ(prima, controllo.Stato().Bottoni[QStringLiteral("KEY_DISEGNO")].Pressed);
    Comando("KEY_DISEGNO");
    EXPECT_EQ(Premuto("KEY_DISEGNO"), !prima);
    EXPECT_EQ(controllo.Stato().Bottoni[QStringLiteral("KEY_DISEGNO")].Pressed, !prima);
    Comando("KEY_HOME");
    EXPECT_EQ(Zone(), QStringList{QStringLiteral("Frame_Intro")});
}

TEST_F(Finestra, TheSerialNumberMarksItsNodes) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    QTest::keyClicks(Trova("Text_Matricola"), QStringLiteral("100"));
    Clic("Command_Matricola");
    const Modello_Albero& modello = finestra->Tree1().Modello();
    const auto grassetto = [&](const char* key) {
        return modello.Indice(QLatin1String(key)).data(Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_TRUE(grassetto("P_3"));
    EXPECT_FALSE(grassetto("P_1"));
    EXPECT_TRUE(finestra->Tree1().isExpanded(modello.Indice(QStringLiteral("G_B"))));
    Clic("Command_Reset_Matricola");
    EXPECT_FALSE(grassetto("P_3"));
    EXPECT_EQ(Testo("Text_Matricola"), QString());
}

TEST_F(Finestra, TheUsersOpeningReachesCore) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    const QModelIndex gruppo = finestra->Tree1().Modello().Indice(QStringLiteral("G_B"));
    finestra->Tree1().expand(gruppo);
    EXPECT_TRUE(progetto.Tree1.Nodo(QStringLiteral("G_B"))->Expanded);
    finestra->Tree1().collapse(gruppo);
    EXPECT_FALSE(progetto.Tree1.Nodo(QStringLiteral("G_B"))->Expanded);
}

TEST_F(Finestra, TakesItsTextsFromTheCatalogue) {
    Catalogo_Di_Prova catalogo = Macchina();
    const auto testo = [&](const char* oggetto, const char* valore, const char* aiuto) {
        catalogo.Riga("Traduzioni_Viewer_System", {{"Form", "Form_Main"},
                                                   {"Name_Object", oggetto},
                                                   {"Traduzione_1", valore},
                                                   {"Traduzione_Tooltiptext_1", aiuto}});
    };
    catalogo.Sistema("LINGUA_START", "Italiano");
    testo("Form_Main", "Ricambi", "");
    testo("Command_Matricola", "Applica", "Evidenzia i nodi");
    testo("Label_Help_Albero", "Scegli un nodo.", "");
    testo("Toolbar_Main", "Casa//Apri/Disegno", "");
    Apri(catalogo);
    ASSERT_EQ(progetto.Lingua, QStringLiteral("1"));
    EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Ricambi"));
    EXPECT_EQ(Testo("Command_Matricola"), QStringLiteral("Applica"));
    EXPECT_EQ(Testo("Label_Help_Albero"), QStringLiteral("Scegli un nodo."));
    const Barra_Comandi& barra = finestra->Toolbar_Main();
    QWidget* apri = barra.Bottone(QStringLiteral("KEY_OPEN"));
    EXPECT_EQ(apri->toolTip(), QStringLiteral("Apri"));
    EXPECT_EQ(Suggerimenti::Testo(*apri), QStringLiteral("Apri (Ctrl+O)"));
    // Beyond the texts that there are stands the marker of a missing token; it isn't shown.
    QWidget* guida = barra.Bottone(QStringLiteral("KEY_HELP"));
    EXPECT_EQ(guida->toolTip(), FINE_TOKEN);
    EXPECT_EQ(Suggerimenti::Testo(*guida), QStringLiteral("F1"));
}

TEST_F(Finestra, LongWorkLocksTheWindowUnderTheHourglassAndGivesTheKeyboardBack) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    finestra->Tree1().setFocus();
    Stato_Finestra stato = controllo.Stato();
    stato.Abilitata = false;
    stato.Attesa = true;
    finestra->Mostra(stato);
    EXPECT_FALSE(Trova("Frame_Main")->isEnabled());
    EXPECT_FALSE(finestra->Toolbar_Main().isEnabled());
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    finestra->Barra_Avanzamento().Avanza(1, 4);
    EXPECT_TRUE(Visibile("PB_Avanzamento"));
    EXPECT_EQ(Trova("PB_Avanzamento")->property("value").toInt(), 250);
    finestra->Mostra(controllo.Stato());
    EXPECT_TRUE(Trova("Frame_Main")->isEnabled());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(Visibile("PB_Avanzamento"));
    EXPECT_EQ(QApplication::focusWidget(), &finestra->Tree1());
}

TEST_F(Finestra, TheSplitterKeepsBothSidesWide) {
    Apri(Macchina());
    Clic("Label_consulta_catalogo");
    auto* divisore = qobject_cast<QSplitter*>(Trova("imgSplitter"));
    EXPECT_FALSE(divisore->opaqueResize());
    divisore->setSizes({1, 5000});
    EXPECT_GE(divisore->sizes()[0], 80);
    divisore->setSizes({5000, 1});
    EXPECT_GE(divisore->sizes()[1], 80);
}

TEST_F(Finestra, ClosingRemovesTheCatalogue) {
    Apri(Macchina());
    EXPECT_FALSE(sistema.Contenuto_Temporaneo().isEmpty());
    EXPECT_TRUE(finestra->close());
    EXPECT_FALSE(progetto.Progetto_Aperto);
    EXPECT_EQ(sistema.Contenuto_Temporaneo(), QStringList());
}

TEST_F(Finestra, StaysDuringAPrintRun) {
    Apri(Macchina());
    progetto.Stampa_In_Corso = true;
    EXPECT_FALSE(finestra->close());
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_TRUE(progetto.Progetto_Aperto);
    progetto.Stampa_In_Corso = false;
}

}  // namespace

#include "gui/localisation/finestra_qt.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

#include "core/base/testo.h"
#include "gui/shell/barra_comandi.h"

namespace {

template <class T>
T* Nuovo(QWidget& padre, const char* nome) {
    auto* oggetto = new T(&padre);
    oggetto->setObjectName(QLatin1String(nome));
    return oggetto;
}

struct Adattatore : testing::Test {
    Adattatore() { finestra.setObjectName("Form_Prova"); }
    std::unique_ptr<Controllo> Solo() {
        EXPECT_EQ(Nomi().size(), 1u);
        return std::move(Finestra_Qt(finestra).Controlli().at(0));
    }
    std::vector<std::string> Nomi() {
        std::vector<std::string> nomi;
        for (const auto& controllo : Finestra_Qt(finestra).Controlli())
            nomi.push_back(controllo->Nome().toStdString());
        return nomi;
    }
    QWidget finestra;
};

template <class T>
QObject* Crea(QWidget& padre, const char* nome) {
    return Nuovo<T>(padre, nome);
}
QObject* Crea_Barra_Orizzontale(QWidget& padre, const char* nome) {
    auto* barra = Nuovo<QScrollBar>(padre, nome);
    barra->setOrientation(Qt::Horizontal);
    return barra;
}

TEST_F(Adattatore, KindsHaveTheCataloguesNames) {
    const struct {
        const char* tipo;
        QObject* (*crea)(QWidget&, const char*);
        const char* nome;
    } casi[] = {{"Label", Crea<QLabel>, "Label_A"},
                {"Image", Crea<QLabel>, "Image_A"},
                {"Image", Crea<QLabel>, "Img_A"},
                {"CheckBox", Crea<QCheckBox>, "Check_A"},
                {"Frame", Crea<QGroupBox>, "Gruppo"},
                {"Frame", Crea<QFrame>, "Frame_A"},
                {"OptionButton", Crea<QRadioButton>, "Option_A"},
                {"CommandButton", Crea<QPushButton>, "Command_A"},
                {"CommandButton", Crea<QToolButton>, "Command_B"},
                {"Menu", Crea<QMenu>, "Menu_A"},
                {"Menu", Crea<QAction>, "Menu_B"},
                {"SSTab", Crea<QTabWidget>, "Tab_A"},
                {"VScrollBar", Crea<QScrollBar>, "VS_A"},
                {"HScrollBar", Crea_Barra_Orizzontale, "HS_A"},
                {"Toolbar", Crea<QToolBar>, "Toolbar_A"},
                {"ListView", Crea<QTreeView>, "ListView_A"},
                {"ListView", Crea<QTableView>, "ListView_B"},
                {"TextBox", Crea<QLineEdit>, "Text_A"},
                {"TextBox", Crea<QPlainTextEdit>, "Text_B"},
                {"ComboBox", Crea<QComboBox>, "Combo_A"},
                // Kinds that the catalogue has no word for.
                {"", Crea<QTreeView>, "Tree1"},
                {"", Crea<QTableView>, "Griglia_Distinta"},
                {"", Crea<QProgressBar>, "PB"},
                {"", Crea<QWidget>, "Centro"},
                {"", Crea<QLabel>, ""}};
    for (const auto& [tipo, crea, nome] : casi)
        EXPECT_EQ(Tipo_Controllo(*crea(finestra, nome)), QLatin1String(tipo)) << nome;
}

TEST_F(Adattatore, OnlyAMemberOfAControlArrayHasAnIndex) {
    Nuovo<QLabel>(finestra, "Label_Titolo_scheda(12)");
    EXPECT_EQ(Solo()->Nome(), "Label_Titolo_scheda");
    EXPECT_EQ(Solo()->Indice(), 12);
    finestra.findChild<QLabel*>()->setObjectName("Label_Nota(x)");
    EXPECT_EQ(Solo()->Nome(), "Label_Nota(x)");
    EXPECT_EQ(Solo()->Indice(), std::nullopt);
}

TEST_F(Adattatore, SetsTextAndToolTipWhereTheControlHasThem) {
    auto* bottone = Nuovo<QPushButton>(finestra, "Command_A");
    const auto controllo = Solo();
    controllo->Imposta_Testo("Apri");
    controllo->Imposta_Suggerimento("Apre");
    EXPECT_EQ(bottone->text(), "Apri");
    EXPECT_EQ(bottone->toolTip(), "Apre");
    EXPECT_EQ(controllo->Testo(), "Apri");
    EXPECT_EQ(controllo->Suggerimento(), "Apre");
}

TEST_F(Adattatore, LeavesPictureAndEntryOfTheUserAlone) {
    auto* immagine = Nuovo<QLabel>(finestra, "Image_A");
    Solo()->Imposta_Testo("x");
    EXPECT_EQ(immagine->text(), QString());
    delete immagine;
    auto* campo = Nuovo<QLineEdit>(finestra, "Text_A");
    campo->setText("100");
    Solo()->Imposta_Testo("x");
    EXPECT_EQ(campo->text(), "100");
}

TEST_F(Adattatore, CountsTabsAndColumnsFromOne) {
    auto* schede = Nuovo<QTabWidget>(finestra, "Tab_A");
    schede->addTab(new QWidget, "a");
    schede->addTab(new QWidget, "b");
    const auto tab = Solo();
    ASSERT_EQ(tab->Parti(), 2);
    tab->Imposta_Parte(2, "Disegno");
    EXPECT_EQ(schede->tabText(1), "Disegno");
    EXPECT_EQ(tab->Parte(1), "a");
    delete schede;

    auto* lista = Nuovo<QTreeView>(finestra, "ListView_A");
    QStandardItemModel modello(0, 3);
    lista->setModel(&modello);
    const auto colonne = Solo();
    ASSERT_EQ(colonne->Parti(), 3);
    colonne->Imposta_Parte(3, "Codice");
    EXPECT_EQ(modello.headerData(2, Qt::Horizontal).toString(), "Codice");
}

TEST_F(Adattatore, TakesTheMarkerOfAMissingPartAsItStands) {
    auto* etichetta = Nuovo<QLabel>(finestra, "Label_A");
    Solo()->Imposta_Testo(FINE_TOKEN);
    EXPECT_EQ(etichetta->text(), FINE_TOKEN);
    EXPECT_FALSE(etichetta->grab().isNull());
}

TEST_F(Adattatore, TheMainToolbarCountsAllItsKeys) {
    Barra_Comandi barra(&finestra);
    const auto controllo = Solo();
    ASSERT_EQ(controllo->Parti(), 18);
    for (int i = 1; i <= 18; ++i)
        controllo->Imposta_Parte(i, QStringLiteral("testo %1").arg(i));
    EXPECT_EQ(barra.Bottone("KEY_OPEN")->toolTip(), "testo 3");
    EXPECT_EQ(barra.Bottone("KEY_HELP")->toolTip(), "testo 17");
    // A text of a button that isn't on the bar is kept: an extraction gives it back.
    EXPECT_EQ(barra.Bottone("KEY_EMAIL"), nullptr);
    EXPECT_EQ(controllo->Parte(12), "testo 12");
}

TEST_F(Adattatore, LeavesOutDialogsOverTheWindowAndInnersOfControls) {
    Nuovo<QLabel>(finestra, "Label_A");
    auto* dialogo = Nuovo<QDialog>(finestra, "Form_Altra");
    Nuovo<QLabel>(*dialogo, "Label_B");
    auto* combo = Nuovo<QComboBox>(finestra, "Combo_A");
    combo->setEditable(true);
    combo->lineEdit()->setObjectName("Text_Interno");
    auto* barra = Nuovo<QToolBar>(finestra, "Toolbar_A");
    barra->widgetForAction(barra->addAction("x"))->setObjectName("KEY_X");
    EXPECT_THAT(Nomi(), testing::UnorderedElementsAre("Label_A", "Combo_A", "Toolbar_A"));
}

TEST_F(Adattatore, TheWindowsTitleIsItsOwn) {
    Finestra_Qt adattatore(finestra);
    adattatore.Imposta_Titolo("Ricambi");
    EXPECT_EQ(finestra.windowTitle(), "Ricambi");
    EXPECT_EQ(adattatore.Nome(), "Form_Prova");
    EXPECT_THAT(Nomi(), testing::IsEmpty());
}

}  // namespace

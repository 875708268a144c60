#include "gui/localisation/finestra_qt.h"

#include <gmock/gmock.h>

#include <QtWidgets>

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
    std::unique_ptr<Oggetto_Form> Solo() {
        EXPECT_EQ(Nomi().size(), 1u);
        return std::move(Finestra_Qt(finestra).Oggetti().at(0));
    }
    std::vector<std::string> Nomi() {
        std::vector<std::string> nomi;
        for (const auto& oggetto : Finestra_Qt(finestra).Oggetti())
            nomi.push_back(oggetto->Nome().toStdString());
        return nomi;
    }
    QWidget finestra;
};

TEST_F(Adattatore, KindsHaveTheCataloguesNames) {
    QScrollBar orizzontale(Qt::Horizontal);
    orizzontale.setObjectName("HS_A");
    const std::pair<const char*, QObject*> casi[] = {
        {"Label", Nuovo<QLabel>(finestra, "Label_A")},
        {"Image", Nuovo<QLabel>(finestra, "Image_A")},
        {"CheckBox", Nuovo<QCheckBox>(finestra, "Check_A")},
        {"Frame", Nuovo<QGroupBox>(finestra, "Gruppo")},
        {"OptionButton", Nuovo<QRadioButton>(finestra, "Option_A")},
        {"CommandButton", Nuovo<QPushButton>(finestra, "Command_A")},
        {"Menu", Nuovo<QMenu>(finestra, "Menu_A")},
        {"SSTab", Nuovo<QTabWidget>(finestra, "Tab_A")},
        {"VScrollBar", Nuovo<QScrollBar>(finestra, "VS_A")},
        {"HScrollBar", &orizzontale},
        {"Toolbar", Nuovo<QToolBar>(finestra, "Toolbar_A")},
        {"ListView", Nuovo<QTreeView>(finestra, "ListView_A")},
        {"TextBox", Nuovo<QLineEdit>(finestra, "Text_A")},
        {"ComboBox", Nuovo<QComboBox>(finestra, "Combo_A")},
        // Kinds that the catalogue has no word for.
        {"", Nuovo<QTreeView>(finestra, "Tree1")},
        {"", Nuovo<QLabel>(finestra, "")}};
    for (const auto& [tipo, oggetto] : casi)
        EXPECT_EQ(Tipo_Oggetto(*oggetto), QLatin1String(tipo)) << qPrintable(oggetto->objectName());
}

TEST_F(Adattatore, OnlyAMemberOfAControlArrayHasAnIndex) {
    Nuovo<QLabel>(finestra, "Label_Titolo_scheda(12)");
    EXPECT_EQ(Solo()->Nome(), "Label_Titolo_scheda");
    EXPECT_EQ(Solo()->Indice(), 12);
    finestra.findChild<QLabel*>()->setObjectName("Label_Nota(x)");
    EXPECT_EQ(Solo()->Nome(), "Label_Nota(x)");
    EXPECT_EQ(Solo()->Indice(), std::nullopt);
}

TEST_F(Adattatore, LeavesPictureAndEntryOfTheUserAlone) {
    auto* immagine = Nuovo<QLabel>(finestra, "Image_A");
    auto* campo = Nuovo<QLineEdit>(finestra, "Text_A");
    campo->setText("100");
    for (const auto& oggetto : Finestra_Qt(finestra).Oggetti())
        oggetto->Imposta_Testo("x");
    EXPECT_EQ(immagine->text() + campo->text(), "100");
}

TEST_F(Adattatore, CountsTabsAndColumnsFromOne) {
    auto* schede = Nuovo<QTabWidget>(finestra, "Tab_A");
    schede->addTab(new QWidget, "a");
    schede->addTab(new QWidget, "b");
    QStandardItemModel modello(0, 2);
    Nuovo<QTreeView>(finestra, "ListView_A")->setModel(&modello);
    for (const auto& oggetto : Finestra_Qt(finestra).Oggetti()) {
        ASSERT_EQ(oggetto->Parti(), 2);
        oggetto->Imposta_Parte(2, "Codice");
    }
    EXPECT_EQ(schede->tabText(0) + schede->tabText(1), "aCodice");
    EXPECT_EQ(modello.headerData(1, Qt::Horizontal).toString(), "Codice");
}

TEST_F(Adattatore, TheMainToolbarCountsAllItsKeys) {
    Barra_Comandi barra(&finestra);
    const auto oggetto = Solo();
    ASSERT_EQ(oggetto->Parti(), 18);
    for (int i = 1; i <= 18; ++i)
        oggetto->Imposta_Parte(i, QStringLiteral("testo %1").arg(i));
    EXPECT_EQ(barra.Bottone("KEY_HELP")->toolTip(), "testo 17");
    // A text of a button that isn't on the bar is kept: an extraction gives it back.
    EXPECT_EQ(barra.Bottone("KEY_EMAIL"), nullptr);
    EXPECT_EQ(oggetto->Parte(12), "testo 12");
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

}  // namespace

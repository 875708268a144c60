#include "gui/localisation/finestra_qt.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
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

using testing::IsEmpty;
using testing::UnorderedElementsAre;

template <class T>
T* Nuovo(QWidget& padre, const char* nome) {
    auto* oggetto = new T(&padre);
    oggetto->setObjectName(QLatin1String(nome));
    return oggetto;
}

struct Adattatore : testing::Test {
    Adattatore() { finestra.setObjectName(QStringLiteral("Form_Prova")); }
    std::unique_ptr<Controllo> Solo() {
        auto controlli = Finestra_Qt(finestra).Controlli();
        if (controlli.size() != 1)
            throw std::runtime_error(std::to_string(controlli.size()) + " controls");
        return std::move(controlli.front());
    }
    std::vector<std::string> Nomi() {
        std::vector<std::string> nomi;
        for (const auto& controllo : Finestra_Qt(finestra).Controlli())
            nomi.push_back(controllo->Nome().toStdString());
        return nomi;
    }
    QWidget finestra;
};

struct Tipo {
    const char* atteso;
    std::function<QObject*(QWidget&)> crea;
};
void PrintTo(const Tipo& tipo, std::ostream* su) {
    *su << tipo.atteso;
}

class Tipi : public Adattatore, public testing::WithParamInterface<Tipo> {};

TEST_P(Tipi, HaveTheCataloguesNames) {
    QObject* oggetto = GetParam().crea(finestra);
    EXPECT_EQ(Tipo_Controllo(*oggetto), QLatin1String(GetParam().atteso));
}

INSTANTIATE_TEST_SUITE_P(
    Tabella, Tipi,
    testing::Values(Tipo{"Label", [](QWidget& p) { return Nuovo<QLabel>(p, "Label_A"); }},
                    Tipo{"Image", [](QWidget& p) { return Nuovo<QLabel>(p, "Image_A"); }},
                    Tipo{"Image", [](QWidget& p) { return Nuovo<QLabel>(p, "Img_A"); }},
                    Tipo{"CheckBox", [](QWidget& p) { return Nuovo<QCheckBox>(p, "Check_A"); }},
                    Tipo{"Frame", [](QWidget& p) { return Nuovo<QGroupBox>(p, "Gruppo"); }},
                    Tipo{"Frame", [](QWidget& p) { return Nuovo<QFrame>(p, "Frame_A"); }},
                    Tipo{"OptionButton", [](QWidget& p) { return Nuovo<QRadioButton>(p, "Option_A"); }},
                    Tipo{"CommandButton", [](QWidget& p) { return Nuovo<QPushButton>(p, "Command_A"); }},
                    Tipo{"CommandButton", [](QWidget& p) { return Nuovo<QToolButton>(p, "Command_B"); }},
                    Tipo{"Menu", [](QWidget& p) { return Nuovo<QMenu>(p, "Menu_A"); }},
                    Tipo{"Menu", [](QWidget& p) { return Nuovo<QAction>(p, "Menu_B"); }},
                    Tipo{"SSTab", [](QWidget& p) { return Nuovo<QTabWidget>(p, "Tab_A"); }},
                    Tipo{"VScrollBar", [](QWidget& p) { return Nuovo<QScrollBar>(p, "VS_A"); }},
                    Tipo{"HScrollBar",
                         [](QWidget& p) {
                             auto* barra = Nuovo<QScrollBar>(p, "HS_A");
                             barra->setOrientation(Qt::Horizontal);
                             return barra;
                         }},
                    Tipo{"Toolbar", [](QWidget& p) { return Nuovo<QToolBar>(p, "Toolbar_A"); }},
                    Tipo{"ListView", [](QWidget& p) { return Nuovo<QTreeView>(p, "ListView_A"); }},
                    Tipo{"ListView", [](QWidget& p) { return Nuovo<QTableView>(p, "ListView_B"); }},
                    Tipo{"TextBox", [](QWidget& p) { return Nuovo<QLineEdit>(p, "Text_A"); }},
                    Tipo{"TextBox", [](QWidget& p) { return Nuovo<QPlainTextEdit>(p, "Text_B"); }},
                    Tipo{"ComboBox", [](QWidget& p) { return Nuovo<QComboBox>(p, "Combo_A"); }},
                    // Kinds that the catalogue has no word for.
                    Tipo{"", [](QWidget& p) { return Nuovo<QTreeView>(p, "Tree1"); }},
                    Tipo{"", [](QWidget& p) { return Nuovo<QTableView>(p, "Griglia_Distinta"); }},
                    Tipo{"", [](QWidget& p) { return Nuovo<QProgressBar>(p, "PB"); }},
                    Tipo{"", [](QWidget& p) { return Nuovo<QWidget>(p, "Centro"); }},
                    Tipo{"", [](QWidget& p) { return Nuovo<QLabel>(p, ""); }}));

TEST_F(Adattatore, AMemberOfAControlArrayHasNameAndIndex) {
    Nuovo<QLabel>(finestra, "Label_Titolo_scheda(12)");
    const auto controllo = Solo();
    EXPECT_EQ(controllo->Nome(), QStringLiteral("Label_Titolo_scheda"));
    EXPECT_EQ(controllo->Indice(), 12);
}

TEST_F(Adattatore, AControlByItselfHasNoIndex) {
    Nuovo<QLabel>(finestra, "Label_Nota(x)");
    const auto controllo = Solo();
    EXPECT_EQ(controllo->Nome(), QStringLiteral("Label_Nota(x)"));
    EXPECT_EQ(controllo->Indice(), std::nullopt);
}

TEST_F(Adattatore, SetsTextAndToolTipWhereTheControlHasThem) {
    auto* bottone = Nuovo<QPushButton>(finestra, "Command_A");
    const auto controllo = Solo();
    controllo->Imposta_Testo(QStringLiteral("Apri"));
    controllo->Imposta_Suggerimento(QStringLiteral("Apre"));
    EXPECT_EQ(bottone->text(), QStringLiteral("Apri"));
    EXPECT_EQ(bottone->toolTip(), QStringLiteral("Apre"));
    EXPECT_EQ(controllo->Testo(), QStringLiteral("Apri"));
    EXPECT_EQ(controllo->Suggerimento(), QStringLiteral("Apre"));
}

TEST_F(Adattatore, LeavesPictureAndEntryOfTheUserAlone) {
    auto* immagine = Nuovo<QLabel>(finestra, "Image_A");
    Solo()->Imposta_Testo(QStringLiteral("x"));
    EXPECT_EQ(immagine->text(), QString());
    delete immagine;
    auto* campo = Nuovo<QLineEdit>(finestra, "Text_A");
    campo->setText(QStringLiteral("100"));
    Solo()->Imposta_Testo(QStringLiteral("x"));
    EXPECT_EQ(campo->text(), QStringLiteral("100"));
}

TEST_F(Adattatore, CountsTabsAndColumnsFromOne) {
    auto* schede = Nuovo<QTabWidget>(finestra, "Tab_A");
    schede->addTab(new QWidget, QStringLiteral("a"));
    schede->addTab(new QWidget, QStringLiteral("b"));
    const auto tab = Solo();
    ASSERT_EQ(tab->Parti(), 2);
    tab->Imposta_Parte(2, QStringLiteral("Disegno"));
    EXPECT_EQ(schede->tabText(1), QStringLiteral("Disegno"));
    EXPECT_EQ(tab->Parte(1), QStringLiteral("a"));
    delete schede;

    auto* lista = Nuovo<QTreeView>(finestra, "ListView_A");
    QStandardItemModel modello(0, 3);
    lista->setModel(&modello);
    const auto colonne = Solo();
    ASSERT_EQ(colonne->Parti(), 3);
    colonne->Imposta_Parte(3, QStringLiteral("Codice"));
    EXPECT_EQ(modello.headerData(2, Qt::Horizontal).toString(), QStringLiteral("Codice"));
}

TEST_F(Adattatore, TakesTheMarkerOfAMissingPartAsItStands) {
    auto* barra = Nuovo<QToolBar>(finestra, "Toolbar_A");
    QAction* azione = barra->addAction(QStringLiteral("x"));
    Solo()->Imposta_Parte(1, FINE_TOKEN);
    EXPECT_EQ(azione->toolTip(), FINE_TOKEN);
    auto* etichetta = Nuovo<QLabel>(finestra, "Label_A");
    for (const auto& controllo : Finestra_Qt(finestra).Controlli())
        if (controllo->Tipo() == u"Label")
            controllo->Imposta_Testo(FINE_TOKEN);
    EXPECT_EQ(etichetta->text(), FINE_TOKEN);
    EXPECT_FALSE(etichetta->grab().isNull());
}

TEST_F(Adattatore, TheMainToolbarCountsAllItsKeys) {
    Barra_Comandi barra(&finestra);
    const auto controllo = Solo();
    ASSERT_EQ(controllo->Parti(), 18);
    for (int i = 1; i <= 18; ++i)
        controllo->Imposta_Parte(i, QStringLiteral("testo %1").arg(i));
    EXPECT_EQ(barra.Bottone(QStringLiteral("KEY_OPEN"))->toolTip(), QStringLiteral("testo 3"));
    EXPECT_EQ(barra.Bottone(QStringLiteral("KEY_HELP"))->toolTip(), QStringLiteral("testo 17"));
    // A text of a button that isn't on the bar is kept: an extraction gives it back.
    EXPECT_EQ(barra.Bottone(QStringLiteral("KEY_EMAIL")), nullptr);
    EXPECT_EQ(controllo->Parte(12), QStringLiteral("testo 12"));
}

TEST_F(Adattatore, LeavesOutDialogsOverTheWindowAndInnersOfControls) {
    Nuovo<QLabel>(finestra, "Label_A");
    auto* dialogo = Nuovo<QDialog>(finestra, "Form_Altra");
    Nuovo<QLabel>(*dialogo, "Label_B");
    auto* combo = Nuovo<QComboBox>(finestra, "Combo_A");
    combo->setEditable(true);
    combo->lineEdit()->setObjectName(QStringLiteral("Text_Interno"));
    auto* barra = Nuovo<QToolBar>(finestra, "Toolbar_A");
    barra->widgetForAction(barra->addAction(QStringLiteral("x")))->setObjectName(QStringLiteral("KEY_X"));
    EXPECT_THAT(Nomi(), UnorderedElementsAre("Label_A", "Combo_A", "Toolbar_A"));
}

TEST_F(Adattatore, TheWindowsTitleIsItsOwn) {
    Finestra_Qt adattatore(finestra);
    adattatore.Imposta_Titolo(QStringLiteral("Ricambi"));
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Ricambi"));
    EXPECT_EQ(adattatore.Nome(), QStringLiteral("Form_Prova"));
    EXPECT_THAT(Nomi(), IsEmpty());
}

}  // namespace

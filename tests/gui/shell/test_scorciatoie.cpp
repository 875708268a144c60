// The keys that README.md tells, each pressed in the real window: it does what is said there and nothing
// else.

#include <gmock/gmock.h>

#include <QFile>
#include <QRegularExpression>

#include "gui/finestra_di_prova.h"

namespace {

struct Scorciatoia {
    const char* tasti;
    const char* detto;    ///< what README.md says
    const char* effetto;  ///< what is seen then, of Prova::Visto
};
const Scorciatoia SCORCIATOIE[] = {
    {"Ctrl+Home", "home page", "home page"},
    {"Ctrl+O", "open a catalogue", "QFileDialog"},
    {"Ctrl+D", "drawing and parts list, or the product's page", "product's page"},
    {"Ctrl+L", "log in", "Form_Autentificazione"},
    {"Ctrl+G", "language and market", "Form_Lingua_Mercato"},
    {"Ctrl+K", "cart of the product", "cart"},
    {"Ctrl+E", "order", "order"},
    {"Ctrl+F", "find a node by its name", "keyboard in Combo_Nodi"},
    {"Ctrl+M", "serial number", "keyboard in Text_Matricola"},
    {"Ctrl+0", "whole drawing", "whole drawing"},
    {"Ctrl++", "zoom in", "larger"},
    {"Ctrl+-", "zoom out", "smaller"},
    {"Ctrl+Shift+Z", "zoom to an area: drag a rectangle", "area"},
    {"F1", "guide", "guide"},
};

/// A window of its own on a drawing, enlarged twice, of a catalogue with log-in and choice of language.
class Prova : public Finestra_Di_Prova {
  public:
    void Prepara() {
        Consulta(Macchina()
                     .Cambia("Prodotti", 1, "Mappa_Associata", "tz1.svg")
                     .Cambia("Prodotti", 1, "Flag_2", "1")
                     .File("tz1.svg", R"(<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'/>)")
                     .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "1")
                     .Sistema("UNIFICA_NAVIGAZIONE_VIEWER", "LINGUA"),
                 "P_1");
        QApplication::processEvents();  // the page has its size
        for (int volta = 0; volta < 2; ++volta)
            Comando("KEY_ZOOM_PIU");
        zoom_ = Zoom();
        finestra->Tree1().setFocus();
    }
    /// Presses keys; what is seen then, or in the dialog that comes up, which is closed.
    std::vector<std::string> Premi(const char* tasti) {
        const QKeySequence sequenza = QKeySequence::fromString(tasti, QKeySequence::PortableText);
        std::optional<std::vector<std::string>> nel_dialogo;
        QTimer attesa;
        QObject::connect(&attesa, &QTimer::timeout, [&] {
            if (auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                nel_dialogo = Visto();
                dialogo->reject();
            }
        });
        attesa.start(1);
        QTest::keyClick(QApplication::focusWidget(), sequenza[0].key(), sequenza[0].keyboardModifiers());
        return nel_dialogo ? *nel_dialogo : Visto();
    }
    /// All that a shortcut can bring about and that is there now.
    std::vector<std::string> Visto() const {
        const QWidget* fuoco = QApplication::focusWidget();
        const auto ha_fuoco = [&](const char* nome) {
            return fuoco && fuoco->objectName() == QLatin1String(nome);
        };
        const double zoom = finestra->Tavola().isVisible() ? Zoom() : 0;
        std::vector<std::string> visto;
        for (const auto& [c_e, nome] :
             {std::pair{Visibile("Frame_Intro"), "home page"},
              {Visibile("Frame_scheda_Prodotto"), "product's page"},
              {Visibile("Griglia_Evadi") || Visibile("Label_Ordine_Vuoto"), "order"},
              {finestra->findChild<QWidget*>("Form_Carrello_Prodotto") != nullptr, "cart"},
              {ha_fuoco("Combo_Nodi"), "keyboard in Combo_Nodi"},
              {ha_fuoco("Text_Matricola"), "keyboard in Text_Matricola"},
              {zoom == 1, "whole drawing"},
              {zoom > zoom_, "larger"},
              {zoom > 1 && zoom < zoom_, "smaller"},
              {finestra->Tavola().Introspezione().modo == u"ZOOM_WINDOWS", "area"},
              {!sistema.Aperti.isEmpty(), "guide"}})
            if (c_e)
                visto.emplace_back(nome);
        if (const QWidget* dialogo = QApplication::activeModalWidget())
            visto.push_back(dialogo->objectName().toStdString());
        return visto;
    }

  private:
    void TestBody() override {}
    double Zoom() const { return finestra->Tavola().Introspezione().zoom; }
    double zoom_ = 0;
};

/// What README.md says of each key: "Ctrl++, Ctrl+- | zoom in, zoom out" are two.
QMap<QString, QString> Detti() {
    QFile file(README);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression RIGA(R"(^\| ([^|`]+) \| ([^|]+) \|$)",
                                         QRegularExpression::MultilineOption);
    QMap<QString, QString> detti;
    auto righe = RIGA.globalMatch(QString::fromUtf8(file.readAll()));
    while (righe.hasNext()) {
        const auto riga = righe.next();
        const QStringList tasti = riga.captured(1).split(", "), testi = riga.captured(2).split(", ");
        for (qsizetype i = 0; i < tasti.size(); ++i)
            detti.insert(tasti[i],
                         tasti.size() == testi.size() && i < testi.size() ? testi[i] : riga.captured(2));
    }
    return detti;
}

TEST(Scorciatoie, EachRunsItsOwnCommandAsReadmeSays) {
    const QMap<QString, QString> detti = Detti();
    for (const auto& [tasti, detto, effetto] : SCORCIATOIE) {
        SCOPED_TRACE(tasti);
        EXPECT_EQ(detti.value(tasti), detto);
        Prova prova;
        prova.Prepara();
        EXPECT_THAT(prova.Visto(), testing::IsEmpty());
        EXPECT_THAT(prova.Premi(tasti), testing::ElementsAre(effetto));
    }
}

class Bottoni : public Finestra_Di_Prova {};

TEST_F(Bottoni, EachHasItsShortcutWhichDoesNothingWhileTheButtonIsDisabled) {
    Mostra();
    for (const QAction* azione : finestra->Toolbar_Main().actions())
        EXPECT_TRUE(std::any_of(std::begin(SCORCIATOIE), std::end(SCORCIATOIE), [&](const Scorciatoia& s) {
            return azione->shortcut() == QKeySequence::fromString(s.tasti, QKeySequence::PortableText);
        })) << qPrintable(azione->text());
    QTest::keyClick(finestra.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(Visibile("Frame_Main"));
}

}  // namespace

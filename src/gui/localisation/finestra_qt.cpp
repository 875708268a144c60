#include "gui/localisation/finestra_qt.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>

namespace {

template <class T>
T* Come(QObject& oggetto) {
    return qobject_cast<T*>(&oggetto);
}

const QHeaderView* Intestazione(const QObject& oggetto) {
    if (const auto* albero = qobject_cast<const QTreeView*>(&oggetto))
        return albero->header();
    if (const auto* tabella = qobject_cast<const QTableView*>(&oggetto))
        return tabella->horizontalHeader();
    return nullptr;
}

/// The named buttons of a plain toolbar, in their order.
QList<QAction*> Bottoni(const QToolBar& barra) {
    QList<QAction*> bottoni = barra.actions();
    bottoni.removeIf([](const QAction* a) { return a->isSeparator(); });
    return bottoni;
}

/// The property that holds the text of an object; nullptr for one whose text isn't the catalogue's.
const char* Proprieta_Testo(const QObject& oggetto, const QString& tipo) {
    if (tipo == u"Image")
        return nullptr;
    if (qobject_cast<const QGroupBox*>(&oggetto) || qobject_cast<const QMenu*>(&oggetto))
        return "title";
    const bool testo = qobject_cast<const QLabel*>(&oggetto) ||
                       qobject_cast<const QAbstractButton*>(&oggetto) ||
                       qobject_cast<const QAction*>(&oggetto);
    return testo ? "text" : nullptr;
}

/// The text is what a screen reader reads out.
void Imposta_Bottone(QAction& bottone, const QString& testo) {
    bottone.setText(testo);
    bottone.setToolTip(testo);
}

class Oggetto_Qt : public Oggetto_Form {
  public:
    Oggetto_Qt(QObject& oggetto, QString tipo)
        : oggetto_(oggetto), tipo_(std::move(tipo)), proprieta_(Proprieta_Testo(oggetto, tipo_)) {
        nome_ = oggetto.objectName();
        if (const qsizetype aperta = nome_.indexOf(u'('); aperta > 0 && nome_.endsWith(u')')) {
            bool numero = false;
            const int indice = QStringView(nome_).mid(aperta + 1).chopped(1).toInt(&numero);
            if (numero) {
                indice_ = indice;
                nome_.truncate(aperta);
            }
        }
    }

    QString Tipo() const override { return tipo_; }
    QString Nome() const override { return nome_; }
    std::optional<int> Indice() const override { return indice_; }

    QString Testo() const override {
        return proprieta_ ? oggetto_.property(proprieta_).toString() : QString();
    }
    void Imposta_Testo(const QString& testo) override {
        if (proprieta_)
            oggetto_.setProperty(proprieta_, testo);
    }

    // A menu has no tool tip.
    QString Suggerimento() const override {
        const auto* widget = Come<QWidget>(oggetto_);
        return widget && tipo_ != u"Menu" ? widget->toolTip() : QString();
    }
    void Imposta_Suggerimento(const QString& testo) override {
        if (auto* widget = Come<QWidget>(oggetto_); widget && tipo_ != u"Menu")
            widget->setToolTip(testo);
    }

    int Parti() const override {
        if (const auto* parti = dynamic_cast<const Parti_Toolbar*>(&oggetto_))
            return parti->Parti();
        if (auto* barra = Come<QToolBar>(oggetto_))
            return static_cast<int>(Bottoni(*barra).size());
        if (auto* schede = Come<QTabWidget>(oggetto_))
            return schede->count();
        if (const QHeaderView* intestazione = Intestazione(oggetto_))
            return intestazione->model() ? intestazione->model()->columnCount() : 0;
        return 0;
    }
    QString Parte(int i) const override {
        if (const auto* parti = dynamic_cast<const Parti_Toolbar*>(&oggetto_))
            return parti->Parte(i);
        if (auto* barra = Come<QToolBar>(oggetto_))
            return Bottoni(*barra).value(i - 1)->toolTip();
        if (auto* schede = Come<QTabWidget>(oggetto_))
            return schede->tabText(i - 1);
        if (const QHeaderView* intestazione = Intestazione(oggetto_))
            return intestazione->model()->headerData(i - 1, Qt::Horizontal).toString();
        return {};
    }
    void Imposta_Parte(int i, const QString& testo) override {
        if (auto* parti = dynamic_cast<Parti_Toolbar*>(&oggetto_))
            parti->Imposta_Parte(i, testo);
        else if (auto* barra = Come<QToolBar>(oggetto_))
            Imposta_Bottone(*Bottoni(*barra).value(i - 1), testo);
        else if (auto* schede = Come<QTabWidget>(oggetto_))
            schede->setTabText(i - 1, testo);
        else if (const QHeaderView* intestazione = Intestazione(oggetto_))
            intestazione->model()->setHeaderData(i - 1, Qt::Horizontal, testo);
    }

  private:
    QObject& oggetto_;
    QString tipo_;
    const char* proprieta_;
    QString nome_;
    std::optional<int> indice_;
};

/// Whether the object is one of the window's own controls: not inside a dialog over it, no part of a toolbar
/// or of another control.
bool E_Della_Finestra(const QObject& oggetto, const QWidget& finestra) {
    for (const QObject* padre = oggetto.parent(); padre && padre != &finestra; padre = padre->parent()) {
        if (qobject_cast<const QToolBar*>(padre) || qobject_cast<const QComboBox*>(padre) ||
            qobject_cast<const QTabBar*>(padre))
            return false;
        if (const auto* widget = qobject_cast<const QWidget*>(padre); widget && widget->isWindow())
            return qobject_cast<const QMenu*>(padre) != nullptr;
    }
    return true;
}

}  // namespace

QString Tipo_Oggetto(const QObject& oggetto) {
    const QString nome = oggetto.objectName();
    if (nome.isEmpty() || nome.startsWith(u"qt_"))
        return {};
    const bool bottone = qobject_cast<const QAbstractButton*>(&oggetto);
    if ((bottone || qobject_cast<const QLabel*>(&oggetto)) &&
        (nome.startsWith(u"Image") || nome.startsWith(u"Img_")))
        return QStringLiteral("Image");
    if (qobject_cast<const QLabel*>(&oggetto) || (bottone && nome.startsWith(u"Label_")))
        return QStringLiteral("Label");
    if (qobject_cast<const QCheckBox*>(&oggetto))
        return QStringLiteral("CheckBox");
    if (qobject_cast<const QRadioButton*>(&oggetto))
        return QStringLiteral("OptionButton");
    if (bottone)
        return QStringLiteral("CommandButton");
    if (qobject_cast<const QGroupBox*>(&oggetto))
        return QStringLiteral("Frame");
    if (qobject_cast<const QMenu*>(&oggetto) || qobject_cast<const QAction*>(&oggetto))
        return QStringLiteral("Menu");
    if (qobject_cast<const QTabWidget*>(&oggetto))
        return QStringLiteral("SSTab");
    if (const auto* barra = qobject_cast<const QScrollBar*>(&oggetto))
        return barra->orientation() == Qt::Vertical ? QStringLiteral("VScrollBar")
                                                    : QStringLiteral("HScrollBar");
    if (qobject_cast<const QToolBar*>(&oggetto))
        return QStringLiteral("Toolbar");
    if (Intestazione(oggetto))
        return nome.startsWith(u"ListView_") ? QStringLiteral("ListView") : QString();
    if (qobject_cast<const QComboBox*>(&oggetto))
        return QStringLiteral("ComboBox");
    if (qobject_cast<const QLineEdit*>(&oggetto) || qobject_cast<const QPlainTextEdit*>(&oggetto) ||
        qobject_cast<const QTextEdit*>(&oggetto))
        return QStringLiteral("TextBox");
    return nome.startsWith(u"Frame_") ? QStringLiteral("Frame") : QString();
}

std::vector<std::unique_ptr<Oggetto_Form>> Finestra_Qt::Oggetti() {
    std::vector<std::unique_ptr<Oggetto_Form>> oggetti;
    const QList<QObject*> tutti = finestra_.findChildren<QObject*>();
    for (QObject* oggetto : tutti) {
        const auto* widget = qobject_cast<const QWidget*>(oggetto);
        if (widget && widget->isWindow() && !qobject_cast<const QMenu*>(oggetto))
            continue;
        QString tipo = Tipo_Oggetto(*oggetto);
        if (!tipo.isEmpty() && E_Della_Finestra(*oggetto, finestra_))
            oggetti.push_back(std::make_unique<Oggetto_Qt>(*oggetto, std::move(tipo)));
    }
    return oggetti;
}

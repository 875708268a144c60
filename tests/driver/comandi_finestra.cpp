// Commands about windows and their controls: toolbar, tree, buttons, fields, lists, properties.

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include "driver/driver.h"
#include "driver/oggetti.h"

namespace {

QString Testo(const QJsonObject& comando, const char* campo) {
    return comando.value(QLatin1String(campo)).toString();
}

/// Where on a control a user clicks: on the box of a switch, which may be much wider than its text.
QPoint Punto_Clic(const QWidget& oggetto) {
    const bool interruttore =
        qobject_cast<const QCheckBox*>(&oggetto) || qobject_cast<const QRadioButton*>(&oggetto);
    return interruttore ? QPoint(8, oggetto.height() / 2) : oggetto.rect().center();
}

QPoint Punto_Voce(QAbstractItemView& lista, const QModelIndex& indice) {
    if (!indice.isValid())
        throw Errore_Comando(QStringLiteral("no such item"));
    lista.scrollTo(indice);
    const QRect posto = lista.visualRect(indice).intersected(lista.viewport()->rect());
    if (posto.isEmpty())
        throw Errore_Comando(QStringLiteral("the item can't be seen"));
    return posto.center();
}

void Clic(const QJsonObject& comando, bool doppio) {
    QString nome = Testo(comando, "object");
    const QJsonValue indice = comando.value(QStringLiteral("index"));
    QWidget* oggetto = nullptr;
    QPoint punto;
    if (!indice.isUndefined()) {
        // A list is named by itself, a member of a control array by name and index.
        try {
            if (auto* lista = qobject_cast<QAbstractItemView*>(&Trova_Oggetto(nome))) {
                Richiedi_Usabile(*lista);
                punto = Punto_Voce(*lista, lista->model()->index(indice.toInt(), 0, lista->rootIndex()));
                oggetto = lista->viewport();
            }
        } catch (const Errore_Comando&) {
            if (oggetto)
                throw;
        }
        nome += QStringLiteral("(%1)").arg(indice.toInt());
    }
    if (!oggetto) {
        oggetto = &Trova_Usabile(nome);
        punto = Punto_Clic(*oggetto);
    }
    QTest::mouseClick(oggetto, Qt::LeftButton, {}, punto);
    if (doppio)
        QTest::mouseDClick(oggetto, Qt::LeftButton, {}, punto);
}

void Scegli(const QJsonObject& comando) {
    QWidget& oggetto = Trova_Usabile(Testo(comando, "object"));
    const QString testo = Testo(comando, "text");
    if (auto* combo = qobject_cast<QComboBox*>(&oggetto)) {
        const int posto = combo->findText(testo, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (posto < 0)
            throw Errore_Comando(QStringLiteral("no entry %1").arg(testo));
        combo->setFocus();
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(posto, combo->modelColumn()));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        return;
    }
    auto* lista = qobject_cast<QAbstractItemView*>(&oggetto);
    if (!lista)
        throw Errore_Comando(QStringLiteral("%1 is no list").arg(oggetto.objectName()));
    const auto trovati = lista->model()->match(lista->model()->index(0, 0), Qt::DisplayRole, testo, 1,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Punto_Voce(*lista, trovati.value(0)));
}

void Scrivi_Testo(const QJsonObject& comando) {
    QWidget& oggetto = Trova_Usabile(Testo(comando, "object"));
    const QString testo = Testo(comando, "text");
    oggetto.setFocus();
    // What the field holds is replaced.
    QTest::keySequence(&oggetto, QKeySequence(QKeySequence::SelectAll));
    if (testo.isEmpty())
        QTest::keyClick(&oggetto, Qt::Key_Delete);
    for (const QChar c : testo) {
        if (c == u'\n')
            QTest::keyClick(&oggetto, Qt::Key_Return);
        else
            QTest::sendKeyEvent(QTest::Click, &oggetto, Qt::Key_unknown, QString(c), {});
    }
}

QJsonObject Proprieta(const QJsonObject& comando) {
    const QWidget& oggetto = Trova_Oggetto(Testo(comando, "object"));
    QJsonObject valori;
    for (const QJsonValue& nome : comando.value(QStringLiteral("properties")).toArray()) {
        const QVariant valore = oggetto.property(nome.toString().toUtf8().constData());
        if (!valore.isValid())
            throw Errore_Comando(QStringLiteral("no property %1").arg(nome.toString()));
        valori.insert(nome.toString(), In_Json(valore));
    }
    return {{QStringLiteral("properties"), valori}};
}

QJsonArray Nodi(const Vista_Albero& vista, const Albero_Visibile& albero) {
    QJsonArray nodi;
    const Modello_Albero& modello = vista.Modello();
    for (int i = 0; i < modello.Numero_Nodi(); ++i) {
        const QModelIndex indice = modello.Indice(i);
        const QString key = modello.Key(indice);
        const Nodo_Visibile* nodo = albero.Nodo(key);
        if (!nodo)
            throw Errore_Comando(QStringLiteral("the tree shows a node %1 that isn't there").arg(key));
        // A node without children can't be open on the screen: core alone knows.
        const bool aperto = modello.rowCount(indice) > 0 ? vista.isExpanded(indice) : nodo->Expanded;
        nodi.append(QJsonObject{{QStringLiteral("key"), key},
                                {QStringLiteral("text"), indice.data().toString()},
                                {QStringLiteral("parent"), modello.Key(indice.parent())},
                                {QStringLiteral("image"), nodo->Image},
                                {QStringLiteral("bold"), indice.data(Qt::FontRole).value<QFont>().bold()},
                                {QStringLiteral("expanded"), aperto},
                                {QStringLiteral("selected"), vista.selectionModel()->isSelected(indice)}});
    }
    return nodi;
}

}  // namespace

void Driver::Registra_Finestra() {
    comandi_[QStringLiteral("command")] = {[this](const QJsonObject& c) -> Esito {
        QWidget* bottone = Finestra().Toolbar_Main().Bottone(Testo(c, "key"));
        if (!bottone)
            throw Errore_Comando(QStringLiteral("no button %1").arg(Testo(c, "key")));
        Richiedi_Usabile(*bottone);
        QTest::mouseClick(bottone, Qt::LeftButton, {}, bottone->rect().center());
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("toolbar")] = {[this](const QJsonObject&) -> Esito {
        QJsonObject bottoni;
        for (const QString& key : Chiavi_Toolbar()) {
            const auto* bottone = qobject_cast<QToolButton*>(Finestra().Toolbar_Main().Bottone(key));
            bottoni.insert(key, QJsonObject{{QStringLiteral("visible"), bottone && bottone->isVisible()},
                                            {QStringLiteral("enabled"), bottone && bottone->isEnabled()},
                                            {QStringLiteral("pressed"), bottone && bottone->isChecked()}});
        }
        return QJsonObject{{QStringLiteral("toolbar"), bottoni}};
    }};
    comandi_[QStringLiteral("tree")] = {[this](const QJsonObject&) -> Esito {
        return QJsonObject{
            {QStringLiteral("nodes"), Nodi(Finestra().Tree1(), applicazione_.Progetto().Tree1)}};
    }};
    comandi_[QStringLiteral("click_node")] = {[this](const QJsonObject& c) -> Esito {
        Vista_Albero& albero = Finestra().Tree1();
        Richiedi_Usabile(albero);
        const QModelIndex indice = albero.Modello().Indice(Testo(c, "key"));
        if (!indice.isValid())
            throw Errore_Comando(QStringLiteral("no node %1").arg(Testo(c, "key")));
        QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, Punto_Voce(albero, indice));
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("click")] = {[](const QJsonObject& c) -> Esito {
        Clic(c, false);
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("double_click")] = {[](const QJsonObject& c) -> Esito {
        Clic(c, true);
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("type")] = {[](const QJsonObject& c) -> Esito {
        Scrivi_Testo(c);
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("choose")] = {[](const QJsonObject& c) -> Esito {
        Scegli(c);
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("get")] = {[](const QJsonObject& c) -> Esito { return Proprieta(c); }, false};
}

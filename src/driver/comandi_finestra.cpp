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

/// Where on a control a user clicks: on the box of a switch, which may be much wider than its text.
QPoint Punto_Clic(const QWidget& oggetto) {
    const bool interruttore =
        qobject_cast<const QCheckBox*>(&oggetto) || qobject_cast<const QRadioButton*>(&oggetto);
    return interruttore ? QPoint(8, oggetto.height() / 2) : oggetto.rect().center();
}

QPoint Punto_Voce(QAbstractItemView& lista, const QModelIndex& indice) {
    if (!indice.isValid())
        throw Errore_Comando(u"no such item"_qs);
    lista.scrollTo(indice);
    const QRect posto = lista.visualRect(indice).intersected(lista.viewport()->rect());
    if (posto.isEmpty())
        throw Errore_Comando(u"the item can't be seen"_qs);
    return posto.center();
}

void Clic(const QJsonObject& comando, bool doppio) {
    QString nome = comando["object"].toString();
    const QJsonValue indice = comando["index"];
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
        } catch (const Errore_Comando&) {  // sought as a member of an array
        }
        nome += u"(%1)"_qs.arg(indice.toInt());
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
    QWidget& oggetto = Trova_Usabile(comando["object"].toString());
    const QString testo = comando["text"].toString();
    if (auto* combo = qobject_cast<QComboBox*>(&oggetto)) {
        const int posto = combo->findText(testo, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (posto < 0)
            throw Errore_Comando(u"no entry %1"_qs.arg(testo));
        combo->setFocus();
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(posto, combo->modelColumn()));
        QTest::keyClick(combo->view(), Qt::Key_Return);
        return;
    }
    auto* lista = qobject_cast<QAbstractItemView*>(&oggetto);
    if (!lista)
        throw Errore_Comando(u"%1 is no list"_qs.arg(oggetto.objectName()));
    const auto trovati = lista->model()->match(lista->model()->index(0, 0), Qt::DisplayRole, testo, 1,
                                               Qt::MatchExactly | Qt::MatchCaseSensitive);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Punto_Voce(*lista, trovati.value(0)));
}

void Scrivi_Testo(const QJsonObject& comando) {
    QWidget& oggetto = Trova_Usabile(comando["object"].toString());
    const QString testo = comando["text"].toString();
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
    const QWidget& oggetto = Trova_Oggetto(comando["object"].toString());
    QJsonObject valori;
    for (const QJsonValue& nome : comando["properties"].toArray()) {
        const QVariant valore = oggetto.property(nome.toString().toUtf8().constData());
        if (!valore.isValid())
            throw Errore_Comando(u"no property %1"_qs.arg(nome.toString()));
        valori.insert(nome.toString(), In_Json(valore));
    }
    return {{"properties", valori}};
}

QJsonArray Nodi(const Vista_Albero& vista, const Albero_Visibile& albero) {
    QJsonArray nodi;
    const Modello_Albero& modello = vista.Modello();
    for (int i = 0; i < modello.Numero_Nodi(); ++i) {
        const QModelIndex indice = modello.Indice(i);
        const QString key = modello.Key(indice);
        const Nodo_Visibile* nodo = albero.Nodo(key);
        if (!nodo)
            throw Errore_Comando(u"the tree shows a node %1 that isn't there"_qs.arg(key));
        // A node without children can't be open on the screen: core alone knows.
        const bool aperto = modello.rowCount(indice) > 0 ? vista.isExpanded(indice) : nodo->Expanded;
        nodi.append(QJsonObject{{"key", key},
                                {"text", indice.data().toString()},
                                {"parent", modello.Key(indice.parent())},
                                {"image", nodo->Image},
                                {"bold", indice.data(Qt::FontRole).value<QFont>().bold()},
                                {"expanded", aperto},
                                {"selected", vista.selectionModel()->isSelected(indice)}});
    }
    return nodi;
}

}  // namespace

void Driver::Registra_Finestra() {
    Comanda("command", CON_FINESTRA, [this](const QJsonObject& c) {
        QWidget* bottone = Finestra().Toolbar_Main().Bottone(c["key"].toString());
        if (!bottone)
            throw Errore_Comando(u"no button %1"_qs.arg(c["key"].toString()));
        Richiedi_Usabile(*bottone);
        QTest::mouseClick(bottone, Qt::LeftButton, {}, bottone->rect().center());
    });
    Comanda("toolbar", CON_FINESTRA, [this](const QJsonObject&) {
        QJsonObject bottoni;
        for (const auto& comando : Comandi()) {
            const auto* bottone = qobject_cast<QToolButton*>(Finestra().Toolbar_Main().Bottone(comando.Key));
            bottoni.insert(comando.Key, QJsonObject{{"visible", bottone && bottone->isVisible()},
                                                    {"enabled", bottone && bottone->isEnabled()},
                                                    {"pressed", bottone && bottone->isChecked()}});
        }
        return QJsonObject{{"toolbar", bottoni}};
    });
    Comanda("tree", CON_FINESTRA, [this](const QJsonObject&) {
        return QJsonObject{{"nodes", Nodi(Finestra().Tree1(), applicazione_.Progetto().Tree1)}};
    });
    Comanda("click_node", CON_FINESTRA, [this](const QJsonObject& c) {
        Vista_Albero& albero = Finestra().Tree1();
        Richiedi_Usabile(albero);
        const QModelIndex indice = albero.Modello().Indice(c["key"].toString());
        if (!indice.isValid())
            throw Errore_Comando(u"no node %1"_qs.arg(c["key"].toString()));
        QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, Punto_Voce(albero, indice));
    });
    Comanda("click", CON_FINESTRA, [](const QJsonObject& c) { Clic(c, false); });
    Comanda("double_click", CON_FINESTRA, [](const QJsonObject& c) { Clic(c, true); });
    Comanda("type", CON_FINESTRA, Scrivi_Testo);
    Comanda("choose", CON_FINESTRA, Scegli);
    Comanda("get", SEMPRE, Proprieta);
}

#include "driver/oggetti.h"

#include <QApplication>
#include <QColor>
#include <QJsonArray>
#include <QRect>
#include <QStringList>

QList<QWidget*> Finestre_Aperte() {
    QList<QWidget*> finestre;
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (finestra->isVisible() && finestra->windowType() != Qt::ToolTip)
            finestre.append(finestra);
    // The window in front first: several may hold an object of the same name.
    if (QWidget* modale = QApplication::activeModalWidget(); finestre.removeOne(modale))
        finestre.prepend(modale);
    return finestre;
}

QWidget& Trova_Oggetto(const QString& nome) {
    const qsizetype barra = nome.indexOf(u'/');
    const QString form = barra < 0 ? QString() : nome.left(barra);
    const QString oggetto = nome.mid(barra + 1);
    QWidgetList finestre = Finestre_Aperte();
    for (QWidget* finestra : QApplication::topLevelWidgets())
        if (!finestre.contains(finestra))
            finestre.append(finestra);
    for (QWidget* finestra : std::as_const(finestre)) {
        if (!form.isEmpty() && finestra->objectName() != form)
            continue;
        if (finestra->objectName() == oggetto)
            return *finestra;
        const auto trovati = finestra->findChildren<QWidget*>(oggetto);
        for (QWidget* trovato : trovati)
            if (trovato->window() == finestra)
                return *trovato;
    }
    throw Errore_Comando(u"no object %1"_qs.arg(nome));
}

void Richiedi_Usabile(const QWidget& oggetto) {
    const QString nome = oggetto.objectName();
    if (!oggetto.isVisible())
        throw Errore_Comando(u"%1 is hidden"_qs.arg(nome));
    if (!oggetto.isEnabled())
        throw Errore_Comando(u"%1 is disabled"_qs.arg(nome));
    const QWidget* modale = QApplication::activeModalWidget();
    if (modale && oggetto.window() != modale)
        throw Errore_Comando(u"%1 is behind the window %2"_qs.arg(nome, modale->objectName()));
    // A hand that uses a control brings its window to the front.
    if (!oggetto.isActiveWindow()) {
        oggetto.window()->activateWindow();
        QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    }
}

QWidget& Trova_Usabile(const QString& nome) {
    QWidget& oggetto = Trova_Oggetto(nome);
    Richiedi_Usabile(oggetto);
    return oggetto;
}

QJsonValue In_Json(const QVariant& valore) {
    const int tipo = valore.typeId();
    if (tipo == QMetaType::QRect) {
        const QRect r = valore.toRect();
        return QJsonArray{r.x(), r.y(), r.width(), r.height()};
    }
    if (tipo == QMetaType::QSize)
        return QJsonArray{valore.toSize().width(), valore.toSize().height()};
    if (tipo == QMetaType::QPoint)
        return QJsonArray{valore.toPoint().x(), valore.toPoint().y()};
    if (tipo == QMetaType::QColor)
        return valore.value<QColor>().name();
    const QJsonValue json = QJsonValue::fromVariant(valore);
    return json.isNull() && valore.canConvert<QString>() ? QJsonValue(valore.toString()) : json;
}

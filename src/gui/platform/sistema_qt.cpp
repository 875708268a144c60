#include "gui/platform/sistema_qt.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QUrl>

#include "core/base/percorsi.h"

QString Sistema_Qt::Cartella_Temporanea() const {
    return Cartella_Con_Barra(QDir::toNativeSeparators(QDir::tempPath()));
}

void Sistema_Qt::Apri_Con_Predefinito(const QString& percorso) {
    if (percorso.isEmpty())
        return;
    // An address has a scheme of two letters or more; one letter is a drive.
    const qsizetype schema = percorso.indexOf(u':');
    const bool indirizzo = schema > 1 && QUrl(percorso).isValid() && !percorso.left(schema).contains(u'/');
    QDesktopServices::openUrl(indirizzo ? QUrl(percorso) : QUrl::fromLocalFile(percorso));
}

void Sistema_Qt::Esegui_Eventi() {
    QCoreApplication::processEvents();
}

QChar Sistema_Qt::Separatore_Decimale() const {
    return QLocale::system().decimalPoint().front();
}

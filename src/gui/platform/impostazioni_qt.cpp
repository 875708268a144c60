#include "gui/platform/impostazioni_qt.h"

#include <QStandardPaths>

namespace {

QString File_Utente() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' +
           NOME_APPLICAZIONE + QStringLiteral(".ini");
}

/// The application the file belongs to goes without saying; another one gets a group of its own.
QString Percorso(const QString& applicazione, const QString& sezione, const QString& chiave) {
    const QString percorso = sezione + u'/' + chiave;
    return applicazione == NOME_APPLICAZIONE ? percorso : applicazione + u'/' + percorso;
}

}  // namespace

Impostazioni_Qt::Impostazioni_Qt(const QString& file)
    : impostazioni_(file.isEmpty() ? File_Utente() : file, QSettings::IniFormat) {}

QString Impostazioni_Qt::Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                               const QString& predefinito) const {
    const QVariant valore = impostazioni_.value(Percorso(applicazione, sezione, chiave));
    if (!valore.isValid())
        return predefinito;
    // A text with commas that somebody typed into the file without quotes is read as a list.
    return valore.typeId() == QMetaType::QStringList ? valore.toStringList().join(QStringLiteral(", "))
                                                     : valore.toString();
}

void Impostazioni_Qt::Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                             const QString& valore) {
    impostazioni_.setValue(Percorso(applicazione, sezione, chiave), valore);
}

#include "tzf/commands/console_ports.h"

#include <QFileInfo>
#include <QLocale>

#include "core/base/percorsi.h"
#include "tzf/commands/command.h"
#include "tzf/tool_error.h"

namespace {
QString settingName(const QString& application, const QString& section, const QString& key) {
    return application + u'\n' + section + u'\n' + key;
}
}  // namespace

QString ConsoleSettings::Leggi(const QString& applicazione, const QString& sezione, const QString& chiave,
                               const QString& predefinito) const {
    return values_.value(settingName(applicazione, sezione, chiave), predefinito);
}

void ConsoleSettings::Scrivi(const QString& applicazione, const QString& sezione, const QString& chiave,
                             const QString& valore) {
    values_.insert(settingName(applicazione, sezione, chiave), valore);
}

void ConsoleMessages::Mostra(const QString& testo, Icona) {
    printError(testo);
}

bool ConsoleMessages::Chiedi(const QString& testo) {
    printError(testo + QStringLiteral(" no"));
    return false;
}

QString ConsoleSystem::Cartella_Temporanea() const {
    if (!folder_.isValid())
        throw ToolError(folder_.errorString());
    return Cartella_Con_Barra(folder_.path());
}

QChar ConsoleSystem::Separatore_Decimale() const {
    return QLocale::system().decimalPoint().at(0);
}

OpenCatalogue::OpenCatalogue(const QString& package) : project({settings_, messages_, system_}) {
    // The viewer takes a file that doesn't exist for one without a catalogue.
    if (!QFileInfo(package).isFile())
        throw ToolError(QStringLiteral("%1: no such file").arg(package));
    if (project.Apri_Progetto_TZF(QFileInfo(package).absoluteFilePath()) != 1 || !project.Progetto_Aperto)
        throw ToolError(QStringLiteral("%1: can't be opened").arg(package));
}

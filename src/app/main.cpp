#include <QApplication>
#include <QCommandLineParser>

#include "app/applicazione.h"
#include "gui/platform/impostazioni_qt.h"
#include "gui/platform/messaggi_qt.h"
#include "gui/platform/sistema_qt.h"

int main(int argc, char* argv[]) {
    QApplication programma(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tessarine-viewer"));
    QApplication::setApplicationDisplayName(TITOLO_PROGRAMMA);
    QApplication::setApplicationVersion(QStringLiteral(VIEWER_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tessarine-viewer"));

    QCommandLineParser argomenti;
    argomenti.setApplicationDescription(QStringLiteral("Viewer for electronic spare-parts catalogues."));
    argomenti.addHelpOption();
    argomenti.addVersionOption();
    const QCommandLineOption impostazioni(
        QStringLiteral("settings"), QStringLiteral("Keep the settings in FILE."), QStringLiteral("FILE"));
    const QCommandLineOption installazione(
        QStringLiteral("install"), QStringLiteral("Folder that holds Data and Help."), QStringLiteral("DIR"));
    argomenti.addOptions({impostazioni, installazione});
    argomenti.addPositionalArgument(QStringLiteral("package"),
                                    QStringLiteral("Catalogue to open, a .TZF file."),
                                    QStringLiteral("[package]"));
    argomenti.process(programma);

    Impostazioni_Qt impostazioni_utente(argomenti.value(impostazioni));
    Messaggi_Qt messaggi;
    Sistema_Qt sistema;
    Applicazione applicazione({impostazioni_utente, messaggi, sistema},
                              {argomenti.positionalArguments().join(u' '), QApplication::applicationDirPath(),
                               argomenti.value(installazione)});
    return applicazione.Avvia() ? QApplication::exec() : 0;
}

#include "app/argomenti.h"
#include "gui/platform/impostazioni_qt.h"
#include "gui/platform/messaggi_qt.h"
#include "gui/platform/sistema_qt.h"

int main(int argc, char* argv[]) {
    Programma_Qt programma(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tessarine-viewer"));
    QApplication::setApplicationDisplayName(TITOLO_PROGRAMMA);
    QApplication::setApplicationVersion(QStringLiteral(VIEWER_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tessarine-viewer"));

    const Argomenti argomenti =
        Leggi_Argomenti(programma, QStringLiteral("Viewer for electronic spare-parts catalogues."));
    Impostazioni_Qt impostazioni(argomenti.Impostazioni);
    Messaggi_Qt messaggi;
    Sistema_Qt sistema;
    Applicazione applicazione(programma, {impostazioni, messaggi, sistema}, argomenti.Opzioni);
    return applicazione.Avvia() ? QApplication::exec() : 0;
}

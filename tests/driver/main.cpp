#include <QApplication>
#include <QCommandLineParser>
#include <QCursor>
#include <cstdio>

#include "driver/driver.h"
#include "gui/platform/impostazioni_qt.h"

int main(int argc, char* argv[]) {
    QApplication programma(argc, argv);
    QCommandLineParser argomenti;
    argomenti.setApplicationDescription(
        u"The viewer, driven by JSON commands on standard input. See README.md."_qs);
    argomenti.addHelpOption();
    const QCommandLineOption impostazioni(u"settings"_qs, u"Keep the settings in FILE."_qs, u"FILE"_qs);
    const QCommandLineOption installazione(u"install"_qs, u"Folder that holds Data and Help."_qs, u"DIR"_qs);
    argomenti.addOptions({impostazioni, installazione});
    argomenti.addPositionalArgument(u"package"_qs, u"Catalogue to open."_qs, u"[package]"_qs);
    argomenti.process(programma);

    Impostazioni_Qt impostazioni_utente(argomenti.value(impostazioni));
    Messaggi_Driver messaggi;
    Sistema_Driver sistema;
    Applicazione applicazione({impostazioni_utente, messaggi, sistema},
                              {argomenti.positionalArguments().join(u' '), QApplication::applicationDirPath(),
                               argomenti.value(installazione)});
    // The pointer rests in a corner, where nothing lights up under it.
    QCursor::setPos(0, 0);
    // A closed main window leaves the driver able to answer: the end of the input ends it.
    QApplication::setQuitOnLastWindowClosed(false);
    Driver driver(applicazione, messaggi, sistema, [](const QByteArray& risposta) {
        std::fwrite(risposta.constData(), 1, static_cast<size_t>(risposta.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    });
    driver.Leggi_Da(0);
    return applicazione.Avvia() ? QApplication::exec() : 0;
}

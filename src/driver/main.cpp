#include <QApplication>
#include <QCursor>
#include <cstdio>

#include "app/argomenti.h"
#include "driver/driver.h"
#include "gui/platform/impostazioni_qt.h"

int main(int argc, char* argv[]) {
    Programma_Qt programma(argc, argv);
    const Argomenti argomenti = Leggi_Argomenti(
        programma, u"The viewer, driven by JSON commands on standard input. See README.md."_qs);
    Impostazioni_Qt impostazioni(argomenti.Impostazioni);
    Messaggi_Driver messaggi;
    Sistema_Driver sistema;
    Applicazione applicazione(programma, {impostazioni, messaggi, sistema}, argomenti.Opzioni);
    // The pointer rests in a corner, where nothing lights up under it.
    QCursor::setPos(0, 0);
    // A closed main window leaves the driver able to answer: the end of the input ends it.
    QApplication::setQuitOnLastWindowClosed(false);
    Driver driver(applicazione, messaggi, sistema, [](const QByteArray& risposta) {
        std::fwrite(risposta.constData(), 1, static_cast<size_t>(risposta.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    });
    QObject::connect(&programma, &Programma_Qt::Eccezione, &driver, &Driver::Guasto);
    driver.Leggi_Da(0);
    return applicazione.Avvia() ? QApplication::exec() : 0;
}

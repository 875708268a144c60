#include "gui/platform/messaggi_qt.h"

#include <QApplication>

#include "gui/platform/freccia.h"

namespace {

QMessageBox::Icon Icona_Qt(Icona icona) {
    switch (icona) {
        case Icona::Informazione:
            return QMessageBox::Information;
        case Icona::Esclamazione:
            return QMessageBox::Warning;
        case Icona::Critica:
            return QMessageBox::Critical;
        case Icona::Nessuna:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void Messaggi_Qt::Mostra(const QString& testo, Icona icona) {
    Mostra_Finestra(testo, Icona_Qt(icona), QMessageBox::Ok);
}

bool Messaggi_Qt::Chiedi(const QString& testo) {
    return Mostra_Finestra(testo, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

QMessageBox::StandardButton Messaggi_Qt::Esegui(QMessageBox& finestra) {
    return static_cast<QMessageBox::StandardButton>(finestra.exec());
}

QMessageBox::StandardButton Messaggi_Qt::Mostra_Finestra(const QString& testo, QMessageBox::Icon icona,
                                                         QMessageBox::StandardButtons bottoni) {
    QMessageBox finestra(icona, TITOLO_PROGRAMMA, testo, bottoni, QApplication::activeWindow());
    // A text may come from a catalogue: it is shown as it is, never read as markup.
    finestra.setTextFormat(Qt::PlainText);
    finestra.setObjectName(QStringLiteral("Messaggio"));
    // While a catalogue of the command line opens it is the only window, and its end isn't the program's.
    finestra.setAttribute(Qt::WA_QuitOnClose, false);
    const Freccia freccia;
    return Esegui(finestra);
}

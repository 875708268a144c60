#include "gui/platform/programma_qt.h"

#include <exception>

bool Programma_Qt::notify(QObject* ricevente, QEvent* evento) {
    try {
        return QApplication::notify(ricevente, evento);
    } catch (const std::exception& errore) {
        emit Eccezione(QString::fromUtf8(errore.what()));
    } catch (...) {
        emit Eccezione(QStringLiteral("Unknown error."));
    }
    return true;
}

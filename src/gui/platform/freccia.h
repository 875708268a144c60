#pragma once

#include <QApplication>
#include <QCursor>

/// The pointer over a dialog: an arrow, even when the dialog interrupts work under the hourglass. As long as
/// the object lives.
class Freccia {
  public:
    Freccia() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~Freccia() { QApplication::restoreOverrideCursor(); }
    Freccia(const Freccia&) = delete;
    Freccia& operator=(const Freccia&) = delete;
};

#pragma once

#include <QObject>

class QKeySequence;
class QWidget;

/// Tool tips of a window: the text as the text catalogue gives it, never read as markup, with the shortcut of
/// the control behind it.
class Suggerimenti : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;
    /// Takes over the tool tips of all controls that the window has now.
    void Attiva(QWidget& finestra);
    /// The shortcut that a control's tool tip shows.
    static void Scorciatoia(QWidget& controllo, const QKeySequence& tasti);
    /// What is shown for a control; "" for nothing.
    static QString Testo(const QWidget& controllo);

    bool eventFilter(QObject* oggetto, QEvent* evento) override;
};

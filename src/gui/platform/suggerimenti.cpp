#include "gui/platform/suggerimenti.h"

#include <QHelpEvent>
#include <QKeySequence>
#include <QToolTip>
#include <QWidget>

namespace {
constexpr char SCORCIATOIA[] = "scorciatoia";
}

void Suggerimenti::Attiva(QWidget& finestra) {
    const QList<QWidget*> controlli = finestra.findChildren<QWidget*>();
    for (QWidget* controllo : controlli)
        if (!controllo->objectName().isEmpty())
            controllo->installEventFilter(this);
}

void Suggerimenti::Scorciatoia(QWidget& controllo, const QKeySequence& tasti) {
    controllo.setProperty(SCORCIATOIA, tasti.toString(QKeySequence::NativeText));
}

QString Suggerimenti::Testo(const QWidget& controllo) {
    // A missing part of a toolbar's texts is the one character of code 0, which nobody can read.
    QString testo = controllo.toolTip().remove(QChar(0));
    const QString tasti = controllo.property(SCORCIATOIA).toString();
    if (tasti.isEmpty())
        return testo;
    return testo.isEmpty() ? tasti : QStringLiteral("%1 (%2)").arg(testo, tasti);
}

bool Suggerimenti::eventFilter(QObject* oggetto, QEvent* evento) {
    auto* controllo = qobject_cast<QWidget*>(oggetto);
    if (evento->type() != QEvent::ToolTip || !controllo)
        return QObject::eventFilter(oggetto, evento);
    const QString testo = Testo(*controllo);
    if (testo.isEmpty())
        return QObject::eventFilter(oggetto, evento);
    QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(),
                       QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(testo.toHtmlEscaped()),
                       controllo);
    return true;
}

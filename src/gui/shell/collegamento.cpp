#include "gui/shell/collegamento.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "gui/platform/icone.h"
#include "gui/platform/immagini.h"

namespace {

constexpr int LATO_ICONA = 20;  ///< of a link
constexpr int MARGINE = 6;
constexpr int ORLO = 1;          ///< around an icon, for the frame of the focus
constexpr int DENSITA_FOTO = 2;  ///< a photograph is kept sharp enough for the densest screens

QIcon::Mode Modo(const QWidget& oggetto) {
    return oggetto.isEnabled() ? QIcon::Normal : QIcon::Disabled;
}

}  // namespace

Collegamento::Collegamento(const QString& nome, QWidget* padre) : QAbstractButton(padre) {
    setObjectName(nome);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setForegroundRole(QPalette::WindowText);
}

void Collegamento::Disegna_Fuoco(QPainter& pittore) {
    if (!Fuoco_Visibile())
        return;
    QStyleOptionFocusRect cornice;
    cornice.initFrom(this);
    cornice.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &cornice, &pittore, this);
}

/// An "&" in a text of a catalogue makes no shortcut.
bool Collegamento::event(QEvent* evento) {
    return evento->type() != QEvent::Shortcut && QAbstractButton::event(evento);
}

void Collegamento::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(evento);
}

void Collegamento::focusInEvent(QFocusEvent* evento) {
    const Qt::FocusReason motivo = evento->reason();
    da_tastiera_ =
        motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason || motivo == Qt::ShortcutFocusReason;
    QAbstractButton::focusInEvent(evento);
}

// --- a link ---------------------------------------------------------------------------------------

Etichetta_Link::Etichetta_Link(const QString& nome, const QString& testo, const QString& icona,
                               QWidget* padre)
    : Collegamento(nome, padre) {
    setText(testo);
    if (!icona.isEmpty())
        setIcon(Icona_Tema(icona));
    setAttribute(Qt::WA_Hover);
    const int posto_icona = icona.isEmpty() ? 0 : LATO_ICONA + (testo.isEmpty() ? 0 : 8);
    setContentsMargins(MARGINE + posto_icona, 5, testo.isEmpty() ? 2 * MARGINE : MARGINE + 4, 5);
    setMinimumHeight(LATO_ICONA + 2 * MARGINE);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize Etichetta_Link::sizeHint() const {
    const QMargins orlo = contentsMargins();
    return fontMetrics().size(0, text()).grownBy(orlo).expandedTo({0, minimumHeight()});
}

void Etichetta_Link::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    icon().paint(&pittore, QRect(MARGINE, (height() - LATO_ICONA) / 2, LATO_ICONA, LATO_ICONA),
                 Qt::AlignCenter, Modo(*this));
    QFont carattere = font();
    carattere.setUnderline(underMouse() || Fuoco_Visibile());
    pittore.setFont(carattere);
    style()->drawItemText(&pittore, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          text(), foregroundRole());
    Disegna_Fuoco(pittore);
}

// --- a picture ------------------------------------------------------------------------------------

void Immagine_Attiva::Icona(const QString& nome, int lato, const QString& tag) {
    setIcon(Icona_Tema(nome));
    foto_ = QImage();
    tag_ = tag;
    setFixedSize(lato + 2 * ORLO, lato + 2 * ORLO);
    update();
}

void Immagine_Attiva::Foto(const QString& file, const QSize& misura) {
    foto_ = Leggi_Immagine(file, misura * DENSITA_FOTO);
    tag_ = file;
    setFixedSize(misura.expandedTo({1, 1}));
    update();
}

void Immagine_Attiva::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    if (!foto_.isNull()) {
        pittore.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSize pixel = (QSizeF(size()) * devicePixelRatioF()).toSize();
        pittore.drawImage(rect(), foto_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } else {
        icon().paint(&pittore, rect().adjusted(ORLO, ORLO, -ORLO, -ORLO), Qt::AlignCenter, Modo(*this));
    }
    Disegna_Fuoco(pittore);
}

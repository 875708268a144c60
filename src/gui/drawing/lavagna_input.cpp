// What the mouse, the fingers and the keyboard do on the canvas.

#include <QApplication>
#include <QGestureEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QRubberBand>
#include <QScrollBar>
#include <QStyleHints>
#include <QToolTip>
#include <cmath>

#include "core/base/twips.h"
#include "gui/drawing/lavagna_widget.h"

namespace {

constexpr double TACCA = 120;        ///< wheel units of one notch
constexpr double PASSO_RUOTA = 1.2;  ///< zoom of one notch
constexpr int FINESTRA_MINIMA = 4;   ///< pixels below which a zoom window is a slip

/// Mouse buttons and keys as the events tell them: 1 left, 2 right, 4 middle; 1 shift, 2 control, 4 alt.
qint16 Bottoni(Qt::MouseButtons b) {
    return static_cast<qint16>((b & Qt::LeftButton ? 1 : 0) | (b & Qt::RightButton ? 2 : 0) |
                               (b & Qt::MiddleButton ? 4 : 0));
}
qint16 Tasti(Qt::KeyboardModifiers t) {
    return static_cast<qint16>((t & Qt::ShiftModifier ? 1 : 0) | (t & Qt::ControlModifier ? 2 : 0) |
                               (t & Qt::AltModifier ? 4 : 0));
}

}  // namespace

void Lavagna_Widget::Ferma_Azione() {
    azione_ = Azione::NESSUNA;
    dopo_click_ = Dopo_Click::NIENTE;
    attesa_ = {};
    if (elastico_)
        elastico_->hide();
    Regola_Cursore();
}

// --- mouse -------------------------------------------------------------------------------------

int Lavagna_Widget::Elemento_In(QPointF pagina) {
    return mappa_ ? mappa_->Elemento_In(pagina) : -1;
}

void Lavagna_Widget::Riprendi_Attese() {
    const auto attesa = std::exchange(attesa_, {});
    const quint64 generazione = generazione_;
    if (attesa.mouse)
        Passa_Su(*attesa.mouse, Qt::NoButton, Qt::NoModifier);
    if (attesa.click && generazione == generazione_)
        Scegli(attesa.click->first, attesa.click->second);
    if (attesa.passo && generazione == generazione_)
        focusNextPrevChild(attesa.passo > 0);
}

int Lavagna_Widget::Gruppo_Di(int elemento) const {
    return elemento < 0 ? -1 : documento_->Elementi()[static_cast<size_t>(elemento)].gruppo;
}

void Lavagna_Widget::Passa_Su(QPointF finestra, Qt::MouseButtons bottoni, Qt::KeyboardModifiers tasti) {
    if (Chiedi_Mappa()) {
        attesa_.mouse = finestra;
        return;
    }
    const int elemento = Elemento_In(vista_.In_Pagina(finestra));
    Sotto_Mouse(elemento);
    if (elemento < 0 && Evento.Mouse_Fuori)
        Evento.Mouse_Fuori(Bottoni(bottoni), Tasti(tasti), finestra.x() * TWIPS_PER_PIXEL,
                           finestra.y() * TWIPS_PER_PIXEL);
}

/// The mouse, or the keyboard, is on this element now; -1 on none. Elements of one string are one hotspot.
void Lavagna_Widget::Sotto_Mouse(int elemento) {
    if (Gruppo_Di(elemento) == Gruppo_Di(sotto_))
        return;
    const int lasciato = std::exchange(sotto_, elemento);
    Ridipingi_Gruppo(Gruppo_Di(lasciato));
    Ridipingi_Gruppo(Gruppo_Di(elemento));
    Regola_Cursore();
    QToolTip::hideText();
    const auto racconta = [this](qint16 stato, int chi) {
        if (chi < 0 || !Evento.Mouse_Su_HotSpot)
            return;
        const Elemento_HotSpot& e = documento_->Elementi()[static_cast<size_t>(chi)];
        Evento.Mouse_Su_HotSpot(stato, QString(e.nome),
                                QString(documento_->Gruppi()[static_cast<size_t>(e.gruppo)].stringa));
    };
    const quint64 generazione = generazione_;
    racconta(1, lasciato);
    if (generazione == generazione_)
        racconta(0, elemento);
}

bool Lavagna_Widget::Clicca(int elemento, bool doppio) {
    const auto& evento = doppio ? Evento.Doppio_Click_Su_HotSpot : Evento.Click_Su_HotSpot;
    if (!evento)
        return false;
    const Elemento_HotSpot e =
        documento_->Elementi()[static_cast<size_t>(elemento)];  // the page may be gone afterwards
    return evento(e.nome, QString(documento_->Gruppi()[static_cast<size_t>(e.gruppo)].stringa));
}

void Lavagna_Widget::mousePressEvent(QMouseEvent* evento) {
    const bool sinistro = evento->button() == Qt::LeftButton;
    dopo_click_ = Dopo_Click::NIENTE;
    inizio_ = evento->position();
    if (evento->button() == Qt::MiddleButton || (sinistro && spazio_)) {
        if (!Fissa()) {
            azione_ = Azione::SPOSTAMENTO;
            origine_inizio_ = vista_.Origine();
        }
    } else if (sinistro && modo_ == Modo::ZOOM_WINDOWS) {
        Comincia_Finestra(inizio_.toPoint());
    } else if (sinistro) {
        Fuoco_Su(-1);
        azione_ = Azione::SCELTA;
        premuto_ = vista_.In_Pagina(inizio_);
        Chiedi_Mappa();
    }
    Regola_Cursore();
}

void Lavagna_Widget::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF qui = evento->position();
    if (azione_ == Azione::SPOSTAMENTO) {
        vista_.Scorri_A(origine_inizio_ - (qui - inizio_));
        Vista_Cambiata();
    } else if (azione_ == Azione::FINESTRA) {
        elastico_->setGeometry(QRect(inizio_.toPoint(), qui.toPoint()).normalized() & viewport()->rect());
    } else if (modo_ == Modo::SELEZIONA) {
        Fuoco_Su(-1);
        Passa_Su(qui, evento->buttons(), evento->modifiers());
    }
}

void Lavagna_Widget::mouseReleaseEvent(QMouseEvent* evento) {
    const Azione finita = std::exchange(azione_, Azione::NESSUNA);
    Regola_Cursore();
    if (finita == Azione::FINESTRA && evento->button() == Qt::LeftButton)
        Finisci_Finestra();
    if (finita != Azione::SCELTA || evento->button() != Qt::LeftButton)
        return;
    const QPointF lasciato = vista_.In_Pagina(evento->position());
    if (Chiedi_Mappa())
        attesa_.click = {premuto_, lasciato};
    else
        Scegli(premuto_, lasciato);
}

/// The button went down here and up there (page units): a click, if it is the same hotspot.
void Lavagna_Widget::Scegli(QPointF premuto, QPointF lasciato) {
    const int gruppo = Gruppo_Di(Elemento_In(premuto)), elemento = Elemento_In(lasciato);
    if (gruppo < 0 || Gruppo_Di(elemento) != gruppo)
        return;
    const quint64 generazione = generazione_;
    const bool gestito = Clicca(elemento, false);
    dopo_click_ = gestito || generazione != generazione_ ? Dopo_Click::GESTITO : Dopo_Click::APERTO;
    cliccato_ = gruppo;
}

void Lavagna_Widget::mouseDoubleClickEvent(QMouseEvent* evento) {
    const Dopo_Click prima = std::exchange(dopo_click_, Dopo_Click::NIENTE);
    if (evento->button() == Qt::LeftButton && prima == Dopo_Click::GESTITO)
        return;
    if (evento->button() == Qt::LeftButton && prima == Dopo_Click::APERTO) {
        const int elemento = Elemento_In(vista_.In_Pagina(evento->position()));
        if (Gruppo_Di(elemento) == cliccato_) {
            Clicca(elemento, true);
            return;
        }
    }
    mousePressEvent(evento);
}

void Lavagna_Widget::Comincia_Finestra(QPoint da) {
    if (!elastico_)
        elastico_ = new QRubberBand(QRubberBand::Rectangle, viewport());
    azione_ = Azione::FINESTRA;
    elastico_->setGeometry(QRect(da, QSize()));
    elastico_->show();
}

void Lavagna_Widget::Finisci_Finestra() {
    elastico_->hide();
    const QRect area = elastico_->geometry();
    if (area.width() < FINESTRA_MINIMA || area.height() < FINESTRA_MINIMA)
        return;
    vista_.Ingrandisci_Area(area);
    Vista_Cambiata();
}

void Lavagna_Widget::wheelEvent(QWheelEvent* evento) {
    const int giro = evento->angleDelta().y();
    if (giro != 0) {
        vista_.Ingrandisci(std::pow(PASSO_RUOTA, giro / TACCA), evento->position());
        Vista_Cambiata();
    }
    evento->accept();
}

bool Lavagna_Widget::viewportEvent(QEvent* evento) {
    switch (evento->type()) {
        case QEvent::Leave:
            attesa_.mouse.reset();
            if (fuoco_ < 0)
                Sotto_Mouse(-1);
            break;
        case QEvent::ToolTip:
            if (sotto_ >= 0 && fuoco_ < 0 && Evento.Suggerimento) {
                const QString& stringa = documento_->Gruppi()[static_cast<size_t>(Gruppo_Di(sotto_))].stringa;
                QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(),
                                   Evento.Suggerimento(stringa).toHtmlEscaped(), viewport());
            } else {
                QToolTip::hideText();
            }
            return true;
        case QEvent::Gesture:
            if (auto* pizzico = static_cast<QPinchGesture*>(
                    static_cast<QGestureEvent*>(evento)->gesture(Qt::PinchGesture))) {
                vista_.Ingrandisci(pizzico->scaleFactor(), viewport()->mapFromGlobal(pizzico->centerPoint()));
                Vista_Cambiata();
                return true;
            }
            break;
        case QEvent::NativeGesture:
            if (auto* gesto = static_cast<QNativeGestureEvent*>(evento);
                gesto->gestureType() == Qt::ZoomNativeGesture) {
                vista_.Ingrandisci(1 + gesto->value(), gesto->position());
                Vista_Cambiata();
                return true;
            }
            break;
        default:
            break;
    }
    return QAbstractScrollArea::viewportEvent(evento);
}

void Lavagna_Widget::Regola_Cursore() {
    Qt::CursorShape forma = Qt::ArrowCursor;
    if (azione_ == Azione::SPOSTAMENTO)
        forma = Qt::ClosedHandCursor;
    else if (spazio_ && !Fissa())
        forma = Qt::OpenHandCursor;
    else if (modo_ == Modo::ZOOM_WINDOWS)
        forma = Qt::CrossCursor;
    else if (sotto_ >= 0)
        forma = Qt::PointingHandCursor;
    if (viewport()->cursor().shape() != forma)
        viewport()->setCursor(forma);
}

// --- keyboard ----------------------------------------------------------------------------------

/// Moves the keyboard's focus to a hotspot; -1 takes it off. It counts as the mouse being there.
void Lavagna_Widget::Fuoco_Su(int gruppo) {
    if (gruppo == fuoco_)
        return;
    Ridipingi_Gruppo(std::exchange(fuoco_, gruppo));
    Ridipingi_Gruppo(gruppo);
    if (gruppo < 0) {
        Sotto_Mouse(-1);
        return;
    }
    const int elemento = documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi.front();
    vista_.Porta_In_Vista(mappa_->Ingombro(elemento));
    Vista_Cambiata();
    Sotto_Mouse(elemento);
}

bool Lavagna_Widget::focusNextPrevChild(bool avanti) {
    const bool qui = modo_ == Modo::SELEZIONA && hasFocus() && isVisible();  // not when it is hidden
    if (qui && Chiedi_Mappa() && !attesa_.passo) {  // whoever is in a hurry goes on with the next step
        attesa_.passo = avanti ? 1 : -1;
        return true;
    }
    attesa_.passo = 0;
    if (qui && mappa_) {
        const int gruppi = static_cast<int>(documento_->Gruppi().size());
        const int passo = avanti ? 1 : -1;
        for (int g = fuoco_ < 0 && !avanti ? gruppi - 1 : fuoco_ + passo; g >= 0 && g < gruppi; g += passo)
            if (!mappa_->Ingombro(documento_->Gruppi()[static_cast<size_t>(g)].elementi.front()).isNull()) {
                Fuoco_Su(g);
                return true;
            }
    }
    Fuoco_Su(-1);
    return QAbstractScrollArea::focusNextPrevChild(avanti);
}

void Lavagna_Widget::focusInEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusInEvent(evento);
    if (evento->reason() == Qt::TabFocusReason || evento->reason() == Qt::BacktabFocusReason)
        focusNextPrevChild(evento->reason() == Qt::TabFocusReason);
}

void Lavagna_Widget::focusOutEvent(QFocusEvent* evento) {
    QAbstractScrollArea::focusOutEvent(evento);
    spazio_ = false;
    Fuoco_Su(-1);
    Regola_Cursore();
}

void Lavagna_Widget::keyPressEvent(QKeyEvent* evento) {
    const int tasto = evento->key();
    if ((tasto == Qt::Key_Return || tasto == Qt::Key_Enter) && fuoco_ >= 0) {
        Clicca(sotto_, false);
    } else if (tasto == Qt::Key_Escape && (fuoco_ >= 0 || azione_ != Azione::NESSUNA)) {
        Ferma_Azione();
        Fuoco_Su(-1);
    } else if (tasto == Qt::Key_Space && !Fissa()) {
        spazio_ = true;
        Regola_Cursore();
    } else {
        QAbstractScrollArea::keyPressEvent(evento);
    }
}

void Lavagna_Widget::keyReleaseEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Space && !evento->isAutoRepeat()) {
        spazio_ = false;
        Regola_Cursore();
    }
    QAbstractScrollArea::keyReleaseEvent(evento);
}

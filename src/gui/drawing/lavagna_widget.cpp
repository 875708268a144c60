#include "gui/drawing/lavagna_widget.h"

#include <QPaintEvent>
#include <QPainter>
#include <QRubberBand>
#include <QScrollBar>
#include <cmath>

namespace {

constexpr double PASSO_ZOOM = 1.25;
constexpr int MEZZO_LAMPO = 250;  ///< milliseconds: two blinks a second
constexpr int MARGINE_NITIDO =
    200;  ///< pixels drawn around what is seen, so that small scrolls find them ready
constexpr double BORDO_TINTA = 6;  ///< pixels that lines reach beyond a silhouette
constexpr Colore SCELTA_PREDEFINITA = 0xffc800;

const QString PICKBACKCOLOR = QStringLiteral("PICKBACKCOLOR"),
              PICKBORDERCOLOR = QStringLiteral("PICKBORDERCOLOR"), LAMPEGGIA = QStringLiteral("LAMPEGGIA");

}  // namespace

Lavagna_Widget::Lavagna_Widget(QWidget* padre) : QAbstractScrollArea(padre) {
    setObjectName(QStringLiteral("Lavagna"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    viewport()->grabGesture(Qt::PinchGesture);
    vista_.Imposta_Finestra(viewport()->size());
}

Lavagna_Widget::~Lavagna_Widget() = default;

// --- document ----------------------------------------------------------------------------------

void Lavagna_Widget::Svuota() {
    Ferma_Azione();
    Sotto_Mouse(-1);
    ++generazione_;
    percorso_.clear();
    sorgente_.reset();
    documento_.reset();
    panoramica_.Svuota();
    nitida_.Svuota();
    disegno_in_corso_ = false;
    mappa_futura_ = {};
    pittore_.reset();
    mappa_.reset();
    stati_.clear();
    attivi_.clear();
    fuoco_ = -1;
    opzioni_.remove(PICKBACKCOLOR);
    opzioni_.remove(PICKBORDERCOLOR);
    vista_.Imposta_Pagina({});
    Regola_Lampeggio();
    Vista_Cambiata();
}

void Lavagna_Widget::Carica_Layout(const QString& percorso, qint16) {
    Svuota();
    sorgente_ = Apri_Pagina(percorso);
    if (!sorgente_)
        return;
    percorso_ = percorso;
    documento_ = sorgente_->Documento();
    vista_.Imposta_Pagina(sorgente_->Pagina());
    if (documento_) {
        stati_.resize(documento_->Gruppi().size());
        if (const auto colore = documento_->Colore_Scelta())
            opzioni_[PICKBACKCOLOR] = *colore;
        if (const auto bordo = documento_->Bordo_Scelta())
            opzioni_[PICKBORDERCOLOR] = *bordo;
    }
    Vista_Cambiata();
    if (Evento.Tavola_Pronta)
        Evento.Tavola_Pronta();
}

void Lavagna_Widget::Chiudi() {
    Svuota();
    lampeggio_.stop();
}

void Lavagna_Widget::Ridisegna(bool attivo) {
    viewport()->setUpdatesEnabled(attivo);
}

void Lavagna_Widget::Visibile(bool visibile) {
    setVisible(visibile);
}

void Lavagna_Widget::Imposta_Opzione(const QString& nome, const QVariant& valore) {
    opzioni_[nome] = valore;
    Regola_Lampeggio();
    Regola_Cursore();
    if (nome == PICKBACKCOLOR || nome == PICKBORDERCOLOR)
        for (const int gruppo : attivi_)
            Sporca(gruppo);
}

QVariant Lavagna_Widget::Leggi_Opzione(const QString& nome) const {
    return opzioni_.value(nome);
}

void Lavagna_Widget::Esegui(const QString& comando, qint16) {
    const QPointF centro = QRectF(viewport()->rect()).center();
    if (comando == QLatin1String("SELEZIONA") || comando == QLatin1String("ZOOM_WINDOWS")) {
        Ferma_Azione();
        modo_ = comando == QLatin1String("SELEZIONA") ? Modo::SELEZIONA : Modo::ZOOM_WINDOWS;
        if (modo_ == Modo::ZOOM_WINDOWS) {
            Fuoco_Su(-1);
            Sotto_Mouse(-1);
        }
        Regola_Cursore();
        return;
    }
    if (comando == QLatin1String("ZOOM_PAGINA"))
        vista_.Adatta();
    else if (comando == QLatin1String("ZOOM_PIU"))
        vista_.Ingrandisci(PASSO_ZOOM, centro);
    else if (comando == QLatin1String("ZOOM_MENO"))
        vista_.Ingrandisci(1 / PASSO_ZOOM, centro);
    Vista_Cambiata();
}

// --- hotspots ----------------------------------------------------------------------------------

void Lavagna_Widget::Cambia(int gruppo, const std::function<void(Stato_Gruppo&)>& modifica) {
    if (gruppo < 0)
        return;
    Stato_Gruppo& stato = stati_[static_cast<size_t>(gruppo)];
    const Aspetto_HotSpot prima = Aspetto(stato);
    modifica(stato);
    if (stato.Attivo())
        attivi_.insert(gruppo);
    else
        attivi_.erase(gruppo);
    if (Aspetto(stato) != prima)
        Sporca(gruppo);
}

void Lavagna_Widget::Segna_HotSpot(const QString& nome) {
    Cambia(Gruppo(nome), [](Stato_Gruppo& stato) {
        stato.colore.reset();
        stato.segnato = true;
    });
}

void Lavagna_Widget::Togli_Segno_HotSpot(const QString& nome) {
    Cambia(Gruppo(nome), [](Stato_Gruppo& stato) { stato.segnato = false; });
}

qint16 Lavagna_Widget::Stato_HotSpot(const QString& nome) const {
    const int gruppo = Gruppo(nome);
    return gruppo >= 0 && stati_[static_cast<size_t>(gruppo)].segnato ? 0 : 1;
}

void Lavagna_Widget::Colora_HotSpot(const QString& nome, Colore colore) {
    Cambia(Gruppo(nome), [colore](Stato_Gruppo& stato) { stato.colore = colore; });
}

void Lavagna_Widget::Evidenzia_HotSpot(const QString& nome, Colore colore) {
    Cambia(Gruppo(nome), [this, colore](Stato_Gruppo& stato) {
        stato.evidenza = colore;
        fase_ = true;
    });
    Regola_Lampeggio();
}

void Lavagna_Widget::Decolora_HotSpot(const QString& nome) {
    Cambia(Gruppo(nome), [](Stato_Gruppo& stato) { stato.colore.reset(); });
}

void Lavagna_Widget::Azzera_Evidenziazione(const QString& nome) {
    const auto azzera = [](Stato_Gruppo& stato) { stato.evidenza.reset(); };
    if (nome.isEmpty())
        for (const int gruppo : std::set<int>(attivi_))
            Cambia(gruppo, azzera);
    else
        Cambia(Gruppo(nome), azzera);
    Regola_Lampeggio();
}

void Lavagna_Widget::Regola_Lampeggio() {
    bool evidenze = false;
    for (const int gruppo : attivi_)
        evidenze = evidenze || stati_[static_cast<size_t>(gruppo)].evidenza;
    if (evidenze && Leggi_Opzione(LAMPEGGIA).toString() == QLatin1String("SI")) {
        if (!lampeggio_.isActive())
            lampeggio_.start(MEZZO_LAMPO, this);
        return;
    }
    lampeggio_.stop();
    if (!fase_) {
        fase_ = true;
        for (const int gruppo : attivi_)
            if (stati_[static_cast<size_t>(gruppo)].evidenza)
                Sporca(gruppo);
    }
}

void Lavagna_Widget::timerEvent(QTimerEvent* evento) {
    if (evento->timerId() != lampeggio_.timerId()) {
        QAbstractScrollArea::timerEvent(evento);
        return;
    }
    fase_ = !fase_;
    for (const int gruppo : attivi_)
        if (stati_[static_cast<size_t>(gruppo)].evidenza)
            Sporca(gruppo);
}

/// A marked hotspot is a selection: it has the selection's border, and its filling until it is coloured.
Aspetto_HotSpot Lavagna_Widget::Aspetto(const Stato_Gruppo& stato) const {
    Aspetto_HotSpot aspetto;
    const QVariant scelta = Leggi_Opzione(PICKBACKCOLOR), bordo = Leggi_Opzione(PICKBORDERCOLOR);
    const Colore colore_scelta = scelta.isValid() ? scelta.value<Colore>() : SCELTA_PREDEFINITA;
    if (stato.evidenza && fase_)
        aspetto.riempimento = stato.evidenza;
    else if (stato.colore)
        aspetto.riempimento = stato.colore;
    else if (stato.segnato)
        aspetto.riempimento = colore_scelta;
    if (stato.segnato)
        aspetto.bordo = bordo.isValid() ? bordo.value<Colore>() : stato.colore.value_or(colore_scelta);
    return aspetto;
}

void Lavagna_Widget::Sporca(int gruppo) {
    Ridipingi_Gruppo(gruppo);
    if (mappa_)
        for (const int elemento : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi)
            for (Foglio* foglio : {&panoramica_, &nitida_})
                foglio->Sporca(mappa_->Ingombro(elemento));
}

void Lavagna_Widget::Ridipingi_Gruppo(int gruppo) {
    if (!mappa_ || gruppo < 0)
        return;
    for (const int elemento : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi)
        if (const QRectF r = mappa_->Ingombro(elemento); !r.isNull())
            viewport()->update(vista_.In_Finestra(r)
                                   .adjusted(-BORDO_TINTA, -BORDO_TINTA, BORDO_TINTA, BORDO_TINTA)
                                   .toAlignedRect());
}

// --- pictures ----------------------------------------------------------------------------------

void Lavagna_Widget::Vista_Cambiata() {
    const QSize corsa = vista_.Corsa();
    const QPoint origine = vista_.Origine();
    const QSize finestra = vista_.Finestra();
    const auto regola = [](QScrollBar* barra, int massimo, int passo, int valore) {
        const QSignalBlocker muto(barra);
        barra->setRange(0, massimo);
        barra->setPageStep(passo);
        barra->setSingleStep(std::max(1, passo / 20));
        barra->setValue(valore);
    };
    regola(horizontalScrollBar(), corsa.width(), finestra.width(), origine.x());
    regola(verticalScrollBar(), corsa.height(), finestra.height(), origine.y());
    viewport()->update();
}

void Lavagna_Widget::scrollContentsBy(int, int) {
    vista_.Scorri_A(
        QPointF(vista_.Corsa().width() > 0 ? horizontalScrollBar()->value() : vista_.Origine().x(),
                vista_.Corsa().height() > 0 ? verticalScrollBar()->value() : vista_.Origine().y()));
    viewport()->update();
}

void Lavagna_Widget::resizeEvent(QResizeEvent*) {
    vista_.Imposta_Finestra(viewport()->size());
    Vista_Cambiata();
}

void Lavagna_Widget::Chiedi_Immagine() {
    if (!sorgente_ || disegno_in_corso_)
        return;
    const double scala = vista_.Scala() * Densita();
    const QRect pagina(QPoint(0, 0), QSize(static_cast<int>(std::ceil(vista_.Pagina().width() * scala)),
                                           static_cast<int>(std::ceil(vista_.Pagina().height() * scala))));
    const auto visibile = [&](int margine) {
        const QRectF r(vista_.Origine() - QPoint(margine, margine),
                       vista_.Finestra() + QSize(2 * margine, 2 * margine));
        return QRectF(r.topLeft() * Densita(), r.size() * Densita()).toAlignedRect() & pagina;
    };
    if (!nitida_.Vuoto() && richiesta_scala_ == scala && richiesta_area_.contains(visibile(0)))
        return;
    richiesta_scala_ = scala;
    richiesta_area_ = visibile(MARGINE_NITIDO);
    disegno_in_corso_ = true;
    lavori_.Esegui([this, sorgente = sorgente_, generazione = generazione_, scala, area = richiesta_area_] {
        return [this, generazione, immagine = sorgente->Disegna(scala, area)] {
            if (generazione != generazione_)
                return;
            disegno_in_corso_ = false;
            Ricevi_Immagine(immagine);
        };
    });
}

void Lavagna_Widget::Ricevi_Immagine(const Immagine_Pagina& immagine) {
    if (immagine.immagine.isNull()) {
        Svuota();  // the renderer refuses the document
        return;
    }
    nitida_.Imposta(immagine);
    if (panoramica_.Vuoto()) {
        panoramica_.Imposta(immagine);
        if (pittore_)
            pittore_->Imposta_Fondo(immagine);
    }
    Sporca_Attivi(nitida_);
    viewport()->update();
    Chiedi_Mappa();
}

void Lavagna_Widget::Chiedi_Mappa() {
    if (mappa_ || mappa_futura_.valid() || !documento_ || documento_->Elementi().empty())
        return;
    auto lavoro =
        std::make_shared<std::packaged_task<std::shared_ptr<Mappa_HotSpot>()>>([documento = documento_] {
            auto mappa = std::make_shared<Mappa_HotSpot>(documento);
            mappa->Prepara();
            return mappa;
        });
    mappa_futura_ = lavoro->get_future().share();
    lavori_.Esegui([this, lavoro, generazione = generazione_] {
        (*lavoro)();
        return [this, generazione] {
            if (generazione == generazione_)
                Prendi_Mappa();
        };
    });
}

void Lavagna_Widget::Prendi_Mappa() {
    if (mappa_)
        return;
    mappa_ = mappa_futura_.get();
    pittore_ = std::make_unique<Pittore_HotSpot>(*mappa_);
    if (!panoramica_.Vuoto())
        pittore_->Imposta_Fondo(panoramica_.Pagina());
    Sporca_Attivi(panoramica_);
    Sporca_Attivi(nitida_);
    viewport()->update();
    if (const auto punto = std::exchange(attesa_, {}))
        Passa_Su(*punto, Qt::NoButton, Qt::NoModifier);
}

/// The hotspots' places, waited for if need be; null for a page without hotspots.
Mappa_HotSpot* Lavagna_Widget::Mappa() {
    Chiedi_Mappa();
    if (mappa_futura_.valid())
        Prendi_Mappa();
    return mappa_.get();
}

void Lavagna_Widget::Sporca_Attivi(Foglio& foglio) {
    if (mappa_)
        for (const int gruppo : attivi_)
            for (const int elemento : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi)
                foglio.Sporca(mappa_->Ingombro(elemento));
}

void Lavagna_Widget::Tingi(Foglio& foglio) {
    if (foglio.Vuoto() || !mappa_)
        return;
    const double scala = foglio.Pagina().scala, pixel = Densita(), bordo = BORDO_TINTA * pixel;
    foglio.Ricomponi(bordo, [&](QPainter& pittore, const QRegion& parti) {
        for (const int gruppo : attivi_) {
            const Aspetto_HotSpot aspetto = Aspetto(stati_[static_cast<size_t>(gruppo)]);
            if (aspetto.Spoglio())
                continue;
            for (const int elemento : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi) {
                const QRectF& r = mappa_->Ingombro(elemento);
                if (parti.intersects(QRectF(r.topLeft() * scala, r.size() * scala)
                                         .adjusted(-bordo, -bordo, bordo, bordo)
                                         .toAlignedRect()))
                    pittore_->Tinge(pittore, elemento, aspetto, scala, pixel);
            }
        }
    });
}

void Lavagna_Widget::Dipingi_Foglio(QPainter& pittore, const Foglio& foglio, const QRectF& pagina,
                                    bool nitido) {
    const Immagine_Pagina& p = foglio.Pagina();
    if (nitido) {
        pittore.drawImage(pagina.topLeft().toPoint() + p.area.topLeft(), foglio.Tinta());
        return;
    }
    const double rapporto = pagina.width() / (vista_.Pagina().width() * p.scala);
    pittore.drawImage(
        QRectF(pagina.topLeft() + QPointF(p.area.topLeft()) * rapporto, QSizeF(p.area.size()) * rapporto),
        foglio.Tinta());
}

void Lavagna_Widget::paintEvent(QPaintEvent*) {
    Chiedi_Immagine();
    Tingi(nitida_);
    QPainter pittore(viewport());
    const QColor sfondo = palette().color(QPalette::Window).darker(112);
    if (vista_.Vuota()) {
        pittore.fillRect(viewport()->rect(), sfondo);
        return;
    }
    // In device pixels, so that a picture drawn for them is copied as it is.
    const double d = Densita();
    pittore.scale(1 / d, 1 / d);
    const QRect finestra(QPoint(0, 0), (QSizeF(viewport()->size()) * d).toSize());
    const QRectF pagina((-QPointF(vista_.Origine()) * d).toPoint(), vista_.Pagina() * vista_.Scala() * d);
    const QRect carta = pagina.toAlignedRect();
    for (const QRect& fuori : QRegion(finestra) - carta)
        pittore.fillRect(fuori, sfondo);

    const double scala = vista_.Scala() * d;
    const bool nitido = !nitida_.Vuoto() && nitida_.Pagina().scala == scala;
    const QRect coperta = nitido ? nitida_.Pagina().area.translated(pagina.topLeft().toPoint()) : QRect();
    if (const QRegion scoperta = QRegion(carta & finestra) - coperta; !scoperta.isEmpty()) {
        pittore.save();
        pittore.setClipRegion(scoperta);
        pittore.fillRect(carta, Qt::white);
        pittore.setRenderHint(QPainter::SmoothPixmapTransform);
        Tingi(panoramica_);
        if (!panoramica_.Vuoto())
            Dipingi_Foglio(pittore, panoramica_, pagina, false);
        if (!nitido && !nitida_.Vuoto())
            Dipingi_Foglio(pittore, nitida_, pagina, false);
        pittore.restore();
    }
    if (nitido)
        Dipingi_Foglio(pittore, nitida_, pagina, true);

    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.translate(pagina.topLeft());
    if (pittore_ && fuoco_ >= 0)
        for (const int elemento : documento_->Gruppi()[static_cast<size_t>(fuoco_)].elementi)
            pittore_->Contorna(pittore, elemento, palette().color(QPalette::Highlight), scala, 1.5 * d);
    else if (pittore_ && sotto_ >= 0)
        for (const int elemento :
             documento_
                 ->Gruppi()[static_cast<size_t>(documento_->Elementi()[static_cast<size_t>(sotto_)].gruppo)]
                 .elementi)
            pittore_->Contorna(pittore, elemento, QColor::fromRgb(VERDE).darker(130), scala, d);
}

bool Lavagna_Widget::Nitida() {
    Chiedi_Immagine();
    return !disegno_in_corso_;
}

bool Lavagna_Widget::Aggiornata() {
    Chiedi_Mappa();
    return Nitida() && (mappa_ || !mappa_futura_.valid());
}

#include "gui/drawing/lavagna_widget.h"

#include <QPainter>
#include <QScrollBar>
#include <cmath>

namespace {

constexpr double PASSO_ZOOM = 1.25;
constexpr int MEZZO_LAMPO = 250;  ///< milliseconds: two blinks a second
constexpr int MARGINE_NITIDO =
    200;  ///< pixels drawn around what is seen, so that small scrolls find them ready

const QString PICKBACKCOLOR = QStringLiteral("PICKBACKCOLOR"),
              PICKBORDERCOLOR = QStringLiteral("PICKBORDERCOLOR"), LAMPEGGIA = QStringLiteral("LAMPEGGIA");

}  // namespace

Lavagna_Widget::Lavagna_Widget(QWidget* padre)
    : QAbstractScrollArea(padre),
      immagine_chiesta_(fili_, [this](const Immagine_Pagina& immagine) { Ricevi_Immagine(immagine); }),
      mappa_chiesta_(fili_, [this](const std::shared_ptr<Mappa_HotSpot>& mappa) { Ricevi_Mappa(mappa); }) {
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
    immagine_chiesta_.Lascia();
    mappa_chiesta_.Lascia();
    dipinto_.Svuota();
    mappa_.reset();
    stati_.Imposta_Pagina(0);
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
        stati_.Imposta_Pagina(documento_->Gruppi().size());
        if (const auto colore = documento_->Colore_Scelta())
            Imposta_Opzione(PICKBACKCOLOR, *colore);
        if (const auto bordo = documento_->Bordo_Scelta())
            Imposta_Opzione(PICKBORDERCOLOR, *bordo);
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
    if (nome != PICKBACKCOLOR && nome != PICKBORDERCOLOR)
        return;
    (nome == PICKBACKCOLOR ? stati_.colore_scelta : stati_.bordo_scelta) =
        valore.isValid() ? std::optional(valore.value<Colore>()) : std::nullopt;
    for (const int gruppo : stati_.Attivi())
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

void Lavagna_Widget::Cambia(const QString& nome, const std::function<void(Stato_Gruppo&)>& modifica) {
    if (const int gruppo = Gruppo(nome); gruppo >= 0 && stati_.Cambia(gruppo, modifica))
        Sporca(gruppo);
}

void Lavagna_Widget::Segna_HotSpot(const QString& nome) {
    Cambia(nome, [](Stato_Gruppo& stato) {
        stato.colore.reset();
        stato.segnato = true;
    });
}

void Lavagna_Widget::Togli_Segno_HotSpot(const QString& nome) {
    Cambia(nome, [](Stato_Gruppo& stato) { stato.segnato = false; });
}

qint16 Lavagna_Widget::Stato_HotSpot(const QString& nome) const {
    const int gruppo = Gruppo(nome);
    return gruppo >= 0 && stati_[gruppo].segnato ? 0 : 1;
}

void Lavagna_Widget::Colora_HotSpot(const QString& nome, Colore colore) {
    Cambia(nome, [colore](Stato_Gruppo& stato) { stato.colore = colore; });
}

void Lavagna_Widget::Evidenzia_HotSpot(const QString& nome, Colore colore) {
    Cambia(nome, [this, colore](Stato_Gruppo& stato) {
        stato.evidenza = colore;
        stati_.fase = true;
    });
    Regola_Lampeggio();
}

void Lavagna_Widget::Decolora_HotSpot(const QString& nome) {
    Cambia(nome, [](Stato_Gruppo& stato) { stato.colore.reset(); });
}

void Lavagna_Widget::Azzera_Evidenziazione(const QString& nome) {
    const auto azzera = [](Stato_Gruppo& stato) {
        stato.evidenza.reset();
        if (!stato.segnato)
            stato.colore.reset();
    };
    if (!nome.isEmpty())
        Cambia(nome, azzera);
    else
        for (const int gruppo : std::set<int>(stati_.Attivi()))
            if (stati_.Cambia(gruppo, azzera))
                Sporca(gruppo);
    Regola_Lampeggio();
}

void Lavagna_Widget::Regola_Lampeggio() {
    if (!stati_.Evidenziati().empty() && Leggi_Opzione(LAMPEGGIA).toString() == QLatin1String("SI")) {
        if (!lampeggio_.isActive())
            lampeggio_.start(MEZZO_LAMPO, this);
        return;
    }
    lampeggio_.stop();
    if (!stati_.fase)
        Cambia_Fase();
}

void Lavagna_Widget::Cambia_Fase() {
    stati_.fase = !stati_.fase;
    for (const int gruppo : stati_.Evidenziati())
        Sporca(gruppo);
}

void Lavagna_Widget::timerEvent(QTimerEvent* evento) {
    if (evento->timerId() == lampeggio_.timerId())
        Cambia_Fase();
    else
        QAbstractScrollArea::timerEvent(evento);
}

void Lavagna_Widget::Sporca(int gruppo) {
    Ridipingi_Gruppo(gruppo);
    dipinto_.Sporca(gruppo);
}

void Lavagna_Widget::Ridipingi_Gruppo(int gruppo) {
    constexpr double BORDO = Dipinto_Pagina::BORDO_TINTA;
    if (!mappa_ || gruppo < 0)
        return;
    for (const int elemento : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi)
        if (const QRectF r = mappa_->Ingombro(elemento); !r.isNull())
            viewport()->update(vista_.In_Finestra(r).adjusted(-BORDO, -BORDO, BORDO, BORDO).toAlignedRect());
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
    if (!sorgente_ || immagine_chiesta_.In_Corso())
        return;
    const double scala = vista_.Scala() * Densita();
    const QRect pagina(QPoint(0, 0), QSize(static_cast<int>(std::ceil(vista_.Pagina().width() * scala)),
                                           static_cast<int>(std::ceil(vista_.Pagina().height() * scala))));
    const auto visibile = [&](int margine) {
        const QRectF r(vista_.Origine() - QPoint(margine, margine),
                       vista_.Finestra() + QSize(2 * margine, 2 * margine));
        return QRectF(r.topLeft() * Densita(), r.size() * Densita()).toAlignedRect() & pagina;
    };
    if (dipinto_.Nitido() && richiesta_scala_ == scala && richiesta_area_.contains(visibile(0)))
        return;
    richiesta_scala_ = scala;
    richiesta_area_ = visibile(MARGINE_NITIDO);
    immagine_chiesta_.Chiedi(
        [sorgente = sorgente_, scala, area = richiesta_area_] { return sorgente->Disegna(scala, area); });
}

void Lavagna_Widget::Ricevi_Immagine(const Immagine_Pagina& immagine) {
    if (immagine.immagine.isNull()) {
        Svuota();  // the renderer refuses the document
        return;
    }
    dipinto_.Imposta_Immagine(immagine, stati_);
    viewport()->update();
    Chiedi_Mappa();
}

bool Lavagna_Widget::Chiedi_Mappa() {
    if (mappa_ || !documento_ || documento_->Elementi().empty())
        return false;
    if (!mappa_chiesta_.In_Corso())
        mappa_chiesta_.Chiedi([documento = documento_] {
            auto mappa = std::make_shared<Mappa_HotSpot>(documento);
            mappa->Prepara();
            return mappa;
        });
    return true;
}

void Lavagna_Widget::Ricevi_Mappa(const std::shared_ptr<Mappa_HotSpot>& mappa) {
    mappa_ = mappa;
    dipinto_.Imposta_Mappa(mappa_, stati_);
    viewport()->update();
    Riprendi_Attese();
}

void Lavagna_Widget::paintEvent(QPaintEvent*) {
    Chiedi_Immagine();
    const int gruppo = fuoco_ >= 0 ? fuoco_ : Gruppo_Di(sotto_);
    QPainter pittore(viewport());
    dipinto_.Dipingi(
        pittore, vista_, Densita(), palette(), stati_,
        gruppo < 0 ? std::vector<int>() : documento_->Gruppi()[static_cast<size_t>(gruppo)].elementi,
        fuoco_ >= 0);
}

bool Lavagna_Widget::Nitida() {
    Chiedi_Immagine();
    return !immagine_chiesta_.In_Corso();
}

bool Lavagna_Widget::Aggiornata() {
    return Nitida() && !Chiedi_Mappa();
}

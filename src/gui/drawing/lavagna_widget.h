#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QHash>
#include <QMap>

#include "canvas/mappa_hotspot.h"
#include "core/drawing/lavagna.h"
#include "gui/drawing/dipinto_pagina.h"
#include "gui/drawing/lavori.h"
#include "gui/drawing/stati_hotspot.h"
#include "gui/drawing/vista_pagina.h"

class QRubberBand;

/// What stands on the canvas, for tests and drivers.
struct Stato_Lavagna {
    struct HotSpot {
        QString nome, stringa;
        QRect area;  ///< the element's ink, in pixels of the viewport; may lie outside what is seen
        bool segnato = false;
        std::optional<Colore> colore;    ///< lasting
        std::optional<Colore> evidenza;  ///< momentary
    };
    QString documento;  ///< path of the file shown; "" for none, and for a file that can't be shown
    QSizeF pagina;      ///< in page units
    double zoom = 1;    ///< 1 when the page is fitted
    QString modo;       ///< SELEZIONA or ZOOM_WINDOWS
    QMap<QString, QVariant> opzioni;
    QStringList lasciato_fuori;    ///< what isn't shown of the drawing, since it would cost too much
    std::vector<HotSpot> hotspot;  ///< one for each element, in document order
};

/// The drawing canvas on the screen.
///
/// The page is shown at once as a scaled picture and sharp as soon as a worker thread has drawn it. Where
/// hotspots lie is worked out on a worker too: what mouse and keyboard do before is made up for when it is
/// known, and only the introspection waits for it.
///
/// A click is told when the button comes up on the hotspot it went down on. If the answer is "handled", a
/// second click that makes it a double click has nothing left to do and isn't told; else it is told as a
/// double click.
///
/// Mouse: the wheel zooms about the pointer, the middle button or space and drag move the page unless
/// `LAVAGNA_FISSA`. Keyboard: Tab and Shift+Tab walk the hotspots, Enter clicks, Esc leaves them.
class Lavagna_Widget : public QAbstractScrollArea, public Lavagna {
    Q_OBJECT

  public:
    explicit Lavagna_Widget(QWidget* padre = nullptr);
    ~Lavagna_Widget() override;

    void Svuota() override;
    void Carica_Layout(const QString& percorso, qint16 indicatore) override;
    void Chiudi() override;
    void Ridisegna(bool attivo) override;
    void Visibile(bool visibile) override;
    /// `PICKBACKCOLOR` and `PICKBORDERCOLOR` belong to the document: a load replaces them.
    void Imposta_Opzione(const QString& nome, const QVariant& valore) override;
    QVariant Leggi_Opzione(const QString& nome) const override;
    void Esegui(const QString& comando, qint16 conteggio) override;
    void Segna_HotSpot(const QString& nome) override;
    void Togli_Segno_HotSpot(const QString& nome) override;
    qint16 Stato_HotSpot(const QString& nome) const override;
    void Colora_HotSpot(const QString& nome, Colore colore) override;
    void Evidenzia_HotSpot(const QString& nome, Colore colore) override;
    void Decolora_HotSpot(const QString& nome) override;
    void Azzera_Evidenziazione(const QString& nome) override;
    void Ferma_Azione() override;

    Stato_Lavagna Introspezione();
    /// The sharp picture of what is seen is there. Starts its drawing if need be.
    bool Nitida();
    /// It is, and the hotspots are known.
    bool Aggiornata();
    /// Scrolls the hotspot of this name or string into view.
    void Mostra_HotSpot(const QString& nome);
    /// A pixel of the viewport where a click reaches the hotspot of this name or string: as far inside its
    /// silhouette as possible, where nothing covers it. None when it can't be reached in what is seen.
    std::optional<QPoint> Punto_HotSpot(const QString& nome);

    QSize sizeHint() const override { return {640, 480}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    bool focusNextPrevChild(bool avanti) override;
    void timerEvent(QTimerEvent* evento) override;

  private:
    enum class Modo { SELEZIONA, ZOOM_WINDOWS };
    /// What a second click finds: no first one, a settled one, one left open.
    enum class Dopo_Click { NIENTE, GESTITO, APERTO };
    enum class Azione { NESSUNA, SCELTA, FINESTRA, SPOSTAMENTO };

    // document and pictures: lavagna_widget.cpp
    void Chiedi_Immagine();
    void Ricevi_Immagine(const Immagine_Pagina& immagine);
    /// Has the hotspots' places worked out; true while they aren't known.
    bool Chiedi_Mappa();
    void Ricevi_Mappa(const std::shared_ptr<Mappa_HotSpot>& mappa);
    void Cambia(const QString& nome, const std::function<void(Stato_Gruppo&)>& modifica);
    void Cambia_Fase();
    void Sporca(int gruppo);
    void Ridipingi_Gruppo(int gruppo);
    void Vista_Cambiata();
    void Regola_Lampeggio();
    double Densita() const { return viewport()->devicePixelRatioF(); }
    int Gruppo(const QString& nome) const { return documento_ ? documento_->Gruppo(nome) : -1; }

    // introspection: lavagna_introspezione.cpp
    Mappa_HotSpot* Mappa_Attesa();
    std::vector<int> Elementi_Di(const QString& nome) const;

    // mouse and keyboard: lavagna_input.cpp
    int Elemento_In(QPointF pagina);
    int Gruppo_Di(int elemento) const;
    void Scegli(QPointF premuto, QPointF lasciato);
    void Riprendi_Attese();
    void Passa_Su(QPointF finestra, Qt::MouseButtons bottoni, Qt::KeyboardModifiers tasti);
    void Sotto_Mouse(int elemento);
    void Comincia_Finestra(QPoint da);
    void Finisci_Finestra();
    bool Clicca(int elemento, bool doppio);
    void Fuoco_Su(int gruppo);
    void Regola_Cursore();
    bool Fissa() const { return Leggi_Opzione(QStringLiteral("LAVAGNA_FISSA")).toBool(); }

    // the page
    QString percorso_;
    std::shared_ptr<Sorgente_Pagina> sorgente_;
    std::shared_ptr<const Documento_Tavola> documento_;
    Vista_Pagina vista_;
    quint64 generazione_ = 0;  ///< counts the pages, so that nothing meant for one reaches the next

    Dipinto_Pagina dipinto_;
    double richiesta_scala_ = 0;  ///< what was last asked for; a worker may have drawn it smaller
    QRect richiesta_area_;
    std::shared_ptr<Mappa_HotSpot> mappa_;  ///< null until it is known
    Stati_HotSpot stati_;
    QBasicTimer lampeggio_;

    // mouse and keyboard
    Modo modo_ = Modo::SELEZIONA;
    Azione azione_ = Azione::NESSUNA;
    QPointF inizio_, origine_inizio_;
    QPointF premuto_;    ///< where the button went down to choose, in page units
    int sotto_ = -1;     ///< element under the mouse, or with the keyboard focus
    int fuoco_ = -1;     ///< group with the keyboard focus
    int cliccato_ = -1;  ///< group of the last click
    Dopo_Click dopo_click_ = Dopo_Click::NIENTE;
    bool spazio_ = false;
    QRubberBand* elastico_ = nullptr;

    /// What waits for the hotspots: where the mouse is, where a click went down and up (page units), a step
    /// of the keyboard's focus (1 forwards, -1 backwards).
    struct {
        std::optional<QPointF> mouse;
        std::optional<std::pair<QPointF, QPointF>> click;
        int passo = 0;
    } attesa_;

    QHash<QString, QVariant> opzioni_;
    Fili fili_;
    Ultima_Richiesta<Immagine_Pagina> immagine_chiesta_;
    Ultima_Richiesta<std::shared_ptr<Mappa_HotSpot>> mappa_chiesta_;
};

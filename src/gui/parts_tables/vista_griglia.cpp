#include "gui/parts_tables/vista_griglia.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <optional>
#include <utility>

#include "core/base/twips.h"
#include "gui/platform/delegato_testo.h"

namespace {

/// Places a picture in a cell.
void Disegna_Immagine(QPainter& pittore, const QRect& riquadro, const QPixmap& immagine,
                      Allineamento allineamento) {
    if (immagine.isNull())
        return;
    QSize misura = immagine.deviceIndependentSize().toSize();
    if (misura.width() > riquadro.width() || misura.height() > riquadro.height())
        misura.scale(riquadro.size(), Qt::KeepAspectRatio);
    const QRect posto =
        QStyle::alignedRect(QApplication::layoutDirection(), Allineamento_Qt(allineamento), misura, riquadro);
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    pittore.drawPixmap(posto, immagine);
}

constexpr double CARATTERE_MINIMO = 0.5;  ///< part of the grid's own size below which a text isn't drawn

/// A font small enough for a short text, such as a reference, of which a narrow cell would show no letter;
/// none for any other text and for one that couldn't be read.
std::optional<QFont> Carattere_Stretto(const QStyleOptionViewItem& cella, const QStyle& stile) {
    const int margini = 2 * (stile.pixelMetric(QStyle::PM_FocusFrameHMargin, &cella) + 1);
    const QString resto =
        cella.fontMetrics.elidedText(cella.text, Qt::ElideRight, cella.rect.width() - margini);
    if (resto.size() > 1 || resto == cella.text)
        return std::nullopt;
    const double scala = (cella.rect.width() - 1) / QFontMetricsF(cella.font).horizontalAdvance(cella.text);
    if (scala < CARATTERE_MINIMO)
        return std::nullopt;
    QFont carattere = cella.font;
    carattere.setPointSizeF(QFontInfo(carattere).pointSizeF() * std::min(scala, 1.0));
    return carattere;
}

class Delegato_Griglia : public Delegato_Testo {
  public:
    Delegato_Griglia(const Modello_Griglia& modello, QObject* padre)
        : Delegato_Testo(padre), modello_(modello) {}
    void paint(QPainter* pittore, const QStyleOptionViewItem& opzione,
               const QModelIndex& indice) const override {
        QStyleOptionViewItem stretta(opzione);
        initStyleOption(&stretta, indice);
        const QStyle& stile = stretta.widget ? *stretta.widget->style() : *QApplication::style();
        if (const auto carattere = Carattere_Stretto(stretta, stile))
            Disegna_Stretta(*pittore, stretta, stile, *carattere);
        else
            Delegato_Testo::paint(pittore, opzione, indice);
        const Cella* cella = modello_.Cella_Di(indice);
        if (cella && !cella->Picture.isEmpty())
            Disegna_Immagine(*pittore, opzione.rect.adjusted(2, 1, -2, -1), modello_.Immagine(*cella),
                             cella->PictureAlignment);
    }

  private:
    static void Disegna_Stretta(QPainter& pittore, QStyleOptionViewItem& cella, const QStyle& stile,
                                const QFont& carattere) {
        const QString testo = std::exchange(cella.text, QString());
        stile.drawControl(QStyle::CE_ItemViewItem, &cella, &pittore, cella.widget);
        pittore.save();
        pittore.setFont(carattere);
        const bool scelta = cella.state.testFlag(QStyle::State_Selected);
        const bool attiva = cella.state.testFlag(QStyle::State_Active);
        pittore.setPen(cella.palette.color(attiva ? QPalette::Active : QPalette::Inactive,
                                           scelta ? QPalette::HighlightedText : QPalette::Text));
        pittore.drawText(cella.rect, Qt::AlignCenter | Qt::TextSingleLine, testo);
        pittore.restore();
    }

    const Modello_Griglia& modello_;
};

/// The header row; a header picture stands centred in place of the text.
class Intestazione_Griglia : public QHeaderView {
  public:
    Intestazione_Griglia(const Griglia& griglia, const Modello_Griglia& modello, QWidget* padre)
        : QHeaderView(Qt::Horizontal, padre), griglia_(griglia), modello_(modello) {
        setMinimumSectionSize(1);
        setHighlightSections(false);
        setSectionsClickable(true);
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }

  protected:
    bool viewportEvent(QEvent* evento) override {
        if (evento->type() != QEvent::ToolTip)
            return QHeaderView::viewportEvent(evento);
        const auto* aiuto = static_cast<QHelpEvent*>(evento);
        const int sezione = logicalIndexAt(aiuto->pos());
        // A title that is cut is shown whole.
        const bool tagliato = sezione >= 0 && sectionSizeFromContents(sezione).width() > sectionSize(sezione);
        QToolTip::showText(aiuto->globalPos(),
                           tagliato ? griglia_.TextMatrix(0, sezione).toHtmlEscaped() : QString(), this);
        return true;
    }
    /// Not every style cuts a title that is too long: it would run out of its cell at both ends.
    void initStyleOptionForIndex(QStyleOptionHeader* opzione, int sezione) const override {
        QHeaderView::initStyleOptionForIndex(opzione, sezione);
        const int margini = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, opzione, this);
        opzione->text =
            opzione->fontMetrics.elidedText(opzione->text, Qt::ElideRight, sectionSize(sezione) - margini);
    }
    void paintSection(QPainter* pittore, const QRect& riquadro, int sezione) const override {
        pittore->save();
        QHeaderView::paintSection(pittore, riquadro, sezione);
        pittore->restore();
        if (sezione >= griglia_.Cols())
            return;
        const Cella& cella = griglia_.At(0, sezione);
        if (!cella.Picture.isEmpty())
            Disegna_Immagine(*pittore, riquadro, modello_.Immagine(cella), cella.PictureAlignment);
    }

  private:
    const Griglia& griglia_;
    const Modello_Griglia& modello_;
};

}  // namespace

Vista_Griglia::Vista_Griglia(Griglia& griglia, const Tag_Griglia& tag, Immagini_Risorsa& immagini,
                             QWidget* padre, Regola_Puntatore puntatore)
    : QTableView(padre),
      griglia_(griglia),
      tag_(tag),
      modello_(griglia, immagini),
      puntatore_(puntatore ? std::move(puntatore) : [this](int riga, int colonna) {
          return Puntatore_Griglia(griglia_, tag_, riga, colonna);
      }) {
    setHorizontalHeader(new Intestazione_Griglia(griglia_, modello_, this));
    setModel(&modello_);
    setItemDelegate(new Delegato_Griglia(modello_, this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setSelectionBehavior(SelectItems);
    setTabKeyNavigation(false);  // Tab goes on to the next control, the arrows move in the grid
    setAlternatingRowColors(true);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    viewport()->setMouseTracking(true);
    Misura();
    griglia_.Cambiata = [this] { Ricarica(); };
    griglia_.Evidenziata = [this](const std::vector<int>& righe) { Mostra_Evidenza(righe); };
}

Vista_Griglia::~Vista_Griglia() {
    griglia_.Cambiata = nullptr;
    griglia_.Evidenziata = nullptr;
}

void Vista_Griglia::Misura() {
    const int altezza = std::max(fontMetrics().height() + 8, 22);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(altezza);
    horizontalHeader()->setFixedHeight(altezza);
    griglia_.Larghezza_Spazio = QFontMetricsF(font()).horizontalAdvance(u' ') * TWIPS_PER_PIXEL;
    modello_.Densita(devicePixelRatioF());
}

void Vista_Griglia::Ricarica() {
    {
        const QScopedValueRollback guardia(in_ricarica_, true);
        // A new width changes the columns alone: the user's selection stays.
        if (!(in_ridimensionamento_ || mantieni_posto_) || !modello_.Aggiorna())
            Rifai_Modello();
        Applica_Larghezze();
    }
    emit Ricaricata();
}

void Vista_Griglia::Rifai_Modello() {
    const int riga = currentIndex().row(), colonna = currentIndex().column();
    const int cima = TopRow(), sinistra = horizontalScrollBar()->value();
    modello_.Ricarica();
    if (!mantieni_posto_) {
        // Another product's list begins at its beginning.
        verticalScrollBar()->setValue(0);
        horizontalScrollBar()->setValue(0);
        return;
    }
    if (riga >= 0 && modello_.rowCount() > 0)
        selectionModel()->setCurrentIndex(modello_.index(std::min(riga, modello_.rowCount() - 1), colonna),
                                          QItemSelectionModel::ClearAndSelect);
    TopRow(cima);
    horizontalScrollBar()->setValue(sinistra);
}

void Vista_Griglia::Applica_Larghezze() {
    for (int c = 0; c < modello_.columnCount() && c < griglia_.Cols(); ++c)
        setColumnWidth(c, Pixel_Da_Twips(griglia_.ColWidth(c)));
}

int Vista_Griglia::TopRow() const {
    return verticalScrollBar()->value() + 1;
}

void Vista_Griglia::TopRow(int riga) {
    executeDelayedItemsLayout();  // before that the scroll bars don't know new rows
    verticalScrollBar()->setValue(riga - 1);
}

/// Bold cells and what core wants in view; texts, selection and columns stay.
void Vista_Griglia::Mostra_Evidenza(const std::vector<int>& righe) {
    modello_.Aggiorna();
    executeDelayedItemsLayout();
    for (const int riga : righe)
        Porta_In_Vista(riga);
}

void Vista_Griglia::Porta_In_Vista(int riga) {
    const int intere = std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize());
    if (riga < TopRow() || riga >= TopRow() + intere)
        TopRow(riga);
    for (int c = 0; c < modello_.columnCount(); ++c)
        if (c < columnAt(0) || columnViewportPosition(c) >= viewport()->width())
            horizontalScrollBar()->setValue(horizontalHeader()->sectionPosition(c));
}

void Vista_Griglia::Copia() const {
    const QItemSelection scelte = selectionModel()->selection();
    if (scelte.isEmpty())
        return;
    // The view's rows begin below the header.
    const QItemSelectionRange& blocco = scelte.first();
    QApplication::clipboard()->setText(
        Testo_Celle(griglia_, blocco.top() + 1, blocco.left(), blocco.bottom() + 1, blocco.right()));
}

void Vista_Griglia::mouseMoveEvent(QMouseEvent* evento) {
    QTableView::mouseMoveEvent(evento);
    const QPoint punto = evento->position().toPoint();
    const int riga = rowAt(punto.y());
    mostrato_ = puntatore_(riga < 0 ? griglia_.Rows() : riga + 1, columnAt(punto.x()));
    if (mostrato_ == Puntatore::Mano)
        viewport()->setCursor(Qt::PointingHandCursor);
    else if (mostrato_ == Puntatore::Testo)
        viewport()->setCursor(Qt::IBeamCursor);
    else
        viewport()->unsetCursor();
}

void Vista_Griglia::mousePressEvent(QMouseEvent* evento) {
    QTableView::mousePressEvent(evento);
    premuta_ = evento->button() == Qt::LeftButton ? indexAt(evento->position().toPoint()) : QModelIndex();
}

void Vista_Griglia::mouseReleaseEvent(QMouseEvent* evento) {
    QTableView::mouseReleaseEvent(evento);
    const QModelIndex cella = std::exchange(premuta_, QPersistentModelIndex());
    // A selection drawn over several cells is no click.
    if (evento->button() == Qt::LeftButton && cella.isValid() &&
        indexAt(evento->position().toPoint()) == cella)
        emit Clic_Cella(cella.row() + 1, cella.column());
}

void Vista_Griglia::keyPressEvent(QKeyEvent* evento) {
    if (evento->matches(QKeySequence::Copy)) {
        Copia();
        return;
    }
    const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (invio && currentIndex().isValid()) {
        emit Clic_Cella(currentIndex().row() + 1, currentIndex().column());
        return;
    }
    QTableView::keyPressEvent(evento);
}

void Vista_Griglia::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (!in_ricarica_)
        emit Scorsa();
}

void Vista_Griglia::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    const int larghezza = Twips_Da_Pixel(width());
    if (larghezza == griglia_.Width)
        return;
    griglia_.Width = larghezza;
    const QScopedValueRollback guardia(in_ridimensionamento_, true);
    emit Ridimensionata();
}

void Vista_Griglia::showEvent(QShowEvent* evento) {
    Misura();  // the screen and its density are known only now
    QTableView::showEvent(evento);
}

void Vista_Griglia::changeEvent(QEvent* evento) {
    QTableView::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) {
        Misura();
        const QScopedValueRollback guardia(in_ridimensionamento_, true);
        emit Ridimensionata();
    }
}

#include "gui/cart/pannello_carrello.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <QVBoxLayout>

Pannello_Carrello::Pannello_Carrello(Controllo_Carrello& carrello, Faccia faccia, Immagini_Risorsa& immagini,
                                     const Nomi& nomi, QWidget* padre)
    : QWidget(padre), carrello_(carrello), faccia_(faccia) {
    Faccia_Carrello& dati = carrello_.Di(faccia);
    griglia_ = new Vista_Griglia(dati.Griglia_, dati.Tag, immagini, this,
                                 [this](int r, int c) { return carrello_.Puntatore_Su(faccia_, r, c); });
    griglia_->setObjectName(QLatin1String(nomi.Griglia));
    griglia_->Mantieni_Posto();
    griglia_->installEventFilter(this);
    vuoto_ = new Spazio_Assenza(nomi.Assenze, QLatin1String(nomi.Icona_Vuota), this);
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->addWidget(griglia_, 1);
    colonna->addWidget(vuoto_, 1);
    Crea_Casella(Casella::Qta, "Text_Qta");
    Crea_Casella(Casella::Note, "Text_Note");
    setFocusProxy(griglia_);

    connect(griglia_, &Vista_Griglia::Clic_Cella, this,
            [this](int r, int c) { carrello_.Aziona_Cella(faccia_, r, c); });
    connect(griglia_, &Vista_Griglia::Ridimensionata, this, &Pannello_Carrello::Ridimensionato);
    connect(griglia_, &Vista_Griglia::Ricaricata, this, &Pannello_Carrello::Ricaricato);
    connect(griglia_, &Vista_Griglia::Scorsa, this, [this] {
        if (!in_disposizione_)
            carrello_.Scorsa(faccia_);
    });
    dati.Vista = this;
    Ricaricato();
}

Pannello_Carrello::~Pannello_Carrello() {
    carrello_.Di(faccia_).Vista = nullptr;
    // What goes with this window tells nobody any more.
    griglia_->removeEventFilter(this);
    for (QLineEdit* testo : testi_)
        testo->removeEventFilter(this);
}

void Pannello_Carrello::Crea_Casella(Casella casella, const char* nome) {
    auto* testo = new QLineEdit(griglia_->viewport());
    testo->setObjectName(QLatin1String(nome));
    testo->setFrame(false);
    testo->setTextMargins(1, 0, 1, 0);
    testo->hide();
    testo->installEventFilter(this);
    testi_[static_cast<size_t>(casella)] = testo;
    connect(testo, &QLineEdit::textEdited, this,
            [this, casella](const QString& t) { carrello_.Testo_Cambiato(faccia_, casella, t); });
}

const Faccia_Carrello::Testo_Casella& Pannello_Carrello::Stato(Casella casella) const {
    return carrello_.Di(faccia_).Di(casella);
}

// --- what the cart asks of its window
// -------------------------------------------------------------------------------------

void Pannello_Carrello::Mostra_Casella(Casella casella, int riga, int colonna, const QString& testo) {
    const QScopedValueRollback guardia(in_disposizione_, true);
    const QModelIndex cella = griglia_->model()->index(riga - 1, colonna);
    griglia_->setCurrentIndex(cella);
    griglia_->scrollTo(cella);
    QLineEdit& box = Text(casella);
    box.setText(testo);
    box.setAlignment(Allineamento_Qt(griglia_->Dati().ColAlignment(colonna)));
    Disponi_Casella(casella);
    box.show();
    box.raise();
    box.selectAll();
    box.setFocus();
}

void Pannello_Carrello::Nascondi_Casella(Casella casella) {
    QLineEdit& box = Text(casella);
    if (box.isHidden())
        return;
    // The keyboard stays in the grid, and doesn't go on to whatever comes next in the window.
    if (box.hasFocus())
        griglia_->setFocus();
    Spiega_Casella(casella, {});
    box.hide();
}

void Pannello_Carrello::Spiega_Casella(Casella casella, const QString& testo) {
    QLineEdit& box = Text(casella);
    box.setAccessibleDescription(testo);
    QToolTip::showText(box.mapToGlobal(QPoint(0, box.height())), testo.toHtmlEscaped(), &box);
}

int Pannello_Carrello::TopRow() const {
    return griglia_->TopRow();
}

void Pannello_Carrello::TopRow(int riga) {
    griglia_->TopRow(riga);
    Disponi_Casella(Casella::Qta);
}

void Pannello_Carrello::Disponi_Casella(Casella casella) {
    const auto& stato = Stato(casella);
    Text(casella).setGeometry(griglia_->visualRect(griglia_->model()->index(stato.riga - 1, stato.colonna)));
}

/// After each fill: the grid or the text in its place, and the box over its cell, wherever that is now.
void Pannello_Carrello::Ricaricato() {
    griglia_->setVisible(griglia_->Dati().Visible);
    vuoto_->Mostra(griglia_->Dati());
    for (const Casella casella : {Casella::Qta, Casella::Note})
        if (Stato(casella).Visibile)
            Disponi_Casella(casella);
}

// --- keyboard
// ------------------------------------------------------------------------------------------------------

std::optional<Casella> Pannello_Carrello::Casella_Di(const QObject* oggetto) const {
    for (const Casella casella : {Casella::Qta, Casella::Note})
        if (oggetto == testi_[static_cast<size_t>(casella)])
            return casella;
    return std::nullopt;
}

bool Pannello_Carrello::eventFilter(QObject* oggetto, QEvent* evento) {
    const auto casella = Casella_Di(oggetto);
    if (evento->type() == QEvent::KeyPress) {
        const auto& tasto = *static_cast<QKeyEvent*>(evento);
        if (casella ? Tasto_Casella(*casella, tasto) : Tasto_Griglia(tasto.key()))
            return true;
    }
    const bool esito = QWidget::eventFilter(oggetto, evento);
    // The box's own menu takes the focus only for the moment.
    if (casella && evento->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(evento)->reason() != Qt::PopupFocusReason)
        carrello_.Fuoco_Perso(faccia_, *casella);
    return esito;
}

bool Pannello_Carrello::Tasto_Griglia(int tasto) {
    const QModelIndex cella = griglia_->currentIndex();
    if (!cella.isValid())
        return false;
    switch (tasto) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2:
            carrello_.Tasto_Cella(faccia_, cella.row() + 1, cella.column());
            return true;
        case Qt::Key_Delete:
            carrello_.Elimina_Riga(faccia_, cella.row() + 1);
            return true;
        default:
            return false;
    }
}

bool Pannello_Carrello::Tasto_Casella(Casella casella, const QKeyEvent& evento) {
    switch (evento.key()) {
        case Qt::Key_Escape:
            carrello_.Annulla_Casella(faccia_, casella);
            griglia_->setFocus();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2:
            griglia_->setFocus();
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            if (!Modifica_Prossima(casella, evento.key() == Qt::Key_Tab))
                griglia_->setFocus();
            return true;
        case Qt::Key_Down:
        case Qt::Key_Up:
            Modifica_Riga_Accanto(casella, evento.key() == Qt::Key_Down ? 1 : -1);
            return true;
        default:
            return false;
    }
}

bool Pannello_Carrello::Modifica_Prossima(Casella casella, bool avanti) {
    int riga = Stato(casella).riga, colonna = Stato(casella).colonna;
    if (!carrello_.Prossima_Cella(faccia_, avanti, riga, colonna))
        return false;
    carrello_.Aziona_Cella(faccia_, riga, colonna);
    return true;
}

void Pannello_Carrello::Modifica_Riga_Accanto(Casella casella, int passo) {
    const int colonna = Stato(casella).colonna;
    int riga = Stato(casella).riga, c = colonna;
    while (carrello_.Prossima_Cella(faccia_, passo > 0, riga, c))
        if (c == colonna) {
            carrello_.Aziona_Cella(faccia_, riga, c);
            return;
        }
}

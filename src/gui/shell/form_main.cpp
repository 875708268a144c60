#include "gui/shell/form_main.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "core/base/twips.h"
#include "gui/platform/icone.h"
#include "gui/platform/immagini.h"
#include "gui/platform/posto_finestra.h"

namespace {
constexpr QSize MISURA_INIZIALE(1280, 800);
constexpr int LARGHEZZA_ALBERO_INIZIALE = 310;
const QString MASSIMIZZATA = QStringLiteral("MASSIMIZZATA"),
              LARGHEZZA_ALBERO = QStringLiteral("LARGHEZZA_ALBERO");
constexpr int MS_LAMPEGGIO = 333;
constexpr QColor ROSSO_LINK(204, 0, 0);
}  // namespace

Form_Main::Form_Main(Class_Progetto_Aperto& progetto, QString cartella_installazione)
    : finestre_(*this, progetto, cartella_installazione) {
    setObjectName(QStringLiteral("Form_Main"));
    setWindowTitle(titolo_ = TITOLO_PROGRAMMA);
    setWindowIcon(Icona_Tema(QStringLiteral("logo")));
    resize(MISURA_INIZIALE.boundedTo(Spazio_Interno(screen()->availableGeometry()).size()));
    comandi_ = new Barra_Comandi(this);
    addToolBar(Qt::TopToolBarArea, comandi_);
    Crea_Barra_Stato();
    lavagna_ = new Lavagna_Widget(this);
    lavagna_->hide();
    schermo_ = std::make_unique<Schermo_Principale>(progetto, std::move(cartella_installazione), *this,
                                                    finestre_, *lavagna_);
    finestre_.Collega(*schermo_);
    Crea_Zone();
    Collega();
    Crea_Scorciatoie();
    Riprendi_Posto();
    finestre_.Prepara_Principale();
    lampeggio_.setObjectName(QStringLiteral("Timer_Blink"));
    connect(&lampeggio_, &QTimer::timeout, this, &Form_Main::Lampeggia_Link);
    lampeggio_.start(MS_LAMPEGGIO);
    Mostra(schermo_->Stato());
    intro_->Primo_Link().setFocus();
}

/// What shows the rooms goes before them.
Form_Main::~Form_Main() {
    finestre_.Scarica();
    delete centralWidget();
    Mostra_Attesa(false);
}

void Form_Main::Crea_Barra_Stato() {
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    pannello_stato_ = new QLabel(statusBar());
    pannello_stato_->setObjectName(QStringLiteral("PANEL"));
    pannello_stato_->setTextFormat(Qt::PlainText);
    pannello_stato_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    avanzamento_ = new Indicatore_Avanzamento(statusBar());
    statusBar()->addWidget(pannello_stato_, 1);
    statusBar()->addPermanentWidget(avanzamento_);
}

void Form_Main::Crea_Zone() {
    auto* centro = new QWidget(this);
    pagine_ = new QStackedLayout(centro);
    // The page may be larger than a small window: it scrolls, the window keeps its size.
    home_ = new QScrollArea(centro);
    home_->setObjectName(QStringLiteral("Scorrimento_Home"));
    home_->setFrameShape(QFrame::NoFrame);
    home_->setWidgetResizable(true);
    home_->setFocusPolicy(Qt::NoFocus);
    intro_ = new Pagina_Iniziale(home_);
    home_->setWidget(intro_);
    frame_main_ = new QFrame(centro);
    frame_main_->setObjectName(QStringLiteral("Frame_Main"));
    pagine_->addWidget(home_);
    pagine_->addWidget(frame_main_);
    setCentralWidget(centro);

    divisore_ = new QSplitter(Qt::Horizontal, frame_main_);
    divisore_->setObjectName(QStringLiteral("imgSplitter"));
    divisore_->setOpaqueResize(false);
    divisore_->setChildrenCollapsible(false);
    auto* riga = new QVBoxLayout(frame_main_);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addWidget(divisore_);

    pannello_ = new Pannello_Albero(divisore_);
    area_ = new Area_Prodotto(*schermo_, finestre_.Immagini(), *lavagna_, divisore_);
    const int minimo = Pixel_Da_Twips(MINIMO_SPLITTER);
    pannello_->setMinimumWidth(minimo);
    area_->setMinimumWidth(minimo);
    divisore_->setStretchFactor(0, 0);
    divisore_->setStretchFactor(1, 1);
}

void Form_Main::Collega() {
    connect(comandi_, &Barra_Comandi::Premuto, this, [this](const QString& key) {
        schermo_->Comandi.Clic_Bottone(key);
        // A button that core left as it was has been flipped by the click already.
        Mostra(schermo_->Stato());
    });
    connect(intro_, &Pagina_Iniziale::Link, this,
            [this](const QString& key) { schermo_->Comandi.Clic_Link(key); });
    connect(intro_, &Pagina_Iniziale::Aggiornamenti, this,
            [this] { schermo_->Home.Visualizza_Aggiornamenti(); });
    connect(intro_, &Pagina_Iniziale::Lingua, this,
            [this](const QString& descrizione) { schermo_->Home.Scegli_Lingua_Home(descrizione); });
    connect(&Tree1(), &Vista_Albero::Clic_Nodo, this,
            [this](const QString& key) { schermo_->Albero.Clic_Nodo(key); });
    connect(&Tree1(), &Vista_Albero::Nodo_Aperto, this,
            [this](const QString& key, bool aperto) { schermo_->Albero.Nodo_Aperto(key, aperto); });
    connect(pannello_, &Pannello_Albero::Cerca_Nodo, this,
            [this](const QString& testo) { schermo_->Albero.Cerca_Nodo_Albero(testo); });
    connect(pannello_, &Pannello_Albero::Applica_Matricola, this,
            [this](const QString& matricola) { schermo_->Albero.Applica_Filtro_Matricola(matricola); });
    connect(divisore_, &QSplitter::splitterMoved, this, [this](int larghezza) {
        schermo_->Progetto().Desktop().impostazioni.Scrivi(NOME_APPLICAZIONE, WIN_PRINCIPALE,
                                                           LARGHEZZA_ALBERO, QString::number(larghezza));
    });
    connect(area_, &Area_Prodotto::Splitter_V_Spostato, this,
            [this](int altezza_distinta) { schermo_->Prodotto.Altezza_Distinta_Scelta(altezza_distinta); });
}

void Form_Main::Crea_Scorciatoie() {
    const auto tasto = [this](const QKeySequence& tasti, auto azione) {
        connect(new QShortcut(tasti, this), &QShortcut::activated, this, azione);
    };
    const QKeySequence ricerca(Qt::CTRL | Qt::Key_F), matricola(Qt::CTRL | Qt::Key_M);
    tasto(QKeySequence(Qt::Key_F6), [this] { Cambia_Riquadro(1); });
    tasto(QKeySequence(Qt::SHIFT | Qt::Key_F6), [this] { Cambia_Riquadro(-1); });
    tasto(QKeySequence::Undo, [this] { schermo_->Ordine.Annulla(); });
    tasto(ricerca, [this] { pannello_->Vai_A_Ricerca(); });
    tasto(matricola, [this] { pannello_->Vai_A_Matricola(); });
    Suggerimenti::Scorciatoia(*findChild<QWidget*>(QStringLiteral("Combo_Nodi")), ricerca);
    Suggerimenti::Scorciatoia(*findChild<QWidget*>(QStringLiteral("Text_Matricola")), matricola);
}

void Form_Main::Cambia_Riquadro(int passo) {
    QList<QWidget*> riquadri;
    for (QWidget* riquadro :
         {&intro_->Primo_Link(), static_cast<QWidget*>(&Tree1()), &area_->Scheda().Primo_Link(),
          static_cast<QWidget*>(lavagna_), static_cast<QWidget*>(&Griglia_Distinta()),
          static_cast<QWidget*>(&area_->Griglia_Evadi()), comandi_->Bottone(QStringLiteral("KEY_HOME"))})
        if (riquadro && riquadro->isVisible() && riquadro->isEnabled())
            riquadri.append(riquadro);
    if (riquadri.isEmpty())
        return;
    const QWidget* attuale = QApplication::focusWidget();
    qsizetype posto = -1;
    for (qsizetype i = 0; i < riquadri.size(); ++i)
        if (riquadri[i] == attuale || (attuale && attuale->parentWidget() == riquadri[i]->parentWidget()))
            posto = i;
    const qsizetype quanti = riquadri.size();
    const qsizetype prossimo = posto < 0 ? (passo > 0 ? 0 : quanti - 1) : (posto + passo + quanti) % quanti;
    riquadri[prossimo]->setFocus(Qt::ShortcutFocusReason);
}

// --- what core asks of the window -----------------------------------------------------------------

void Form_Main::Mostra(const Stato_Finestra& stato) {
    Mostra_Attesa(stato.Attesa);
    if (!stato.Abilitata)
        Conserva_Fuoco(false);
    QWidget* pagina = stato.Frame_Main ? static_cast<QWidget*>(frame_main_) : home_;
    const bool altro_schermo = pagine_->currentWidget() != pagina;
    comandi_->Mostra(stato);
    intro_->Mostra(stato);
    pagine_->setCurrentWidget(pagina);
    frame_main_->setEnabled(stato.Abilitata);
    area_->Mostra(stato, Altezza_Interna());
    finestre_.Abilita(stato.Abilitata);
    Mostra_Pannello(stato.Pannello);
    if (!stato.Attesa)
        avanzamento_->Nascondi();
    if (stato.Abilitata)
        Conserva_Fuoco(true);
    if (altro_schermo) {
        fuoco_.clear();
        (stato.Frame_Main ? static_cast<QWidget&>(Tree1()) : intro_->Primo_Link()).setFocus();
    }
}

void Form_Main::Mostra_Attesa(bool attesa) {
    if (attesa == in_attesa_)
        return;
    in_attesa_ = attesa;
    if (attesa)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

/// Locking the window takes the keyboard from its control: it is given back when the work is done.
void Form_Main::Conserva_Fuoco(bool abilitata) {
    if (!abilitata) {
        if (!fuoco_)
            fuoco_ = focusWidget();
        return;
    }
    Rendi_Fuoco();
}

/// Gives the keyboard back as soon as its control is there again, unless the user has gone elsewhere
/// meanwhile. The order takes it from a page that gave way to it.
void Form_Main::Rendi_Fuoco() {
    if (fuoco_ && focusWidget() && focusWidget() != supplente_)
        fuoco_.clear();
    if (!fuoco_)
        return;
    QWidget* ordine = &area_->Griglia_Evadi();
    QWidget* destinazione = fuoco_->isVisible() ? fuoco_.data() : ordine->isVisible() ? ordine : nullptr;
    if (!destinazione)
        return;
    destinazione->setFocus();
    fuoco_.clear();
}

/// Qt asks for the next control, too, when the one with the keyboard is hidden; that one would often be a
/// button of the toolbar.
bool Form_Main::focusNextPrevChild(bool avanti) {
    QWidget* attuale = focusWidget();
    if (!attuale || attuale->isVisible() || !Tree1().isVisible())
        return QMainWindow::focusNextPrevChild(avanti);
    if (attuale != supplente_)
        fuoco_ = attuale;
    supplente_ = &Tree1();
    supplente_->setFocus();
    return true;
}

std::optional<QSizeF> Form_Main::Misura_Foto(const QString& percorso) const {
    return Misura_File_Immagine(percorso);
}

/// The links that lead into the catalogue blink between red and the colour of the heading.
void Form_Main::Lampeggia_Link() {
    fase_ = !fase_;
    for (QWidget* link :
         {&intro_->Link_Consulta(), static_cast<QWidget*>(&area_->Scheda().Label_Consulta_Esploso())}) {
        if (!link->isVisible())
            continue;
        QPalette colori = palette();
        if (fase_)
            colori.setColor(QPalette::WindowText, ROSSO_LINK);
        link->setPalette(colori);
    }
}

void Form_Main::Carica_Home(const std::optional<Elenco_Lingue>& lingue) {
    intro_->Carica_Dati_Home(schermo_->Progetto());
    if (lingue)
        intro_->Carica_Lingue_Home(*lingue, [this](const QString& nome) { return finestre_.Bandiera(nome); });
}

void Form_Main::Carica_Testi() {
    setWindowTitle(titolo_);
    finestre_.Carica_Testi();
    titolo_ = windowTitle();
    const Class_Progetto_Aperto& progetto = schermo_->Progetto();
    Propieta_Progetto propieta;
    if (!progetto.Anteprima_Propieta_Progetto_Aperto(propieta))
        return;
    const QString nome = propieta.Titolo.trimmed();
    setWindowTitle(QStringLiteral("%1 – %2").arg(
        nome.isEmpty() ? QFileInfo(progetto.File_Pacchetto).completeBaseName() : nome, titolo_));
}

int Form_Main::Altezza_Interna() const {
    return Twips_Da_Pixel(height() - comandi_->height() - statusBar()->height());
}

QString Form_Main::Scegli_Pacchetto() {
    const QString ultimo = schermo_->Progetto().File_Pacchetto;
    const QString cartella = ultimo.isEmpty()
                                 ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                 : QFileInfo(ultimo).absolutePath();
    return QFileDialog::getOpenFileName(this, comandi_->Testo(QStringLiteral("KEY_OPEN")), cartella,
                                        QStringLiteral("Tessarine (*.TZF *.tzf)"));
}

// --- the window's life ----------------------------------------------------------------------------

/// The window as the user left it; at the very first start it is placed by the desktop.
void Form_Main::Riprendi_Posto() {
    const Class_Progetto_Aperto& progetto = schermo_->Progetto();
    const Impostazioni& impostazioni = progetto.Desktop().impostazioni;
    const auto leggi = [&](const QString& chiave) {
        return impostazioni.Leggi(NOME_APPLICAZIONE, WIN_PRINCIPALE, chiave, {});
    };
    const Posto_Finestra posto = Leggi_Posto(impostazioni, progetto.Numeri_, WIN_PRINCIPALE, {});
    if (posto.Width > 0 && posto.Height > 0)
        Disponi(*this, posto);
    if (leggi(MASSIMIZZATA) == u"SI")
        Massimizza();
    int albero = leggi(LARGHEZZA_ALBERO).toInt();
    if (albero <= 0)
        albero = LARGHEZZA_ALBERO_INIZIALE;
    divisore_->setSizes({albero, std::max(1, width() - albero)});
}

void Form_Main::Scrivi_Posto_Finestra() {
    const Class_Progetto_Aperto& progetto = schermo_->Progetto();
    Impostazioni& impostazioni = progetto.Desktop().impostazioni;
    // A maximised window keeps the size that it goes back to.
    const QRect interno = isMaximized() || isFullScreen() ? normalGeometry() : geometry();
    const QPoint cornice = geometry().topLeft() - frameGeometry().topLeft();
    const auto twips = [](int pixel) { return static_cast<float>(Twips_Da_Pixel(pixel)); };
    Scrivi_Posto(impostazioni, progetto.Numeri_, WIN_PRINCIPALE,
                 {twips(interno.x() - cornice.x()), twips(interno.y() - cornice.y()), twips(interno.height()),
                  twips(interno.width())});
    impostazioni.Scrivi(NOME_APPLICAZIONE, WIN_PRINCIPALE, MASSIMIZZATA,
                        isMaximized() ? QStringLiteral("SI") : QStringLiteral("NO"));
}

void Form_Main::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && isVisible() && !attivata_) {
        attivata_ = true;
        schermo_->Apertura.Prima_Attivazione();
    }
}

void Form_Main::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    const int prima = std::exchange(altezza_, Altezza_Interna());
    if (schermo_ && prima > 0 && prima != altezza_)
        schermo_->Prodotto.Splitter_V_Spostato(schermo_->Stato().Posizione_Splitter_V + altezza_ - prima);
}

void Form_Main::Termina() {
    termina_ = true;
    close();
}

void Form_Main::closeEvent(QCloseEvent* evento) {
    if (schermo_->Apertura.Chiudi(termina_)) {
        Scrivi_Posto_Finestra();
        lavagna_->Chiudi();
        evento->accept();
    } else {
        evento->ignore();
    }
}

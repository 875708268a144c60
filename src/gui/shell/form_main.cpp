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
#include "core/package/risorse.h"
#include "gui/cart/form_seleziona_componente.h"
#include "gui/localisation/finestra_qt.h"
#include "gui/localisation/form_lingua_mercato.h"
#include "gui/platform/freccia.h"
#include "gui/platform/icone.h"
#include "gui/platform/immagini.h"
#include "gui/users/form_autentificazione.h"

namespace {
constexpr QSize MISURA_INIZIALE(1280, 800);
constexpr int LARGHEZZA_ALBERO = 310;
constexpr int MS_LAMPEGGIO = 333;
constexpr QColor ROSSO_LINK(204, 0, 0);
}  // namespace

Form_Main::Form_Main(Controllo_Principale& controllo, QString cartella_installazione)
    : controllo_(controllo),
      cartella_installazione_(std::move(cartella_installazione)),
      immagini_([this](const QString& nome) {
          return Leggi_Risorsa(controllo_.Progetto(), cartella_installazione_, nome);
      }) {
    setObjectName(QStringLiteral("Form_Main"));
    setWindowTitle(TITOLO_PROGRAMMA);
    setWindowIcon(Icona_Tema(QStringLiteral("logo")));
    resize(MISURA_INIZIALE.boundedTo(screen()->availableSize()));
    comandi_ = new Barra_Comandi(this);
    addToolBar(Qt::TopToolBarArea, comandi_);
    Crea_Barra_Stato();
    Crea_Zone();
    Collega();
    Crea_Scorciatoie();
    suggerimenti_.Attiva(*this);
    Carica_Dati_Home();
    lampeggio_.setObjectName(QStringLiteral("Timer_Blink"));
    connect(&lampeggio_, &QTimer::timeout, this, &Form_Main::Lampeggia_Link);
    lampeggio_.start(MS_LAMPEGGIO);
    Mostra(controllo_.Stato());
}

Form_Main::~Form_Main() {
    delete carrello_.data();
    controllo_.Scollega();
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
    auto* colonna = new QVBoxLayout(centro);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    intro_ = new Pagina_Iniziale(centro);
    frame_main_ = new QFrame(centro);
    frame_main_->setObjectName(QStringLiteral("Frame_Main"));
    colonna->addWidget(intro_);
    colonna->addWidget(frame_main_);
    setCentralWidget(centro);

    divisore_ = new QSplitter(Qt::Horizontal, frame_main_);
    divisore_->setObjectName(QStringLiteral("imgSplitter"));
    divisore_->setOpaqueResize(false);
    divisore_->setChildrenCollapsible(false);
    auto* riga = new QVBoxLayout(frame_main_);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addWidget(divisore_);

    pannello_ = new Pannello_Albero(divisore_);
    area_ = new Area_Prodotto(controllo_, immagini_, divisore_);
    const int minimo = Pixel_Da_Twips(MINIMO_SPLITTER);
    pannello_->setMinimumWidth(minimo);
    area_->setMinimumWidth(minimo);
    divisore_->setStretchFactor(0, 0);
    divisore_->setStretchFactor(1, 1);
    divisore_->setSizes({LARGHEZZA_ALBERO, std::max(minimo, width() - LARGHEZZA_ALBERO)});
}

void Form_Main::Collega() {
    connect(comandi_, &Barra_Comandi::Comando, this, [this](const QString& key) {
        controllo_.Clic_Bottone(key);
        // A button that core left as it was has been flipped by the click already.
        Mostra(controllo_.Stato());
    });
    connect(intro_, &Pagina_Iniziale::Comando, this,
            [this](const QString& key) { controllo_.Esegui_Comando(key); });
    connect(intro_, &Pagina_Iniziale::Aggiornamenti, this, [this] { controllo_.Visualizza_Aggiornamenti(); });
    connect(intro_, &Pagina_Iniziale::Lingua, this,
            [this](const QString& descrizione) { controllo_.Scegli_Lingua_Home(descrizione); });
    connect(&Tree1(), &Vista_Albero::Clic_Nodo, this,
            [this](const QString& key) { controllo_.Clic_Nodo(key); });
    connect(&Tree1(), &Vista_Albero::Nodo_Aperto, this,
            [this](const QString& key, bool aperto) { controllo_.Nodo_Aperto(key, aperto); });
    connect(area_, &Area_Prodotto::Splitter_V_Spostato, this, [this](int altezza_distinta) {
        controllo_.Splitter_V_Spostato(Altezza_Interna() - altezza_distinta);
    });
    connect(pannello_, &Pannello_Albero::Cerca_Nodo, this,
            [this](const QString& testo) { controllo_.Cerca_Nodo_Albero(testo); });
    connect(pannello_, &Pannello_Albero::Applica_Matricola, this,
            [this] { controllo_.Applica_Filtro_Matricola(); });
}

void Form_Main::Crea_Scorciatoie() {
    const auto tasto = [this](const QKeySequence& tasti, auto azione) {
        connect(new QShortcut(tasti, this), &QShortcut::activated, this, azione);
    };
    const QKeySequence ricerca(Qt::CTRL | Qt::Key_F), matricola(Qt::CTRL | Qt::Key_M);
    tasto(QKeySequence(Qt::Key_F6), [this] { Cambia_Riquadro(1); });
    tasto(QKeySequence(Qt::SHIFT | Qt::Key_F6), [this] { Cambia_Riquadro(-1); });
    tasto(ricerca, [this] { pannello_->Vai_A_Ricerca(); });
    tasto(matricola, [this] { pannello_->Vai_A_Matricola(); });
    Suggerimenti::Scorciatoia(*findChild<QWidget*>(QStringLiteral("Combo_Nodi")), ricerca);
    Suggerimenti::Scorciatoia(*findChild<QWidget*>(QStringLiteral("Text_Matricola")), matricola);
}

void Form_Main::Cambia_Riquadro(int passo) {
    QList<QWidget*> riquadri;
    for (QWidget* riquadro :
         {&intro_->Primo_Link(), static_cast<QWidget*>(&Tree1()), &area_->Scheda().Primo_Link(),
          static_cast<QWidget*>(&Tavola()), static_cast<QWidget*>(&Griglia_Distinta()),
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

// --- what core asks of the window
// -----------------------------------------------------------------------------------------

void Form_Main::Mostra(const Stato_Finestra& stato) {
    Mostra_Attesa(stato.Attesa);
    if (!stato.Abilitata)
        Conserva_Fuoco(false);
    const bool altro_schermo =
        frame_main_->isHidden() == stato.Frame_Main || intro_->isHidden() == stato.Frame_Intro;
    comandi_->Mostra(stato);
    intro_->Mostra(stato, stato.Label_Aggiornamenti);
    frame_main_->setVisible(stato.Frame_Main);
    frame_main_->setEnabled(stato.Abilitata);
    area_->Mostra(stato, Altezza_Interna());
    if (carrello_)
        carrello_->setEnabled(stato.Abilitata);
    Mostra_Pannello(stato.Pannello);
    if (!stato.Attesa)
        avanzamento_->Nascondi();
    if (stato.Abilitata)
        Conserva_Fuoco(true);
    if (altro_schermo)
        (stato.Frame_Main ? static_cast<QWidget&>(Tree1()) : intro_->Primo_Link()).setFocus();
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
    if (fuoco_ && fuoco_->isVisible() && !focusWidget())
        fuoco_->setFocus();
    fuoco_.clear();
}

void Form_Main::Albero_Ricostruito() {
    pannello_->Ricarica(controllo_.Progetto().Tree1);
}

void Form_Main::Albero_Aggiornato() {
    pannello_->Aggiorna(controllo_.Progetto().Tree1);
}

void Form_Main::Mostra_Pannello(const QString& testo) {
    pannello_stato_->setText(testo);
}

void Form_Main::Mostra_Scheda(const Scheda_Prodotto& scheda) {
    area_->Scheda().Mostra_Scheda(scheda);
}

void Form_Main::Mostra_Immagine(const QString& percorso) {
    if (!immagine_)
        immagine_ = new Form_visualizza_Immagine(this);
    Finestra_Qt finestra(*immagine_);
    ::Carica_Testi_Finestra(controllo_.Progetto(), cartella_installazione_, finestra);
    immagine_->Tag(percorso);
    immagine_->Ricarica_Immagine();
    immagine_->show();
    immagine_->raise();
    immagine_->activateWindow();
}

void Form_Main::Mostra_Finestra_Carrello() {
    if (!carrello_) {
        carrello_ = new Form_Carrello_Prodotto(controllo_, immagini_, this);
        Finestra_Qt testi(*carrello_);
        ::Carica_Testi_Finestra(controllo_.Progetto(), cartella_installazione_, testi);
        suggerimenti_.Attiva(*carrello_);
    }
    carrello_->show();
    carrello_->raise();
    carrello_->activateWindow();
}

void Form_Main::Chiudi_Finestra_Carrello() {
    if (Form_Carrello_Prodotto* carrello = carrello_) {
        carrello_.clear();  // its closing may come here again
        carrello->close();
    }
}

void Form_Main::Mostra_Seleziona_Componente(Controllo_Seleziona& scelta) {
    Form_Seleziona_componente dialogo(controllo_, scelta, immagini_, this);
    Esegui_Dialogo(dialogo);
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

void Form_Main::Carica_Testi_Finestra() {
    for (QWidget* finestra : {static_cast<QWidget*>(this), static_cast<QWidget*>(carrello_.data())})
        if (finestra) {
            Finestra_Qt testi(*finestra);
            ::Carica_Testi_Finestra(controllo_.Progetto(), cartella_installazione_, testi);
        }
}

void Form_Main::Carica_Dati_Home() {
    intro_->Carica_Dati_Home(controllo_.Progetto());
}

void Form_Main::Carica_Lingue_Home(const Elenco_Lingue& lingue) {
    intro_->Carica_Lingue_Home(lingue, [this](const QString& nome) { return Bandiera(nome); });
}

void Form_Main::Mostra_Autentificazione() {
    Form_Autentificazione dialogo(controllo_.Accesso(), this);
    Esegui_Dialogo(dialogo);
}

void Form_Main::Mostra_Lingua_Mercato() {
    Form_Lingua_Mercato dialogo(
        controllo_.Accesso(), [this](const QString& nome) { return Bandiera(nome); }, this);
    Esegui_Dialogo(dialogo);
}

void Form_Main::Esegui_Dialogo(QDialog& dialogo) {
    Finestra_Qt testi(dialogo);
    ::Carica_Testi_Finestra(controllo_.Progetto(), cartella_installazione_, testi);
    suggerimenti_.Attiva(dialogo);
    const Freccia freccia;
    dialogo.exec();
}

/// A flag of the resource package, else one that the catalogue brings along.
QIcon Form_Main::Bandiera(const QString& nome) {
    const QPixmap bandiera = immagini_.Immagine(nome, devicePixelRatioF());
    return bandiera.isNull() ? QIcon(controllo_.Progetto().Scompatta_File_Compattato(nome)) : QIcon(bandiera);
}

void Form_Main::Massimizza() {
    setWindowState(windowState() | Qt::WindowMaximized);
}

int Form_Main::Altezza_Interna() const {
    return Twips_Da_Pixel(height() - comandi_->height() - statusBar()->height());
}

QString Form_Main::Scegli_Pacchetto() {
    const QString ultimo = controllo_.Progetto().File_Pacchetto;
    const QString cartella = ultimo.isEmpty()
                                 ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                 : QFileInfo(ultimo).absolutePath();
    return QFileDialog::getOpenFileName(this, comandi_->Testo(QStringLiteral("KEY_OPEN")), cartella,
                                        QStringLiteral("Tessarine (*.TZF *.tzf)"));
}

// --- the window's life
// -----------------------------------------------------------------------------------------

void Form_Main::changeEvent(QEvent* evento) {
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && isVisible() && !attivata_) {
        attivata_ = true;
        controllo_.Prima_Attivazione();
    }
}

void Form_Main::resizeEvent(QResizeEvent* evento) {
    QMainWindow::resizeEvent(evento);
    const int prima = std::exchange(altezza_, Altezza_Interna());
    if (prima > 0 && prima != altezza_)
        controllo_.Splitter_V_Spostato(controllo_.Stato().Posizione_Splitter_V + altezza_ - prima);
}

void Form_Main::closeEvent(QCloseEvent* evento) {
    if (controllo_.Chiudi()) {
        Tavola().Chiudi();
        evento->accept();
    } else {
        evento->ignore();
    }
}

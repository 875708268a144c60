#include "gui/navigation/pannello_albero.h"

#include <QCompleter>
#include <QGridLayout>
#include <QListView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "gui/platform/icone.h"
#include "gui/platform/spazio_vuoto.h"

namespace {

template <class T>
T* Con_Nome(T* oggetto, const char* nome) {
    oggetto->setObjectName(QLatin1String(nome));
    return oggetto;
}

/// A line below a field that says why nothing came of it, hidden as long as there is no reason.
QLabel* Avviso(const char* nome, const char* testo, QWidget* padre) {
    QLabel* avviso = Etichetta(nome, testo, padre);
    avviso->setWordWrap(true);
    avviso->hide();
    return avviso;
}

}  // namespace

Pannello_Albero::Pannello_Albero(QWidget* padre) : QFrame(padre) {
    setObjectName(QStringLiteral("Frame_Albero"));
    titolo_ = Etichetta("Label_Titolo_Tree", "", this);
    QFont carattere = titolo_->font();
    carattere.setBold(true);
    titolo_->setFont(carattere);
    titolo_->setWordWrap(true);
    // A long title is wrapped, it never forces a width upon the column.
    titolo_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    tree1_ = Con_Nome(new Vista_Albero(this), "Tree1");

    auto* disposizione = new QVBoxLayout(this);
    disposizione->setContentsMargins(8, 8, 4, 8);
    disposizione->addWidget(titolo_);
    disposizione->addWidget(tree1_, 1);
    disposizione->addWidget(Crea_Ricerca());
    disposizione->addWidget(Crea_Matricola());
}

QWidget* Pannello_Albero::Crea_Ricerca() {
    auto* riga = Con_Nome(new QFrame(this), "Frame_Cerca_Nodo");
    auto* etichetta = Etichetta("Label_Cerca_Nodo", "Find in the tree", riga);
    combo_nodi_ = Con_Nome(new QComboBox(riga), "Combo_Nodi");
    combo_nodi_->setModel(&elenco_nodi_);
    combo_nodi_->setMaxVisibleItems(20);
    combo_nodi_->setEditable(true);
    combo_nodi_->setInsertPolicy(QComboBox::NoInsert);
    auto* completamento = new QCompleter(&elenco_nodi_, combo_nodi_);
    completamento->setFilterMode(Qt::MatchContains);
    completamento->setCaseSensitivity(Qt::CaseInsensitive);
    combo_nodi_->setCompleter(completamento);
    nessun_nodo_ = Avviso("Label_Nessun_Nodo", "No node has this in its name.", riga);
    // A hundred thousand captions: neither the box nor its list may measure them all.
    combo_nodi_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo_nodi_->setMinimumContentsLength(6);
    auto* elenco = new QListView(combo_nodi_);
    elenco->setUniformItemSizes(true);
    elenco->setTextElideMode(Qt::ElideRight);
    combo_nodi_->setView(elenco);
    etichetta->setBuddy(combo_nodi_);
    auto* successivo = Con_Nome(new QPushButton(QStringLiteral("Next"), riga), "Command_Cerca_Next");
    successivo->setIcon(Icona_Tema(QStringLiteral("successivo")));

    auto* disposizione = new QGridLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->setVerticalSpacing(3);
    disposizione->addWidget(etichetta, 0, 0, 1, 2);
    disposizione->addWidget(combo_nodi_, 1, 0);
    disposizione->addWidget(successivo, 1, 1);
    disposizione->setColumnStretch(0, 1);

    disposizione->addWidget(nessun_nodo_, 2, 0, 1, 2);

    connect(combo_nodi_, &QComboBox::activated, this, &Pannello_Albero::Cerca);
    connect(combo_nodi_->lineEdit(), &QLineEdit::returnPressed, this, &Pannello_Albero::Cerca);
    connect(combo_nodi_, &QComboBox::editTextChanged, nessun_nodo_, &QWidget::hide);
    connect(successivo, &QPushButton::clicked, this, &Pannello_Albero::Cerca);
    return riga;
}

void Pannello_Albero::Cerca() {
    const QString testo = combo_nodi_->currentText();
    if (testo.isEmpty())
        return;
    const QStringList nodi = elenco_nodi_.stringList();
    QString nodo = testo;
    if (!nodi.contains(testo))
        nodo = nodi.filter(testo, Qt::CaseInsensitive).value(0);
    nessun_nodo_->setVisible(nodo.isEmpty());
    if (nodo.isEmpty())
        return;
    // The box then holds the caption, and doesn't tell it a second time when the field is left.
    combo_nodi_->setCurrentIndex(static_cast<int>(nodi.indexOf(nodo)));
    emit Cerca_Nodo(nodo);
}

void Pannello_Albero::Vai_A_Ricerca() {
    combo_nodi_->setFocus(Qt::ShortcutFocusReason);
    combo_nodi_->lineEdit()->selectAll();
}

QWidget* Pannello_Albero::Crea_Matricola() {
    auto* riga = Con_Nome(new QFrame(this), "Frame_Matricola");
    auto* etichetta = Etichetta("Label_Matricola", "Serial number", riga);
    text_matricola_ = Con_Nome(new QLineEdit(riga), "Text_Matricola");
    text_matricola_->setMinimumWidth(60);
    etichetta->setBuddy(text_matricola_);
    auto* applica = Con_Nome(new QPushButton(QStringLiteral("Apply"), riga), "Command_Matricola");
    auto* azzera = Con_Nome(new QPushButton(QStringLiteral("Clear"), riga), "Command_Reset_Matricola");

    auto* disposizione = new QGridLayout(riga);
    disposizione->setContentsMargins(0, 0, 0, 0);
    disposizione->setVerticalSpacing(3);
    disposizione->addWidget(etichetta, 0, 0, 1, 3);
    disposizione->addWidget(text_matricola_, 1, 0);
    disposizione->addWidget(applica, 1, 1);
    disposizione->addWidget(azzera, 1, 2);
    nessuna_matricola_ = Avviso("Label_Nessuna_Matricola", "No node has this serial number.", riga);
    disposizione->addWidget(nessuna_matricola_, 2, 0, 1, 3);
    disposizione->setColumnStretch(0, 1);

    connect(text_matricola_, &QLineEdit::returnPressed, applica, &QPushButton::click);
    connect(applica, &QPushButton::clicked, this, [this] {
        con_matricola_ = !text_matricola_->text().isEmpty();
        emit Applica_Matricola(text_matricola_->text());
    });
    connect(text_matricola_, &QLineEdit::textChanged, nessuna_matricola_, &QWidget::hide);
    connect(azzera, &QPushButton::clicked, this, [this] {
        text_matricola_->clear();
        con_matricola_ = false;
        emit Applica_Matricola({});
    });
    return riga;
}

void Pannello_Albero::Ricarica(const Albero_Visibile& albero) {
    titolo_->setText(albero.Titolo);
    titolo_->setVisible(!albero.Titolo.isEmpty());
    tree1_->Ricarica(albero);
    // The choice stays while its caption is still there, so that "next" goes on with it.
    const QString scelto = combo_nodi_->currentText();
    elenco_nodi_.setStringList(albero.Combo_Nodi);
    const auto posto = static_cast<int>(albero.Combo_Nodi.indexOf(scelto));
    combo_nodi_->setCurrentIndex(posto);
    if (posto < 0)
        combo_nodi_->setEditText({});
    const auto segnato = [](const Nodo_Visibile& nodo) { return nodo.Bold; };
    nessuna_matricola_->setVisible(std::exchange(con_matricola_, false) &&
                                   std::none_of(albero.Nodi().begin(), albero.Nodi().end(), segnato));
}

void Pannello_Albero::Vai_A_Matricola() {
    text_matricola_->setFocus(Qt::ShortcutFocusReason);
    text_matricola_->selectAll();
}

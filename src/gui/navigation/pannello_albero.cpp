#include "gui/navigation/pannello_albero.h"

#include <QGridLayout>
#include <QListView>
#include <QVBoxLayout>

#include "gui/platform/icone.h"
#include "gui/platform/spazio_vuoto.h"

namespace {

template <class T>
T* Con_Nome(T* oggetto, const char* nome) {
    oggetto->setObjectName(QLatin1String(nome));
    return oggetto;
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

    connect(combo_nodi_, &QComboBox::activated, this,
            [this] { emit Cerca_Nodo(combo_nodi_->currentText()); });
    connect(successivo, &QPushButton::clicked, this, [this] { emit Cerca_Nodo(combo_nodi_->currentText()); });
    return riga;
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
    disposizione->setColumnStretch(0, 1);

    connect(text_matricola_, &QLineEdit::returnPressed, applica, &QPushButton::click);
    connect(applica, &QPushButton::clicked, this,
            [this] { emit Applica_Matricola(text_matricola_->text()); });
    connect(azzera, &QPushButton::clicked, this, [this] {
        text_matricola_->clear();
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
    combo_nodi_->setCurrentIndex(static_cast<int>(albero.Combo_Nodi.indexOf(scelto)));
}

void Pannello_Albero::Vai_A_Matricola() {
    text_matricola_->setFocus(Qt::ShortcutFocusReason);
    text_matricola_->selectAll();
}

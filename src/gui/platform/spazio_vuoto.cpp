#include "gui/platform/spazio_vuoto.h"

#include <QVBoxLayout>

#include "gui/platform/immagine_adattata.h"

QLabel* Etichetta(const char* nome, const char* testo, QWidget* padre) {
    auto* etichetta = new QLabel(QLatin1String(testo), padre);
    etichetta->setObjectName(QLatin1String(nome));
    etichetta->setTextFormat(Qt::PlainText);
    return etichetta;
}

QWidget* Spazio_Vuoto(QLabel* testo, const QString& immagine, QWidget* padre) {
    auto* spazio = new QWidget(padre);
    auto* colonna = new QVBoxLayout(spazio);
    colonna->setContentsMargins(0, 0, 0, 0);
    auto* figura = new Immagine_Adattata(spazio);
    figura->Predefinita(immagine);
    figura->setFixedSize(64, 64);
    testo->setAlignment(Qt::AlignCenter);
    testo->setWordWrap(true);
    testo->setForegroundRole(QPalette::PlaceholderText);
    colonna->addStretch(2);
    colonna->addWidget(figura, 0, Qt::AlignHCenter);
    colonna->addSpacing(8);
    colonna->addWidget(testo);
    colonna->addStretch(3);
    return spazio;
}

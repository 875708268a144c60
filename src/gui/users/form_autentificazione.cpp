#include "gui/users/form_autentificazione.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "gui/platform/icone.h"

namespace {
constexpr int LARGHEZZA_CAMPO = 220;
}

Form_Autentificazione::Form_Autentificazione(Controllo_Accesso& accesso, QWidget* padre)
    : QDialog(padre), accesso_(accesso) {
    setObjectName(QStringLiteral("Form_Autentificazione"));
    setWindowTitle(QStringLiteral("Log in to the catalogue"));

    account_ = new QLineEdit(this);
    account_->setObjectName(QStringLiteral("Text_Account"));
    account_->setMinimumWidth(LARGHEZZA_CAMPO);
    account_->setText(accesso.Utente());
    account_->selectAll();
    password_ = new QLineEdit(this);
    password_->setObjectName(QStringLiteral("Text_Password"));
    password_->setEchoMode(QLineEdit::Password);

    auto* label_account = new QLabel(QStringLiteral("User name"), this);
    label_account->setObjectName(QStringLiteral("Label_Account"));
    label_account->setBuddy(account_);
    auto* label_password = new QLabel(QStringLiteral("Password"), this);
    label_password->setObjectName(QStringLiteral("Label_Password"));
    label_password->setBuddy(password_);

    auto* ok = new QPushButton(QStringLiteral("Log in"), this);
    ok->setObjectName(QStringLiteral("Command_OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &Form_Autentificazione::Command_OK_Click);

    auto* barra = new QToolBar(this);
    barra->setObjectName(QStringLiteral("Toolbar_Main"));
    barra->setIconSize(QSize(24, 24));
    QAction* esci =
        barra->addAction(Icona_Tema(QStringLiteral("esci")), QStringLiteral("Close without logging in"));
    QWidget* bottone_esci = barra->widgetForAction(esci);
    bottone_esci->setObjectName(QStringLiteral("KEY_ESCI"));
    bottone_esci->setFocusPolicy(Qt::TabFocus);
    connect(esci, &QAction::triggered, this, &QDialog::reject);

    auto* campi = new QFormLayout;
    campi->addRow(label_account, account_);
    campi->addRow(label_password, password_);
    auto* piede = new QHBoxLayout;
    piede->addWidget(barra);
    piede->addStretch(1);
    piede->addWidget(ok);
    auto* righe = new QVBoxLayout(this);
    righe->setSpacing(14);
    righe->addLayout(campi);
    righe->addLayout(piede);
    righe->setSizeConstraint(QLayout::SetFixedSize);
    setTabOrder(account_, password_);
    setTabOrder(password_, ok);
    setTabOrder(ok, bottone_esci);
    account_->setFocus();
}

void Form_Autentificazione::Command_OK_Click() {
    const bool riuscito = accesso_.Accedi(account_->text(), password_->text());
    password_->setText({});  // also out of the field's memory of what was typed
    if (riuscito)
        accept();
    else
        password_->setFocus();
}

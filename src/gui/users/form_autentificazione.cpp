#include "gui/users/form_autentificazione.h"

#include <QToolBar>

#include "gui/platform/icone.h"

Form_Autentificazione::Form_Autentificazione(Controllo_Accesso& accesso, QWidget* padre)
    : Dialogo_Campi("Form_Autentificazione", "Log in to the catalogue", "Log in", padre), accesso_(accesso) {
    account_ = new QLineEdit(accesso.Utente(), this);
    account_->selectAll();
    password_ = new QLineEdit(this);
    password_->setEchoMode(QLineEdit::Password);
    Aggiungi_Campo(account_, "Text_Account", "Label_Account", "User name");
    Aggiungi_Campo(password_, "Text_Password", "Label_Password", "Password");

    auto* barra = new QToolBar(this);
    barra->setObjectName(QStringLiteral("Toolbar_Main"));
    barra->setIconSize(QSize(24, 24));
    QAction* esci =
        barra->addAction(Icona_Tema(QStringLiteral("esci")), QStringLiteral("Close without logging in"));
    QWidget* bottone_esci = barra->widgetForAction(esci);
    bottone_esci->setObjectName(QStringLiteral("KEY_ESCI"));
    bottone_esci->setFocusPolicy(Qt::TabFocus);
    connect(esci, &QAction::triggered, this, &QDialog::reject);
    Piede().insertWidget(0, barra);
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

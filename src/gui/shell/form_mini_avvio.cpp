#include "gui/shell/form_mini_avvio.h"

#include <QScreen>

#include "gui/platform/icone.h"
#include "ui_form_mini_avvio.h"

Form_Mini_Avvio::Form_Mini_Avvio(Sistema& sistema, const QString& versione)
    : QFrame(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      ui_(std::make_unique<Ui::Form_Mini_Avvio>()),
      sistema_(sistema),
      versione_(versione) {
    ui_->setupUi(this);
    setWindowIcon(Icona_Tema(QStringLiteral("logo")));
    ui_->Img_Sfondo->Predefinita(QStringLiteral("home"));
    QFont carattere = font();
    carattere.setPointSizeF(carattere.pointSizeF() * 1.9);
    carattere.setBold(true);
    ui_->Label2->setFont(carattere);
    ui_->Lbl_Status->setForegroundRole(QPalette::PlaceholderText);
    timer1_.setParent(this);
    timer2_.setParent(this);
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setInterval(100);
    timer2_.setObjectName(QStringLiteral("Timer2"));
    timer2_.setInterval(2000);
    connect(&timer1_, &QTimer::timeout, this, &Form_Mini_Avvio::Timer1_Timer);
    connect(&timer2_, &QTimer::timeout, this, &Form_Mini_Avvio::Timer2_Timer);
    move(screen()->availableGeometry().center() - rect().center());
}

Form_Mini_Avvio::~Form_Mini_Avvio() = default;

void Form_Mini_Avvio::Carica_Immagini_Form(const QString& immagine) {
    ui_->Img_Sfondo->Carica(immagine);
}

void Form_Mini_Avvio::Avanza(int millesimi) {
    ui_->PB->setValue(ui_->PB->maximum() * millesimi / 1000);
}

void Form_Mini_Avvio::showEvent(QShowEvent* evento) {
    QFrame::showEvent(evento);
    // A splash window isn't activated on every desktop: its first showing stands for the activation.
    if (!attivata_) {
        attivata_ = true;
        Attivazione();
    }
}

void Form_Mini_Avvio::Attivazione() {
    ui_->Label2->setText(TITOLO_PROGRAMMA + u' ' + versione_);
    sistema_.Esegui_Eventi();
    timer1_.start();
    timer2_.start();
    ui_->Lbl_Status->setText(QStringLiteral("Loading ..."));
    sistema_.Esegui_Eventi();
    pronta_ = true;
}

void Form_Mini_Avvio::Timer1_Timer() {
    ui_->PB->setValue(ui_->PB->value() >= ui_->PB->maximum() ? 1 : ui_->PB->value() + 1);
}

void Form_Mini_Avvio::Timer2_Timer() {
    timer1_.stop();
    for (int valore = ui_->PB->value(); valore <= ui_->PB->maximum(); ++valore)
        ui_->PB->setValue(valore);
    if (!pronta_) {
        timer1_.start();
        return;
    }
    timer2_.stop();
    emit Pronto();
}

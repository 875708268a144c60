#pragma once

#include <QWidget>

#include "core/localisation/collection_traduzioni.h"

/// A toolbar whose buttons are counted otherwise than by its actions: by the positions of the text catalogue,
/// also those that it doesn't have.
class Parti_Toolbar {
  public:
    virtual ~Parti_Toolbar() = default;
    virtual int Parti() const = 0;
    virtual QString Parte(int i) const = 0;
    virtual void Imposta_Parte(int i, const QString& testo) = 0;
};

/// A window of Qt as the text catalogue sees it. Its items are all named objects of the window, dialogs
/// over it excepted. "Label_Titolo_scheda(3)" is member 3 of the control array `Label_Titolo_scheda`.
class Finestra_Qt : public Finestra_Testi {
  public:
    explicit Finestra_Qt(QWidget& finestra) : finestra_(finestra) {}
    QString Nome() const override { return finestra_.objectName(); }
    QString Titolo() const override { return finestra_.windowTitle(); }
    void Imposta_Titolo(const QString& titolo) override { finestra_.setWindowTitle(titolo); }
    std::vector<std::unique_ptr<Oggetto_Form>> Oggetti() override;

  private:
    QWidget& finestra_;
};

/// The catalogue's type name of an object: "" for one that the catalogue has no word for.
QString Tipo_Oggetto(const QObject& oggetto);

#pragma once

#include <QLabel>

/// A label that acts, for mouse and keyboard: a click, or Tab to it and Enter or Space.
class Etichetta_Attiva : public QLabel {
    Q_OBJECT
  public:
    explicit Etichetta_Attiva(const QString& nome, QWidget* padre = nullptr);

  signals:
    void Attivata();

  protected:
    /// The keyboard came here by keys: only then the focus is shown.
    bool Fuoco_Visibile() const { return hasFocus() && da_tastiera_; }
    /// The focus came or went.
    virtual void Fuoco_Cambiato() { update(); }
    void Disegna_Fuoco(QPainter& pittore);

    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    bool premuta_ = false;
    bool da_tastiera_ = false;
};

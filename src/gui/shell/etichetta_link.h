#pragma once

#include <QIcon>
#include <QLabel>

/// A label that acts: a link with an icon before its text, for mouse and keyboard (Tab to it, Enter or
/// Space).
class Etichetta_Link : public QLabel {
    Q_OBJECT
  public:
    /// `nome` is the object's name, `icona` the name of one of the program's icons.
    Etichetta_Link(const QString& nome, const QString& testo, const QString& icona, QWidget* padre = nullptr);

  signals:
    void Attivata();

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void enterEvent(QEnterEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    void Sottolinea();

    QIcon icona_;
    bool premuta_ = false;
    bool da_tastiera_ = false;  ///< the keyboard came here by keys: only then the focus is shown
};

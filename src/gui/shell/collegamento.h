#pragma once

#include <QAbstractButton>
#include <QIcon>

/// A part of a page that acts as a button and doesn't look like one: a click, or Tab to it and Enter or
/// Space. The focus shows only when the keyboard came here by keys.
class Collegamento : public QAbstractButton {
    Q_OBJECT
  public:
    explicit Collegamento(const QString& nome, QWidget* padre = nullptr);

  protected:
    bool Fuoco_Visibile() const { return hasFocus() && da_tastiera_; }
    void Disegna_Fuoco(QPainter& pittore);
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;

  private:
    bool da_tastiera_ = false;
};

/// A link: a text with an icon before it.
class Etichetta_Link : public Collegamento {
    Q_OBJECT
  public:
    /// `nome` is the object's name, `icona` the name of one of the program's icons; "" for none.
    Etichetta_Link(const QString& nome, const QString& testo, const QString& icona, QWidget* padre = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* evento) override;
};

/// A picture that acts when it is clicked: one of the program's icons, or a picture file. Its property `tag`
/// holds the path of the file that stands behind it.
class Immagine_Attiva : public Collegamento {
    Q_OBJECT
    Q_PROPERTY(QString tag READ Tag)
  public:
    using Collegamento::Collegamento;
    /// Shows an icon of this many pixels; `tag` as it is handed in.
    void Icona(const QString& nome, int lato, const QString& tag = {});
    /// Shows a picture file stretched to the size; `tag` is its path.
    void Foto(const QString& file, const QSize& misura);
    QString Tag() const { return tag_; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QImage foto_;
    QString tag_;
};

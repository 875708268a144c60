#pragma once

#include <QImage>

#include "gui/platform/finestra_secondaria.h"

/// `Form_visualizza_Immagine`: one picture at the size of the window. It stays up beside the main window and
/// keeps its picture until it is given another.
class Form_visualizza_Immagine : public Finestra_Secondaria {
    Q_OBJECT
    Q_PROPERTY(QString tag READ Tag WRITE Tag)
  public:
    explicit Form_visualizza_Immagine(QWidget* padre = nullptr);
    /// Path of the picture file; `Ricarica_Immagine` shows it.
    QString Tag() const { return tag_; }
    void Tag(const QString& percorso) { tag_ = percorso; }
    /// Shows the picture of the tag's file; an empty window for one that can't be read.
    void Ricarica_Immagine();
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QString tag_;
    QImage immagine_;
};

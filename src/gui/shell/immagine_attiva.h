#pragma once

#include <QIcon>
#include <QImage>

#include "gui/shell/etichetta_attiva.h"

/// A picture that acts when it is clicked: one of the program's icons, or a picture file. Its property `tag`
/// holds the path of the file that stands behind it.
class Immagine_Attiva : public Etichetta_Attiva {
    Q_OBJECT
    Q_PROPERTY(QString tag READ Tag)
  public:
    using Etichetta_Attiva::Etichetta_Attiva;
    /// Shows an icon of this many pixels; `tag` as it is handed in.
    void Icona(const QString& nome, int lato, const QString& tag = {});
    /// Shows a picture file stretched to the size; `tag` is its path.
    void Foto(const QString& file, const QSize& misura);
    QString Tag() const { return tag_; }

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QIcon icona_;
    QImage foto_;
    QString tag_;
};

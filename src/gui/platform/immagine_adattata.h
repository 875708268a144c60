#pragma once

#include <QImage>
#include <QLabel>

/// A picture that fills its label as far as its proportions allow: a raster file, or one of the program's own
/// vector pictures in the palette's colours.
class Immagine_Adattata : public QLabel {
    Q_OBJECT
  public:
    explicit Immagine_Adattata(QWidget* padre = nullptr) : QLabel(padre) {}
    /// Name of the program's own picture that is shown without a file; "" for none.
    void Predefinita(const QString& nome);
    /// Shows a picture file; one that can't be read gives the own picture.
    void Carica(const QString& file);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;

  private:
    QString predefinita_;
    QImage immagine_;
};

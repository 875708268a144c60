#pragma once

#include <QPoint>
#include <QRectF>
#include <QSizeF>

/// How a page lies in a window: scale and place. Window coordinates are device-independent pixels.
class Vista_Pagina {
  public:
    /// Another page (empty for none), fitted into the window.
    void Imposta_Pagina(QSizeF pagina);
    /// Another size of the window. A fitted page is fitted again; else the middle of what is seen stays.
    void Imposta_Finestra(QSize finestra);

    /// Fits the whole page.
    void Adatta();
    /// Changes the scale; the page point under `perno` stays there.
    void Ingrandisci(double fattore, QPointF perno);
    /// Fits a rectangle of the window.
    void Ingrandisci_Area(const QRectF& area);
    /// Shows the page from this point on, in pixels of the scaled page; kept within it.
    void Scorri_A(QPointF origine);
    /// Scrolls as little as it takes to see an area of the page, in page units.
    void Porta_In_Vista(const QRectF& parte);

    bool Vuota() const { return pagina_.isEmpty(); }
    QSizeF Pagina() const { return pagina_; }
    QSize Finestra() const { return finestra_; }
    /// Pixels to a page unit.
    double Scala() const { return scala_; }
    /// The scale as a multiple of the one that fits the page.
    double Zoom() const { return Vuota() ? 1 : scala_ / Scala_Adattata(); }
    /// The window's corner in the scaled page, in whole pixels; negative where the page is smaller and stands
    /// centred.
    QPoint Origine() const { return origine_.toPoint(); }
    /// How far the page can be scrolled.
    QSize Corsa() const;

    QPointF In_Pagina(QPointF finestra) const { return (finestra + Origine()) / scala_; }
    QPointF In_Finestra(QPointF pagina) const { return pagina * scala_ - Origine(); }
    QRectF In_Finestra(const QRectF& parte) const {
        return {In_Finestra(parte.topLeft()), parte.size() * scala_};
    }

  private:
    double Scala_Adattata() const;
    void Sistema();

    QSizeF pagina_;
    QSize finestra_{100, 100};
    double scala_ = 1;
    QPointF origine_;
    bool adattata_ = true;
};

#include "gui/drawing/sorgente_pagina.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <cmath>

#include "canvas/disegnatore.h"
#include "canvas/superficie.h"

namespace {

/// The same part of the page at a scale that is within the limits.
Immagine_Pagina Richiesta(double scala, const QRect& area, double massima) {
    if (scala <= massima)
        return {{}, scala, area};
    const double f = massima / scala;
    return {
        {}, massima, QRectF(area.x() * f, area.y() * f, area.width() * f, area.height() * f).toAlignedRect()};
}

class Sorgente_Vettoriale : public Sorgente_Pagina {
  public:
    explicit Sorgente_Vettoriale(std::shared_ptr<const Documento_Tavola> documento)
        : documento_(std::move(documento)) {}

    QSizeF Pagina() const override { return documento_->Pagina(); }
    std::shared_ptr<const Documento_Tavola> Documento() const override { return documento_; }

    Immagine_Pagina Disegna(double scala, const QRect& area) override {
        if (!disegnatore_)
            disegnatore_ = std::make_unique<Disegnatore>(documento_->Testo(), documento_->Pagina());
        if (!disegnatore_->Valido())
            return {};
        const QSizeF pagina = Pagina();
        const double pixel = double(area.width()) * area.height();
        Immagine_Pagina risultato =
            Richiesta(scala, area,
                      std::min(std::sqrt(documento_->Pixel_Massimi() / (pagina.width() * pagina.height())),
                               scala * std::sqrt(documento_->Pixel_Insieme() / pixel)));
        QImage immagine(risultato.area.size(), QImage::Format_ARGB32_Premultiplied);
        if (immagine.isNull())
            return {};
        immagine.fill(Qt::white);
        disegnatore_->Disegna(
            Superficie_In_Memoria(Superficie_In_Memoria::Formato::COLORI, immagine.bits(), immagine.width(),
                                  immagine.height(), immagine.bytesPerLine())
                .Contesto(),
            QPointF(risultato.area.topLeft()) / risultato.scala, risultato.scala);
        immagine.reinterpretAsFormat(
            QImage::Format_RGB32);  // on white every pixel is opaque, and copies are quicker
        risultato.immagine = std::move(immagine);
        return risultato;
    }

  private:
    std::shared_ptr<const Documento_Tavola> documento_;
    std::unique_ptr<Disegnatore> disegnatore_;
};

class Sorgente_Raster : public Sorgente_Pagina {
  public:
    Sorgente_Raster(QString percorso, QSize pagina) : percorso_(std::move(percorso)), pagina_(pagina) {}

    QSizeF Pagina() const override { return pagina_; }

    Immagine_Pagina Disegna(double scala, const QRect& area) override {
        if (intera_.isNull()) {
            QImageReader lettore(percorso_);
            lettore.setDecideFormatFromContent(true);
            lettore.setAutoTransform(true);
            intera_ = lettore.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
            if (intera_.isNull())
                return {};
        }
        Immagine_Pagina risultato{QImage(area.size(), QImage::Format_RGB32), scala, area};
        if (risultato.immagine.isNull())
            return {};
        risultato.immagine.fill(Qt::white);
        QPainter pittore(&risultato.immagine);
        pittore.translate(-area.topLeft());
        if (scala < 1) {  // a smooth reduction looks at every pixel
            pittore.drawImage(0, 0,
                              intera_.scaled((QSizeF(intera_.size()) * scala).toSize().expandedTo({1, 1}),
                                             Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        } else {
            pittore.setRenderHint(QPainter::SmoothPixmapTransform,
                                  scala < 3);  // pixels show as what they are
            pittore.scale(scala, scala);
            pittore.drawImage(0, 0, intera_);
        }
        return risultato;
    }

  private:
    QString percorso_;
    QSize pagina_;
    QImage intera_;
};

std::shared_ptr<Sorgente_Pagina> Apri_Raster(const QString& percorso) {
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    if (!lettore.canRead() || lettore.format().startsWith("svg"))
        return nullptr;
    QSize pagina = lettore.size();
    if (lettore.transformation() & QImageIOHandler::TransformationRotate90)
        pagina.transpose();
    const double pixel = double(pagina.width()) * pagina.height();
    if (!pagina.isValid() || pixel < 1 || pixel > double(Limiti().pixel_immagini))
        return nullptr;
    return std::make_shared<Sorgente_Raster>(percorso, pagina);
}

}  // namespace

std::shared_ptr<Sorgente_Pagina> Apri_Pagina(const QString& percorso) {
    if (!QFileInfo(percorso).isFile())
        return nullptr;
    if (auto documento = Documento_Tavola::Da_File(percorso))
        return std::make_shared<Sorgente_Vettoriale>(std::move(documento));
    return Apri_Raster(percorso);
}

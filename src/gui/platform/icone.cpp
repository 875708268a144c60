#include "gui/platform/icone.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// The pictures lie in a static library: without this call the linker leaves them out. Outside the namespace,
// as the macro wants it.
static void Inizializza_Risorse() {
    Q_INIT_RESOURCE(icone);
}

namespace {

QColor Tra(const QColor& a, const QColor& b, double peso) {
    return QColor::fromRgbF(static_cast<float>(a.redF() * peso + b.redF() * (1 - peso)),
                            static_cast<float>(a.greenF() * peso + b.greenF() * (1 - peso)),
                            static_cast<float>(a.blueF() * peso + b.blueF() * (1 - peso)));
}

QByteArray Sorgente(const QString& nome) {
    Inizializza_Risorse();
    QFile file(QStringLiteral(":/viewer/icons/") + nome + QStringLiteral(".svg"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The palette in which a picture is drawn: on a selected row the highlight is the background.
QPalette Tavolozza(const QPalette& base, QIcon::Mode modo) {
    QPalette tavolozza = base;
    if (modo == QIcon::Disabled) {
        tavolozza.setCurrentColorGroup(QPalette::Disabled);
        tavolozza.setColor(QPalette::Highlight, tavolozza.color(QPalette::Disabled, QPalette::WindowText));
    } else if (modo == QIcon::Selected) {
        const QColor sfondo = base.color(QPalette::Highlight), testo = base.color(QPalette::HighlightedText);
        tavolozza.setColor(QPalette::Window, sfondo);
        tavolozza.setColor(QPalette::Base, sfondo);
        tavolozza.setColor(QPalette::WindowText, testo);
        tavolozza.setColor(QPalette::Highlight, testo);
    }
    return tavolozza;
}

QByteArray Colorata(const QString& nome, const QPalette& tavolozza) {
    const QColor sfondo = tavolozza.color(QPalette::Window);
    const QColor testo = tavolozza.color(QPalette::WindowText);
    const QColor accento = tavolozza.color(QPalette::Highlight);
    QByteArray svg = Sorgente(nome);
    svg.replace("#101010", testo.name().toLatin1());
    // An accent is mixed with the text so that it keeps its contrast on both kinds of desktop.
    svg.replace("#2f6fb0", Tra(accento, testo, 0.85).name().toLatin1());
    svg.replace("#f4f6f8", tavolozza.color(QPalette::Base).name().toLatin1());
    svg.replace("#c9d2dc", Tra(Tra(accento, testo, 0.4), sfondo, 0.25).name().toLatin1());
    return svg;
}

class Motore_Icona : public QIconEngine {
  public:
    explicit Motore_Icona(QString nome) : nome_(std::move(nome)) {}
    void paint(QPainter* pittore, const QRect& riquadro, QIcon::Mode modo, QIcon::State stato) override {
        const double densita = pittore->device()->devicePixelRatioF();
        pittore->drawPixmap(riquadro, pixmap(riquadro.size() * densita, modo, stato));
    }
    /// `misura` in device pixels. Drawn once for each size and colour: a tree asks for it row by row.
    QPixmap pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State) override {
        const QPalette tavolozza = QApplication::palette();
        const QString chiave = QStringLiteral("viewer-icon %1 %2x%3 %4 %5")
                                   .arg(nome_)
                                   .arg(misura.width())
                                   .arg(misura.height())
                                   .arg(modo)
                                   .arg(tavolozza.cacheKey());
        QPixmap immagine;
        if (QPixmapCache::find(chiave, &immagine))
            return immagine;
        immagine = QPixmap(misura);
        immagine.fill(Qt::transparent);
        QPainter pittore(&immagine);
        Disegna_Vettoriale(pittore, nome_, QRectF(QPointF(0, 0), misura), tavolozza, modo);
        pittore.end();
        QPixmapCache::insert(chiave, immagine);
        return immagine;
    }
    QIconEngine* clone() const override { return new Motore_Icona(nome_); }
    QString key() const override { return QStringLiteral("Motore_Icona"); }

  private:
    QString nome_;
};

}  // namespace

void Disegna_Vettoriale(QPainter& pittore, const QString& nome, const QRectF& riquadro,
                        const QPalette& tavolozza, QIcon::Mode modo) {
    QSvgRenderer disegno(Colorata(nome, Tavolozza(tavolozza, modo)));
    if (!disegno.isValid())
        return;
    disegno.setAspectRatioMode(Qt::KeepAspectRatio);
    pittore.setRenderHint(QPainter::Antialiasing);
    disegno.render(&pittore, riquadro);
}

double Rapporto_Vettoriale(const QString& nome) {
    QSvgRenderer disegno(Sorgente(nome));
    const QSizeF misura = disegno.viewBoxF().size();
    return misura.isEmpty() ? 1.0 : misura.width() / misura.height();
}

QIcon Icona_Tema(const QString& nome) {
    return QIcon(new Motore_Icona(nome));
}

#include "gui/drawing/dipinto_pagina.h"

#include <QPainter>

void Dipinto_Pagina::Imposta_Mappa(std::shared_ptr<Mappa_HotSpot> mappa, const Stati_HotSpot& stati) {
    mappa_ = std::move(mappa);
    pittore_ = std::make_unique<Pittore_HotSpot>(*mappa_);
    if (!panoramica_.Vuoto())
        pittore_->Imposta_Fondo(panoramica_.Pagina());
    Sporca_Attivi(panoramica_, stati);
    Sporca_Attivi(nitida_, stati);
}

void Dipinto_Pagina::Imposta_Immagine(const Immagine_Pagina& immagine, const Stati_HotSpot& stati) {
    nitida_.Imposta(immagine);
    if (panoramica_.Vuoto()) {
        panoramica_.Imposta(immagine);
        if (pittore_)
            pittore_->Imposta_Fondo(immagine);
    }
    Sporca_Attivi(nitida_, stati);
}

void Dipinto_Pagina::Sporca(int gruppo) {
    if (mappa_)
        for (const int elemento : mappa_->Documento().Gruppi()[static_cast<size_t>(gruppo)].elementi)
            for (Foglio* foglio : {&panoramica_, &nitida_})
                foglio->Sporca(mappa_->Ingombro(elemento));
}

void Dipinto_Pagina::Sporca_Attivi(Foglio& foglio, const Stati_HotSpot& stati) {
    if (mappa_)
        for (const int gruppo : stati.Attivi())
            for (const int elemento : mappa_->Documento().Gruppi()[static_cast<size_t>(gruppo)].elementi)
                foglio.Sporca(mappa_->Ingombro(elemento));
}

void Dipinto_Pagina::Tingi(Foglio& foglio, const Stati_HotSpot& stati, double densita) {
    if (foglio.Vuoto() || !mappa_)
        return;
    const double scala = foglio.Pagina().scala, bordo = BORDO_TINTA * densita;
    foglio.Ricomponi(bordo, [&](QPainter& pittore, const QRegion& parti) {
        for (const int gruppo : stati.Attivi()) {
            const Aspetto_HotSpot aspetto = stati.Aspetto(gruppo);
            if (aspetto.Spoglio())
                continue;
            for (const int elemento : mappa_->Documento().Gruppi()[static_cast<size_t>(gruppo)].elementi) {
                const QRectF& r = mappa_->Ingombro(elemento);
                if (parti.intersects(QRectF(r.topLeft() * scala, r.size() * scala)
                                         .adjusted(-bordo, -bordo, bordo, bordo)
                                         .toAlignedRect()))
                    pittore_->Tinge(pittore, elemento, aspetto, scala, densita);
            }
        }
    });
}

namespace {

/// Draws a picture stretched to the page as it lies in the window.
void Dipingi_Scalato(QPainter& pittore, const Foglio& foglio, const QRectF& pagina, double scala) {
    const Immagine_Pagina& p = foglio.Pagina();
    const double rapporto = scala / p.scala;
    pittore.drawImage(
        QRectF(pagina.topLeft() + QPointF(p.area.topLeft()) * rapporto, QSizeF(p.area.size()) * rapporto),
        foglio.Tinta());
}

}  // namespace

void Dipinto_Pagina::Dipingi(QPainter& pittore, const Vista_Pagina& vista, double densita,
                             const QPalette& colori, const Stati_HotSpot& stati,
                             const std::vector<int>& contornati, bool fuoco) {
    // In device pixels, so that a picture drawn for them is copied as it is.
    pittore.scale(1 / densita, 1 / densita);
    const QColor sfondo = colori.color(QPalette::Window).darker(112);
    const QRect finestra(QPoint(0, 0), (QSizeF(vista.Finestra()) * densita).toSize());
    if (vista.Vuota()) {
        pittore.fillRect(finestra, sfondo);
        return;
    }
    Tingi(nitida_, stati, densita);
    const double scala = vista.Scala() * densita;
    const QRectF pagina((-QPointF(vista.Origine()) * densita).toPoint(), vista.Pagina() * scala);
    const QRect carta = pagina.toAlignedRect();
    for (const QRect& fuori : QRegion(finestra) - carta)
        pittore.fillRect(fuori, sfondo);

    const bool nitido = !nitida_.Vuoto() && nitida_.Pagina().scala == scala;
    const QPoint angolo = pagina.topLeft().toPoint();
    const QRect coperta = nitido ? nitida_.Pagina().area.translated(angolo) : QRect();
    if (const QRegion scoperta = QRegion(carta & finestra) - coperta; !scoperta.isEmpty()) {
        pittore.save();
        pittore.setClipRegion(scoperta);
        pittore.fillRect(carta, Qt::white);
        pittore.setRenderHint(QPainter::SmoothPixmapTransform);
        Tingi(panoramica_, stati, densita);
        if (!panoramica_.Vuoto())
            Dipingi_Scalato(pittore, panoramica_, pagina, scala);
        if (!nitido && !nitida_.Vuoto())
            Dipingi_Scalato(pittore, nitida_, pagina, scala);
        pittore.restore();
    }
    if (nitido)
        pittore.drawImage(coperta.topLeft(), nitida_.Tinta());

    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.translate(pagina.topLeft());
    const QColor linea = fuoco ? colori.color(QPalette::Highlight) : QColor::fromRgb(VERDE).darker(130);
    if (pittore_)
        for (const int elemento : contornati)
            pittore_->Contorna(pittore, elemento, linea, scala, fuoco ? 1.5 * densita : densita);
}

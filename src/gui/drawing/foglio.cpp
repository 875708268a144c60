#include "gui/drawing/foglio.h"

#include <QPainter>

void Foglio::Imposta(const Immagine_Pagina& pagina) {
    pagina_ = pagina;
    tinta_ = pagina.immagine;  // shared until something is tinted
    sporche_.clear();
}

void Foglio::Sporca(const QRectF& parte) {
    constexpr size_t MOLTE = 5000;
    if (Vuoto() || parte.isEmpty() || !parte.intersects(pagina_.Parte()))
        return;
    if (sporche_.size() >= MOLTE)
        sporche_ = {pagina_.Parte()};
    sporche_.push_back(parte);
}

void Foglio::Ricomponi(double bordo, const std::function<void(QPainter&, const QRectF&)>& tingi) {
    if (sporche_.empty())
        return;
    const double s = pagina_.scala;
    QPainter pittore(&tinta_);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.translate(-pagina_.area.topLeft());
    for (const QRectF& sporca : std::exchange(sporche_, {})) {
        const QRectF parte = sporca.adjusted(-bordo, -bordo, bordo, bordo);
        const QRect area = QRectF(parte.topLeft() * s, parte.size() * s).toAlignedRect() & pagina_.area;
        if (area.isEmpty())
            continue;
        pittore.setClipRect(area);
        pittore.drawImage(area, pagina_.immagine, area.translated(-pagina_.area.topLeft()));
        tingi(pittore, parte);
    }
}

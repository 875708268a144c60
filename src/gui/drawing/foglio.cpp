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
    if (!sporche_.empty() && sporche_.back() == parte)
        return;  // marked and coloured in one go
    if (sporche_.size() >= MOLTE)
        sporche_ = {pagina_.Parte()};
    sporche_.push_back(parte);
}

void Foglio::Ricomponi(double bordo, const std::function<void(QPainter&, const QRegion&)>& tingi) {
    QRegion parti;
    const double s = pagina_.scala;
    for (const QRectF& sporca : std::exchange(sporche_, {}))
        parti += QRectF(sporca.topLeft() * s, sporca.size() * s)
                     .adjusted(-bordo, -bordo, bordo, bordo)
                     .toAlignedRect() &
                 pagina_.area;
    if (parti.isEmpty())
        return;
    QPainter pittore(&tinta_);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.translate(-pagina_.area.topLeft());
    for (const QRect& parte : parti)
        pittore.drawImage(parte, pagina_.immagine, parte.translated(-pagina_.area.topLeft()));
    pittore.setClipRegion(parti);
    tingi(pittore, parti);
}

// What the canvas tells of itself to tests and drivers.

#include "gui/drawing/lavagna_widget.h"

/// The hotspots' places, waited for if need be; null for a page without hotspots.
Mappa_HotSpot* Lavagna_Widget::Mappa_Attesa() {
    if (Chiedi_Mappa()) {
        const auto mappa = mappa_chiesta_.Attendi();
        mappa_chiesta_.Lascia();
        Ricevi_Mappa(mappa);
    }
    return mappa_.get();
}

Stato_Lavagna Lavagna_Widget::Introspezione() {
    Stato_Lavagna stato;
    stato.documento = percorso_;
    stato.pagina = vista_.Pagina();
    stato.zoom = vista_.Zoom();
    stato.modo = modo_ == Modo::SELEZIONA ? QStringLiteral("SELEZIONA") : QStringLiteral("ZOOM_WINDOWS");
    for (auto it = opzioni_.cbegin(); it != opzioni_.cend(); ++it)
        stato.opzioni[it.key()] = it.value();
    if (documento_)
        stato.lasciato_fuori = documento_->Lasciato_Fuori();
    Mappa_HotSpot* mappa = Mappa_Attesa();
    if (!mappa)
        return stato;
    for (size_t e = 0; e < documento_->Elementi().size(); ++e) {
        const Elemento_HotSpot& elemento = documento_->Elementi()[e];
        const Stato_Gruppo& gruppo = stati_[elemento.gruppo];
        stato.hotspot.push_back({elemento.nome,
                                 documento_->Gruppi()[static_cast<size_t>(elemento.gruppo)].stringa,
                                 vista_.In_Finestra(mappa->Ingombro(static_cast<int>(e))).toAlignedRect(),
                                 gruppo.segnato, gruppo.colore, gruppo.evidenza});
    }
    return stato;
}

std::vector<int> Lavagna_Widget::Elementi_Di(const QString& nome) const {
    std::vector<int> elementi;
    if (documento_)
        for (size_t e = 0; e < documento_->Elementi().size(); ++e)
            if (documento_->Elementi()[e].nome == nome ||
                documento_->Gruppi()[static_cast<size_t>(documento_->Elementi()[e].gruppo)].stringa == nome)
                elementi.push_back(static_cast<int>(e));
    return elementi;
}

void Lavagna_Widget::Mostra_HotSpot(const QString& nome) {
    Mappa_HotSpot* mappa = Mappa_Attesa();
    for (const int elemento : Elementi_Di(nome))
        if (mappa && !mappa->Ingombro(elemento).isNull()) {
            vista_.Porta_In_Vista(mappa->Ingombro(elemento));
            Vista_Cambiata();
            return;
        }
}

std::optional<QPoint> Lavagna_Widget::Punto_HotSpot(const QString& nome) {
    Mappa_HotSpot* mappa = Mappa_Attesa();
    if (!mappa)
        return {};
    for (const int elemento : Elementi_Di(nome)) {
        std::optional<QPoint> pixel;
        mappa->Punto_Scoperto(elemento, [&](QPointF punto) {
            pixel = vista_.In_Finestra(punto).toPoint();
            if (!viewport()->rect().contains(*pixel) ||
                mappa->Elemento_In(vista_.In_Pagina(*pixel)) != elemento)
                pixel.reset();
            return pixel.has_value();
        });
        if (pixel)
            return pixel;
    }
    return {};
}

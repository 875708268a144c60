// Commands about the drawing.

#include <QApplication>
#include <QMouseEvent>

#include "driver/driver.h"
#include "driver/oggetti.h"

namespace {

QJsonObject HotSpot_Json(const Stato_Lavagna::HotSpot& h) {
    const bool evidente = h.evidenza.has_value();
    return {{"name", h.nome},
            {"string", h.stringa},
            {"bounds", In_Json(h.area)},
            {"marked", h.segnato},
            {"colour", h.colore ? static_cast<qint64>(*h.colore) : -1},
            {"highlighted", evidente},
            {"highlight_colour", evidente ? static_cast<qint64>(*h.evidenza) : -1}};
}

/// The point of the canvas where the mouse reaches a hotspot; what lies outside the view is scrolled to.
QPoint Posto_HotSpot(Lavagna_Widget& lavagna, const QString& nome) {
    if (const auto punto = lavagna.Punto_HotSpot(nome))
        return *punto;
    lavagna.Mostra_HotSpot(nome);
    if (const auto punto = lavagna.Punto_HotSpot(nome))
        return *punto;
    throw Errore_Comando(u"hotspot %1 isn't there, or others cover it"_qs.arg(nome));
}

/// The test library's click takes the point (0, 0) for the middle of the widget: a hotspot may well lie
/// there.
void Manda(QWidget& widget, QEvent::Type tipo, const QPoint& punto) {
    const bool mossa = tipo == QEvent::MouseMove;
    QMouseEvent evento(tipo, punto, widget.mapToGlobal(QPointF(punto)), mossa ? Qt::NoButton : Qt::LeftButton,
                       mossa || tipo == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                       Qt::NoModifier);
    QApplication::sendEvent(&widget, &evento);
}

void Evento_HotSpot(Lavagna_Widget& lavagna, const QString& nome, const QString& evento) {
    Richiedi_Usabile(lavagna);
    QWidget& finestra = *lavagna.viewport();
    if (evento == u"leave") {
        QEvent uscita(QEvent::Leave);
        QApplication::sendEvent(&finestra, &uscita);
        return;
    }
    if (evento != u"enter" && evento != u"click" && evento != u"double_click")
        throw Errore_Comando(u"no event %1"_qs.arg(evento));
    const QPoint punto = Posto_HotSpot(lavagna, nome);
    Manda(finestra, QEvent::MouseMove, punto);
    if (evento == u"enter")
        return;
    Manda(finestra, QEvent::MouseButtonPress, punto);
    Manda(finestra, QEvent::MouseButtonRelease, punto);
    if (evento == u"double_click") {
        Manda(finestra, QEvent::MouseButtonDblClick, punto);
        Manda(finestra, QEvent::MouseButtonRelease, punto);
    }
}

}  // namespace

/// Notes down what the canvas tells, on its way to whom it tells it.
void Driver::Ascolta_Tavola() {
    if (ascolta_tavola_ || !applicazione_.Finestra())
        return;
    ascolta_tavola_ = true;
    Lavagna::Eventi& eventi = Finestra().Tavola().Evento;
    const auto annota = [this](const char* evento, const QString& nome, const QString& stringa) {
        eventi_tavola_.append(QJsonObject{{"event", evento}, {"name", nome}, {"string", stringa}});
    };
    eventi.Mouse_Su_HotSpot = [annota, poi = eventi.Mouse_Su_HotSpot](qint16 stato, const QString& nome,
                                                                      const QString& stringa) {
        annota(stato == 0 ? "enter" : "leave", nome, stringa);
        poi(stato, nome, stringa);
    };
    const auto inoltra = [annota](const char* evento, auto& azione) {
        azione = [annota, evento, poi = azione](const QString& nome, const QString& stringa) {
            annota(evento, nome, stringa);
            return poi(nome, stringa);
        };
    };
    inoltra("click", eventi.Click_Su_HotSpot);
    inoltra("double_click", eventi.Doppio_Click_Su_HotSpot);
}

void Driver::Registra_Tavola() {
    Comanda("canvas", CON_FINESTRA, [this](const QJsonObject&) {
        Lavagna_Widget& lavagna = Finestra().Tavola();
        const Stato_Lavagna stato = lavagna.Introspezione();
        QJsonArray hotspot;
        for (const Stato_Lavagna::HotSpot& h : stato.hotspot)
            hotspot.append(HotSpot_Json(h));
        QJsonObject opzioni;
        for (auto it = stato.opzioni.cbegin(); it != stato.opzioni.cend(); ++it)
            opzioni.insert(it.key(), QJsonValue::fromVariant(it.value()));
        return QJsonObject{{"visible", lavagna.isVisible()},
                           {"document", stato.documento},
                           {"page", QJsonArray{stato.pagina.width(), stato.pagina.height()}},
                           {"zoom", stato.zoom},
                           {"mode", stato.modo},
                           {"options", opzioni},
                           {"hotspots", hotspot},
                           {"events", std::exchange(eventi_tavola_, {})}};
    });
    Comanda("hotspot", CON_FINESTRA, [this](const QJsonObject& c) {
        Evento_HotSpot(Finestra().Tavola(), c["name"].toString(), c["event"].toString());
    });
}

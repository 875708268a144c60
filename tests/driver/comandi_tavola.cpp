// Commands about the drawing.

#include <QApplication>
#include <QMouseEvent>

#include "driver/driver.h"
#include "driver/oggetti.h"

namespace {

QJsonArray Rettangolo(const QRect& r) {
    return {r.x(), r.y(), r.width(), r.height()};
}

QJsonObject HotSpot_Json(const Stato_Lavagna::HotSpot& h) {
    const bool evidente = h.evidenza.has_value();
    return {{QStringLiteral("name"), h.nome},
            {QStringLiteral("string"), h.stringa},
            {QStringLiteral("bounds"), Rettangolo(h.area)},
            {QStringLiteral("marked"), h.segnato},
            {QStringLiteral("colour"), h.colore ? static_cast<qint64>(*h.colore) : -1},
            {QStringLiteral("highlighted"), evidente},
            {QStringLiteral("highlight_colour"), evidente ? static_cast<qint64>(*h.evidenza) : -1}};
}

/// The point of the canvas where the mouse reaches a hotspot; what lies outside the view is scrolled to.
QPoint Posto_HotSpot(Lavagna_Widget& lavagna, const QString& nome) {
    if (const auto punto = lavagna.Punto_HotSpot(nome))
        return *punto;
    lavagna.Mostra_HotSpot(nome);
    if (const auto punto = lavagna.Punto_HotSpot(nome))
        return *punto;
    throw Errore_Comando(QStringLiteral("hotspot %1 isn't there, or others cover it").arg(nome));
}

void Muovi(QWidget& widget, const QPoint& punto) {
    QMouseEvent mossa(QEvent::MouseMove, punto, widget.mapToGlobal(QPointF(punto)), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &mossa);
}

/// The test library's click takes the point (0, 0) for the middle of the widget: a hotspot may well lie
/// there.
void Premi(QWidget& widget, QEvent::Type tipo, const QPoint& punto) {
    const bool giu = tipo != QEvent::MouseButtonRelease;
    QMouseEvent evento(tipo, punto, widget.mapToGlobal(QPointF(punto)), Qt::LeftButton,
                       giu ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
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
        throw Errore_Comando(QStringLiteral("no event %1").arg(evento));
    const QPoint punto = Posto_HotSpot(lavagna, nome);
    Muovi(finestra, punto);
    if (evento == u"enter")
        return;
    Premi(finestra, QEvent::MouseButtonPress, punto);
    Premi(finestra, QEvent::MouseButtonRelease, punto);
    if (evento == u"double_click") {
        Premi(finestra, QEvent::MouseButtonDblClick, punto);
        Premi(finestra, QEvent::MouseButtonRelease, punto);
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
        eventi_tavola_.append(QJsonObject{{QStringLiteral("event"), QLatin1String(evento)},
                                          {QStringLiteral("name"), nome},
                                          {QStringLiteral("string"), stringa}});
    };
    eventi.Mouse_Su_HotSpot = [annota, poi = eventi.Mouse_Su_HotSpot](qint16 stato, const QString& nome,
                                                                      const QString& stringa) {
        annota(stato == 0 ? "enter" : "leave", nome, stringa);
        poi(stato, nome, stringa);
    };
    eventi.Click_Su_HotSpot = [annota, poi = eventi.Click_Su_HotSpot](const QString& nome,
                                                                      const QString& stringa) {
        annota("click", nome, stringa);
        return poi(nome, stringa);
    };
    eventi.Doppio_Click_Su_HotSpot = [annota, poi = eventi.Doppio_Click_Su_HotSpot](const QString& nome,
                                                                                    const QString& stringa) {
        annota("double_click", nome, stringa);
        return poi(nome, stringa);
    };
}

void Driver::Registra_Tavola() {
    comandi_[QStringLiteral("canvas")] = {[this](const QJsonObject&) -> Esito {
        Lavagna_Widget& lavagna = Finestra().Tavola();
        const Stato_Lavagna stato = lavagna.Introspezione();
        QJsonArray hotspot;
        for (const Stato_Lavagna::HotSpot& h : stato.hotspot)
            hotspot.append(HotSpot_Json(h));
        QJsonObject opzioni;
        for (auto it = stato.opzioni.cbegin(); it != stato.opzioni.cend(); ++it)
            opzioni.insert(it.key(), QJsonValue::fromVariant(it.value()));
        return QJsonObject{{QStringLiteral("visible"), lavagna.isVisible()},
                           {QStringLiteral("document"), stato.documento},
                           {QStringLiteral("page"), QJsonArray{stato.pagina.width(), stato.pagina.height()}},
                           {QStringLiteral("zoom"), stato.zoom},
                           {QStringLiteral("mode"), stato.modo},
                           {QStringLiteral("options"), opzioni},
                           {QStringLiteral("hotspots"), hotspot},
                           {QStringLiteral("events"), std::exchange(eventi_tavola_, {})}};
    }};
    comandi_[QStringLiteral("hotspot")] = {[this](const QJsonObject& c) -> Esito {
        Evento_HotSpot(Finestra().Tavola(), c.value(QStringLiteral("name")).toString(),
                       c.value(QStringLiteral("event")).toString());
        return QJsonObject{};
    }};
}

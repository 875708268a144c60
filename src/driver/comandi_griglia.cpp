// Commands about the grids.

#include <QHeaderView>
#include <QTest>

#include "driver/driver.h"
#include "driver/oggetti.h"
#include "gui/parts_tables/vista_griglia.h"

namespace {

Vista_Griglia& Trova_Griglia(const QJsonObject& comando) {
    const QString nome = comando["object"].toString();
    auto* griglia = qobject_cast<Vista_Griglia*>(&Trova_Oggetto(nome));
    if (!griglia)
        throw Errore_Comando(u"%1 is no grid"_qs.arg(nome));
    return *griglia;
}

QJsonObject Cella_Json(const Vista_Griglia& vista, int riga, int colonna) {
    const Cella& cella = vista.Dati().At(riga, colonna);
    // The text is the one on the screen, the rest has no other place than the grid itself.
    return {{"text", vista.model()->index(riga - 1, colonna).data().toString()},
            {"tag", vista.Tag().Contiene(riga, colonna) ? vista.Tag().At(riga, colonna) : QString()},
            {"picture", cella.Picture},
            {"bold", cella.Bold},
            {"colour", cella.Colore}};
}

QJsonObject Contenuto(const Vista_Griglia& vista) {
    const Griglia& dati = vista.Dati();
    QJsonArray titoli, immagini, larghezze, allineamenti, righe;
    for (int c = 0; c < dati.Cols(); ++c) {
        titoli.append(vista.model()->headerData(c, Qt::Horizontal).toString());
        immagini.append(dati.At(0, c).Picture);
        larghezze.append(dati.ColWidth(c));
        allineamenti.append(static_cast<int>(dati.ColAlignment(c)));
    }
    for (int r = 1; r < dati.Rows(); ++r) {
        QJsonArray riga;
        for (int c = 0; c < dati.Cols(); ++c)
            riga.append(Cella_Json(vista, r, c));
        righe.append(riga);
    }
    return {{"visible", vista.isVisible()}, {"titles", titoli},           {"title_pictures", immagini},
            {"widths", larghezze},          {"alignments", allineamenti}, {"rows", righe}};
}

/// The widget and the point in it where a cell is; row 0 is the header.
std::pair<QWidget*, QPoint> Posto_Cella(Vista_Griglia& vista, const QJsonObject& comando) {
    Richiedi_Usabile(vista);
    const int riga = comando["row"].toInt(-1);
    const int colonna = comando["col"].toInt(-1);
    if (riga < 0 || riga >= vista.Dati().Rows() || colonna < 0 || colonna >= vista.Dati().Cols())
        throw Errore_Comando(u"no such cell"_qs);
    if (riga == 0) {
        QHeaderView& testata = *vista.horizontalHeader();
        return {testata.viewport(),
                QPoint(testata.sectionViewportPosition(colonna) + testata.sectionSize(colonna) / 2,
                       testata.height() / 2)};
    }
    const QModelIndex indice = vista.model()->index(riga - 1, colonna);
    vista.scrollTo(indice);
    return {vista.viewport(), vista.visualRect(indice).intersected(vista.viewport()->rect()).center()};
}

}  // namespace

void Driver::Registra_Griglia() {
    Comanda("grid", CON_FINESTRA, [](const QJsonObject& c) { return Contenuto(Trova_Griglia(c)); });
    Comanda("click_cell", CON_FINESTRA, [](const QJsonObject& c) {
        const auto [widget, punto] = Posto_Cella(Trova_Griglia(c), c);
        QTest::mouseMove(widget, punto);
        QTest::mouseClick(widget, Qt::LeftButton, {}, punto);
    });
    Comanda("hover_cell", CON_FINESTRA, [](const QJsonObject& c) {
        Vista_Griglia& vista = Trova_Griglia(c);
        const auto [widget, punto] = Posto_Cella(vista, c);
        QTest::mouseMove(widget, punto);
        return QJsonObject{{"pointer", static_cast<int>(vista.Puntatore_Mostrato())}};
    });
}

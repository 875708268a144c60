// Commands about the grids.

#include <QHeaderView>
#include <QTest>

#include "driver/driver.h"
#include "driver/oggetti.h"
#include "gui/parts_tables/vista_griglia.h"

namespace {

Vista_Griglia& Trova_Griglia(const QJsonObject& comando) {
    const QString nome = comando.value(QStringLiteral("object")).toString();
    auto* griglia = qobject_cast<Vista_Griglia*>(&Trova_Oggetto(nome));
    if (!griglia)
        throw Errore_Comando(QStringLiteral("%1 is no grid").arg(nome));
    return *griglia;
}

QString Tag_Di(const Vista_Griglia& vista, int riga, int colonna) {
    const bool presente = riga <= vista.Tag().Ultima_Riga() && colonna <= Tag_Griglia::ULTIMA_COLONNA;
    return presente ? vista.Tag().At(riga, colonna) : QString();
}

QJsonObject Cella_Json(const Vista_Griglia& vista, int riga, int colonna) {
    const Cella& cella = vista.Dati().At(riga, colonna);
    // The text is the one on the screen, the rest has no other place than the grid itself.
    const QString testo = vista.model()->index(riga - 1, colonna).data().toString();
    return {{QStringLiteral("text"), testo},
            {QStringLiteral("tag"), Tag_Di(vista, riga, colonna)},
            {QStringLiteral("picture"), cella.Picture},
            {QStringLiteral("bold"), cella.Bold},
            {QStringLiteral("colour"), cella.Colore}};
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
    return {{QStringLiteral("visible"), vista.isVisible()}, {QStringLiteral("titles"), titoli},
            {QStringLiteral("title_pictures"), immagini},   {QStringLiteral("widths"), larghezze},
            {QStringLiteral("alignments"), allineamenti},   {QStringLiteral("rows"), righe}};
}

/// The widget and the point in it where a cell is; row 0 is the header.
std::pair<QWidget*, QPoint> Posto_Cella(Vista_Griglia& vista, const QJsonObject& comando) {
    Richiedi_Usabile(vista);
    const int riga = comando.value(QStringLiteral("row")).toInt(-1);
    const int colonna = comando.value(QStringLiteral("col")).toInt(-1);
    if (riga < 0 || riga >= vista.Dati().Rows() || colonna < 0 || colonna >= vista.Dati().Cols())
        throw Errore_Comando(QStringLiteral("no such cell"));
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
    comandi_[QStringLiteral("grid")] = {
        [](const QJsonObject& c) -> Esito { return Contenuto(Trova_Griglia(c)); }};
    comandi_[QStringLiteral("click_cell")] = {[](const QJsonObject& c) -> Esito {
        const auto [widget, punto] = Posto_Cella(Trova_Griglia(c), c);
        QTest::mouseMove(widget, punto);
        QTest::mouseClick(widget, Qt::LeftButton, {}, punto);
        return QJsonObject{};
    }};
    comandi_[QStringLiteral("hover_cell")] = {[](const QJsonObject& c) -> Esito {
        Vista_Griglia& vista = Trova_Griglia(c);
        const auto [widget, punto] = Posto_Cella(vista, c);
        QTest::mouseMove(widget, punto);
        return QJsonObject{{QStringLiteral("pointer"), vista.Dati().MousePointer}};
    }};
}

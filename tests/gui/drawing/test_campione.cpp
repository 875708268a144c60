// The drawings of the sample catalogue: the mouse reaches every hotspot of each.

#include <QDirIterator>

#include "gui/drawing/disegni.h"

namespace {

class Campione : public Con_Lavagna {
  protected:
    void Raggiungi_Tutti() {
        QStringList stringhe;
        for (const Stato_Lavagna::HotSpot& h : lavagna.Introspezione().hotspot)
            stringhe << h.stringa;
        stringhe.removeDuplicates();
        for (const QString& stringa : stringhe) {
            SCOPED_TRACE(qPrintable(stringa));
            auto punto = lavagna.Punto_HotSpot(stringa);
            if (!punto) {  // outside the view
                lavagna.Mostra_HotSpot(stringa);
                punto = lavagna.Punto_HotSpot(stringa);
            }
            ASSERT_TRUE(punto.has_value());
            Eventi();
            Muovi(*punto);
            Clicca(*punto);
            const QStringList clic = Eventi("click");
            ASSERT_EQ(clic.size(), 1);
            EXPECT_EQ(clic[0].section(' ', -1), stringa.section(' ', -1));
            ++raggiunti;
        }
    }
    int raggiunti = 0;
};

TEST_F(Campione, EveryHotspotIsReachedByTheMouse) {
    lavagna.resize(900, 600);
    int tavole = 0;
    QDirIterator file(SAMPLE, {"*.svg"}, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        Carica(file.next());
        SCOPED_TRACE(qPrintable(file.fileName()));
        if (lavagna.Introspezione().hotspot.empty())
            continue;
        Raggiungi_Tutti();
        if (++tavole % 10 != 0)
            continue;
        for (const char* zoom : {"ZOOM_PIU", "ZOOM_MENO"}) {
            SCOPED_TRACE(zoom);
            Esegui("ZOOM_PAGINA");
            Esegui(zoom, 4);
            Raggiungi_Tutti();
        }
    }
    EXPECT_GE(tavole, 30);
    EXPECT_GE(raggiunti, tavole * 8);
}

}  // namespace

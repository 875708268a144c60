// Drawings of the sample catalogue: the mouse reaches every hotspot.

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
    for (const char* file : {"tz1010.svg", "tz2010.svg", "tz2310.svg", "tz6220.svg"}) {
        SCOPED_TRACE(file);
        Carica(QString(SAMPLE "/disegni/") + file);
        raggiunti = 0;
        Raggiungi_Tutti();
        EXPECT_GE(raggiunti, 8);
    }
    for (const char* zoom : {"ZOOM_PIU", "ZOOM_MENO"}) {
        SCOPED_TRACE(zoom);
        Esegui("ZOOM_PAGINA");
        Esegui(zoom, 4);
        Raggiungi_Tutti();
    }
}

}  // namespace

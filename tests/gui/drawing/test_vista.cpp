#include "disegni.h"
#include "gui/drawing/vista_pagina.h"

namespace {

Vista_Pagina Vista(QSizeF pagina = {400, 300}, QSize finestra = {412, 312}) {
    Vista_Pagina vista;
    vista.Imposta_Finestra(finestra);
    vista.Imposta_Pagina(pagina);
    return vista;
}

TEST(View, FitsCentresAndFollowsTheWindow) {
    Vista_Pagina vista = Vista({400, 300}, {812, 312});
    EXPECT_EQ(vista.In_Finestra(QPointF(0, 0)), QPointF(206, 6));
    EXPECT_EQ(vista.In_Pagina({206, 6}), QPointF(0, 0));
    EXPECT_EQ(vista.Corsa(), QSize(0, 0));
    vista.Imposta_Finestra({812, 612});
    EXPECT_DOUBLE_EQ(vista.Scala(), 2);
    vista.Ingrandisci(2, {0, 0});
    vista.Imposta_Finestra({412, 312});
    EXPECT_DOUBLE_EQ(vista.Scala(), 4) << "a zoomed one keeps its scale";
}

TEST(View, ZoomHasBounds) {
    Vista_Pagina vista = Vista();
    for (const double fattore : {1e9, 1e-12, 0.0, -1.0}) {
        vista.Ingrandisci(fattore, {10, 10});
        EXPECT_TRUE(vista.Zoom() >= .25 && vista.Zoom() <= 64) << fattore;
    }
}

TEST(View, ScrollsWithinThePage) {
    Vista_Pagina vista = Vista();
    vista.Ingrandisci(4, {0, 0});
    vista.Scorri_A({-500, 1e6});
    EXPECT_EQ(vista.Origine(), QPoint(0, 1200 - 312));
    EXPECT_EQ(vista.Corsa(), QSize(1600 - 412, 1200 - 312));
}

TEST(View, NoPageAndNoRoomAreNoFailure) {
    Vista_Pagina vista;
    vista.Ingrandisci_Area({0, 0, 5, 5});
    vista.Scorri_A({5, 5});
    EXPECT_EQ(vista.Corsa(), QSize(0, 0));
    EXPECT_GT(Vista({400, 300}, {0, 0}).Scala(), 0);
    EXPECT_GT(Vista({1e6, 1e-3}, {400, 300}).Scala(), 0);
}

TEST_F(Con_Lavagna, ALoadFitsThePageAgain) {
    Carica(disegni.Palloni());
    Esegui("ZOOM_PIU", 2);
    EXPECT_GT(Zoom(), 1.1);
    Carica(disegni.Palloni());
    EXPECT_DOUBLE_EQ(Zoom(), 1);
}

}  // namespace

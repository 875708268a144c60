// The sheet and the drawing on the screen.

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QScrollArea>
#include <QScrollBar>

#include "core/base/twips.h"
#include "gui/finestra_di_prova.h"
#include "gui/platform/immagini.h"

namespace {

QByteArray Png(int larghezza, int altezza) {
    QImage immagine(larghezza, altezza, QImage::Format_RGB32);
    immagine.fill(Qt::red);
    QBuffer png;
    immagine.save(&png, "PNG");
    return png.data();
}

class Prodotto_In_Vista : public Finestra_Di_Prova {
  protected:
    static Catalogo_Di_Prova Con_Disegni(int voci = 2) {
        Catalogo_Di_Prova c = Macchina();
        const std::tuple<int, const char*, const char*> prodotti[] = {
            {1, "Mappa_Associata", "tz1.svg"},   {1, "Flag_2", "1"}, {1, "Foto_1_Prodotto", "larga.png"},
            {1, "Foto_2_Prodotto", "rotta.png"}, {2, "Flag_2", "0"}, {3, "Flag_2", "0"},
            {3, "Foto_2_Prodotto", "alta.png"}};
        for (const auto& [riga, colonna, valore] : prodotti)
            c.Cambia("Prodotti", riga, colonna, valore);
        const QStringList colonne{"Key_Prodotto",  "Ordine",     "Titolo_1",
                                  "Descrizione_1", "Allegato_1", "Tipo_Allegato_1"};
        std::vector<std::vector<Valore_Prova>> righe{{"P_3", "1", "Unica", {}, {}, {}},
                                                     {"P_1", "1", "Titolo 0", "Testo 0", "guida.pdf", {}}};
        for (int i = 1; i < voci; ++i)
            righe.push_back({"P_1", QString::number(i + 1), "Altro", {}, "assente.pdf", {}});
        return c.Tabella("Scheda_Prodotti", colonne, righe)
            .File("guida.pdf", "%PDF")
            .File("larga.png", Png(400, 100))
            .File("alta.png", Png(100, 400))
            .File("rotta.png", Png(50, 50).left(40))
            .File("tz1.svg", R"(<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>
            <circle id='tondo' data-hotspot='CODICI#$#A.003' cx='30' cy='30' r='12' fill='none' stroke='black'/>
            <rect data-hotspot='PRODOTTO#$#P_3' x='60' y='60' width='20' height='20'/></svg>)");
    }
    /// Goes to a node, by its drawing or its sheet; opens the catalogue if none is open.
    void Vai(const char* key, bool disegno) {
        if (!progetto.Progetto_Aperto)
            Consulta(Con_Disegni());
        if (schermo.Stato().Bottoni.at("KEY_DISEGNO").Pressed != disegno)
            Comando("KEY_DISEGNO");
        schermo.Seleziona_Nodo_Albero(key);
        QApplication::processEvents();
    }
    void Muovi(const QPoint& punto) {
        QWidget* tavola = finestra->Tavola().viewport();
        QMouseEvent mossa(QEvent::MouseMove, punto, tavola->mapToGlobal(QPointF(punto)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(tavola, &mossa);
    }
    QPoint HotSpot(const char* nome) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return finestra->Tavola().Aggiornata(); }));
        return finestra->Tavola().Punto_HotSpot(nome).value_or(QPoint(-1, -1));
    }
};

TEST_F(Prodotto_In_Vista, TheSheetShowsWhatTheCatalogueHasAndOpensItsAttachments) {
    Vai("P_1", false);
    for (const char* nome : {"Label_Consulta_Esploso", "Image_scheda(0)", "Label_Titolo_scheda(1)"})
        EXPECT_TRUE(Visibile(nome)) << nome;
    for (const char* nome : {"Image_scheda(1)" /* not in the package */,
                             "Image_scheda_Foto_2" /* unreadable */, "Label_Help_Albero"})
        EXPECT_FALSE(Visibile(nome)) << nome;
    EXPECT_EQ(Testo("Label_Nome_prodotto_Dato"), "Carburatore");
    EXPECT_EQ(Testo("Label_Titolo_scheda(0)"), "Titolo 0");
    EXPECT_EQ(Testo("Label_Oggetto_Scheda(0)"), "Testo 0");
    EXPECT_EQ(Trova("Image_scheda_Foto_1")->size(), QSize(250, 63));
    // A caption stands beside its value, and the rows below one another.
    EXPECT_GT(Trova("Label_Oggetto_Scheda(0)")->x(), Trova("Label_Titolo_scheda(0)")->geometry().right());
    EXPECT_GT(Trova("Label_Titolo_scheda(1)")->y(), Trova("Label_Oggetto_Scheda(0)")->geometry().bottom());
    Clic("Image_scheda(0)");
    QTest::keyClick(Trova("Image_scheda(0)"), Qt::Key_Return);
    const QString guida = progetto.Cartella_Temporanea + "guida.pdf";
    EXPECT_EQ(sistema.Aperti, (QStringList{guida, guida}));

    Vai("P_3", false);
    EXPECT_EQ(Testo("Label_Titolo_scheda(0)"), "Unica");
    for (const char* nome : {"Label_Titolo_scheda(1)", "Image_scheda(0)", "Image_scheda_Foto_1"})
        EXPECT_FALSE(Visibile(nome)) << nome;
    Vai("G_A", false);
    EXPECT_FALSE(Visibile("Label_Consulta_Esploso"));
    EXPECT_TRUE(Visibile("Label_Nome_Prodotto"));
}

TEST_F(Prodotto_In_Vista, APhotographHasAWindowThatIsUsedAgain) {
    Vai("P_1", false);
    Clic("Image_scheda_Foto_1");
    QWidget* immagine = Trova("Form_visualizza_Immagine");
    EXPECT_TRUE(immagine->isVisible());
    EXPECT_FALSE(immagine->isModal());
    EXPECT_EQ(immagine->property("tag"), progetto.Cartella_Temporanea + "larga.png");
    Vai("P_3", false);
    Clic("Image_scheda_Foto_2");
    EXPECT_EQ(finestra->findChildren<QWidget*>("Form_visualizza_Immagine").size(), 1);
    // It fits the high picture into any size, from the corner.
    for (const QSize misura : {QSize(400, 200), QSize(200, 600)}) {
        immagine->resize(misura);
        const QImage vista = immagine->grab().toImage();
        EXPECT_EQ(vista.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_NE(vista.pixelColor(misura.width() - 1, misura.height() - 1), QColor(Qt::red));
    }
    QTest::keyClick(immagine, Qt::Key_Escape);
    EXPECT_FALSE(immagine->isVisible());
}

TEST_F(Prodotto_In_Vista, ALongSheetScrollsAndAShortOneDoesNot) {
    Consulta(Con_Disegni(60));
    for (const auto& [key, lunga] : {std::pair{"P_1", true}, {"P_3", false}}) {
        Vai(key, false);
        EXPECT_EQ(finestra->findChild<QScrollArea*>("Scorrimento_Scheda")->verticalScrollBar()->maximum() > 0,
                  lunga);
    }
}

TEST_F(Prodotto_In_Vista, DrawingAndListShareTheHeight) {
    for (const int di_meno : {0, 100, 0}) {  // at first, in a lower window, after a page without a drawing
        finestra->resize(finestra->width(), finestra->height() - di_meno);
        Vai("P_1", true);
        QApplication::processEvents();
        EXPECT_TRUE(Visibile("Lavagna"));
        EXPECT_NEAR(Trova("Frame_distinta")->height(), Pixel_Da_Twips(2400), 1);
        Vai("P_2", true);
        EXPECT_FALSE(Visibile("Frame_Disegno"));
    }
}

TEST_F(Prodotto_In_Vista, AHoverMarksTheRowThatComesIntoViewAndALinkIsFollowed) {
    Catalogo_Di_Prova catalogo = Con_Disegni();
    for (int i = 10; i < 60; ++i)
        catalogo.Parte("P_1", QString::number(i), "Z", "Parte");
    Consulta(catalogo);
    Vai("P_1", true);
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    griglia.scrollToBottom();
    EXPECT_GT(griglia.TopRow(), 3);
    Muovi(HotSpot("tondo"));
    EXPECT_EQ(griglia.TopRow(), 3);
    EXPECT_EQ(griglia.rowAt(0), 2);
    for (const int riga : {1, 3})
        EXPECT_EQ(griglia.model()->index(riga - 1, 1).data(Qt::FontRole).value<QFont>().bold(), riga == 3);
    const QPoint link = HotSpot("PRODOTTO#$#P_3");
    Muovi(link);
    EXPECT_EQ(Testo("PANEL"), "Link a : Cambio");
    Muovi(QPoint(1, 1));
    EXPECT_EQ(Testo("PANEL"), "");
    QTest::mouseClick(finestra->Tavola().viewport(), Qt::LeftButton, {}, link);
    EXPECT_EQ(progetto.Key_Prodotto_Corrente, "P_3");
    EXPECT_FALSE(Visibile("Lavagna"));
    EXPECT_TRUE(Visibile("Griglia_Distinta"));
}

TEST_F(Prodotto_In_Vista, TheZoomButtons) {
    Vai("P_1", true);
    const auto stato = [this] { return finestra->Tavola().Introspezione(); };
    Comando("KEY_ZOOM_PIU");
    const double uno = stato().zoom;
    EXPECT_GT(uno, 1);
    for (const auto& [key, zoom] :
         {std::pair("KEY_ZOOM_MENO", 1.0), {"KEY_ZOOM_PIU", uno}, {"KEY_ZOOM_ALL", 1.0}}) {
        Comando(key);
        EXPECT_DOUBLE_EQ(stato().zoom, zoom);
    }
    for (const char* modo : {"ZOOM_WINDOWS", "SELEZIONA"}) {
        Comando("KEY_ZOOM_WIN");
        EXPECT_EQ(stato().modo, modo);
    }
}

TEST(Immagini, HugeBrokenAndForeignFilesAreRefused) {
    QTemporaryDir cartella;
    const auto scrivi = [&](const char* nome, const QByteArray& dati) {
        QFile file(cartella.filePath(nome));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dati);
        return file.fileName();
    };
    for (const QString& file :
         {scrivi("rotta.png", Png(50, 50).left(40)),
          scrivi("enorme.pbm", "P4\n200000 200000\n"),  // 5 GB of pixels that aren't there
          scrivi("disegno.png", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
          cartella.filePath("assente.png")}) {
        EXPECT_FALSE(Misura_File_Immagine(file).has_value()) << qPrintable(file);
        EXPECT_TRUE(Leggi_Immagine(file, QSize(100, 100)).isNull()) << qPrintable(file);
    }
    const QString larga = scrivi("larga.jpg", Png(400, 100));  // told by its content
    EXPECT_EQ(Misura_File_Immagine(larga), QSizeF(400, 100));
    EXPECT_EQ(Leggi_Immagine(larga, QSize(100, 100)).size(), QSize(100, 25));
    EXPECT_EQ(Leggi_Immagine(larga, QSize(1000, 1000)).size(), QSize(400, 100));
}

}  // namespace

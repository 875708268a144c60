// The sheet and the drawing on the screen.

#include <gmock/gmock.h>

#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

#include "core/base/testo.h"
#include "core/base/twips.h"
#include "gui/finestra_di_prova.h"
#include "gui/platform/immagini.h"

using testing::ElementsAre;

namespace {

QByteArray Png(int larghezza, int altezza) {
    QImage immagine(larghezza, altezza, QImage::Format_RGB32);
    immagine.fill(Qt::red);
    QByteArray dati;
    QBuffer uscita(&dati);
    uscita.open(QIODevice::WriteOnly);
    immagine.save(&uscita, "PNG");
    return dati;
}

class Prodotto_In_Vista : public Finestra_Di_Prova {
  protected:
    static Catalogo_Di_Prova Con_Disegni(int voci = 2) {
        Catalogo_Di_Prova c = Macchina();
        c.Cambia("Prodotti", 1, "Mappa_Associata", "tz1.svg")
            .Cambia("Prodotti", 1, "Flag_2", "1")
            .Cambia("Prodotti", 1, "Foto_1_Prodotto", "larga.png")
            .Cambia("Prodotti", 1, "Foto_2_Prodotto", "rotta.png")
            .Cambia("Prodotti", 2, "Flag_2", "0")
            .Cambia("Prodotti", 3, "Flag_2", "0")
            .Cambia("Prodotti", 3, "Foto_2_Prodotto", "alta.png");
        for (int i = 0; i < voci; ++i)
            c.Riga("Scheda_Prodotti",
                   {{"Key_Prodotto", "P_1"},
                    {"Ordine", QString::number(i + 1)},
                    {"Titolo_1", QStringLiteral("Titolo %1").arg(i)},
                    {"Descrizione_1", i == 1 ? QString() : QStringLiteral("Testo %1").arg(i)},
                    {"Allegato_1", i == 0 ? QStringLiteral("guida.pdf") : QStringLiteral("assente.pdf")}});
        c.Riga("Scheda_Prodotti", {{"Key_Prodotto", "P_3"}, {"Ordine", "1"}, {"Titolo_1", "Unica"}});
        c.File("guida.pdf", "%PDF").File("larga.png", Png(400, 100)).File("alta.png", Png(100, 400));
        c.File("rotta.png", Png(50, 50).left(40));
        c.File("tz1.svg",
               "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 100 100'>"
               "<circle id='tondo' data-hotspot='CODICI#$#A.003' cx='30' cy='30' r='12' fill='none' "
               "stroke='black'/>"
               "<rect data-hotspot='PRODOTTO#$#P_3' x='60' y='60' width='20' height='20'/></svg>");
        return c;
    }
    void Vai(const char* key, bool disegno) {
        if (!Visibile("Frame_Main"))
            Clic("Label_consulta_catalogo");
        if (controllo.Stato().Bottoni.at(QStringLiteral("KEY_DISEGNO")).Pressed != disegno)
            Comando("KEY_DISEGNO");
        controllo.Seleziona_Nodo_Albero(QLatin1String(key));
        QApplication::processEvents();
    }
    void Muovi(const QPoint& punto) {
        QWidget* finestra_tavola = finestra->Tavola().viewport();
        QMouseEvent mossa(QEvent::MouseMove, punto, finestra_tavola->mapToGlobal(QPointF(punto)),
                          Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(finestra_tavola, &mossa);
    }
    QPoint HotSpot(const char* nome) {
        EXPECT_TRUE(QTest::qWaitFor([this] { return finestra->Tavola().Aggiornata(); }));
        return finestra->Tavola().Punto_HotSpot(QLatin1String(nome)).value_or(QPoint(-1, -1));
    }
};

TEST_F(Prodotto_In_Vista, TheSheetShowsWhatTheCatalogueHas) {
    Apri(Con_Disegni());
    Vai("P_1", false);
    EXPECT_TRUE(Visibile("Label_Consulta_Esploso"));
    EXPECT_TRUE(Visibile("Image_Link_Disegno"));
    EXPECT_EQ(Testo("Label_Nome_prodotto_Dato"), QStringLiteral("Carburatore"));
    EXPECT_EQ(Testo("Label_Titolo_scheda(0)"), QStringLiteral("Titolo 0"));
    EXPECT_EQ(Testo("Label_Oggetto_Scheda(0)"), QStringLiteral("Testo 0"));
    EXPECT_TRUE(Visibile("Image_scheda(0)"));
    EXPECT_TRUE(Visibile("Label_Titolo_scheda(1)"));
    EXPECT_FALSE(Visibile("Image_scheda(1)"));  // its file isn't in the package
    ASSERT_TRUE(Visibile("Image_scheda_Foto_1"));
    EXPECT_EQ(Trova("Image_scheda_Foto_1")->size(), QSize(250, 63));
    EXPECT_FALSE(Visibile("Image_scheda_Foto_2"));  // it can't be read
    EXPECT_FALSE(Visibile("Label_Help_Albero"));
    // A caption stands beside its value, and the rows below one another.
    for (const auto& [titolo, testo] : {std::pair{"Label_Nome_Prodotto", "Label_Nome_prodotto_Dato"},
                                        {"Label_Titolo_scheda(0)", "Label_Oggetto_Scheda(0)"}}) {
        EXPECT_GE(Trova(titolo)->width(), 100) << titolo;
        EXPECT_GT(Trova(testo)->x(), Trova(titolo)->geometry().right()) << titolo;
        EXPECT_EQ(Trova(testo)->y(), Trova(titolo)->y()) << titolo;
    }
    EXPECT_GT(Trova("Label_Titolo_scheda(1)")->y(), Trova("Label_Oggetto_Scheda(0)")->geometry().bottom());

    Vai("P_3", false);
    EXPECT_EQ(Testo("Label_Titolo_scheda(0)"), QStringLiteral("Unica"));
    EXPECT_FALSE(Visibile("Label_Titolo_scheda(1)"));
    EXPECT_FALSE(Visibile("Image_scheda(0)"));
    EXPECT_FALSE(Visibile("Image_scheda_Foto_1"));
    EXPECT_EQ(Trova("Image_scheda_Foto_2")->size(), QSize(50, 200));

    Vai("G_A", false);
    EXPECT_FALSE(Visibile("Label_Consulta_Esploso"));
    EXPECT_TRUE(Visibile("Label_Nome_Prodotto"));
}

TEST_F(Prodotto_In_Vista, AClickOnAnAttachmentOpensIt) {
    Apri(Con_Disegni());
    Vai("P_1", false);
    Clic("Image_scheda(0)");
    QTest::keyClick(Trova("Image_scheda(0)"), Qt::Key_Return);
    const QString guida = progetto.Cartella_Temporanea + QStringLiteral("guida.pdf");
    EXPECT_EQ(sistema.Aperti, (QStringList{guida, guida}));
}

TEST_F(Prodotto_In_Vista, APhotographHasAWindowThatIsUsedAgain) {
    Apri(Con_Disegni());
    Vai("P_1", false);
    EXPECT_EQ(finestra->findChild<QWidget*>(QStringLiteral("Form_visualizza_Immagine")), nullptr);
    Clic("Image_scheda_Foto_1");
    QWidget* immagine = Trova("Form_visualizza_Immagine");
    EXPECT_TRUE(immagine->isVisible());
    EXPECT_FALSE(immagine->isModal());
    EXPECT_EQ(immagine->property("tag").toString(),
              progetto.Cartella_Temporanea + QStringLiteral("larga.png"));
    Vai("P_3", false);
    EXPECT_TRUE(immagine->isVisible());
    Clic("Image_scheda_Foto_2");
    EXPECT_EQ(finestra->findChildren<QWidget*>(QStringLiteral("Form_visualizza_Immagine")).size(), 1);
    // It fits the picture into any size, from the corner.
    for (const QSize misura : {QSize(400, 200), QSize(200, 600)}) {
        immagine->resize(misura);
        const QImage vista = immagine->grab().toImage();
        double larghezza = misura.width(), altezza = misura.height();
        Adatta_Immagine(100, 400, larghezza, altezza, 1);
        EXPECT_EQ(vista.pixelColor(int(larghezza) - 2, int(altezza) - 2), QColor(Qt::red));
        EXPECT_EQ(vista.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_NE(vista.pixelColor(misura.width() - 1, misura.height() - 1), QColor(Qt::red));
    }
    QTest::keyClick(immagine, Qt::Key_Escape);
    EXPECT_FALSE(immagine->isVisible());
}

TEST_F(Prodotto_In_Vista, ALongSheetScrollsAndAShortOneDoesNot) {
    Apri(Con_Disegni(60));
    Vai("P_1", false);
    auto* scorrimento = finestra->findChild<QScrollArea*>();
    ASSERT_NE(scorrimento, nullptr);
    EXPECT_GT(scorrimento->verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(Visibile("Label_Titolo_scheda(59)"));
    Vai("P_3", false);
    QApplication::processEvents();
    EXPECT_EQ(scorrimento->verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(Visibile("Label_Titolo_scheda(59)"));
}

TEST_F(Prodotto_In_Vista, DrawingAndListShareTheHeight) {
    Apri(Con_Disegni());
    Vai("P_1", true);
    ASSERT_TRUE(Visibile("Lavagna"));
    QApplication::processEvents();
    EXPECT_NEAR(Trova("Frame_distinta")->height(), Pixel_Da_Twips(2400), 1);
    finestra->resize(finestra->width(), finestra->height() - 100);
    QApplication::processEvents();
    QApplication::processEvents();
    EXPECT_NEAR(Trova("Frame_distinta")->height(), Pixel_Da_Twips(2400), 1);
    Vai("P_2", true);
    EXPECT_FALSE(Visibile("Frame_Disegno"));
    EXPECT_TRUE(Visibile("Label_Nessun_Componente"));
    Vai("P_1", true);
    EXPECT_NEAR(Trova("Frame_distinta")->height(), Pixel_Da_Twips(2400), 1);
}

TEST_F(Prodotto_In_Vista, AHoverMarksTheRowAndALinkIsFollowed) {
    Apri(Con_Disegni());
    Vai("P_1", true);
    const QPoint tondo = HotSpot("tondo");
    Muovi(tondo);
    EXPECT_TRUE(finestra->Griglia_Distinta().Dati().At(3, 1).Bold);
    EXPECT_TRUE(finestra->Griglia_Distinta().model()->index(2, 1).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(finestra->Griglia_Distinta().Dati().At(1, 1).Bold);
    const QPoint link = HotSpot("PRODOTTO#$#P_3");
    Muovi(link);
    EXPECT_EQ(Testo("PANEL"), QStringLiteral("Link a : Cambio"));
    Muovi(QPoint(1, 1));
    EXPECT_EQ(Testo("PANEL"), QString());
    QTest::mouseClick(finestra->Tavola().viewport(), Qt::LeftButton, {}, link);
    EXPECT_EQ(progetto.Key_Prodotto_Corrente, QStringLiteral("P_3"));
    EXPECT_FALSE(Visibile("Lavagna"));
    EXPECT_TRUE(Visibile("Griglia_Distinta"));
}

TEST_F(Prodotto_In_Vista, TheZoomButtonsAndTheirKeys) {
    Apri(Con_Disegni());
    Vai("P_1", true);
    const auto zoom = [this] { return finestra->Tavola().Introspezione().zoom; };
    Comando("KEY_ZOOM_PIU");
    const double uno = zoom();
    EXPECT_GT(uno, 1);
    QTest::keySequence(finestra.get(), QKeySequence(Qt::CTRL | Qt::Key_Plus));
    EXPECT_GT(zoom(), uno);
    QTest::keySequence(finestra.get(), QKeySequence(Qt::CTRL | Qt::Key_Minus));
    EXPECT_DOUBLE_EQ(zoom(), uno);
    QTest::keySequence(finestra.get(), QKeySequence(Qt::CTRL | Qt::Key_0));
    EXPECT_DOUBLE_EQ(zoom(), 1);
    QTest::keySequence(finestra.get(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    EXPECT_EQ(finestra->Tavola().Introspezione().modo, QStringLiteral("ZOOM_WINDOWS"));
    Comando("KEY_ZOOM_WIN");
    EXPECT_EQ(finestra->Tavola().Introspezione().modo, QStringLiteral("SELEZIONA"));
}

TEST_F(Prodotto_In_Vista, TheRowOfACodeComesIntoView) {
    Catalogo_Di_Prova catalogo = Con_Disegni();
    for (int i = 10; i < 60; ++i)
        catalogo.Parte("P_1", QString::number(i), QStringLiteral("Z.%1").arg(i), QStringLiteral("Parte"));
    Apri(catalogo);
    Vai("P_1", true);
    Vista_Griglia& griglia = finestra->Griglia_Distinta();
    griglia.scrollToBottom();
    EXPECT_GT(griglia.Dati().TopRow, 3);
    Muovi(HotSpot("tondo"));
    EXPECT_EQ(griglia.Dati().TopRow, 3);
    EXPECT_EQ(griglia.rowAt(0), 2);
}

TEST(Immagini, HugeBrokenAndForeignFilesAreRefused) {
    QTemporaryDir cartella;
    const auto scrivi = [&](const char* nome, const QByteArray& dati) {
        QFile file(cartella.filePath(QLatin1String(nome)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dati);
        return file.fileName();
    };
    QByteArray enorme = "P4\n200000 200000\n";  // 5 GB of pixels that aren't there
    for (const QString& file :
         {scrivi("vuota.png", {}), scrivi("rotta.png", Png(50, 50).left(40)), scrivi("enorme.pbm", enorme),
          scrivi("disegno.png", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
          cartella.filePath(QStringLiteral("assente.png"))}) {
        EXPECT_FALSE(Misura_File_Immagine(file).has_value()) << file.toStdString();
        EXPECT_TRUE(Leggi_Immagine(file, QSize(100, 100)).isNull()) << file.toStdString();
    }
    const QString larga = scrivi("larga.jpg", Png(400, 100));  // told by its content
    EXPECT_EQ(Misura_File_Immagine(larga), QSizeF(400, 100));
    EXPECT_EQ(Leggi_Immagine(larga, QSize(100, 100)).size(), QSize(100, 25));
    EXPECT_EQ(Leggi_Immagine(larga, QSize(1000, 1000)).size(), QSize(400, 100));
}

}  // namespace

#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QPushButton>

#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"

namespace {

constexpr char FORM[] = "Form_Lingua_Mercato";

QStringList Voci(const QComboBox& lista) {
    QStringList voci;
    for (int i = 0; i < lista.count(); ++i)
        voci << lista.itemText(i);
    return voci;
}

/// Chooses an entry with the keyboard alone.
void Scegli(QComboBox& lista, const char* testo) {
    const int posto = lista.findText(QString::fromUtf8(testo));
    ASSERT_GE(posto, 0) << testo;
    QTest::keyClick(&lista, Qt::Key_Home);
    for (int i = 0; i < posto; ++i)
        QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(lista.currentText(), QString::fromUtf8(testo));
}

QByteArray Bandiera(Qt::GlobalColor colore) {
    QImage immagine(24, 16, QImage::Format_RGB32);
    immagine.fill(colore);
    QByteArray png;
    QBuffer buffer(&png);
    immagine.save(&buffer, "PNG");
    return png;
}

class Lingua_Mercato : public Finestra_Di_Prova {
  protected:
    /// Languages 1 to 3 of the test catalogue are markets too, except that 3 is no market; market 4 is no
    /// language.
    static Catalogo_Di_Prova Con_Scelta(const char* modo) {
        Catalogo_Di_Prova c = Macchina();
        return c.Sistema("UNIFICA_NAVIGAZIONE_VIEWER", modo)
            .Cambia("Lingue", 3, "Attiva_Mercato", "FALSE")
            .Riga("Lingue", {{"ID", "4"},
                             {"Chiave", "JP"},
                             {"Descrizione_Mercato", "Japan"},
                             {"Immagine", "jp.png"},
                             {"Attiva_Lingua", "FALSE"},
                             {"Attiva_Mercato", "TRUE"}});
    }
    static QComboBox& Lingua(QDialog& d) { return Oggetto_Di<QComboBox>(d, "Combo_Lingua"); }
    static QComboBox& Mercato(QDialog& d) { return Oggetto_Di<QComboBox>(d, "Combo_Mercato"); }
    static void OK(QDialog& d) {
        QTest::mouseClick(&Oggetto_Di<QPushButton>(d, "Command_OK"), Qt::LeftButton);
        EXPECT_FALSE(d.isVisible());
    }
};

TEST_F(Lingua_Mercato, EveryWayOfChoosing) {
    struct Caso {
        const char *modo, *lingua, *mercato;  ///< chosen, nullptr for a list that is left alone
        bool lingua_abilitata, mercato_abilitato;
        const char* dopo;  ///< language and market; before, 1 1
    };
    Mostra();
    for (const Caso& caso : {
             Caso{"LINGUA", "English", nullptr, true, false, "2 2"},
             {"MERCATO", nullptr, "Japan", false, true, "1 4"},
             {"LINGUA_MERCATO", "Français", "Japan", true, true, "3 4"},
             {"LINGUA_MERCATO", nullptr, nullptr, true, true, "1 1"},
         }) {
        const std::string nome = std::string(caso.modo) + ": " + (caso.lingua ? caso.lingua : "-") + ", " +
                                 (caso.mercato ? caso.mercato : "-");
        Apri_Altro(Con_Scelta(caso.modo));
        Nel_Dialogo scelta(FORM, [&](QDialog& d) {
            EXPECT_EQ(Voci(Lingua(d)), (QStringList{"Italiano", "English", "Français"}));
            EXPECT_EQ(Voci(Mercato(d)), (QStringList{"Italia", "United Kingdom", "Japan"}));
            EXPECT_EQ(Lingua(d).currentText(), "Italiano");
            EXPECT_EQ(Lingua(d).isEnabled(), caso.lingua_abilitata) << nome;
            EXPECT_EQ(Mercato(d).isEnabled(), caso.mercato_abilitato) << nome;
            if (caso.lingua)
                Scegli(Lingua(d), caso.lingua);
            if (caso.mercato)
                Scegli(Mercato(d), caso.mercato);
            OK(d);
        });
        schermo.Albero.Clic_Nodo("P_1");
        Comando("KEY_LINGUA");
        EXPECT_EQ(progetto.Lingua + u' ' + progetto.Mercato, QLatin1String(caso.dopo)) << nome;
        const bool cambiata = QLatin1String(caso.dopo) != QLatin1String("1 1");
        EXPECT_EQ(Visibile("Frame_Intro"), cambiata) << nome;
        EXPECT_EQ(progetto.Key_Prodotto_Corrente, QLatin1String(cambiata ? "" : "P_1")) << nome;
        EXPECT_FALSE(progetto.Ricarica_Necessaria);
    }
}

TEST_F(Lingua_Mercato, LeftWithEscNothingIsTakenOver) {
    Apri(Con_Scelta("LINGUA_MERCATO"));
    Nel_Dialogo scelta(FORM, [&](QDialog& d) {
        Scegli(Lingua(d), "English");
        QTest::keyClick(&d, Qt::Key_Escape);
        EXPECT_FALSE(d.isVisible());
    });
    Clic("Label_Lingua");
    EXPECT_EQ(progetto.Lingua, "1");
}

TEST_F(Lingua_Mercato, FlagsComeFromTheResourcesOrTheCatalogue) {
    ASSERT_TRUE(QDir(cartella.path()).mkpath("Data"));
    Catalogo_Di_Prova()
        .Voce_Database({})
        .File("flag_IT.png", Bandiera(Qt::green))
        .Pacchetto(cartella.filePath("Data"), "data40.qld");
    Apri(Con_Scelta("LINGUA_MERCATO")
             .Cambia("Lingue", 1, "Immagine", "flag_IT.png")
             .File("jp.png", Bandiera(Qt::red)));
    Nel_Dialogo scelta(FORM, [](QDialog& d) {
        for (const auto& [icona, colore] :
             {std::pair(Lingua(d).itemIcon(0), Qt::green), {Mercato(d).itemIcon(2), Qt::red}})
            EXPECT_EQ(icona.pixmap(24, 16).toImage().pixelColor(12, 8), QColor(colore));
        EXPECT_TRUE(Lingua(d).itemIcon(1).isNull());  // no picture is named
    });
    Comando("KEY_LINGUA");
}

TEST_F(Lingua_Mercato, ItsTextsComeFromTheCatalogueAndFit) {
    Catalogo_Di_Prova catalogo = Con_Scelta("LINGUA").Cambia(
        "Lingue", 2, "Descrizione_Lingua", "A language with a remarkably long description indeed");
    Traduci(catalogo, FORM, FORM, "Lingua e mercato");
    Traduci(catalogo, FORM, "Label_Lingua", "Lingua dei testi del catalogo");
    Traduci(catalogo, FORM, "Combo_Lingua", {}, "Aiuto");
    Apri(catalogo);
    Nel_Dialogo scelta(FORM, [](QDialog& d) {
        EXPECT_EQ(d.windowTitle(), "Lingua e mercato");
        EXPECT_EQ(Oggetto_Di<QLabel>(d, "Label_Lingua").text(), "Lingua dei testi del catalogo");
        EXPECT_EQ(Lingua(d).toolTip(), "Aiuto");
        EXPECT_EQ(Testi_Tagliati(d), QStringList());
        EXPECT_GE(Lingua(d).width(), Lingua(d).fontMetrics().horizontalAdvance(Lingua(d).itemText(1)) + 24);
    });
    Comando("KEY_LINGUA");
}

TEST_F(Lingua_Mercato, LimitsThatCantBeReadAreToldAndTheDialogComesUp) {
    Apri(Con_Scelta("LINGUA_MERCATO").Rimuovi_Tabella("Gruppi_Utenti"));
    Nel_Dialogo scelta(FORM, [&](QDialog& d) {
        EXPECT_EQ(messaggi.Mostrati.size(), 1u);
        EXPECT_EQ(Lingua(d).count(), 3);
    });
    Comando("KEY_LINGUA");
    ASSERT_EQ(messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(messaggi.Mostrati[0].icona, Icona::Critica);
}

}  // namespace

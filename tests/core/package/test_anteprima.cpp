#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "core/package/class_progetto_aperto.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "support/zip_di_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Anteprima : public testing::Test {
  protected:
    /// What the properties say is their own key.
    QString Pacchetto(const QString& titolo, const QString& nome) {
        Catalogo_Di_Prova catalogo;
        for (const char* chiave : {"AUTORE", "SOCIETA", "CONTATTI", "VERSIONE", "NOTE"})
            catalogo.Sistema(QString("PROPRIETA_PROGETTO_") + chiave, chiave);
        return catalogo.Sistema("PROPRIETA_PROGETTO_TITOLO", titolo)
            .Sistema("PUBBLICA_TZF_DATA", "2024-05-01")
            .Pacchetto(cartella_.path(), nome);
    }
    static QString Tutte(const Propieta_Progetto& p) {
        return QStringList{p.Titolo, p.Autore, p.Societa, p.Contatti, p.Versione, p.Note, p.Data}.join('|');
    }
    Catalogo_Di_Prova Con_Intro(const char* file = "x.png") {
        Catalogo_Di_Prova catalogo;
        catalogo.Sistema("PUBBLICA_TZF_VIEWER_PERSONALIZZATO", "SI")
            .Sistema("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO", "1")
            .Sistema("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO_FILE", file)
            .File("Immagine_Intro.png", "picture");
        return catalogo;
    }

    QTemporaryDir cartella_;
    Impostazioni_Finte impostazioni_;
    Messaggi_Finti messaggi_;
    Sistema_Finto sistema_;
    Class_Progetto_Aperto p_{{impostazioni_, messaggi_, sistema_}};
};

TEST_F(Anteprima, ReadsThePropertiesAndLeavesNothing) {
    const QString pacchetto = Pacchetto("Società", "a.TZF"),
                  attese = "Società|AUTORE|SOCIETA|CONTATTI|VERSIONE|NOTE|2024-05-01";
    Propieta_Progetto propieta;
    ASSERT_TRUE(p_.Anteprima_Propieta_Progetto(pacchetto, propieta));
    EXPECT_EQ(Tutte(propieta), attese);
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
    EXPECT_FALSE(p_.Progetto_Aperto);
    EXPECT_FALSE(p_.Anteprima_Propieta_Progetto_Aperto(propieta));
    ASSERT_EQ(p_.Apri_Progetto_TZF(pacchetto), 1);
    EXPECT_TRUE(p_.Anteprima_Propieta_Progetto_Aperto(propieta));  // the open catalogue tells the same
    EXPECT_EQ(Tutte(propieta), attese);
}

TEST_F(Anteprima, EachPackageAnswersForItself) {
    const QString a = Pacchetto("A", "a.TZF"), b = Pacchetto("B", "b.TZF"),
                  chiave = "PROPRIETA_PROGETTO_TITOLO";
    ASSERT_EQ(p_.Apri_Progetto_TZF(a), 1);
    EXPECT_EQ(p_.Anteprima_Propieta_Progetto_Cerca(b, chiave), "B");
    EXPECT_EQ(p_.Anteprima_Propieta_Progetto_Cerca(a, chiave), "A");
    EXPECT_EQ(p_.Anteprima_Propieta_Progetto_Cerca(a, "NONE"), "");
    // The open catalogue is untouched.
    EXPECT_EQ(p_.DB.System_Leggi_Key(chiave), "A");
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre("TZV_00"));
}

TEST_F(Anteprima, AnUnreadablePackageIsTold) {
    const QString testo = Scrivi_File(cartella_.filePath("text.TZF"), "no archive"),
                  guasto = Scrivi_Zip(cartella_.filePath("bad.TZF"), {{NOME_DATABASE.toUtf8(), "garbage"}});
    Propieta_Progetto propieta{"old", "old", "old", "old", "old", "old", "date"};
    EXPECT_FALSE(p_.Anteprima_Propieta_Progetto(testo, propieta));
    EXPECT_EQ(Tutte(propieta), "||||||date");  // kept: the date stays
    EXPECT_EQ(p_.Anteprima_Propieta_Progetto_Cerca(guasto, "VERSIONE"), "");
    EXPECT_EQ(messaggi_.Testi().filter("Error open file ").size(), 2);

    QString immagine = "old";
    EXPECT_FALSE(p_.Anteprima_Immagine_Intro(testo, immagine, true));
    EXPECT_EQ(immagine, "");
    EXPECT_EQ(messaggi_.Mostrati.size(), 2u);
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
}

TEST_F(Anteprima, TheIntroPictureIsACopyToDelete) {
    const QString pacchetto = Con_Intro().Pacchetto(cartella_.path());
    QString immagine;
    ASSERT_TRUE(p_.Anteprima_Immagine_Intro(pacchetto, immagine));
    EXPECT_EQ(Leggi_Tutto(immagine), "picture");
    EXPECT_TRUE(immagine.endsWith(".png"));
    QFile::remove(immagine);
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());

    const QString accanto = Scrivi_File(cartella_.filePath("Immagine_Intro.png"), "beside");
    ASSERT_TRUE(p_.Anteprima_Immagine_Intro(pacchetto, immagine));
    EXPECT_EQ(Leggi_Tutto(immagine), "beside");
    EXPECT_NE(immagine, accanto);
}

TEST_F(Anteprima, NoIntroPicture) {
    const Catalogo_Di_Prova casi[] = {Con_Intro(""), Con_Intro("x.jpg"), Con_Intro("x.a\\..\\b"),
                                      Con_Intro().Sistema("PUBBLICA_TZF_VIEWER_PERSONALIZZATO", "NO"),
                                      Con_Intro().Sistema("PUBBLICA_TZF_VIEWER_IMMAGINE_INTRO", "0")};
    for (const Catalogo_Di_Prova& catalogo : casi) {
        QString immagine;
        EXPECT_FALSE(p_.Anteprima_Immagine_Intro(catalogo.Pacchetto(cartella_.path()), immagine));
    }
    EXPECT_THAT(sistema_.Contenuto_Temporaneo() + messaggi_.Testi(), IsEmpty());
}

}  // namespace

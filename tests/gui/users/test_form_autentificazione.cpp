#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include "gui/finestra_di_prova.h"
#include "gui/nel_dialogo.h"
#include "gui/platform/suggerimenti.h"

namespace {

constexpr char FORM[] = "Form_Autentificazione";

class Autentificazione : public Finestra_Di_Prova {
  protected:
    static Catalogo_Di_Prova Con_Account(const char* modo) {
        return Macchina()
            .Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo)
            .Sistema("PUBBLICA_TZF_INCLUDI_ANAGRAFICO", "1")
            .Riga("Anagrafico", {{"Login", "mario"}, {"Password", "Segreta"}, {"Key_Gruppo", "/2/"}});
    }
    static QLineEdit& Account(QDialog& d) { return Oggetto_Di<QLineEdit>(d, "Text_Account"); }
    static QLineEdit& Password(QDialog& d) { return Oggetto_Di<QLineEdit>(d, "Text_Password"); }
    /// Types account and password over what the fields hold.
    static void Scrivi(QDialog& d, const QString& account, const QString& password) {
        for (const auto& [campo, testo] : {std::pair(&Account(d), account), {&Password(d), password}}) {
            campo->selectAll();
            QTest::keyClick(campo, Qt::Key_Delete);
            QTest::keyClicks(campo, testo);
        }
    }
};

TEST_F(Autentificazione, ThePasswordIsNeverShownNorKept) {
    Apri(Con_Account("Libera"));
    Nel_Dialogo accesso(FORM, [&](QDialog& d) {
        QLineEdit& password = Password(d);
        Scrivi(d, "mario", "wrong");
        EXPECT_EQ(password.text(), "wrong");
        EXPECT_FALSE(password.displayText().contains(u'w'));
        QTest::keyClick(&password, Qt::Key_Return);
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(password.text(), QString());
        EXPECT_TRUE(password.hasFocus());
        EXPECT_EQ(Account(d).text(), "mario");
    });
    Comando("KEY_LUCCHETTO");
    ASSERT_EQ(messaggi.Mostrati.size(), 1u);
    EXPECT_EQ(messaggi.Mostrati[0].icona, Icona::Esclamazione);
    EXPECT_FALSE(messaggi.Mostrati[0].testo.contains("wrong"));
    EXPECT_FALSE(progetto.DB.SQL().contains("wrong"));
}

TEST_F(Autentificazione, TheKeyboardAloneIsEnough) {
    Apri(Con_Account("Libera"));
    progetto.Utente = "prima";
    Nel_Dialogo accesso(FORM, [&](QDialog& d) {
        EXPECT_TRUE(Account(d).hasFocus());
        EXPECT_EQ(Account(d).text(), "prima");
        QTest::keyClicks(&Account(d), "mario");
        QTest::keyClick(&d, Qt::Key_Tab);
        EXPECT_TRUE(Password(d).hasFocus());
        QTest::keyClicks(&Password(d), "Segreta");
        QTest::keyClick(&Password(d), Qt::Key_Return);
        EXPECT_FALSE(d.isVisible());
    });
    QTest::keyClick(finestra.get(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(progetto.Utente, "mario");
}

TEST_F(Autentificazione, ItCanBeLeftWithoutALogIn) {
    Apri(Con_Account("Libera"));
    progetto.Utente = "prima";
    const std::function<void(QDialog&)> uscite[] = {
        [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }, [](QDialog& d) { d.close(); },
        [](QDialog& d) { QTest::mouseClick(&Oggetto_Di<QWidget>(d, "KEY_ESCI"), Qt::LeftButton); }};
    for (const auto& uscita : uscite) {
        Nel_Dialogo accesso(FORM, [&](QDialog& d) {
            Scrivi(d, "mario", "Segreta");
            uscita(d);
        });
        Clic("Label_Utente");
        EXPECT_FALSE(accesso.Lasciato_Aperto());
        EXPECT_EQ(progetto.Utente, "prima");
        EXPECT_FALSE(progetto.Ricarica_Necessaria);
        Comando("KEY_HOME");
    }
}

TEST_F(Autentificazione, OpeningACatalogueAsksUnderAnArrow) {
    Nel_Dialogo accesso(FORM, [&](QDialog& d) {
        EXPECT_TRUE(schermo.Occupato());
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        Scrivi(d, "mario", "Segreta");
        QTest::keyClick(&Account(d), Qt::Key_Enter);
    });
    Apri(Con_Account("Autentificazione_utente"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(progetto.Utente, "mario");
}

TEST_F(Autentificazione, ACatalogueOfTheCommandLineAsksBeforeTheWindowIsThere) {
    // The dialog is then the only window, and its end isn't the program's.
    QSignalSpy ultima(qApp, &QGuiApplication::lastWindowClosed);
    Nel_Dialogo accesso(FORM, [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); });
    QTimer::singleShot(0, qApp, [this] {
        schermo.Apertura.Avvia(Con_Account("Autentificazione_utente").Pacchetto(cartella.path()));
        QTimer::singleShot(0, qApp, &QApplication::quit);
    });
    QApplication::exec();
    EXPECT_EQ(ultima.count(), 0);
    EXPECT_TRUE(progetto.Progetto_Aperto);
}

TEST_F(Autentificazione, ItsTextsComeFromTheCatalogueAndFit) {
    Apri(Con_Account("Libera"));
    Nel_Dialogo disegnato(FORM, [](QDialog& d) {
        EXPECT_EQ(d.windowTitle(), "Log in to the catalogue");
        EXPECT_EQ(Testi_Tagliati(d), QStringList());
        d.reject();
    });
    Comando("KEY_LUCCHETTO");
    Catalogo_Di_Prova catalogo = Con_Account("Libera");
    Traduci(catalogo, FORM, FORM, "Anmeldung am Katalog");
    Traduci(catalogo, FORM, "Label_Account", "Benutzername des Fachhandelspartners");
    Traduci(catalogo, FORM, "Command_OK", "Beim Ersatzteilkatalog anmelden");
    Traduci(catalogo, FORM, "Toolbar_Main", "Ohne Anmeldung schließen");
    Apri_Altro(catalogo);
    Nel_Dialogo tradotto(FORM, [&](QDialog& d) {
        EXPECT_EQ(d.windowTitle(), "Anmeldung am Katalog");
        EXPECT_EQ(Oggetto_Di<QLabel>(d, "Label_Account").text(), "Benutzername des Fachhandelspartners");
        EXPECT_EQ(Suggerimenti::Testo(Oggetto_Di<QWidget>(d, "KEY_ESCI")), "Ohne Anmeldung schließen");
        EXPECT_EQ(Testi_Tagliati(d), QStringList());
    });
    Comando("KEY_LUCCHETTO");
}

}  // namespace

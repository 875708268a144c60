#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <memory>

#include "core/catalogue_db/engine/protezione.h"
#include "core/package/class_progetto_aperto.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "zip_di_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class Progetto : public testing::Test {
  protected:
    Progetto() { Ricomincia(); }
    void Ricomincia() { p_ = std::make_unique<Class_Progetto_Aperto>(Porte()); }
    Class_Progetto_Aperto::Porte Porte() { return {impostazioni_, messaggi_, sistema_}; }
    QString Buono() { return catalogo_.Pacchetto(cartella_.path(), "buono.TZF"); }
    QString Temp(const QString& nome) { return sistema_.Cartella_Temporanea() + nome; }
    std::string Ultimo_Messaggio() {
        return messaggi_.Mostrati.empty() ? "" : messaggi_.Mostrati.back().testo.toStdString();
    }

    QTemporaryDir cartella_;
    Impostazioni_Finte impostazioni_;
    Messaggi_Finti messaggi_;
    Sistema_Finto sistema_;
    Catalogo_Di_Prova catalogo_;
    std::unique_ptr<Class_Progetto_Aperto> p_;
};

TEST_F(Progetto, OpensAPackage) {
    catalogo_.Prodotto("P_1", "R", "Motore")
        .Sistema("GRUPPO_START", "/A/")
        .Sistema("MERCATO_START", "France");
    const QString pacchetto = Buono();
    const QByteArray prima = Leggi_Tutto(pacchetto);
    Avanzamento_Finto avanzamento;
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto, &avanzamento), 1);

    EXPECT_TRUE(p_->Progetto_Aperto);
    EXPECT_EQ(p_->Cartella_Temporanea, Temp("TZV_00/"));
    EXPECT_EQ(p_->Percorso_Database, Temp("TZV_00/tzd_qlfrml_cod.tzf"));
    EXPECT_EQ(p_->File_Pacchetto, pacchetto);
    EXPECT_EQ(p_->Cartella_Estrazione, p_->Cartella_Temporanea);
    EXPECT_EQ(p_->Lingua, "1");
    EXPECT_EQ(p_->Mercato, "3");
    EXPECT_EQ(p_->Gruppo, "/A/");
    EXPECT_EQ(p_->Albero.Count(), 2);
    EXPECT_EQ(p_->Restitusci_Titolo_Albero(2), "Trial");
    EXPECT_THAT(messaggi_.Testi(), IsEmpty());
    EXPECT_FALSE(avanzamento.Passi.empty());

    struct stat stato;
    ASSERT_EQ(::stat(QFile::encodeName(p_->Cartella_Temporanea).constData(), &stato), 0);
    EXPECT_EQ(stato.st_mode & 0777, 0700u);
    EXPECT_THAT(Contenuto(p_->Cartella_Temporanea), ElementsAre("tzd_qlfrml_cod.tzf"));
    EXPECT_EQ(Leggi_Tutto(pacchetto), prima);
}

TEST_F(Progetto, ClosingEmptiesAllAndLeavesNothing) {
    catalogo_.Prodotto("P_1", "R", "Motore").File("foto/a.jpg", "picture");
    ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    ASSERT_NE(p_->Scompatta_File_Compattato("a.jpg"), "");
    p_->Utente = "mario";
    p_->Elimina_Progetto_Aperto();

    EXPECT_FALSE(p_->Progetto_Aperto);
    EXPECT_EQ(p_->Percorso_Database, "");
    EXPECT_EQ(p_->Utente, "");
    EXPECT_EQ(p_->Lingua, "1");  // stays
    EXPECT_EQ(p_->Mercato, "1");
    EXPECT_EQ(p_->Albero.Count(), 0);
    EXPECT_FALSE(p_->DB.Aperto());
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), "");

    // A folder of that name may be another program's by now.
    ASSERT_TRUE(QDir().mkdir(Temp("TZV_00")));
    p_->Elimina_Progetto_Aperto();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre("TZV_00"));
}

TEST_F(Progetto, TheFirstFreeFolderIsTaken) {
    ASSERT_TRUE(QDir().mkdir(Temp("TZV_00")));
    Scrivi_File(Temp("TZV_01"), "a file is in the way too");
    ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    EXPECT_EQ(p_->Cartella_Temporanea, Temp("TZV_02/"));
    EXPECT_EQ(sistema_.Giri_Eventi, 2);
    p_->Elimina_Progetto_Aperto();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre("TZV_00", "TZV_01"));
}

TEST_F(Progetto, ATemporaryFolderThatCantBeMadeIsAFailedOpen) {
    ASSERT_TRUE(QDir(sistema_.Cartella_Temporanea()).removeRecursively());
    EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), 0);
    ASSERT_EQ(messaggi_.Mostrati.size(), 1u);
    EXPECT_EQ(messaggi_.Mostrati[0].icona, Icona::Critica);
    EXPECT_EQ(p_->Cartella_Temporanea, "");
}

struct Caso_Versione {
    const char* versione;  ///< nullptr: NULL
    bool apre;
};
void PrintTo(const Caso_Versione& caso, std::ostream* flusso) {
    *flusso << (caso.versione ? caso.versione : "NULL");
}
class Progetto_Versione : public Progetto, public testing::WithParamInterface<Caso_Versione> {};

TEST_P(Progetto_Versione, DecidesWhatOpens) {
    const char* versione = GetParam().versione;
    catalogo_.Sistema("VERSIONE", versione ? Valore_Prova(versione) : std::nullopt);
    EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), GetParam().apre ? 1 : 0);
    EXPECT_EQ(p_->Progetto_Aperto, GetParam().apre);
    EXPECT_EQ(p_->DB.Aperto(), GetParam().apre);
    if (GetParam().apre) {
        EXPECT_THAT(messaggi_.Testi(), IsEmpty());
    } else {
        ASSERT_EQ(messaggi_.Mostrati.size(), 1u);
        EXPECT_EQ(messaggi_.Mostrati[0], (Messaggi_Finti::Messaggio{"Error version file.", Icona::Critica}));
        EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre("TZV_00"));
    }
}
INSTANTIATE_TEST_SUITE_P(Versioni, Progetto_Versione,
                         testing::Values(Caso_Versione{"4.1", true}, Caso_Versione{"4.2", true},
                                         Caso_Versione{"4.30", true}, Caso_Versione{"4,1", true},
                                         Caso_Versione{"5", true}, Caso_Versione{"4.0", false},
                                         Caso_Versione{"4.09", false}, Caso_Versione{"", false},
                                         Caso_Versione{"abc", false}, Caso_Versione{nullptr, false}));

// --- what can't be opened
// --------------------------------------------------------------------------------------

class Progetto_Guasto : public Progetto {
  protected:
    /// Opening fails with one message, the package stays as it is, no more than the temporary folder and the
    /// database's copy stay, and the next package opens all the same.
    void Non_Si_Apre(const QString& pacchetto, const char* motivo, Icona icona = Icona::Nessuna) {
        SCOPED_TRACE(pacchetto.toStdString());
        messaggi_.Mostrati.clear();
        const bool esiste = QFile::exists(pacchetto);
        const QByteArray prima = Leggi_Tutto(pacchetto);
        p_->Lingua = "2";
        EXPECT_EQ(p_->Apri_Progetto_TZF(pacchetto), 0);
        EXPECT_FALSE(p_->Progetto_Aperto);
        EXPECT_FALSE(p_->DB.Aperto());
        EXPECT_EQ(p_->Albero.Count(), 0);
        EXPECT_EQ(p_->Lingua, "2");
        ASSERT_EQ(messaggi_.Mostrati.size(), 1u);
        EXPECT_THAT(Ultimo_Messaggio(), testing::HasSubstr(motivo));
        EXPECT_EQ(messaggi_.Mostrati[0].icona, icona);
        EXPECT_EQ(Leggi_Tutto(pacchetto), prima);
        EXPECT_EQ(QFile::exists(pacchetto), esiste);

        const QString rimasta = p_->Cartella_Temporanea;
        EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre(QFileInfo(QDir(rimasta).path()).fileName()));
        for (const QString& nome : Contenuto(rimasta))
            EXPECT_EQ(nome, NOME_DATABASE);

        EXPECT_EQ(p_->Apri_Progetto_TZF(Catalogo_Di_Prova().Pacchetto(buoni_.path())), 1);
        p_->Elimina_Progetto_Aperto();
        QDir(rimasta).removeRecursively();
        EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
    }
    /// A package around these bytes in place of the database.
    QString Con_Database(const QByteArray& byte, const QString& nome) {
        return Scrivi_Zip(cartella_.filePath(nome), {{NOME_DATABASE.toUtf8(), byte}});
    }
    QTemporaryDir buoni_;
};

TEST_F(Progetto_Guasto, WhatIsNoPackage) {
    const QByteArray buono = Leggi_Tutto(Buono());
    const auto file = [&](const char* nome, const QByteArray& byte) {
        return Scrivi_File(cartella_.filePath(nome), byte);
    };
    Non_Si_Apre(cartella_.filePath("missing.TZF"), "Error open file The file was not found.");
    Non_Si_Apre(file("empty.TZF", ""), "Error open file The file is not a catalogue package");
    Non_Si_Apre(file("text.TZF", "no archive"), "not a catalogue package");
    Non_Si_Apre(file("cut.TZF", buono.first(buono.size() * 2 / 3)), "not a catalogue package");
}

TEST_F(Progetto_Guasto, PackagesWithoutAUsableEntry) {
    const QByteArray database = Leggi_Tutto(catalogo_.Database(cartella_.path()));
    QFile::remove(cartella_.filePath(NOME_DATABASE));
    const QByteArray nome = NOME_DATABASE.toUtf8();
    const auto zip = [&](const char* file, const std::vector<Voce_Zip>& voci) {
        return Scrivi_Zip(cartella_.filePath(file), voci);
    };
    Non_Si_Apre(zip("nodb.TZF", {{"a.jpg", "x"}}), "holds no catalogue database");
    Non_Si_Apre(zip("password.TZF", {{nome, database, "another"}}), "another password");
    // The end of the name matches, so the entry is extracted, under its own name.
    const QString altro_nome = zip("x.TZF", {{"x" + nome, database}});
    EXPECT_EQ(p_->Apri_Progetto_TZF(altro_nome), 0);
    EXPECT_THAT(Ultimo_Messaggio(), StartsWith("Error open file "));
    p_->Elimina_Progetto_Aperto();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());

    const QString bomba = zip("bomb.TZF", {{nome, QByteArray(66 << 20, '\0')}});
    Non_Si_Apre(bomba, "no catalogue can have");
    Dichiara_Dimensione(bomba, 0xFFFFFFF0);
    Non_Si_Apre(bomba, "no catalogue can have");
}

TEST_F(Progetto_Guasto, DatabasesThatAreNone) {
    const QByteArray buono = Leggi_Tutto(catalogo_.Database(cartella_.path()));
    QByteArray rovinato = buono;
    for (qsizetype i = 4096; i < rovinato.size(); i += 7)
        rovinato[i] = static_cast<char>(rovinato[i] + 13);
    const QString altra = cartella_.filePath("altra.db");
    {
        Database db;
        db.Apri(altra, {}, Database::Modo::Scrittura);
        for (const QString& sql :
             QStringList{"CREATE TABLE SYSTEM (KEY TEXT, VALORE TEXT)"} + Istruzioni_Protezione("another"))
            db.Esegui(sql);
    }
    const QByteArray con_altra_password = Leggi_Tutto(altra);
    QFile::remove(cartella_.filePath(NOME_DATABASE));

    Non_Si_Apre(Con_Database("", "emptydb.TZF"), "Error open file ");
    Non_Si_Apre(Con_Database("garbage", "garbage.TZF"), "Error open file ");
    Non_Si_Apre(Con_Database(QByteArray(100'000, 'q'), "garbage2.TZF"), "Error open file ");
    Non_Si_Apre(Con_Database(buono.first(buono.size() / 2), "cutdb.TZF"), "Error open file ");
    Non_Si_Apre(Con_Database(con_altra_password, "dbpwd.TZF"), "Error open file ");

    // Damage behind the header: a failed open of one kind or another, never a crash.
    const QString guasto = Con_Database(rovinato, "damaged.TZF");
    EXPECT_EQ(p_->Apri_Progetto_TZF(guasto), 0);
    EXPECT_FALSE(messaggi_.Mostrati.empty());
    EXPECT_FALSE(p_->Progetto_Aperto);
}

TEST_F(Progetto_Guasto, DatabasesThatLackSomething) {
    const auto senza = [&](const char* nome, auto togli) {
        Catalogo_Di_Prova catalogo;
        togli(catalogo);
        return catalogo.Pacchetto(cartella_.path(), nome);
    };
    Non_Si_Apre(senza("system.TZF", [](auto& c) { c.Rimuovi_Tabella("SYSTEM"); }), "Error version file.",
                Icona::Critica);
    Non_Si_Apre(senza("tree.TZF", [](auto& c) { c.Rimuovi_Tabella("Albero_Web"); }), "Albero_Web",
                Icona::Critica);
    Non_Si_Apre(senza("text.TZF", [](auto& c) { c.Rimuovi_Colonna("Albero_Web", "Testo_Visualizzato_1"); }),
                "Testo_Visualizzato_1", Icona::Critica);
    Non_Si_Apre(senza("lingue.TZF", [](auto& c) { c.Rimuovi_Tabella("Lingue"); }), "Testo_Visualizzato_0",
                Icona::Critica);
    Non_Si_Apre(senza("twice.TZF", [](auto& c) { c.Nodo("G_1", "R", "a").Nodo("G_1", "R", "b"); }), "",
                Icona::Critica);
}

TEST_F(Progetto, ACatalogueWithoutTheRestStillOpens) {
    for (const char* tabella : {"Traduzioni_Viewer_System", "Struttura_Componenti", "Componenti_Web",
                                "Albero", "Prodotti", "Matricola_Nodo"})
        catalogo_.Rimuovi_Tabella(tabella);
    EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    EXPECT_THAT(messaggi_.Testi(), IsEmpty());
}

// --- files of the catalogue
// ------------------------------------------------------------------------------------

TEST_F(Progetto, FilesAreExtractedOnce) {
    catalogo_.File("foto/a.jpg", "picture").File("b.pdf", "document");
    const QString pacchetto = Buono();
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 1);
    const QString a = p_->Cartella_Temporanea + "a.jpg";
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), a);
    EXPECT_EQ(Leggi_Tutto(a), "picture");
    EXPECT_EQ(p_->Scompatta_File_Compattato("none.jpg"), "");
    EXPECT_EQ(p_->Scompatta_File_Compattato(""), "");

    Scrivi_File(a, "changed");
    ASSERT_TRUE(QFile::remove(pacchetto));
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), a);  // the archive isn't touched
    EXPECT_EQ(Leggi_Tutto(a), "changed");
    EXPECT_EQ(p_->Scompatta_File_Compattato("b.pdf"), "");
}

TEST_F(Progetto, ANameOfTheCatalogueLeadsNowhereElse) {
    ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    Scrivi_File(Temp("secret.txt"), "secret");
    EXPECT_EQ(p_->Scompatta_File_Compattato("../secret.txt"), "");
    EXPECT_EQ(p_->Scompatta_File_Compattato(Temp("secret.txt")), "");
}

TEST_F(Progetto, FilesBesideThePackageWin) {
    catalogo_.File("a.jpg", "packed");
    const QString pacchetto = Buono();
    const QString accanto = Scrivi_File(cartella_.filePath("a.jpg"), "beside");
    // The database too, in a copy.
    const QString database = Catalogo_Di_Prova().Nodo("G_9", "R", "patched").Database(cartella_.path());
    const QByteArray byte = Leggi_Tutto(database);

    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 1);
    EXPECT_TRUE(p_->Albero.Esiste("G_9"));
    EXPECT_EQ(p_->Percorso_Database, p_->Cartella_Temporanea + NOME_DATABASE);
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), accanto);
    p_->Elimina_Progetto_Aperto();
    EXPECT_EQ(Leggi_Tutto(accanto), "beside");
    EXPECT_EQ(Leggi_Tutto(database), byte);
}

TEST_F(Progetto, PersonalPictures) {
    using Metodo = QString (Class_Progetto_Aperto::*)();
    struct Caso {
        Metodo metodo;
        const char *interruttore, *voce;
    };
    const Caso casi[] = {{&Class_Progetto_Aperto::Restituisci_Immagine_Logo, "PUBBLICA_TZF_INCLUDI_LOGO",
                          "Logo_azienda.tar.gz"},
                         {&Class_Progetto_Aperto::Restituisci_Immagine_Home,
                          "PUBBLICA_TZF_VIEWER_IMMAGINE_HOME", "Immagine_Home.tar.gz"},
                         {&Class_Progetto_Aperto::Restituisci_Immagine_Contatti,
                          "PUBBLICA_TZF_VIEWER_IMMAGINE_CONTATTI", "Immagine_Contatti.tar.gz"}};
    for (const Caso& caso : casi) {
        struct Prova {
            const char *personalizzato, *interruttore, *file;
            bool trovata;
        };
        for (const Prova& prova : {Prova{"SI", "1", "my picture.tar.gz", true},
                                   {"NO", "1", "a.tar.gz", false},
                                   {"", "1", "a.tar.gz", false},
                                   {"SI", "SI", "a.tar.gz", false},
                                   {"SI", "1", " ", false},
                                   {"SI", "1", "a.png", false}}) {
            Catalogo_Di_Prova catalogo;
            catalogo.Sistema("PUBBLICA_TZF_VIEWER_PERSONALIZZATO", prova.personalizzato)
                .Sistema(caso.interruttore, prova.interruttore)
                .Sistema(QString(caso.interruttore) + "_FILE", prova.file)
                .File(caso.voce, "picture");
            ASSERT_EQ(p_->Apri_Progetto_TZF(catalogo.Pacchetto(cartella_.path())), 1);
            EXPECT_EQ(((*p_).*caso.metodo)(), prova.trovata ? p_->Cartella_Temporanea + caso.voce : QString())
                << caso.voce << ' ' << prova.file;
            p_->Elimina_Progetto_Aperto();
        }
        EXPECT_EQ(((*p_).*caso.metodo)(), "");
    }
}

// --- settings, access
// ------------------------------------------------------------------------------------------

TEST_F(Progetto, TheLanguageIsRememberedAcrossRuns) {
    EXPECT_EQ(p_->Lingua, "2");
    for (const auto& [letta, lingua] : std::initializer_list<std::pair<const char*, const char*>>{
             {"1", "1"}, {"6", "6"}, {"7", "2"}, {"0", "2"}, {"-3", "2"}, {"x", "2"}, {"", "2"}}) {
        impostazioni_.Imposta("LINGUA", "START", letta);
        Class_Progetto_Aperto altro(Porte());
        EXPECT_EQ(altro.Lingua, lingua) << letta;
    }
    p_->Lingua = "5";
    p_.reset();
    EXPECT_EQ(impostazioni_.Valore("LINGUA", "START"), "5");
}

TEST_F(Progetto, ACatalogueMayAskForALogIn) {
    for (const auto& [modo, libero] :
         std::initializer_list<std::pair<const char*, bool>>{{"", true},
                                                             {"Libera", true},
                                                             {"Autentificazione_singola", false},
                                                             {"Autentificazione_utente", false}}) {
        catalogo_.Sistema("IMPOSTAZIONE_AUTENTIFICAZIONE_UTENTE", modo);
        ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
        EXPECT_EQ(p_->Autentificazione_Corretta(), libero) << modo;
        p_->Utente = "mario";
        EXPECT_TRUE(p_->Autentificazione_Corretta());
        p_->Elimina_Progetto_Aperto();
    }
}

TEST_F(Progetto, TheModelIsReadOncePerLanguage) {
    catalogo_.Nodo("G_1", "R", "testo", {{"Testo_Visualizzato_2", "text"}});
    ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    const Class_Albero* nodo = &p_->Albero.Item("G_1");
    p_->Carica_Albero();
    EXPECT_EQ(&p_->Albero.Item("G_1"), nodo);
    p_->Lingua = "2";
    p_->Carica_Albero();
    EXPECT_EQ(p_->Albero.Item("G_1").Testo_Visualizzato_.Testo(), "text");

    p_->Elimina_Progetto_Aperto();
    ASSERT_EQ(
        p_->Apri_Progetto_TZF(Catalogo_Di_Prova().Nodo("G_2", "R", "other").Pacchetto(cartella_.path())), 1);
    EXPECT_TRUE(p_->Albero.Esiste("G_2"));
}

}  // namespace

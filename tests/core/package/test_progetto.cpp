#include <gmock/gmock.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <memory>

#include "core/catalogue_db/engine/protezione.h"
#include "core/package/class_progetto_aperto.h"
#include "support/catalogo_di_prova.h"
#include "support/fakes.h"
#include "support/zip_di_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Progetto : public testing::Test {
  protected:
    Progetto() { Ricomincia(); }
    void Ricomincia() { p_ = std::make_unique<Class_Progetto_Aperto>(Porte()); }
    Class_Progetto_Aperto::Porte Porte() { return {impostazioni_, messaggi_, sistema_}; }
    QString Buono() { return catalogo_.Pacchetto(cartella_.path(), "buono.TZF"); }
    QString Temp(const QString& nome) { return sistema_.Cartella_Temporanea() + nome; }

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
    Avanzamento_Finto avanzamento;
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto, &avanzamento), 1);
    EXPECT_TRUE(p_->Progetto_Aperto);
    EXPECT_EQ(p_->File_Pacchetto, pacchetto);
    EXPECT_EQ(p_->Lingua + p_->Mercato + p_->Gruppo, "13/A/");
    EXPECT_EQ(p_->Albero.Count(), 2);
    EXPECT_EQ(p_->Restitusci_Titolo_Albero(2), "Trial");
    EXPECT_THAT(messaggi_.Testi(), IsEmpty());
    EXPECT_FALSE(avanzamento.Passi.empty());

    struct stat stato;
    ASSERT_EQ(::stat(QFile::encodeName(p_->Cartella_Temporanea).constData(), &stato), 0);
    EXPECT_EQ(stato.st_mode & 0777, 0700u);
}

TEST_F(Progetto, ClosingEmptiesAllAndLeavesNothing) {
    catalogo_.Prodotto("P_1", "R", "Motore").File("foto/a.jpg", "picture");
    ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    ASSERT_NE(p_->Scompatta_File_Compattato("a.jpg"), "");
    p_->Utente = "mario";
    p_->Elimina_Progetto_Aperto();
    EXPECT_FALSE(p_->Progetto_Aperto || p_->DB.Aperto());
    EXPECT_EQ(p_->Percorso_Database + p_->Utente + p_->Scompatta_File_Compattato("a.jpg"), "");
    EXPECT_EQ(p_->Lingua + p_->Mercato, "11");  // stay
    EXPECT_EQ(p_->Albero.Count(), 0);
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());

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
    p_->Elimina_Progetto_Aperto();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre("TZV_00", "TZV_01"));
    ASSERT_TRUE(QDir(sistema_.Cartella_Temporanea()).removeRecursively());
    EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), 0) << "none can be made";
    ASSERT_EQ(messaggi_.Mostrati.size(), 1u);
    EXPECT_EQ(messaggi_.Mostrati[0].icona, Icona::Critica);
    EXPECT_EQ(p_->Cartella_Temporanea, "");
}

TEST_F(Progetto, TheVersionDecidesWhatOpens) {
    const std::pair<Valore_Prova, bool> casi[] = {{"4.1", true},   {"4,1", true},  {"5", true},
                                                  {"4.09", false}, {"abc", false}, {std::nullopt, false}};
    for (const auto& [versione, apre] : casi) {
        SCOPED_TRACE(versione.value_or("NULL").toStdString());
        messaggi_.Mostrati.clear();
        Ricomincia();
        catalogo_.Sistema("VERSIONE", versione);
        EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), apre ? 1 : 0);
        EXPECT_EQ(p_->DB.Aperto(), apre);
        const QStringList messaggi = apre ? QStringList() : QStringList{"Error version file."};
        EXPECT_EQ(messaggi_.Testi(), messaggi);
    }
}

class Progetto_Guasto : public Progetto {
  protected:
    /// Opening fails with one message, the package stays as it is, no more than the temporary folder and the
    /// database's copy stay, and the next package opens all the same.
    void Non_Si_Apre(const QString& pacchetto, const char* motivo, Icona icona = Icona::Nessuna) {
        SCOPED_TRACE(pacchetto.toStdString());
        messaggi_.Mostrati.clear();
        const QByteArray prima = Leggi_Tutto(pacchetto);
        p_->Lingua = "2";
        EXPECT_EQ(p_->Apri_Progetto_TZF(pacchetto), 0);
        EXPECT_FALSE(p_->Progetto_Aperto || p_->DB.Aperto());
        EXPECT_EQ(p_->Albero.Count(), 0);
        EXPECT_EQ(p_->Lingua, "2");
        ASSERT_EQ(messaggi_.Mostrati.size(), 1u);
        EXPECT_THAT(messaggi_.Mostrati[0].testo.toStdString(), testing::HasSubstr(motivo));
        EXPECT_EQ(messaggi_.Mostrati[0].icona, icona);
        EXPECT_EQ(Leggi_Tutto(pacchetto), prima);

        const QString rimasta = p_->Cartella_Temporanea;
        EXPECT_THAT(sistema_.Contenuto_Temporaneo(), ElementsAre(QFileInfo(QDir(rimasta).path()).fileName()));
        for (const QString& nome : Contenuto(rimasta))
            EXPECT_EQ(nome, NOME_DATABASE);

        EXPECT_EQ(p_->Apri_Progetto_TZF(Catalogo_Di_Prova().Pacchetto(buoni_.path())), 1);
        p_->Elimina_Progetto_Aperto();
        QDir(rimasta).removeRecursively();
        EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
    }
    QTemporaryDir buoni_;
};

TEST_F(Progetto_Guasto, PackagesWithoutAUsableEntry) {
    const QByteArray nome = NOME_DATABASE.toUtf8();
    const auto zip = [&](const char* file, const std::vector<Voce_Zip>& voci) {
        return Scrivi_Zip(cartella_.filePath(file), voci);
    };
    Non_Si_Apre(cartella_.filePath("missing.TZF"), "Error open file The file was not found.");
    Non_Si_Apre(Scrivi_File(cartella_.filePath("text.TZF"), "no archive"),
                "Error open file The file is not a catalogue package");
    Non_Si_Apre(zip("nodb.TZF", {{"a.jpg", "x"}}), "holds no catalogue database");
    Non_Si_Apre(zip("garbage.TZF", {{nome, "garbage"}}), "Error open file ");
    Non_Si_Apre(zip("bomb.TZF", {{nome, QByteArray(66 << 20, '\0')}}), "no catalogue can have");
}

TEST_F(Progetto_Guasto, DatabasesThatLackSomething) {
    // reason, table, its column or all of it
    const char* casi[][3] = {{"Error version file.", "SYSTEM", ""},
                             {"Albero_Web", "Albero_Web", ""},
                             {"Testo_Visualizzato_1", "Albero_Web", "Testo_Visualizzato_1"},
                             {"Testo_Visualizzato_0", "Lingue", ""}};
    for (const auto& [motivo, tabella, colonna] : casi) {
        Catalogo_Di_Prova catalogo;
        *colonna ? catalogo.Rimuovi_Colonna(tabella, colonna) : catalogo.Rimuovi_Tabella(tabella);
        Non_Si_Apre(catalogo.Pacchetto(cartella_.path()), motivo, Icona::Critica);
    }
}

TEST_F(Progetto, ACatalogueWithoutTheRestStillOpens) {
    for (const char* tabella : {"Traduzioni_Viewer_System", "Struttura_Componenti", "Componenti_Web",
                                "Albero", "Prodotti", "Matricola_Nodo"})
        catalogo_.Rimuovi_Tabella(tabella);
    EXPECT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
    EXPECT_THAT(messaggi_.Testi(), IsEmpty());
}

TEST_F(Progetto, FilesAreExtractedOnce) {
    catalogo_.File("foto/a.jpg", "picture");
    const QString pacchetto = Buono();
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 1);
    const QString a = p_->Cartella_Temporanea + "a.jpg", segreto = Scrivi_File(Temp("secret.txt"), "secret");
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), a);
    // A name of the catalogue leads nowhere else.
    for (const QString& nome : {QString("none.jpg"), QString(), QString("../secret.txt"), segreto})
        EXPECT_EQ(p_->Scompatta_File_Compattato(nome), "") << nome.toStdString();
    ASSERT_TRUE(QFile::remove(pacchetto));
    EXPECT_EQ(p_->Scompatta_File_Compattato("a.jpg"), a);  // the archive isn't touched
}

TEST_F(Progetto, ADatabaseBesideThePackageWinsAndIsOnlyCopied) {
    const QString pacchetto = Buono(),
                  database = Catalogo_Di_Prova().Nodo("G_9", "R", "patched").Database(cartella_.path());
    const QByteArray byte = Leggi_Tutto(database);
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 1);
    EXPECT_TRUE(p_->Albero.Esiste("G_9"));
    EXPECT_EQ(p_->Percorso_Database, p_->Cartella_Temporanea + NOME_DATABASE);
    p_->Elimina_Progetto_Aperto();
    EXPECT_EQ(Leggi_Tutto(database), byte);
}

/// The indexes come after the test of the version, and only on the copy.
TEST_F(Progetto, ADatabaseWithoutIndexesGetsThem) {
    const auto indici = [](const QString& percorso) {
        Database db;
        db.Apri(percorso, CONNESSIONE_DB, Database::Modo::Scrittura);
        for (const QString nome : {"IX_Albero_Web_Key_Prodotto", "IX_Prodotti_Key_Prodotto"})
            db.Esegui("DROP INDEX " + nome);
    };
    const QString pacchetto = Buono();
    indici(catalogo_.Database(cartella_.path()));  // beside the package, so taken in place of the packed one
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 1);
    EXPECT_NO_THROW(indici(p_->Percorso_Database));

    indici(catalogo_.Sistema("VERSIONE", "4").Database(cartella_.path()));
    ASSERT_EQ(p_->Apri_Progetto_TZF(pacchetto), 0);
    EXPECT_THROW(indici(p_->Cartella_Temporanea + NOME_DATABASE), Errore_DB);
}

TEST_F(Progetto, PersonalPictures) {
    const std::tuple<QString (Class_Progetto_Aperto::*)(), QString, QString> immagini[] = {
        {&Class_Progetto_Aperto::Restituisci_Immagine_Logo, "INCLUDI_LOGO", "Logo_azienda.tar.gz"},
        {&Class_Progetto_Aperto::Restituisci_Immagine_Home, "VIEWER_IMMAGINE_HOME", "Immagine_Home.tar.gz"},
        {&Class_Progetto_Aperto::Restituisci_Immagine_Contatti, "VIEWER_IMMAGINE_CONTATTI",
         "Immagine_Contatti.tar.gz"}};
    catalogo_.Sistema("PUBBLICA_TZF_VIEWER_PERSONALIZZATO", "SI");
    for (const auto& [metodo, interruttore, voce] : immagini) {
        ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
        EXPECT_EQ(((*p_).*metodo)(), "") << voce.toStdString();
        p_->Elimina_Progetto_Aperto();
        catalogo_.Sistema("PUBBLICA_TZF_" + interruttore, "1")
            .Sistema("PUBBLICA_TZF_" + interruttore + "_FILE", "my picture.tar.gz")
            .File(voce, "picture");
        ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
        EXPECT_EQ(((*p_).*metodo)(), p_->Cartella_Temporanea + voce);
        p_->Elimina_Progetto_Aperto();
    }
}

TEST_F(Progetto, TheLanguageIsRememberedAcrossRuns) {
    EXPECT_EQ(p_->Lingua, "2");
    const char* casi[][2] = {{"1", "1"}, {"6", "6"}, {"7", "2"}, {"0", "2"}, {"x", "2"}};
    for (const auto& [letta, lingua] : casi) {
        impostazioni_.Imposta("LINGUA", "START", letta);
        EXPECT_EQ(Class_Progetto_Aperto(Porte()).Lingua, lingua) << letta;
    }
    p_->Lingua = "5";
    p_.reset();
    EXPECT_EQ(impostazioni_.Valore("LINGUA", "START"), "5");
}

TEST_F(Progetto, TheUsersDiscountComesFromTheUserElseTheGroupsElseTheCatalogue) {
    for (const auto& [chiave, percento] : {std::pair("D10", "1/10|2/20"), std::pair("D5", "1/5")})
        catalogo_.Riga("Sconti", {{"Key_Sconto", chiave}, {"Ordine", "1"}, {"Sconto_Generale", percento}});
    catalogo_.Riga("Gruppi_Utenti", {{"Key_Gruppo", "G"}, {"Ordine", "1"}, {"Key_Sconto", "/D5/"}})
        .Riga("Gruppi_Utenti", {{"Key_Gruppo", "VUOTO"}, {"Ordine", "2"}})
        .Riga("Anagrafico", {{"Login", "chiave"}, {"Key_Gruppo", "/G/"}, {"Key_Sconto", "/D10/"}})
        .Riga("Anagrafico", {{"Login", "gruppo"}, {"Key_Gruppo", "/G/"}})
        .Riga("Anagrafico", {{"Login", "niente"}, {"Key_Gruppo", "/VUOTO/"}});
    struct Caso {
        const char *utente, *gruppo, *mercato, *predefinito;
        float fattore;
        const char* descrizione;
    };
    const Caso casi[] = {
        {"chiave", "", "1", "", 0.9f, "10"},    {"chiave", "", "2", "", 0.8f, "20"},
        {"chiave", "", "3", "", 0, "0"},        {"gruppo", "", "1", "/D10/", 0.95f, "5"},
        {"niente", "/G/", "1", "", 0, "prima"}, {"niente", "", "1", "/D10/D5/", 0.9f * 0.95f, "10+5"},
        {"", "/G/", "1", "/D10/", 0.95f, "5"},  {"", "", "1", "/D10/", 0.9f, "10"},
        {"ignoto", "/G/", "1", "", 0, "prima"}, {"o'r", "/G/", "1", "", 0, "prima"},
        {"", "", "1", "", 0, "prima"}};
    for (const auto& [utente, gruppo, mercato, predefinito, fattore, descrizione] : casi) {
        catalogo_.Sistema("GRUPPI_SCONTO_START", predefinito);
        ASSERT_EQ(p_->Apri_Progetto_TZF(Buono()), 1);
        p_->Utente = utente;
        p_->Gruppo = gruppo;
        p_->Mercato = mercato;
        QString detta = "prima";
        EXPECT_EQ(p_->Restituisci_Sconto_Utente(1, 100, detta), fattore) << utente;
        EXPECT_EQ(detta, descrizione) << utente;
        p_->Elimina_Progetto_Aperto();
    }
}

}  // namespace

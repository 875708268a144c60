#include "core/package/estrazione.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "support/fakes.h"
#include "support/zip_di_prova.h"

using testing::IsEmpty;

namespace {

class Estrazione_Voci : public testing::Test {
  protected:
    QString Estrai(const QString& nome, const QString& cartella = {}) {
        return estrattore_.Estrai_Da_Pacchetto(zip_, nome, cartella, nullptr, &stato_);
    }

    QTemporaryDir da_, a_;
    QString zip_ = Scrivi_Zip(da_.filePath("prova.TZF"),
                              {{"dir/a.txt", "packed"}, {"b.txt", "packed"}, {"../outside.txt", "packed"}});
    Sistema_Finto sistema_;
    Estrattore estrattore_{sistema_};
    Stato_Archivio stato_ = -1;
};

TEST_F(Estrazione_Voci, RemembersFilesAndFolder) {
    EXPECT_EQ(Estrai("b.txt", a_.path()), a_.filePath("b.txt"));
    EXPECT_EQ(stato_, ARCHIVIO_OK);
    // What lies in the last folder comes again from there, as it is now.
    Scrivi_File(a_.filePath("b.txt"), "changed");
    EXPECT_EQ(Estrai("b.txt", da_.path()), a_.filePath("b.txt"));
    EXPECT_EQ(Leggi_Tutto(a_.filePath("b.txt")), "changed");

    const QString in_sistema = sistema_.Cartella_Temporanea();
    EXPECT_EQ(Estrai("a.txt"), in_sistema + "a.txt");
    estrattore_.Dimentica_Cartella();
    EXPECT_EQ(Estrai("b.txt"), in_sistema + "b.txt");
    estrattore_.Elimina_File_Estratti();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo() + Contenuto(a_.path()), IsEmpty());

    EXPECT_EQ(Estrai("none.txt"), "");
    EXPECT_EQ(stato_, VOCE_ASSENTE);
    zip_ = da_.filePath("none.TZF");
    EXPECT_EQ(Estrai("b.txt"), "");
    EXPECT_EQ(stato_, ARCHIVIO_ASSENTE);
}

TEST_F(Estrazione_Voci, AFileNamedWithAFolderIsExtractedOnceUnlessAnotherTookItsPlace) {
    zip_ = Scrivi_Zip(da_.filePath("altro.TZF"), {{"x/a.txt", "x"}, {"y/a.txt", "y"}});
    const QString a = a_.filePath("a.txt");
    for (const auto& [nome, contenuto] : {std::pair("x/a.txt", "x"), {"y/a.txt", "y"}, {"x/a.txt", "x"}}) {
        ASSERT_EQ(Estrai(nome, a_.path()), a);
        EXPECT_EQ(Leggi_Tutto(a), contenuto);
        const QByteArray segno = "seen";
        Scrivi_File(a, segno);  // a new extraction would take it away
        EXPECT_EQ(Estrai(nome, a_.path()), a);
        EXPECT_EQ(Leggi_Tutto(a), segno);
    }
}

TEST_F(Estrazione_Voci, AFileBesideThePackageWinsAndIsNeverDeleted) {
    const QString sotto = Scrivi_File(da_.filePath("dir/a.txt"), "below"),
                  fuori = Scrivi_File(QFileInfo(da_.path()).path() + "/outside.txt", "not beside");
    EXPECT_EQ(Estrai("a.txt", a_.path()), sotto);
    EXPECT_EQ(Estrai("outside.txt", a_.path()), a_.filePath("outside.txt"));
    QFile::remove(fuori);
    {
        const Estrazione_Privata copia(sistema_, zip_, "a.txt");
        EXPECT_EQ(Leggi_Tutto(copia.Percorso()), "below");
        EXPECT_NE(copia.Percorso(), sotto);
    }
    estrattore_.Elimina_File_Estratti();
    EXPECT_EQ(Leggi_Tutto(sotto), "below");
    EXPECT_THAT(sistema_.Contenuto_Temporaneo(), IsEmpty());
}

/// What another user can put into the last folder, when it is the system's temporary one.
TEST_F(Estrazione_Voci, OnlyAFileOfOurOwnIsTakenFromTheLastFolder) {
    Estrai("a.txt", a_.path());
    const QString b = a_.filePath("b.txt");
    ASSERT_TRUE(QFile::link(Scrivi_File(da_.filePath("secret"), "secret"), b));
    EXPECT_EQ(Leggi_Tutto(Estrai("b.txt", a_.path())), "packed");
    Scrivi_File(b, "theirs");
    if (::chown(QFile::encodeName(b).constData(), 65534, 65534) != 0)
        GTEST_SKIP() << "only root can give a file away";
    EXPECT_EQ(Leggi_Tutto(Estrai("b.txt", a_.path())), "packed");
    EXPECT_EQ(QFileInfo(b).ownerId(), ::geteuid());
}

}  // namespace

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QTemporaryDir>
#include <csignal>

#include "core/package/unpacking.h"
#include "support/fakes.h"
#include "zip_di_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Unpacking : public testing::Test {
  protected:
    QString Zip(const std::vector<Voce_Zip>& voci, const QString& nome = QStringLiteral("prova.TZF")) {
        return Scrivi_Zip(da_.filePath(nome), voci);
    }
    Stato_Archivio Scompatta(const QString& zip, const QString& voce) {
        return Scompatta_Voce(zip, a_.path(), {}, voce, estratto_, &avanzamento_);
    }

    /// So many bytes and a few more, that don't compress like a bomb.
    static QByteArray Cifre(int byte) {
        QByteArray cifre;
        for (int i = 0; cifre.size() < byte; ++i)
            cifre += QByteArray::number(i * 7919);
        return cifre;
    }

    QTemporaryDir da_, a_;
    QString estratto_;
    Avanzamento_Finto avanzamento_;
    Sistema_Finto sistema_;
    Estrattore estrattore_{sistema_};
};

TEST_F(Unpacking, SafeNames) {
    for (const QString voce : {"a.jpg", "foto\\b/a.jpg", "../../a.jpg", "/etc/a.jpg", "C:\\dir\\a.jpg"})
        EXPECT_EQ(Nome_Sicuro(voce), "a.jpg") << voce.toStdString();
    for (const QString voce : {"ò è.jpg", ".nascosto", "..a"})
        EXPECT_EQ(Nome_Sicuro(voce), voce) << voce.toStdString();
    const QString di_600_byte(200, QChar(0x20AC)), con_zero = QLatin1String("a\0b", 3);
    for (const QString& voce : {QString(), QString("foto/"), QString("a/.."), QString("..\\.."),
                                QString("C:a.jpg"), QString("a\nb"), QString("a\x7f"), con_zero, di_600_byte})
        EXPECT_EQ(Nome_Sicuro(voce), "") << voce.toStdString();
}

TEST_F(Unpacking, ExtractsOneEntryWithoutItsFolders) {
    const QByteArray contenuto = Cifre(900'000);
    const QString zip = Zip({{"uno.txt", "no"}, {"dir/sub/foto è.jpg", contenuto}});
    QStringList voci{"old"};
    EXPECT_EQ(Elenca_Pacchetto(zip, voci), ARCHIVIO_OK);
    EXPECT_THAT(voci, ElementsAre("uno.txt", QStringLiteral("dir/sub/foto è.jpg")));
    EXPECT_EQ(Verifica_Pacchetto(zip), ARCHIVIO_OK);

    ASSERT_EQ(Scompatta(zip, QStringLiteral("dir\\sub\\foto è.jpg")), ARCHIVIO_OK);
    EXPECT_EQ(estratto_, a_.filePath(QStringLiteral("foto è.jpg")));
    EXPECT_EQ(Leggi_Tutto(estratto_), contenuto);

    EXPECT_EQ(QFile::permissions(estratto_),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    EXPECT_GE(avanzamento_.Passi.size(), 4u);
    EXPECT_TRUE(avanzamento_.Regolare());
}

TEST_F(Unpacking, TheLastOfTwoEntriesWithOneNameCounts) {
    const QString zip = Zip({{"a1.txt", "first"}, {"a2.txt", "second"}});
    Scrivi_File(zip, Leggi_Tutto(zip).replace("a2.txt", "a1.txt"));
    ASSERT_EQ(Scompatta(zip, "a1.txt"), ARCHIVIO_OK);
    EXPECT_EQ(Leggi_Tutto(estratto_), "second");
}

TEST_F(Unpacking, HostileNamesStayInTheFolder) {
    const QString dentro = a_.filePath("in");
    ASSERT_TRUE(QDir().mkdir(dentro));
    EXPECT_EQ(Scompatta_Voce(Zip({{"../evil", ""}}), dentro, {}, "../evil", estratto_), ARCHIVIO_OK);
    EXPECT_EQ(Scompatta_Voce(Zip({{"a/..", ""}}), dentro, {}, "a/..", estratto_), VOCE_NON_AMMESSA);
    EXPECT_EQ(estratto_, "");
    EXPECT_THAT(Contenuto(dentro), ElementsAre("evil"));
    EXPECT_THAT(Contenuto(a_.path()), ElementsAre("in"));
}

TEST_F(Unpacking, AnEntryReplacesALinkAndNeverFollowsIt) {
    const QString fuori = Scrivi_File(da_.filePath("outside"), "precious");
    ASSERT_TRUE(QFile::link(fuori, a_.filePath("a.txt")));
    ASSERT_EQ(Scompatta(Zip({{"a.txt", "new"}}), "a.txt"), ARCHIVIO_OK);
    EXPECT_EQ(Leggi_Tutto(fuori), "precious");
    EXPECT_FALSE(QFileInfo(estratto_).isSymLink());
}

TEST_F(Unpacking, WhatIsNoPackageIsRefused) {
    const QString buono = Zip({{"a.txt", QByteArray(5000, 'x')}, {"b.txt", "y"}});
    const QByteArray byte = Leggi_Tutto(buono);
    const std::pair<QString, Stato_Archivio> casi[] = {
        {da_.filePath("missing.TZF"), ARCHIVIO_ASSENTE},
        {da_.path(), ARCHIVIO_ASSENTE},
        {Scrivi_File(da_.filePath("text"), "This is no archive."), ARCHIVIO_NON_VALIDO},
        {Scrivi_File(da_.filePath("cut"), byte.first(byte.size() / 2)), ARCHIVIO_NON_VALIDO},
    };
    for (const auto& [percorso, stato] : casi) {
        QStringList voci;
        EXPECT_EQ(Elenca_Pacchetto(percorso, voci), stato) << percorso.toStdString();
        EXPECT_EQ(Scompatta(percorso, "a.txt"), stato) << percorso.toStdString();
        EXPECT_EQ(Verifica_Pacchetto(percorso), stato) << percorso.toStdString();
        EXPECT_EQ(estratto_, "");
    }
    EXPECT_EQ(Scompatta(buono, "missing.txt"), VOCE_ASSENTE);
    EXPECT_THAT(Contenuto(a_.path()), IsEmpty());
}

TEST_F(Unpacking, AnotherPasswordOrDamageLeavesNothing) {
    const QByteArray contenuto = Cifre(100'000);
    const QString altra = Zip({{"a.txt", contenuto, "another"}});
    EXPECT_EQ(Scompatta(altra, "a.txt"), VOCE_NON_LEGGIBILE);
    EXPECT_EQ(Verifica_Pacchetto(altra), VOCE_NON_LEGGIBILE);

    const QString guasta = Zip({{"a.txt", contenuto}}, "damaged.TZF");
    QByteArray byte = Leggi_Tutto(guasta);
    byte[byte.size() / 2] = static_cast<char>(byte[byte.size() / 2] ^ 0x55);
    Scrivi_File(guasta, byte);
    EXPECT_EQ(Scompatta(guasta, "a.txt"), VOCE_NON_LEGGIBILE);
    EXPECT_EQ(Verifica_Pacchetto(guasta), VOCE_NON_LEGGIBILE);
    EXPECT_THAT(Contenuto(a_.path()), IsEmpty());
}

TEST_F(Unpacking, ABombIsNotUnpacked) {
    const QByteArray zeri(65 << 20, '\0');
    const QString bomba = Zip({{"a", zeri}});
    EXPECT_EQ(Scompatta(bomba, "a"), VOCE_NON_AMMESSA);  // a thousand to one
    EXPECT_EQ(Verifica_Pacchetto(bomba), VOCE_NON_AMMESSA);
    EXPECT_THAT(avanzamento_.Passi, IsEmpty());

    Dichiara_Dimensione(bomba, 1000);  // more comes than was declared
    EXPECT_NE(Scompatta(bomba, "a"), ARCHIVIO_OK);

    const QString piccola = Zip({{"a", "0123456789", ""}});
    Dichiara_Dimensione(piccola, 0xF0000000);  // beyond what a file can be
    EXPECT_EQ(Scompatta(piccola, "a"), VOCE_NON_AMMESSA);
    Dichiara_Dimensione(piccola, 100);  // less comes than was declared
    EXPECT_EQ(Scompatta(piccola, "a"), VOCE_NON_LEGGIBILE);
    EXPECT_THAT(Contenuto(a_.path()), IsEmpty());

    // Small files may be as regular as they like.
    EXPECT_EQ(Scompatta(Zip({{"a", QByteArray(1 << 20, '\0')}}), "a"), ARCHIVIO_OK);
}

/// An end record that claims two thousand million entries.
TEST_F(Unpacking, ADirectoryThatClaimsTooMuchIsRefused) {
    const QByteArray voci = "0094357700000000", zeri(16, '0');
    const QByteArray zip =
        "504b0606"
        "2c00000000000000"
        "2d002d00" +
        zeri + voci + voci + zeri + zeri +
        "504b0607"
        "00000000" +
        zeri +
        "01000000"
        "504b0506"
        "00000000" +
        QByteArray(24, 'f') + "0000";
    QStringList lista;
    EXPECT_EQ(Elenca_Pacchetto(Scrivi_File(da_.filePath("many.TZF"), QByteArray::fromHex(zip)), lista),
              ARCHIVIO_NON_VALIDO);
}

TEST_F(Unpacking, AFailedWriteLeavesNothing) {
    const QString zip = Zip({{"a.txt", QByteArray(300'000, 'x')}});
    EXPECT_EQ(Scompatta_Voce(zip, a_.filePath("nowhere"), {}, "a.txt", estratto_), SCRITTURA_FALLITA);
    ASSERT_TRUE(QDir(a_.path()).mkdir("a.txt"));  // a folder is in the way
    EXPECT_EQ(Scompatta(zip, "a.txt"), SCRITTURA_FALLITA);
    EXPECT_THAT(Contenuto(a_.path()), ElementsAre("a.txt"));

    // The disk "fills" after some bytes.
    rlimit prima;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &prima), 0);
    const rlimit poco{100'000, prima.rlim_max};
    const auto gestore = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &poco), 0);
    const Stato_Archivio stato = Scompatta_Voce(zip, da_.path(), {}, "a.txt", estratto_);
    ::setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, gestore);
    EXPECT_EQ(stato, SCRITTURA_FALLITA);
    EXPECT_THAT(Contenuto(da_.path()), ElementsAre("prova.TZF"));
}

TEST_F(Unpacking, FindsTheLastEntryThatEndsLikeTheName) {
    const QString zip =
        Zip({{"a.jpg", "1"}, {"dir/a.jpg", "2"}, {"dir\\b.jpg", "3"}, {"dir/xa.jpg", "4"}, {"A.JPG", ""}});
    EXPECT_EQ(Cerca_Voce_Pacchetto(zip, "a.jpg"), "dir/xa.jpg");
    EXPECT_EQ(Cerca_Voce_Pacchetto(zip, "dir/a.jpg"), "dir/a.jpg");
    EXPECT_EQ(Cerca_Voce_Pacchetto(zip, "A.jpg"), "");
    QString voce;
    EXPECT_EQ(Cerca_Voce_Pacchetto(zip, "z.jpg", voce), VOCE_ASSENTE);
}

TEST_F(Unpacking, ExtractionRemembersFilesAndFolder) {
    const QString zip = Zip({{"dir/a.txt", "one"}, {"b.txt", "two"}});
    Stato_Archivio stato = -1;
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "b.txt"}, a_.path(), nullptr, &stato),
              a_.filePath("b.txt"));
    EXPECT_EQ(stato, ARCHIVIO_OK);
    // What lies in the last folder comes again from there, as it is now.
    Scrivi_File(a_.filePath("b.txt"), "changed");
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "b.txt"}, da_.path()), a_.filePath("b.txt"));
    EXPECT_EQ(Leggi_Tutto(a_.filePath("b.txt")), "changed");

    const QString in_sistema = sistema_.Cartella_Temporanea();
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "dir/a.txt"}, {}), in_sistema + "a.txt");
    estrattore_.Dimentica_Cartella();
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "b.txt"}, {}), in_sistema + "b.txt");
    estrattore_.Elimina_File_Estratti();
    EXPECT_THAT(sistema_.Contenuto_Temporaneo() + Contenuto(a_.path()), IsEmpty());

    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "none.txt"}, {}, nullptr, &stato), "");
    EXPECT_EQ(stato, VOCE_ASSENTE);
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({da_.filePath("none.TZF"), "b.txt"}, {}, nullptr, &stato), "");
    EXPECT_EQ(stato, ARCHIVIO_ASSENTE);
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({"", zip}, {}), zip);
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({"", "/nowhere/at/all"}, {}), "");
}

TEST_F(Unpacking, AFileBesideThePackageWinsAndIsNeverDeleted) {
    const QString zip = Zip({{"dir/b.txt", "packed"}, {"../outside.txt", "packed"}});
    const QString sotto = Scrivi_File(da_.filePath("dir/b.txt"), "below"),
                  fuori = Scrivi_File(QFileInfo(da_.path()).path() + "/outside.txt", "not beside");
    EXPECT_EQ(estrattore_.Estrai_Da_Pacchetto({zip, "dir/b.txt"}, a_.path()), sotto);
    EXPECT_NE(estrattore_.Estrai_Da_Pacchetto({zip, "../outside.txt"}, a_.path()), fuori);
    QFile::remove(fuori);
    estrattore_.Elimina_File_Estratti();
    EXPECT_EQ(Leggi_Tutto(sotto), "below");
}

TEST_F(Unpacking, ALinkInTheLastFolderIsNotTrusted) {
    const QString zip = Zip({{"a.txt", "packed"}, {"b.txt", "packed"}});
    estrattore_.Estrai_Da_Pacchetto({zip, "a.txt"}, a_.path());
    ASSERT_TRUE(QFile::link(Scrivi_File(da_.filePath("secret"), "secret"), a_.filePath("b.txt")));
    EXPECT_EQ(Leggi_Tutto(estrattore_.Estrai_Da_Pacchetto({zip, "b.txt"}, a_.path())), "packed");
}

}  // namespace

#include "core/archivio/archivio.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QTemporaryDir>
#include <csignal>

#include "core/archivio/archivio_in_scrittura.h"
#include "support/fakes.h"
#include "support/zip_di_prova.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Archivi : public testing::Test {
  protected:
    QString Zip(const std::vector<Voce_Zip>& voci, const QString& nome = QStringLiteral("prova.TZF")) {
        return Scrivi_Zip(da_.filePath(nome), voci);
    }
    /// Extracts the entry that is found under this name, and answers "" for its file unless all is well.
    Stato_Archivio Scompatta(const QString& zip, const QString& nome, const QString& cartella = {}) {
        const Archivio archivio(zip);
        return archivio.Scompatta_Voce(archivio.Cerca_Voce(nome), cartella.isEmpty() ? a_.path() : cartella,
                                       estratto_, &avanzamento_);
    }
    static Stato_Archivio Verifica(const QString& zip) { return Archivio(zip).Verifica_Pacchetto(); }

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
};

TEST_F(Archivi, SafeNames) {
    for (const QString voce : {"a.jpg", "foto\\b/a.jpg", "../../a.jpg", "/etc/a.jpg", "C:\\dir\\a.jpg"})
        EXPECT_EQ(Nome_Sicuro(voce), "a.jpg") << voce.toStdString();
    for (const QString voce : {"ò è.jpg", ".nascosto", "..a"})
        EXPECT_EQ(Nome_Sicuro(voce), voce) << voce.toStdString();
    const QString di_600_byte(200, QChar(0x20AC)), con_zero = QLatin1String("a\0b", 3);
    for (const QString& voce : {QString(), QString("foto/"), QString("a/.."), QString("..\\.."),
                                QString("C:a.jpg"), QString("a\nb"), QString("a\x7f"), con_zero, di_600_byte})
        EXPECT_EQ(Nome_Sicuro(voce), "") << voce.toStdString();
}

TEST_F(Archivi, ExtractsOneEntryWithoutItsFolders) {
    const QByteArray contenuto = Cifre(900'000);
    const QString zip = Zip({{"uno.txt", "no"}, {"dir/sub/foto è.jpg", contenuto}});
    EXPECT_EQ(Archivio(zip).Inizio_Voce(1, 5), contenuto.first(5));
    EXPECT_EQ(Verifica(zip), ARCHIVIO_OK);
    ASSERT_EQ(Scompatta(zip, QStringLiteral("foto è.jpg")), ARCHIVIO_OK);
    EXPECT_EQ(estratto_, a_.filePath(QStringLiteral("foto è.jpg")));
    EXPECT_EQ(Leggi_Tutto(estratto_), contenuto);
    EXPECT_EQ(QFile::permissions(estratto_),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    EXPECT_GE(avanzamento_.Passi.size(), 4u);
    EXPECT_TRUE(avanzamento_.Regolare());
}

TEST_F(Archivi, NothingLeavesTheFolderOrFollowsALink) {
    const QString dentro = a_.filePath("in"), fuori = Scrivi_File(da_.filePath("outside"), "precious");
    ASSERT_TRUE(QDir().mkdir(dentro) && QFile::link(fuori, dentro + "/a.txt"));
    EXPECT_EQ(Scompatta(Zip({{"../a.txt", "new"}}), "a.txt", dentro), ARCHIVIO_OK);
    EXPECT_FALSE(QFileInfo(estratto_).isSymLink());
    EXPECT_EQ(Leggi_Tutto(fuori), "precious");
    EXPECT_EQ(Scompatta(Zip({{"a/..", ""}}), "a/..", dentro), VOCE_NON_AMMESSA);
    EXPECT_EQ(estratto_, "");
    EXPECT_THAT(Contenuto(dentro) + Contenuto(a_.path()), ElementsAre("a.txt", "in"));
}

TEST_F(Archivi, WhatIsNoPackageIsRefused) {
    const QString buono = Zip({{"a.txt", QByteArray(5000, 'x')}, {"b.txt", "y"}});
    const QByteArray byte = Leggi_Tutto(buono);
    const std::pair<QString, Stato_Archivio> casi[] = {
        {da_.filePath("missing.TZF"), ARCHIVIO_ASSENTE},
        {da_.path(), ARCHIVIO_ASSENTE},
        {Scrivi_File(da_.filePath("text"), "This is no archive."), ARCHIVIO_NON_VALIDO},
        {Scrivi_File(da_.filePath("cut"), byte.first(byte.size() / 2)), ARCHIVIO_NON_VALIDO},
    };
    for (const auto& [percorso, stato] : casi) {
        EXPECT_EQ(Scompatta(percorso, "a.txt"), stato) << percorso.toStdString();
        EXPECT_EQ(Verifica(percorso), stato) << percorso.toStdString();
        EXPECT_EQ(estratto_, "");
    }
    EXPECT_EQ(Scompatta(buono, "missing.txt"), VOCE_ASSENTE);
    EXPECT_THAT(Contenuto(a_.path()), IsEmpty());
}

TEST_F(Archivi, AnotherPasswordOrDamageLeavesNothing) {
    const QByteArray contenuto = Cifre(100'000);
    const QString altra = Zip({{"a.txt", contenuto, "another"}}),
                  guasta = Zip({{"a.txt", contenuto}}, "damaged.TZF");
    QByteArray byte = Leggi_Tutto(guasta);
    byte[byte.size() / 2] = static_cast<char>(byte[byte.size() / 2] ^ 0x55);
    for (const QString& zip : {altra, Scrivi_File(guasta, byte)}) {
        EXPECT_EQ(Scompatta(zip, "a.txt"), VOCE_NON_LEGGIBILE);
        EXPECT_EQ(Verifica(zip), VOCE_NON_LEGGIBILE);
    }
    EXPECT_THAT(Contenuto(a_.path()), IsEmpty());
}

TEST_F(Archivi, ABombIsNotUnpacked) {
    const QByteArray zeri(65 << 20, '\0');
    const QString bomba = Zip({{"a", zeri}});
    EXPECT_EQ(Scompatta(bomba, "a"), VOCE_NON_AMMESSA);  // a thousand to one
    EXPECT_EQ(Verifica(bomba), VOCE_NON_AMMESSA);
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
TEST_F(Archivi, ADirectoryThatClaimsTooMuchIsRefused) {
    const QByteArray voci = "0094357700000000", zeri(16, '0');
    const QByteArray zip = "504b06062c000000000000002d002d00" + zeri + voci + voci + zeri + zeri +
                           "504b060700000000" + zeri + "01000000504b050600000000" + QByteArray(24, 'f') +
                           "0000";
    EXPECT_EQ(Archivio(Scrivi_File(da_.filePath("many.TZF"), QByteArray::fromHex(zip))).Stato(),
              ARCHIVIO_NON_VALIDO);
}

TEST_F(Archivi, AFailedWriteLeavesNothing) {
    const QString zip = Zip({{"a.txt", QByteArray(300'000, 'x')}});
    EXPECT_EQ(Scompatta(zip, "a.txt", a_.filePath("nowhere")), SCRITTURA_FALLITA);
    ASSERT_TRUE(QDir(a_.path()).mkdir("a.txt"));  // a folder is in the way
    EXPECT_EQ(Scompatta(zip, "a.txt"), SCRITTURA_FALLITA);
    EXPECT_THAT(Contenuto(a_.path()), ElementsAre("a.txt"));

    // The disk "fills" after some bytes.
    rlimit prima;
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &prima), 0);
    const rlimit poco{100'000, prima.rlim_max};
    const auto gestore = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &poco), 0);
    const Stato_Archivio stato = Scompatta(zip, "a.txt", da_.path());
    ::setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, gestore);
    EXPECT_EQ(stato, SCRITTURA_FALLITA);
    EXPECT_THAT(Contenuto(da_.path()), ElementsAre("prova.TZF"));
}

TEST_F(Archivi, FindsTheLastEntryThatEndsLikeTheName) {
    const Nomi_Voci nomi({"a.jpg", "dir/a.jpg", "dir\\b.jpg", "dir/xa.jpg", "A.JPG", "c/d.jpg ", "b.jpg/"});
    const std::pair<const char*, int> casi[] = {{"a.jpg", 3},     {"/a.jpg", 1}, {"dir/a.jpg", 1},
                                                {"dir/b.jpg", 2}, {"A.jpg", -1}, {"d.jpg", 5},
                                                {"", 6},          {"z", -1}};
    for (const auto& [nome, posizione] : casi)
        EXPECT_EQ(nomi.Cerca(nome), posizione) << nome;
    EXPECT_EQ(nomi.Nome(2), "dir/b.jpg");
    EXPECT_EQ(Nomi_Voci().Cerca("a"), -1);
}

TEST_F(Archivi, WhatIsWrittenCanBeRead) {
    const QString percorso = da_.filePath("new.TZF");
    Scrivi_File(percorso, "old");
    const QString file = Scrivi_File(da_.filePath("file"), Cifre(300'000));
    Archivio_In_Scrittura scrittura(percorso);
    scrittura.Aggiungi_File("z/file", file);
    scrittura.Aggiungi("a", "content");
    scrittura.Aggiungi_Cartella("empty/");
    EXPECT_EQ(Leggi_Tutto(percorso), "old") << "until it is finished";
    EXPECT_EQ(scrittura.Termina(), "");
    const Archivio archivio(percorso);
    QStringList voci;
    for (const Voce_Archivio& voce : archivio.Voci()) {
        voci += voce.Nome + ' ' + QString::number(voce.Byte);
        EXPECT_NE(voce.Cifrata, voce.E_Cartella());
    }
    EXPECT_THAT(voci, ElementsAre(QString("z/file %1").arg(QFileInfo(file).size()), "a 7", "empty/ 0"));
    EXPECT_EQ(archivio.Verifica_Pacchetto(), ARCHIVIO_OK);
    EXPECT_EQ(Scompatta(percorso, "z/file"), ARCHIVIO_OK);
    EXPECT_EQ(Leggi_Tutto(estratto_), Leggi_Tutto(file));
    // Of two entries with one name, which no library writes, the last one counts.
    Scrivi_File(percorso, Leggi_Tutto(Zip({{"a1.txt", "1"}, {"a2.txt", "2"}})).replace("a2.txt", "a1.txt"));
    ASSERT_EQ(Scompatta(percorso, "a1.txt"), ARCHIVIO_OK);
    EXPECT_EQ(Leggi_Tutto(estratto_), "2");
}

TEST_F(Archivi, APackageThatCantBeWrittenIsToldAndLeavesTheOldOne) {
    using Scrittura = Archivio_In_Scrittura;
    const std::pair<std::function<void(Scrittura&)>, const char*> casi[] = {
        {[](Scrittura&) {}, "without entries"},
        {[](Scrittura& s) { s.Aggiungi_File("a", "/none"); }, "/none: the file can't be read"},
        {[](Scrittura& s) { s.Aggiungi("a", "1"), s.Aggiungi("a", "2"); }, "a: "}};
    const QString percorso = Scrivi_File(da_.filePath("p.TZF"), "old");
    for (const auto& [riempi, motivo] : casi) {
        Scrittura scrittura(percorso);
        riempi(scrittura);
        EXPECT_THAT(scrittura.Termina().toStdString(), testing::HasSubstr(motivo));
    }
    EXPECT_EQ(Leggi_Tutto(percorso), "old");
    Scrittura nessuna(da_.filePath("none/p.TZF"));
    nessuna.Aggiungi("a", "1");
    EXPECT_NE(nessuna.Termina(), "");
    EXPECT_THAT(Contenuto(da_.path()), ElementsAre("p.TZF"));
}

}  // namespace

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/base/testo.h"

namespace {

QString Con_Separatore(QString percorso) {
    return percorso.replace(u'/', QDir::separator());
}

TEST(Percorsi, FolderWithOneSeparatorAtItsEnd) {
    EXPECT_EQ(Cartella_Con_Barra(Con_Separatore(u"a/b"_qs)), Con_Separatore(u"a/b/"_qs));
    EXPECT_EQ(Cartella_Con_Barra(Con_Separatore(u"a/b/"_qs)), Con_Separatore(u"a/b/"_qs));
}

TEST(Percorsi, FileAndFolder) {
    struct Caso {
        QString percorso, separatore, file, cartella;
    };
    const Caso casi[] = {
        {u"a/b/c.x"_qs, u"/"_qs, u"c.x"_qs, u"a/b/"_qs},  {u"a/b/"_qs, u"/"_qs, u""_qs, u"a/b/"_qs},
        {u"c.x"_qs, u"/"_qs, u"c.x"_qs, u""_qs},          {u"a\\b"_qs, u"\\"_qs, u"b"_qs, u"a\\"_qs},
        {u"a\\b"_qs, u"/"_qs, u"a\\b"_qs, u""_qs},        {u""_qs, u"/"_qs, u""_qs, u""_qs},
        {u"a::b::c"_qs, u"::"_qs, u"c"_qs, u"a::b::"_qs}, {u"a/b"_qs, u""_qs, u"a/b"_qs, u""_qs},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Nome_File(caso.percorso, caso.separatore), caso.file) << caso.percorso.toStdString();
        EXPECT_EQ(Cartella_File(caso.percorso, caso.separatore), caso.cartella)
            << caso.percorso.toStdString();
    }
}

TEST(Percorsi, TheFileNameIsSoughtInTheLast999Characters) {
    const QString lungo(998, u'n');
    EXPECT_EQ(Nome_File(u"a/"_qs + lungo, u"/"), lungo);
    EXPECT_EQ(Nome_File(u"a/n"_qs + lungo, u"/"), u"a/n"_qs + lungo) << "the separator lies too far back";
}

TEST(Percorsi, Extensions) {
    const std::pair<QString, QString> casi[] = {
        {u"a/b.txt"_qs, u"txt"_qs}, {u"a/b.tar.gz"_qs, u"tar.gz"_qs}, {u"a.b/c"_qs, u""_qs},
        {u"a/.hidden"_qs, u""_qs},  {u"a/.h.txt"_qs, u""_qs},         {u"b."_qs, u""_qs},
        {u""_qs, u""_qs},           {u"b.TZF"_qs, u"TZF"_qs},         {u"C:\\v1.2\\b.jpg"_qs, u"jpg"_qs},
    };
    for (const auto& [percorso, atteso] : casi)
        EXPECT_EQ(Estensione_File(Con_Separatore(percorso)), atteso) << percorso.toStdString();
}

TEST(Percorsi, KindOfFile) {
    const std::pair<QString, int> casi[] = {
        {u"a/b.TZF"_qs, 2},   {u"b.tzf"_qs, 2}, {u"b.x.Tzf"_qs, 2},     {u"b.tzf4"_qs, 2},
        {u"b.tzf.zip"_qs, 3}, {u"tzf"_qs, 3},   {u"a.tzf/b.zip"_qs, 3}, {u"a.tzf/b"_qs, 3},
        {u"b.tz"_qs, 3},      {u""_qs, 3},
    };
    for (const auto& [percorso, atteso] : casi)
        EXPECT_EQ(Tipo_File(Con_Separatore(percorso)), atteso) << percorso.toStdString();
}

class Elimina_Cartella_Test : public testing::Test {
  protected:
    void Crea_File(const QString& nome) {
        QFile file(base.filePath(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << nome.toStdString();
        file.write("x");
    }
    void Imposta_Modo(const QString& nome, mode_t modo) {
        ASSERT_EQ(chmod(QFile::encodeName(base.filePath(nome)).constData(), modo), 0);
    }
    QTemporaryDir temporanea;
    QDir base{temporanea.path()};
};

TEST_F(Elimina_Cartella_Test, TakesTheWholeTreeWhateverItsAttributes) {
    ASSERT_TRUE(base.mkpath(u"t/a/b/c"_qs));
    ASSERT_TRUE(base.mkpath(u"t/chiusa"_qs));
    for (const char* nome : {"t/f", "t/.nascosto", "t/a/sola lettura", "t/a/b/c/è", "t/chiusa/f"})
        Crea_File(QString::fromUtf8(nome));
    Imposta_Modo(u"t/a/sola lettura"_qs, 0);
    Imposta_Modo(u"t/a"_qs, 0500);
    Imposta_Modo(u"t/chiusa"_qs, 0);

    Elimina_Cartella(base.filePath(u"t"_qs));
    EXPECT_FALSE(QFileInfo::exists(base.filePath(u"t"_qs)));
}

TEST_F(Elimina_Cartella_Test, NeverFollowsALink) {
    ASSERT_TRUE(base.mkpath(u"fuori"_qs));
    ASSERT_TRUE(base.mkpath(u"t/a"_qs));
    Crea_File(u"fuori/prezioso"_qs);
    ASSERT_TRUE(QFile::link(base.filePath(u"fuori"_qs), base.filePath(u"t/a/cartella"_qs)));
    ASSERT_TRUE(QFile::link(base.filePath(u"fuori/prezioso"_qs), base.filePath(u"t/file"_qs)));
    ASSERT_TRUE(QFile::link(base.filePath(u"manca"_qs), base.filePath(u"t/rotto"_qs)));
    ASSERT_TRUE(QFile::link(base.filePath(u"fuori"_qs), base.filePath(u"l"_qs)));

    Elimina_Cartella(base.filePath(u"t"_qs));
    Elimina_Cartella(base.filePath(u"l/"_qs));
    EXPECT_EQ(base.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              QStringList{u"fuori"_qs});
    EXPECT_TRUE(QFileInfo::exists(base.filePath(u"fuori/prezioso"_qs)));
}

TEST_F(Elimina_Cartella_Test, LeavesAloneWhatIsntAFolder) {
    Crea_File(u"f"_qs);
    const QString prima = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(base.path()));
    Elimina_Cartella(base.filePath(u"f"_qs));
    Elimina_Cartella(base.filePath(u"manca"_qs));
    Elimina_Cartella(QString());
    ASSERT_TRUE(QDir::setCurrent(prima));
    EXPECT_EQ(base.entryList(QDir::Files), QStringList{u"f"_qs});
}

}  // namespace

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/base/percorsi.h"
#include "righe.h"

namespace {

QString Con_Separatore(QString percorso) {
    return percorso.replace(u'/', QDir::separator());
}

TEST(Percorsi, FileAndFolder) {
    struct Caso {
        QString percorso, separatore, file, cartella;
    };
    const Caso casi[] = {{"a/b/c.x", "/", "c.x", "a/b/"},  {"a/b/", "/", "", "a/b/"},
                         {"c.x", "/", "c.x", ""},          {"a\\b", "\\", "b", "a\\"},
                         {"a::b::c", "::", "c", "a::b::"}, {"a/b", "", "a/b", ""}};
    for (const auto& [percorso, separatore, file, cartella] : casi) {
        EXPECT_EQ(Nome_File(percorso, separatore), file) << qPrintable(percorso);
        EXPECT_EQ(Cartella_File(percorso, separatore), cartella) << qPrintable(percorso);
    }
    for (const char* percorso : {"a/b", "a/b/"})
        EXPECT_EQ(Cartella_Con_Barra(Con_Separatore(percorso)), Con_Separatore("a/b/"));
    const QString lungo(998, u'n');
    EXPECT_EQ(Nome_File("a/" + lungo, u"/"), lungo);
    EXPECT_EQ(Nome_File("a/n" + lungo, u"/"), "a/n" + lungo) << "the separator lies too far back";
}

TEST(Percorsi, ExtensionAndKindOfFile) {
    for (const QStringList& riga :
         Righe(R"(a/b.txt=txt=3|a/b.tar.gz=tar.gz=3|a.b/c==3|a/.hidden==3|a/.h.txt==3|b.==3|==3|a/b.TZF=TZF=2
|C:\v1.2\b.jpg=jpg=3|b.x.Tzf=x.Tzf=2|b.tzf4=tzf4=2|b.tzf.zip=tzf.zip=3|tzf==3|a.tzf/b.zip=zip=3|a.tzf/b==3
|b.tz=tz=3)")) {
        EXPECT_EQ(Estensione_File(Con_Separatore(riga[0])), riga[1]) << qPrintable(riga[0]);
        EXPECT_EQ(Tipo_File(Con_Separatore(riga[0])), riga[2].toInt()) << qPrintable(riga[0]);
    }
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
    ASSERT_TRUE(base.mkpath("t/a/b/c") && base.mkpath("t/chiusa"));
    for (const char* nome : {"t/.nascosto", "t/a/sola lettura", "t/a/b/c/è", "t/chiusa/f"})
        Crea_File(nome);
    Imposta_Modo("t/a/sola lettura", 0);
    Imposta_Modo("t/a", 0500);
    Imposta_Modo("t/chiusa", 0);

    Elimina_Cartella(base.filePath("t"));
    EXPECT_FALSE(QFileInfo::exists(base.filePath("t")));
}

TEST_F(Elimina_Cartella_Test, NeverFollowsALink) {
    ASSERT_TRUE(base.mkpath("fuori") && base.mkpath("t/a"));
    Crea_File("fuori/prezioso");
    for (const auto& [verso, link] : {std::pair("fuori", "t/a/cartella"),
                                      {"fuori/prezioso", "t/file"},
                                      {"manca", "t/rotto"},
                                      {"fuori", "l"}})
        ASSERT_TRUE(QFile::link(base.filePath(verso), base.filePath(link)));

    Elimina_Cartella(base.filePath("t"));
    Elimina_Cartella(base.filePath("l/"));
    EXPECT_EQ(base.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), QStringList{"fuori"});
    EXPECT_TRUE(QFileInfo::exists(base.filePath("fuori/prezioso")));
}

TEST_F(Elimina_Cartella_Test, LeavesAloneWhatIsntAFolder) {
    Crea_File("f");
    const QString prima = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(base.path()));
    for (const QString& percorso : {base.filePath("f"), base.filePath("manca"), QString()})
        Elimina_Cartella(percorso);
    ASSERT_TRUE(QDir::setCurrent(prima));
    EXPECT_EQ(base.entryList(QDir::Files), QStringList{"f"});
}

}  // namespace

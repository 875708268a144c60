#include "tzf/generate.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tzf/archive.h"
#include "tzf/check.h"
#include "tzf/database_reader.h"
#include "tzf/tool_error.h"

namespace {

class Generate : public testing::Test {
  protected:
    QString make(const QString& name, const GeneratedSize& size) {
        generateCatalogue(folder.filePath(name), size);
        const ArchiveReader archive(folder.filePath(name));
        archive.extract(0, folder.filePath(name + ".db"));
        return folder.filePath(name + ".db");
    }
    QTemporaryDir folder;
};

TEST_F(Generate, HasTheSizesAskedForAndNoFaults) {
    const DatabaseReader database(
        make("a.TZF", {.nodes = 500, .rows = 3007, .products = 200, .languages = 7}));
    EXPECT_EQ(database.rows("Albero_Web"), 500);
    EXPECT_EQ(database.rows("Componenti_Web"), 3007);
    EXPECT_EQ(database.rows("Prodotti"), 200);
    EXPECT_EQ(database.rows("Lingue"), 7);
    EXPECT_GT(database.rows("Matricola_Nodo"), 10);
    for (const Finding& finding : checkCatalogue(folder.filePath("a.TZF")))
        ADD_FAILURE() << finding.table.toStdString() << finding.row << finding.message.toStdString();
}

TEST_F(Generate, TheSeedDecidesTheContent) {
    const auto codes = [&](const QString& name, quint32 seed) {
        QStringList all;
        const DatabaseReader database(make(name, {.nodes = 20, .rows = 50, .products = 10, .seed = seed}));
        for (TableReader rows = database.read("Componenti_Web"); rows.next();)
            all << rows.text(QString("Codice_Componente"));
        return all;
    };
    EXPECT_EQ(codes("1.TZF", 1), codes("2.TZF", 1));
    EXPECT_NE(codes("3.TZF", 2), codes("4.TZF", 1));
}

TEST_F(Generate, SizesThatDontGoTogetherAreWrongUse) {
    const QString path = folder.filePath("x.TZF");
    EXPECT_THROW(generateCatalogue(path, {.nodes = 10, .rows = 1, .products = 9}), UsageError);
    EXPECT_THROW(generateCatalogue(path, {.nodes = 10, .rows = 10000, .products = 2}), UsageError);
    EXPECT_FALSE(QFile::exists(path));
}

}  // namespace

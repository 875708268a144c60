#include "tzf/generate.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tzf/archive.h"
#include "tzf/check.h"
#include "tzf/database_reader.h"
#include "tzf/tool_error.h"

namespace {

TEST(Generate, HasTheSizesAskedForAndNoFaults) {
    const QTemporaryDir folder;
    const QString package = folder.filePath("a.TZF"), file = folder.filePath("db");
    generateCatalogue(package, {.nodes = 500, .rows = 3007, .products = 200, .languages = 7});
    ArchiveReader(package).extract(0, file);
    const DatabaseReader database(file);
    EXPECT_EQ(database.rows("Albero_Web"), 500);
    EXPECT_EQ(database.rows("Componenti_Web"), 3007);
    EXPECT_EQ(database.rows("Prodotti"), 200);
    EXPECT_EQ(database.rows("Lingue"), 7);
    EXPECT_GT(database.rows("Matricola_Nodo"), 10);
    for (const Finding& finding : checkCatalogue(package))
        ADD_FAILURE() << finding.table.toStdString() << finding.row << finding.message.toStdString();
}

TEST(Generate, MoreRowsThanItsProductsCanShowAreWrongUse) {
    EXPECT_THROW(generateCatalogue("/nowhere/x.TZF", {.nodes = 10, .rows = 10000, .products = 2}),
                 UsageError);
}

}  // namespace

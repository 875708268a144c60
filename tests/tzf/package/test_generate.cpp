#include "tzf/package/generate.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "core/archivio/archivio.h"
#include "tzf/check/check.h"
#include "tzf/package/database_reader.h"
#include "tzf/tool_error.h"

namespace {

TEST(Generate, HasTheSizesAskedForAndNoFaults) {
    const QTemporaryDir folder;
    const QString package = folder.filePath("a.TZF");
    QString file;
    generateCatalogue(package, {.nodes = 500, .rows = 3007, .products = 200, .languages = 7});
    ASSERT_EQ(Archivio(package).Scompatta_Voce(0, folder.path(), file), ARCHIVIO_OK);
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

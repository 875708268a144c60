#include "tzf/package/safe_path.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tzf/tool_error.h"

namespace {

TEST(SafePath, NamesThatLeadElsewhereOrCantBeFilesAreRefused) {
    for (const char* name : {"a.svg", "immagini/bolt.png", "a b/c d.txt", "à/ß€.pdf", "it's [1].svg", "a..b"})
        EXPECT_TRUE(isSafePath(name)) << name;
    for (const char* name : {"", "/etc/passwd", "../a", "a/../../b", "a//b", "a/", "./a", "C:a", "a\\b",
                             "a\nb", "nul.txt", "a/COM1", ".hidden", "a/.git/config", "a.", "a ", "a?"})
        EXPECT_FALSE(isSafePath(name)) << name;
    EXPECT_FALSE(isSafePath(QString(300, u'x')));
}

TEST(SafePath, TwoPathsNeverMeetInOneFile) {
    PathRegister paths;
    EXPECT_TRUE(paths.take("a/b.txt"));
    EXPECT_FALSE(paths.take("A/B.TXT"));
    EXPECT_FALSE(paths.take("a"));          // a folder by now
    EXPECT_FALSE(paths.take("a/b.txt/c"));  // a file by now
    EXPECT_TRUE(paths.take("a/c.txt") && paths.takeFolder("a"));
    EXPECT_FALSE(paths.takeFolder("a/c.txt"));
}

TEST(SafePath, NothingIsWrittenThroughALink) {
    QTemporaryDir folder, elsewhere;
    ASSERT_TRUE(QFile::link(elsewhere.path(), folder.filePath("sub")));
    EXPECT_THROW(pathInside(folder.path(), "sub/a.txt"), ToolError);
    EXPECT_EQ(pathInside(folder.path(), "other/a.txt"), folder.filePath("other/a.txt"));
}

}  // namespace

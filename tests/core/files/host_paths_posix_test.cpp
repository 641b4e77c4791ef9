// Paths where names keep their letter case and may hold a backslash.
#include "files/host_files.h"
#include "files/host_paths.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarvel {

TEST(HostPath, PrefersTheSpellingThatExists) {
    const TemporaryFolder folder;
    folder.file("a.png", "small");
    folder.file("A.PNG", "capital");
    EXPECT_EQ(readFile(hostPath(folder.document("a.png"))), "small");
    EXPECT_EQ(readFile(hostPath(folder.document("A.PNG"))), "capital");
}

TEST(DocumentPath, IsAbsoluteWithBackslashes) {
    EXPECT_EQ(documentPath("/a/b c/d.png"), "\\a\\b c\\d.png");
    EXPECT_TRUE(documentPath("d.png").starts_with('\\'));
    EXPECT_TRUE(documentPath("d.png").ends_with("\\d.png"));
}

TEST(FolderProblem, IsAnEmptyPathOrABackslash) {
    EXPECT_EQ(folderProblem("/a/b c"), "");
    EXPECT_EQ(folderProblem("relative"), "");
    EXPECT_EQ(folderProblem({}), "No folder is named");
    EXPECT_EQ(folderProblem("/a/b\\c/d"),
              "The path of a skin's folder cannot hold a backslash: /a/b\\c/d");
}

TEST(FileProblem, IsABackslash) {
    EXPECT_EQ(fileProblem("/a/b c.png"), "");
    EXPECT_EQ(fileProblem("/a/b\\c.png"),
              "The path of a skin's file cannot hold a backslash: /a/b\\c.png");
    EXPECT_EQ(fileProblem("/a\\b/c.png"),
              "The path of a skin's file cannot hold a backslash: /a\\b/c.png");
}

} // namespace tarvel

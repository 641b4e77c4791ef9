// Searching folders for names that differ in letter case alone, with a pipe among them, and what is
// closed.
#include "files/file_search.h"
#include "support/search_for_picture.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tarvel {
namespace {

namespace fs = std::filesystem;

class FileSearchPosixTest : public test::SearchForPicture {};

TEST_F(FileSearchPosixTest, TheNearestAndFirstCounts) {
    folder_.folder("in");
    EXPECT_EQ(find(), "");
    folder_.file("in/b/c/A.png", "x");
    EXPECT_EQ(find(), "in/b/c/A.png");
    folder_.file("in/d/a.png", "x");
    EXPECT_EQ(find(), "in/d/a.png");
    folder_.file("in/b/a.PNG", "x");
    EXPECT_EQ(find(), "in/b/a.PNG");
    folder_.file("in/b/A.png", "x");
    EXPECT_EQ(find(), "in/b/A.png");
    folder_.folder("in/A.PNG"); // no files
    ASSERT_EQ(::mkfifo((folder_ / "in/a.png").c_str(), 0600), 0);
    EXPECT_EQ(find(), "in/b/A.png");
    folder_.file("in/a/a.PNG", "x"); // the order of making is not that of names
    EXPECT_EQ(find(), "in/a/a.PNG");
    folder_.file("in/a/a.png", "x");
    EXPECT_EQ(find(), "in/a/a.PNG");
    folder_.file("in/a/A.png", "x");
    EXPECT_EQ(find(), "in/a/A.png");
}

TEST_F(FileSearchPosixTest, PassesOverWhatCannotBeReadOrUsed) {
    EXPECT_EQ(find("gone"), "");
    folder_.file("odd/a\\name/a.png", "x"); // no path of a skin
    EXPECT_EQ(find("odd"), "");
    folder_.file("in/closed/a.png", "x");
    fs::permissions(folder_ / "in/closed", fs::perms::none);
    if (::geteuid() != 0) {
        EXPECT_EQ(find(), "");
    }
    folder_.file("in/open/a.png", "x");
    EXPECT_EQ(find(), ::geteuid() == 0 ? "in/closed/a.png" : "in/open/a.png");
    fs::permissions(folder_ / "in/closed", fs::perms::owner_all);
}

} // namespace
} // namespace tarvel

// Searching folders for names: order, links, what cannot be read, and the end of a search.
#include "files/file_search.h"
#include "files/path_text.h"
#include "support/links.h"
#include "support/search_for_picture.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarvel {
namespace {

namespace fs = std::filesystem;

class FileSearchTest : public test::SearchForPicture {};

TEST_F(FileSearchTest, TheNearestAndFirstCountsInWhateverLetterCase) {
    folder_.folder("in");
    EXPECT_EQ(find("gone"), "");
    EXPECT_EQ(find(), "");
    folder_.file("in/b/c/A.png", "x");
    EXPECT_EQ(find(), "in/b/c/A.png");
    folder_.file("in/d/a.png", "x");
    EXPECT_EQ(find(), "in/d/a.png");
    folder_.file("in/b/a.PNG", "x");
    EXPECT_EQ(find(), "in/b/a.PNG");
    folder_.folder("in/A.PNG"); // no file
    EXPECT_EQ(find(), "in/b/a.PNG");
    folder_.file("in/a/A.png", "x"); // the order of making is not that of names
    EXPECT_EQ(find(), "in/a/A.png");
}

TEST_F(FileSearchTest, LinksLeadNowhereElse) {
    folder_.file("out/a.png", "x");
    folder_.folder("in");
    test::makeLink(folder_ / "out", folder_ / "in/link");
    test::makeLink(folder_ / "in", folder_ / "in/self");
    EXPECT_EQ(find(), "");
}

TEST_F(FileSearchTest, LinksToFilesLeadToThoseOfTheFolderAlone) {
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    folder_.file("out/a.png", "x");
    folder_.folder("in");
    test::makeLink(folder_ / "out/a.png", folder_ / "in/a.png");
    EXPECT_EQ(find(), "");
    folder_.file("in/deep/real.png", "x");
    fs::remove(folder_ / "in/a.png");
    test::makeLink(folder_ / "in/deep/real.png", folder_ / "in/a.png");
    EXPECT_EQ(find(), "in/a.png");
    fs::remove(folder_ / "in/deep/real.png"); // it leads to nothing now
    EXPECT_EQ(find(), "");
}

TEST_F(FileSearchTest, EndsAtTheLimitAndWhenAllIsFound) {
    for (int i = 0; i < 30; ++i) {
        folder_.file("in/" + std::to_string(i), "x");
    }
    folder_.file("in/deep/a.png", "x");
    const fs::path in = folder_ / "in";
    EXPECT_TRUE(searchFiles(in, {"a.png"}, 32).complete);
    EXPECT_EQ(searchFiles(in, {"a.png"}, 32).found.size(), 1U);
    EXPECT_FALSE(searchFiles(in, {"a.png"}, 31).complete);
    EXPECT_EQ(searchFiles(in, {"a.png"}, 31).found.size(), 0U);
    // Nothing is looked at beyond what is needed.
    EXPECT_TRUE(searchFiles(in, {"7"}, 31).complete);
    EXPECT_TRUE(searchFiles(in, {}, 0).complete);
}

TEST_F(FileSearchTest, IsToldOfAndEndedByTheStep) {
    folder_.folder("in");
    for (int i = 0; i < 2100; ++i) {
        std::ofstream(folder_ / ("in/" + std::to_string(i))); // need not last
    }
    std::vector<std::size_t> told;
    const auto search = [&](bool goesOn) {
        return searchFiles(folder_ / "in", {"a.png"}, mostEntries,
                           [&, goesOn](std::size_t entries) {
                               told.push_back(entries);
                               return goesOn;
                           });
    };
    EXPECT_TRUE(search(true).complete);
    EXPECT_EQ(told, (std::vector<std::size_t>{1000, 2000}));
    told.clear();
    EXPECT_FALSE(search(false).complete);
    EXPECT_EQ(told, std::vector<std::size_t>{1000});
}

} // namespace
} // namespace tarvel

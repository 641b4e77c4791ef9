// What killed runs leave of files that were to take another's place.
#include "files/host_files.h"
#include "files/path_text.h"
#include "files/replacement.h"
#include "support/folder_entries.h"
#include "support/links.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

constexpr const char* killedCopy = "copy a file";
const bool isKnown = test::OtherProcess::knows(
    killedCopy, [](const fs::path& folder, const std::function<void()>& ready) {
        copyFile(folder / "from", folder / "to", [&](auto, auto) {
            ready();
            test::OtherProcess::waitForItsEnd();
            return true;
        });
    });

} // namespace

TEST(Leftovers, OfAKilledRunAreRemoved) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    folder.file("to", "old");
    test::OtherProcess copying(killedCopy, folder.path());
    ASSERT_TRUE(copying.isReady());
    copying.kill();
    ASSERT_EQ(test::namesIn(folder.path()).size(), 3U);
    removeLeftovers(folder.path());
    EXPECT_EQ(test::namesIn(folder.path()), (test::Names{"from", "to"}));
    EXPECT_EQ(readFile(folder / "to"), "old");
}

TEST(Leftovers, OfARunThatIsAliveStay) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto, auto) {
        removeLeftovers(folder.path());
        EXPECT_EQ(test::namesIn(folder.path()).size(), 2U);
        return true;
    }));
    EXPECT_EQ(readFile(folder / "to"), "new");
}

TEST(Leftovers, AreFilesOfTheirNamesOnly) {
    const TemporaryFolder folder;
    const test::Names kept = {".tarvel-", ".tarvel-12-x", ".tarvel-12-3.png", "tarvel-12-3", "x"};
    for (const auto& name : kept) {
        folder.file(name, "x");
    }
    folder.folder(".tarvel-1-1");
    if (test::areFileLinksTold()) {
        test::makeLink("x", folder / ".tarvel-2-1");
    }
    folder.folder("below");
    folder.file("left", "x");
    fs::rename(folder / "left", folder / "below/.tarvel-3-1");
    removeLeftovers(folder.path());
    test::Names all = kept;
    all.insert({".tarvel-1-1", "below"});
    if (test::areFileLinksTold()) {
        all.insert(".tarvel-2-1");
    }
    EXPECT_EQ(test::namesIn(folder.path()), all);
    removeLeftovers(folder / "below");
    EXPECT_TRUE(fs::is_empty(folder / "below"));
    removeLeftovers(folder / "missing"); // is no failure
}

} // namespace tarvel

// Files that take another's place: their permission bits, and their folder on the disk.
#include "files/host_files.h"
#include "support/folder_entries.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

unsigned bitsOf(const fs::path& file) {
    return static_cast<unsigned>(fs::status(file).permissions());
}

} // namespace

TEST(Replacement, KeepsThePermissionBitsOfTheFileThatItReplaces) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    for (const unsigned bits : {0600U, 0444U, 0664U, 0755U}) {
        folder.file("to", "old");
        fs::permissions(folder / "to", static_cast<fs::perms>(bits));
        writeFile(folder / "to", "new");
        EXPECT_EQ(bitsOf(folder / "to"), bits);
        EXPECT_TRUE(copyFile(folder / "from", folder / "to"));
        EXPECT_EQ(bitsOf(folder / "to"), bits);
    }
}

TEST(Replacement, OfNothingFollowsTheUmask) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    fs::permissions(folder / "from", static_cast<fs::perms>(0600));
    const mode_t before = ::umask(027);
    writeFile(folder / "written", "new");
    copyFile(folder / "from", folder / "copied");
    ::umask(before);
    EXPECT_EQ(bitsOf(folder / "written"), 0640U);
    EXPECT_EQ(bitsOf(folder / "copied"), 0640U);
}

TEST(Replacement, IsClosedToOthersFromItsBeginningWhereTheOlderFileIs) {
    const TemporaryFolder folder;
    folder.file("from", "secret");
    folder.file("to", "old");
    fs::permissions(folder / "to", static_cast<fs::perms>(0600));
    copyFile(folder / "from", folder / "to", [&](auto, auto) {
        for (const auto& name : test::namesIn(folder.path())) {
            EXPECT_TRUE(name == "from" || bitsOf(folder / name) == 0600U) << name;
        }
        return true;
    });
}

TEST(Replacement, BringsItsFolderToTheDisk) {
    const TemporaryFolder folder;
    systemCalls = {};
    writeFile(folder / "a", "x");
    EXPECT_EQ(systemCalls.folderFlushes, 1);
    copyFile(folder / "a", folder / "b");
    EXPECT_EQ(systemCalls.folderFlushes, 2);
}

} // namespace tarvel

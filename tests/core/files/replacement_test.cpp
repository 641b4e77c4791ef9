// Files that take another's place: their permission bits, their folder on the disk, and what killed
// runs leave.
#include "files/host_files.h"
#include "files/replacement.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <set>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

using Names = std::set<std::string>;

Names entriesOf(const fs::path& folder) {
    Names names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

unsigned bitsOf(const fs::path& file) {
    return static_cast<unsigned>(fs::status(file).permissions());
}

// Lets a process begin a copy and be killed in the middle of it.
void killACopy(const fs::path& from, const fs::path& to) {
    const pid_t child = ::fork();
    if (child == 0) {
        copyFile(from, to, [](auto, auto) { return ::raise(SIGKILL) == 0; });
        ::_exit(1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
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
        for (const auto& name : entriesOf(folder.path())) {
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

TEST(Leftovers, OfAKilledRunAreRemoved) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    folder.file("to", "old");
    killACopy(folder / "from", folder / "to");
    ASSERT_EQ(entriesOf(folder.path()).size(), 3U);
    removeLeftovers(folder.path());
    EXPECT_EQ(entriesOf(folder.path()), (Names{"from", "to"}));
    EXPECT_EQ(readFile(folder / "to"), "old");
}

TEST(Leftovers, OfARunThatIsAliveStay) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto, auto) {
        removeLeftovers(folder.path());
        EXPECT_EQ(entriesOf(folder.path()).size(), 2U);
        return true;
    }));
    EXPECT_EQ(readFile(folder / "to"), "new");
}

TEST(Leftovers, AreFilesOfTheirNamesOnly) {
    const TemporaryFolder folder;
    const Names kept = {".tarvel-", ".tarvel-12-x", ".tarvel-12-3.png", "tarvel-12-3", "x"};
    for (const auto& name : kept) {
        folder.file(name, "x");
    }
    folder.folder(".tarvel-1-1");
    fs::create_symlink("x", folder / ".tarvel-2-1");
    folder.folder("below");
    folder.file("left", "x");
    fs::rename(folder / "left", folder / "below/.tarvel-3-1");
    removeLeftovers(folder.path());
    Names all = kept;
    all.insert({".tarvel-1-1", ".tarvel-2-1", "below"});
    EXPECT_EQ(entriesOf(folder.path()), all);
    removeLeftovers(folder / "below");
    EXPECT_TRUE(fs::is_empty(folder / "below"));
    removeLeftovers(folder / "missing"); // is no failure
}

} // namespace tarvel

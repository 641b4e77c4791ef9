// One save at a time holds a folder.
#include "files/folder_hold.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvel {

TEST(FolderHold, IsOneAtATime) {
    const TemporaryFolder folder;
    std::filesystem::create_directory_symlink(folder.path(), folder / "same");
    std::optional<FolderHold> first(folder.path());
    EXPECT_FALSE(first->isTaken());
    EXPECT_TRUE(FolderHold(folder.path()).isTaken());
    EXPECT_TRUE(FolderHold(folder / "same").isTaken());
    EXPECT_FALSE(FolderHold(folder.folder("below")).isTaken());
    first.reset();
    EXPECT_FALSE(FolderHold(folder.path()).isTaken());
}

TEST(FolderHold, LeavesNothingInTheFolder) {
    const TemporaryFolder folder;
    const FolderHold hold(folder.path());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(FolderHold, EndsWithItsProcess) {
    const TemporaryFolder folder;
    int ready[2]; // NOLINT: as pipe() wants it
    ASSERT_EQ(::pipe(&ready[0]), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const FolderHold hold(folder.path());
        (void)!::write(ready[1], "x", 1);
        for (;;) {
            ::pause();
        }
    }
    char held = 0;
    ASSERT_EQ(::read(ready[0], &held, 1), 1);
    EXPECT_TRUE(FolderHold(folder.path()).isTaken());
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(FolderHold(folder.path()).isTaken());
    ::close(ready[0]);
    ::close(ready[1]);
}

TEST(FolderHold, OfWhatIsNoFolderIsTakenByNobody) {
    const TemporaryFolder folder;
    EXPECT_FALSE(FolderHold(folder / "missing").isTaken());
    EXPECT_FALSE(FolderHold(folder.file("file", "x")).isTaken());
}

} // namespace tarvel

// One save at a time holds a folder.
#include "files/folder_hold.h"
#include "support/links.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <optional>

namespace tarvel {

namespace {

constexpr const char* savingProcess = "hold a folder";
const bool isKnown = test::OtherProcess::knows(
    savingProcess, [](const std::filesystem::path& folder, const std::function<void()>& ready) {
        const FolderHold hold(folder);
        ready();
        test::OtherProcess::waitForItsEnd();
    });

} // namespace

TEST(FolderHold, IsOneAtATime) {
    const TemporaryFolder folder;
    test::makeLink(folder.path(), folder / "same");
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
    test::OtherProcess other(savingProcess, folder.path());
    ASSERT_TRUE(other.isReady());
    EXPECT_TRUE(FolderHold(folder.path()).isTaken());
    other.kill();
    EXPECT_FALSE(FolderHold(folder.path()).isTaken());
}

TEST(FolderHold, OfWhatIsNoFolderIsTakenByNobody) {
    const TemporaryFolder folder;
    EXPECT_FALSE(FolderHold(folder / "missing").isTaken());
    EXPECT_FALSE(FolderHold(folder.file("file", "x")).isTaken());
}

} // namespace tarvel

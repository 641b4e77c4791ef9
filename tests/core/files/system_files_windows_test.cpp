// What is Windows' own: files that may only be read, separators, and what programs that are
// started take over.
#include "files/folder_hold.h"
#include "files/held_file.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <windows.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

constexpr const char* idleProcess = "do nothing";
const bool isKnown = test::OtherProcess::knows(
    idleProcess, [](const fs::path& /*path*/, const std::function<void()>& ready) {
        ready();
        test::OtherProcess::waitForItsEnd();
    });

std::size_t entriesOf(const fs::path& folder) {
    std::size_t count = 0;
    eachEntryOf(folder, [&](const FolderEntry&) { return ++count > 0; });
    return count;
}

} // namespace

TEST(SystemFilesOfWindows, AFileThatMayOnlyBeReadIsToldAndKept) {
    const TemporaryFolder folder;
    const fs::path file = folder.file("a", "older");
    ASSERT_NE(::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    std::string problem;
    try {
        writeFile(file, "newer");
    } catch (const FileError& error) {
        problem = error.what();
    }
    EXPECT_EQ(problem, "Permission denied: " + utf8Of(file));
    EXPECT_EQ(readFile(file), "older");
    EXPECT_EQ(entriesOf(folder.path()), 1U);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    writeFile(file, "newer");
    EXPECT_EQ(readFile(file), "newer");
}

TEST(SystemFilesOfWindows, HoldsDoNotPassToProgramsThatAreStarted) {
    const TemporaryFolder folder;
    auto held = HeldFile::tryHold(folder / "lock");
    auto hold = std::make_unique<FolderHold>(folder.path());
    const test::OtherProcess other(idleProcess, folder.path());
    ASSERT_TRUE(other.isReady());
    EXPECT_FALSE(HeldFile::tryHold(folder / "lock"));
    EXPECT_TRUE(FolderHold(folder.path()).isTaken());
    held.reset();
    hold.reset();
    EXPECT_TRUE(HeldFile::tryHold(folder / "lock"));
    EXPECT_FALSE(FolderHold(folder.path()).isTaken());
}

// A backslash or a slash, and names that are in the way of neither.
TEST(SystemFilesOfWindows, PathsHaveEitherSeparator) {
    const TemporaryFolder folder;
    folder.file("Media/a.png", "x");
    EXPECT_EQ(readFile(pathOf(slashedUtf8Of(folder / "Media/a.png"))), "x");
    EXPECT_EQ(readFile(folder / "Media\\a.png"), "x");
    EXPECT_EQ(utf8Of(folder / "Media/a.png"), utf8Of(folder / "Media\\a.png"));
}

} // namespace tarvel

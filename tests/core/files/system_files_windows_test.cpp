// What is Windows' own: files that may only be read, separators, and what programs that are
// started take over.
#include "files/folder_hold.h"
#include "files/held_file.h"
#include "files/host_files.h"
#include "files/path_text.h"
#include "support/folder_entries.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <future>
#include <memory>
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

// As programs do that let others read at most.
Descriptor openUnshared(const fs::path& file) {
    return Descriptor(reinterpret_cast<std::intptr_t>( // NOLINT: a number that is a pointer
        ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                      nullptr)));
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
    EXPECT_EQ(test::entriesOf(folder.path()), 1U);
    ::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    writeFile(file, "newer");
    EXPECT_EQ(readFile(file), "newer");
}

TEST(SystemFilesOfWindows, AFileStaysHidden) {
    const TemporaryFolder folder;
    const fs::path file = folder.file("a", "older");
    constexpr DWORD hidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ASSERT_NE(::SetFileAttributesW(file.c_str(), hidden), 0);
    writeFile(file, "newer");
    EXPECT_EQ(readFile(file), "newer");
    EXPECT_EQ(::GetFileAttributesW(file.c_str()) & hidden, hidden);
    writeFile(folder / "b", "x");
    EXPECT_EQ(::GetFileAttributesW((folder / "b").c_str()) & hidden, 0U);
}

TEST(SystemFilesOfWindows, AFileThatAnotherProgramHasOpenIsToldAndKept) {
    const TemporaryFolder folder;
    const fs::path file = folder.file("a", "older");
    const Descriptor open = openUnshared(file);
    ASSERT_TRUE(open.isOpen());
    std::string problem;
    try {
        writeFile(file, "newer");
    } catch (const FileError& error) {
        problem = error.what();
    }
    EXPECT_EQ(problem, "Another program has it open: " + utf8Of(file));
    EXPECT_FALSE(removeName(file));
    EXPECT_EQ(errno, EBUSY);
    EXPECT_EQ(readFile(file), "older");
    EXPECT_EQ(test::entriesOf(folder.path()), 1U);
}

TEST(SystemFilesOfWindows, AProgramThatLooksIntoAFileIsWaitedFor) {
    const TemporaryFolder folder;
    const fs::path file = folder.file("a", "older");
    const auto aMoment = [](Descriptor open) {
        return std::async(std::launch::async, [open = std::move(open)]() mutable {
            ::Sleep(300);
            open.reset();
        });
    };
    std::future<void> closed = aMoment(openUnshared(file));
    writeFile(file, "newer");
    closed.get();
    EXPECT_EQ(readFile(file), "newer");
    closed = aMoment(openUnshared(file));
    EXPECT_TRUE(removeName(file));
    EXPECT_FALSE(statusOf(file));
}

// The system opens the folder itself so whenever a file is renamed into it.
TEST(SystemFilesOfWindows, HoldingAFolderIsNotInTheWayOfRenaming) {
    const TemporaryFolder folder;
    const FolderHold hold(folder.path());
    const HANDLE opened = ::CreateFileW(folder.path().c_str(), FILE_ADD_FILE | SYNCHRONIZE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    EXPECT_NE(opened, INVALID_HANDLE_VALUE);
    ::CloseHandle(opened);
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

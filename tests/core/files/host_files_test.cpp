// Atomic writes, copies and the exclusive temp.xml.
#include "files/host_files.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

std::size_t entriesOf(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator{}));
}

// No file may grow beyond a size while this lives: a full disk in small.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit before_{};
};

} // namespace

TEST(WriteFile, ReplacesAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    folder.file("a", "old");
    writeFile(folder / "a", "new");
    EXPECT_EQ(readFile(folder / "a"), "new");
    EXPECT_EQ(entriesOf(folder.path()), 1U);
}

TEST(WriteFile, ThatFailsKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("a", "old");
    {
        const FileSizeLimit limit(100);
        EXPECT_THROW(writeFile(folder / "a", std::string(5000, 'x')), FileError);
    }
    EXPECT_EQ(readFile(folder / "a"), "old");
    EXPECT_EQ(entriesOf(folder.path()), 1U);
}

TEST(WriteFile, PassesOverWhatAKilledRunLeft) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    std::string last; // the name of the newest file that was written beside its target
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto, auto) {
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            const std::string name = entry.path().filename().string();
            last = name.starts_with(".tarvel-") ? name : last;
        }
        return true;
    }));
    const auto dash = last.rfind('-');
    ASSERT_NE(dash, std::string::npos);
    const int number = std::stoi(last.substr(dash + 1));
    for (const int next : {1, 2, 3}) {
        const auto name = last.substr(0, dash + 1) + std::to_string(number + next);
        ::close(::open((folder / name).c_str(), O_CREAT | O_CLOEXEC | O_WRONLY, 0600));
    }
    writeFile(folder / "to", "newer");
    EXPECT_EQ(readFile(folder / "to"), "newer");
    EXPECT_EQ(entriesOf(folder.path()), 5U); // the left files are nobody's business
}

TEST(WriteFile, IntoAMissingFolderDescribesTheFailure) {
    const TemporaryFolder folder;
    try {
        writeFile(folder / "no/a", "x");
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.errorNumber(), ENOENT);
        EXPECT_EQ(error.what(), "No such file or directory: " + (folder / "no/a").string());
    }
}

TEST(ReadFile, RefusesFoldersAndPipes) {
    const TemporaryFolder folder;
    EXPECT_THROW((void)readFile(folder.path()), FileError);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THROW((void)readFile(folder / "pipe"), FileError); // and does not wait for a writer
    EXPECT_THROW((void)readFile(folder / "missing"), FileError);
    EXPECT_EQ(readFile(folder.file("empty", "")), "");
}

TEST(CopyFile, CopiesOverAnOlderFile) {
    const TemporaryFolder folder;
    const std::string content(700'001, 'c');
    folder.file("from", content);
    folder.file("to", "old");
    std::vector<std::uintmax_t> steps;
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto done, auto total) {
        EXPECT_EQ(total, content.size());
        steps.push_back(done);
        return true;
    }));
    EXPECT_EQ(readFile(folder / "to"), content);
    EXPECT_GT(steps.size(), 1U);
    EXPECT_EQ(steps.back(), content.size());
}

TEST(CopyFile, CancelledOrFailedKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("from", std::string(700'000, 'c'));
    folder.file("to", "old");
    EXPECT_FALSE(copyFile(folder / "from", folder / "to", [](auto, auto) { return false; }));
    EXPECT_EQ(readFile(folder / "to"), "old");
    {
        const FileSizeLimit limit(1000);
        EXPECT_THROW(copyFile(folder / "from", folder / "to"), FileError);
    }
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(entriesOf(folder.path()), 2U);
}

TEST(CopyFile, FlushesWhileItCopies) {
    const TemporaryFolder folder;
    folder.file("from", {});
    fs::resize_file(folder / "from", std::uintmax_t{20} << 20);
    systemCalls = {};
    int seen = 0;
    std::uintmax_t unflushed = 0;
    std::uintmax_t before = 0;
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto done, auto) {
        unflushed = systemCalls.flushes > seen ? 0 : unflushed + done - before;
        EXPECT_LE(unflushed, std::uintmax_t{16} << 20);
        EXPECT_LE(systemCalls.flushes, seen + 1); // each is followed by a step
        seen = systemCalls.flushes;
        before = done;
        return true;
    }));
    EXPECT_EQ(before, std::uintmax_t{20} << 20);
    EXPECT_GE(seen, 1);
    EXPECT_EQ(systemCalls.flushes, seen + 1); // and the whole before it takes its place
    EXPECT_EQ(fs::file_size(folder / "to"), std::uintmax_t{20} << 20);
}

TEST(CopyFile, ThatCannotBeFlushedKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("from", {});
    folder.file("to", "old");
    fs::resize_file(folder / "from", std::uintmax_t{20} << 20);
    for (const int failAt : {1, 3}) { // within the copy, and at its end
        systemCalls = {};
        systemCalls.failFlush = failAt;
        EXPECT_THROW(copyFile(folder / "from", folder / "to"), FileError);
        EXPECT_EQ(systemCalls.flushes, failAt);
        EXPECT_EQ(readFile(folder / "to"), "old");
        EXPECT_EQ(entriesOf(folder.path()), 2U);
    }
    systemCalls = {};
}

TEST(CopyFile, DescribesWhyASourceCannotBeRead) {
    const TemporaryFolder folder;
    folder.file("file", "x");
    const auto failure = [&](std::string_view from) -> std::string {
        try {
            copyFile(folder / from, folder / "to");
        } catch (const FileError& error) {
            return error.what();
        }
        return "none";
    };
    EXPECT_EQ(failure("file/pic.png"), "Not a directory: " + (folder / "file/pic.png").string());
    EXPECT_EQ(failure("gone.png"), "No such file or directory: " + (folder / "gone.png").string());
    EXPECT_FALSE(fs::exists(folder / "to"));
    if (::geteuid() == 0) {
        GTEST_SKIP() << "nothing is closed to root";
    }
    folder.file("closed/pic.png", "x");
    fs::permissions(folder / "closed", fs::perms::none);
    const std::string closed = failure("closed/pic.png");
    fs::permissions(folder / "closed", fs::perms::owner_all);
    EXPECT_EQ(closed, "Permission denied: " + (folder / "closed/pic.png").string());
}

TEST(CopyFile, OfAFileThatChangesMeanwhileKeepsTheOlderFile) {
    const TemporaryFolder folder;
    const std::string content(900'000, 'c');
    const auto from = folder / "from";
    using Change = std::function<void()>;
    const std::vector<std::pair<const char*, Change>> changes = {
        {"shorter", [&] { fs::resize_file(from, 300'000); }},
        {"empty", [&] { fs::resize_file(from, 0); }},
        {"longer", [&] { fs::resize_file(from, 2'000'000); }},
        {"as long", [&] { std::ofstream(from) << std::string(content.size(), 'd'); }}};
    for (const auto& [name, change] : changes) {
        folder.file("from", content);
        fs::last_write_time(from, fs::file_time_type::clock::now() - std::chrono::hours(1));
        folder.file("to", "old");
        bool first = true;
        try {
            copyFile(from, folder / "to", [&, disturb = change](auto, auto) {
                if (std::exchange(first, false)) {
                    disturb();
                }
                return true;
            });
            ADD_FAILURE() << name << " is taken as whole";
        } catch (const FileError& error) {
            EXPECT_EQ(error.what(), "The file changed while it was copied: " + from.string());
        }
        EXPECT_EQ(readFile(folder / "to"), "old") << name;
        EXPECT_EQ(entriesOf(folder.path()), 2U) << name;
    }
}

TEST(CopyFile, NeverCopiesAFileOntoItself) {
    const TemporaryFolder folder;
    folder.file("a", "content");
    fs::create_symlink("a", folder / "link");
    fs::create_hard_link(folder / "a", folder / "hard");
    for (const char* other : {"a", "./a", "link", "hard"}) {
        EXPECT_TRUE(copyFile(folder / "a", folder / other)) << other;
        EXPECT_TRUE(copyFile(folder / other, folder / "a")) << other;
    }
    EXPECT_EQ(readFile(folder / "a"), "content");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(CreateFolder, AcceptsAnExistingOne) {
    const TemporaryFolder folder;
    createFolder(folder / "a");
    EXPECT_NO_THROW(createFolder(folder / "a"));
    EXPECT_THROW(createFolder(folder / "no/a"), FileError);
    fs::create_directory_symlink("a", folder / "link");
    EXPECT_NO_THROW(createFolder(folder / "link"));
}

TEST(CreateFolder, InThePlaceOfAFileDescribesTheFailure) {
    const TemporaryFolder folder;
    const auto file = folder.file("a", "kept");
    try {
        createFolder(file);
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.what(), "Not a directory: " + file.string());
    }
    EXPECT_EQ(readFile(file), "kept");
}

TEST(ThroughTempFile, GivesTheTextBackAndDeletesTheFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>\n"), "<a/>\n");
    EXPECT_EQ(entriesOf(folder.path()), 0U);
}

TEST(ThroughTempFile, BringsNothingToTheDisk) {
    const TemporaryFolder folder;
    systemCalls = {};
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>"), "<a/>");
    EXPECT_EQ(systemCalls.writes, 1);
    EXPECT_EQ(systemCalls.flushes + systemCalls.folderFlushes, 0);
    EXPECT_EQ(systemCalls.cuts, 0); // a file that was cut is brought to the disk when it is closed
}

TEST(ThroughTempFile, PassesOverAStaleFile) {
    const TemporaryFolder folder;
    folder.file("temp.xml", std::string(5000, 's'));
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>"), "<a/>");
    EXPECT_FALSE(fs::exists(folder / "temp.xml"));
}

TEST(ThroughTempFile, NeitherWaitsForAnotherHolderNorTouchesItsFile) {
    const TemporaryFolder folder;
    const auto path = folder.file("temp.xml", "of another program");
    const int other = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_EQ(throughTempFile(folder.path(), "<mine/>"), "<mine/>"); // the holder never lets go
    EXPECT_EQ(readFile(path), "of another program");
    ::close(other);
    EXPECT_EQ(throughTempFile(folder.path(), "<mine/>"), "<mine/>");
    EXPECT_FALSE(fs::exists(path));
}

TEST(ThroughTempFile, DoesNotWaitAtAPipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "temp.xml").c_str(), 0600), 0);
    EXPECT_THROW((void)throughTempFile(folder.path(), std::string(200'000, 'x')), FileError);
}

TEST(ThroughTempFile, FollowsNoLink) {
    const TemporaryFolder folder;
    const auto other = folder.file("other", "of somebody else");
    fs::create_symlink(other, folder / "temp.xml");
    EXPECT_THROW((void)throughTempFile(folder.path(), "<a/>"), FileError);
    EXPECT_EQ(readFile(other), "of somebody else");
    EXPECT_TRUE(fs::is_symlink(folder / "temp.xml"));
}

TEST(ThroughTempFile, FailsInAMissingFolder) {
    const TemporaryFolder folder;
    EXPECT_THROW((void)throughTempFile(folder / "no", "x"), FileError);
}

TEST(ProgramFolder, CanBeWrittenTo) {
    EXPECT_EQ(::access(programFolder().c_str(), W_OK), 0);
}

} // namespace tarvel

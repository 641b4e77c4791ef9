// Files on a disk that is full, what is flushed to it, pipes, and what is closed.
#include "files/host_files.h"
#include "support/folder_entries.h"
#include "support/system_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

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

TEST(WriteFile, ThatFailsKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("a", "old");
    {
        const FileSizeLimit limit(100);
        EXPECT_THROW(writeFile(folder / "a", std::string(5000, 'x')), FileError);
    }
    EXPECT_EQ(readFile(folder / "a"), "old");
    EXPECT_EQ(test::entriesOf(folder.path()), 1U);
}

TEST(ReadFile, DoesNotWaitAtAPipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THROW((void)readFile(folder / "pipe"), FileError); // and does not wait for a writer
}

TEST(CopyFile, ThatDoesNotFitTheDiskKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("from", std::string(700'000, 'c'));
    folder.file("to", "old");
    {
        const FileSizeLimit limit(1000);
        EXPECT_THROW(copyFile(folder / "from", folder / "to"), FileError);
    }
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(test::entriesOf(folder.path()), 2U);
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
        EXPECT_EQ(test::entriesOf(folder.path()), 2U);
    }
    systemCalls = {};
}

TEST(ThroughTempFile, BringsNothingToTheDisk) {
    const TemporaryFolder folder;
    systemCalls = {};
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>"), "<a/>");
    EXPECT_EQ(systemCalls.writes, 1);
    EXPECT_EQ(systemCalls.flushes + systemCalls.folderFlushes, 0);
    EXPECT_EQ(systemCalls.cuts, 0); // a file that was cut is brought to the disk when it is closed
}

TEST(ThroughTempFile, DoesNotWaitAtAPipe) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo((folder / "temp.xml").c_str(), 0600), 0);
    EXPECT_THROW((void)throughTempFile(folder.path(), std::string(200'000, 'x')), FileError);
}

TEST(CopyFile, DescribesWhyASourceIsClosed) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "nothing is closed to root";
    }
    const TemporaryFolder folder;
    folder.file("closed/pic.png", "x");
    fs::permissions(folder / "closed", fs::perms::none);
    std::string closed;
    try {
        copyFile(folder / "closed/pic.png", folder / "to");
    } catch (const FileError& error) {
        closed = error.what();
    }
    fs::permissions(folder / "closed", fs::perms::owner_all);
    EXPECT_EQ(closed, "Permission denied: " + (folder / "closed/pic.png").string());
}

} // namespace tarvel

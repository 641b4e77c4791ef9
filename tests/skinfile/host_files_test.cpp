// Paths, atomic writes, copies and the exclusive temp.xml.
#include "skinfile/host_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

TEST(HostPath, TurnsBackslashesAndFindsOtherLetterCase) {
    const TemporaryFolder folder;
    const auto file = folder.file("Media/Sub/Pic.PNG", "x");
    EXPECT_EQ(hostPath(folder.document("Media\\Sub\\Pic.PNG")), file);
    EXPECT_EQ(hostPath(folder.document("media\\SUB\\pic.png")), file);
    EXPECT_EQ(hostPath(folder.document("MEDIA\\new.png")), folder / "Media/new.png");
    EXPECT_EQ(hostPath(folder.document("no\\SUB\\pic.png")), folder / "no/SUB/pic.png");
}

TEST(HostPath, PrefersTheSpellingThatExists) {
    const TemporaryFolder folder;
    folder.file("a.png", "small");
    folder.file("A.PNG", "capital");
    EXPECT_EQ(readFile(hostPath(folder.document("a.png"))), "small");
    EXPECT_EQ(readFile(hostPath(folder.document("A.PNG"))), "capital");
}

TEST(DocumentPath, IsAbsoluteWithBackslashes) {
    EXPECT_EQ(documentPath("/a/b c/d.png"), "\\a\\b c\\d.png");
    EXPECT_TRUE(documentPath("d.png").starts_with('\\'));
    EXPECT_TRUE(documentPath("d.png").ends_with("\\d.png"));
}

TEST(FileExists, IsTrueForFilesOnly) {
    const TemporaryFolder folder;
    folder.file("Media/a.png", "x");
    EXPECT_TRUE(FileExists(folder.document("Media\\a.png")));
    EXPECT_TRUE(FileExists(folder.document("MEDIA\\A.PNG")));
    EXPECT_FALSE(FileExists(folder.document("Media")));
    EXPECT_FALSE(FileExists(folder.document("Media\\b.png")));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(std::string("a\0b", 3)));
    EXPECT_FALSE(FileExists(std::string(70000, 'x')));
}

TEST(LeadsOutside, KnowsEveryWayOut) {
    const TemporaryFolder folder;
    folder.file("skin/Media/a.png", "x");
    folder.file("secret.png", "x");
    fs::create_symlink(folder / "secret.png", folder / "skin/Media/link.png");
    fs::create_directory_symlink(folder.path(), folder / "skin/up");
    fs::create_symlink("a.png", folder / "skin/Media/inner.png");
    struct Case {
        const char* file;
        bool outside;
    };
    for (const auto& [file, outside] : std::initializer_list<Case>{
             {"Media\\a.png", false},
             {"Media\\missing.png", false},
             {"Media\\..\\Media\\a.png", false},
             {"Media\\inner.png", false},
             {"", false},
             {"..\\secret.png", true},
             {"Media\\..\\..\\skin\\Media\\a.png", true},
             {"\\Media\\a.png", true},
             {"/etc/passwd", true},
             {"C:\\a.png", true},
             {"c:a.png", true},
             {"Media\\link.png", true},
             {"MEDIA\\LINK.png", true},
             {"up\\secret.png", true},
         }) {
        EXPECT_EQ(leadsOutside(folder / "skin", file), outside) << file;
    }
}

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
}

TEST(ThroughTempFile, GivesTheTextBackAndDeletesTheFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>\n"), "<a/>\n");
    EXPECT_EQ(entriesOf(folder.path()), 0U);
}

TEST(ThroughTempFile, PassesOverAStaleFile) {
    const TemporaryFolder folder;
    folder.file("temp.xml", std::string(5000, 's'));
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>"), "<a/>");
    EXPECT_FALSE(fs::exists(folder / "temp.xml"));
}

TEST(ThroughTempFile, WaitsForAnotherHolder) {
    const TemporaryFolder folder;
    const auto path = folder.file("temp.xml", "of another program");
    const int other = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    std::string content;
    std::thread holder([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        content = readFile(path); // still as its holder left it
        ::unlink(path.c_str());
        ::close(other);
    });
    EXPECT_EQ(throughTempFile(folder.path(), "<mine/>"), "<mine/>");
    holder.join();
    EXPECT_EQ(content, "of another program");
}

TEST(ThroughTempFile, FailsInAMissingFolder) {
    const TemporaryFolder folder;
    EXPECT_THROW((void)throughTempFile(folder / "no", "x"), FileError);
}

TEST(ProgramFolder, CanBeWrittenTo) {
    EXPECT_EQ(::access(programFolder().c_str(), W_OK), 0);
}

} // namespace tarvel

// Atomic writes, copies and the exclusive temp.xml.
#include "files/host_files.h"
#include "files/path_text.h"
#include "files/system_files.h"
#include "support/folder_entries.h"
#include "support/links.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <utility>

namespace tarvel {

namespace fs = std::filesystem;

TEST(WriteFile, ReplacesAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    folder.file("a", "old");
    writeFile(folder / "a", "new");
    EXPECT_EQ(readFile(folder / "a"), "new");
    EXPECT_EQ(test::entriesOf(folder.path()), 1U);
}

TEST(WriteFile, PassesOverWhatAKilledRunLeft) {
    const TemporaryFolder folder;
    folder.file("from", "new");
    std::string last; // the name of the newest file that was written beside its target
    EXPECT_TRUE(copyFile(folder / "from", folder / "to", [&](auto, auto) {
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            const std::string name = utf8Of(entry.path().filename());
            last = name.starts_with(".tarvel-") ? name : last;
        }
        return true;
    }));
    const auto dash = last.rfind('-');
    ASSERT_NE(dash, std::string::npos);
    const int number = std::stoi(last.substr(dash + 1));
    for (const int next : {1, 2, 3}) {
        const auto name = last.substr(0, dash + 1) + std::to_string(number + next);
        EXPECT_TRUE(openFile(folder / name, Opening::makeNew).isOpen());
    }
    writeFile(folder / "to", "newer");
    EXPECT_EQ(readFile(folder / "to"), "newer");
    EXPECT_EQ(test::entriesOf(folder.path()), 5U); // the left files are nobody's business
}

TEST(WriteFile, IntoAMissingFolderDescribesTheFailure) {
    const TemporaryFolder folder;
    try {
        writeFile(folder / "no/a", "x");
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.errorNumber(), ENOENT);
        EXPECT_EQ(error.what(), "No such file or directory: " + utf8Of(folder / "no/a"));
    }
}

TEST(ReadFile, RefusesFolders) {
    const TemporaryFolder folder;
    EXPECT_THROW((void)readFile(folder.path()), FileError);
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

TEST(CopyFile, ThatIsCancelledKeepsTheOlderFile) {
    const TemporaryFolder folder;
    folder.file("from", std::string(700'000, 'c'));
    folder.file("to", "old");
    EXPECT_FALSE(copyFile(folder / "from", folder / "to", [](auto, auto) { return false; }));
    EXPECT_EQ(readFile(folder / "to"), "old");
    EXPECT_EQ(test::entriesOf(folder.path()), 2U);
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
    // Windows does not tell what kept it from coming there.
    const bool isTold = fs::path::preferred_separator == '/';
    EXPECT_EQ(failure("file/pic.png"),
              (isTold ? "Not a directory: " : "No such file or directory: ") +
                  utf8Of(folder / "file/pic.png"));
    EXPECT_EQ(failure("gone.png"), "No such file or directory: " + utf8Of(folder / "gone.png"));
    EXPECT_FALSE(fs::exists(folder / "to"));
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
            EXPECT_EQ(error.what(), "The file changed while it was copied: " + utf8Of(from));
        }
        EXPECT_EQ(readFile(folder / "to"), "old") << name;
        EXPECT_EQ(test::entriesOf(folder.path()), 2U) << name;
    }
}

TEST(CopyFile, NeverCopiesAFileOntoItself) {
    const TemporaryFolder folder;
    folder.file("a", "content");
    test::makeLink("a", folder / "link");
    fs::create_hard_link(folder / "a", folder / "hard");
    for (const char* other : {"a", "./a", "link", "hard"}) {
        EXPECT_TRUE(copyFile(folder / "a", folder / other)) << other;
        EXPECT_TRUE(copyFile(folder / other, folder / "a")) << other;
    }
    EXPECT_EQ(readFile(folder / "a"), "content");
    if (test::areFileLinksTold()) {
        EXPECT_TRUE(test::isLink(folder / "link"));
    }
}

TEST(CreateFolder, AcceptsAnExistingOne) {
    const TemporaryFolder folder;
    createFolder(folder / "a");
    EXPECT_NO_THROW(createFolder(folder / "a"));
    EXPECT_THROW(createFolder(folder / "no/a"), FileError);
    test::makeLink("a", folder / "link");
    EXPECT_NO_THROW(createFolder(folder / "link"));
}

TEST(CreateFolder, InThePlaceOfAFileDescribesTheFailure) {
    const TemporaryFolder folder;
    const auto file = folder.file("a", "kept");
    try {
        createFolder(file);
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.what(), "Not a directory: " + utf8Of(file));
    }
    EXPECT_EQ(readFile(file), "kept");
}

TEST(ThroughTempFile, GivesTheTextBackAndDeletesTheFile) {
    const TemporaryFolder folder;
    EXPECT_EQ(throughTempFile(folder.path(), "<a/>\n"), "<a/>\n");
    EXPECT_EQ(test::entriesOf(folder.path()), 0U);
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
    Descriptor other = openFile(path, Opening::own);
    ASSERT_TRUE(tryLock(other));
    EXPECT_EQ(throughTempFile(folder.path(), "<mine/>"), "<mine/>"); // the holder never lets go
    EXPECT_EQ(readFile(path), "of another program");
    ASSERT_TRUE(other.reset());
    EXPECT_EQ(throughTempFile(folder.path(), "<mine/>"), "<mine/>");
    EXPECT_FALSE(fs::exists(path));
}

TEST(ThroughTempFile, FollowsNoLink) {
    const TemporaryFolder folder;
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    const auto other = folder.file("other", "of somebody else");
    test::makeLink(other, folder / "temp.xml");
    EXPECT_THROW((void)throughTempFile(folder.path(), "<a/>"), FileError);
    EXPECT_EQ(readFile(other), "of somebody else");
    EXPECT_TRUE(test::isLink(folder / "temp.xml"));
}

TEST(ThroughTempFile, FailsInAMissingFolder) {
    const TemporaryFolder folder;
    EXPECT_THROW((void)throughTempFile(folder / "no", "x"), FileError);
}

TEST(ProgramFolder, CanBeWrittenTo) {
    EXPECT_TRUE(canWriteInto(programFolder()));
}

} // namespace tarvel

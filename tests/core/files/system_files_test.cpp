// What every system's calls on files promise, whichever it is.
#include "files/folder_hold.h"
#include "files/held_file.h"
#include "files/host_files.h"
#include "files/open_file.h"
#include "files/path_text.h"
#include "files/replacement.h"
#include "support/links.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"
#include "support/wine.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <set>

namespace tarvel {

namespace {

namespace fs = std::filesystem;

std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    eachEntryOf(folder, [&](const FolderEntry& entry) {
        names.insert(utf8Of(entry.path.filename()));
        return true;
    });
    return names;
}

// A test whose folder goes through the calls that it tests.
void removeAll(const fs::path& folder) {
    eachEntryOf(folder, [](const FolderEntry& entry) {
        if (entry.kind == FileKind::folder) {
            removeAll(entry.path);
        } else {
            removeName(entry.path);
        }
        return true;
    });
}

} // namespace

TEST(SystemFiles, NamesInAnyLettersComeBackAsTheyWere) {
    const TemporaryFolder folder;
    const std::set<std::string> names = {"p\xC3\xA4r", "\xE5\xBD\xA9\xE8\x99\xB9",
                                         "\xF0\x9F\x9A\x97 car", "\xD0\xB6"};
    for (const std::string& name : names) {
        writeFile(folder.path() / pathOf(name), name);
        EXPECT_EQ(readFile(folder.path() / pathOf(name)), name);
        EXPECT_EQ(utf8Of(pathOf(name)), name);
    }
    EXPECT_EQ(namesIn(folder.path()), names);
}

TEST(SystemFiles, PathsBeyondTwoHundredAndSixtyCharacters) {
    const TemporaryFolder folder;
    fs::path deep = folder.path();
    for (int i = 0; i < 8; ++i) {
        deep /= std::string(60, static_cast<char>('a' + i));
    }
    createFolders(deep);
    EXPECT_NO_THROW(createFolders(deep));
    writeFile(deep / "file", "older");
    writeFile(deep / "file", "newer");
    copyFile(deep / "file", deep / "copy");
    EXPECT_EQ(readFile(deep / "copy"), "newer");
    EXPECT_EQ(throughTempFile(deep, "<a/>"), "<a/>");
    EXPECT_EQ(namesIn(deep), (std::set<std::string>{"file", "copy"}));
    EXPECT_TRUE(liesWithin(folder.path(), deep / "file"));
    EXPECT_TRUE(tarvel::FileExists(documentPath(deep / "file")));
    removeFile(deep / "copy");
    EXPECT_EQ(namesIn(deep), std::set<std::string>{"file"});
    removeAll(folder.path());
}

TEST(SystemFiles, AFileIsReplacedWhileSomebodyReadsIt) {
    const TemporaryFolder folder;
    const OpenFile reader(folder.file("a", "older"), Opening::read);
    if (test::isWine()) {
        GTEST_SKIP() << "Wine replaces no file that is open";
    }
    writeFile(folder / "a", "newer");
    EXPECT_EQ(readFile(folder / "a"), "newer");
    EXPECT_EQ(reader.readAll(), "older");
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"a"});
}

TEST(SystemFiles, AFileIsDeletedWhileSomebodyReadsIt) {
    const TemporaryFolder folder;
    const OpenFile reader(folder.file("a", "content"), Opening::read);
    removeFile(folder / "a");
    EXPECT_EQ(reader.readAll(), "content");
}

TEST(SystemFiles, WhatIsLockedIsReadAndNotLockedAgain) {
    const TemporaryFolder folder;
    const fs::path path = folder.file("a", "content");
    const Descriptor holder = openFile(path, Opening::own);
    ASSERT_TRUE(tryLock(holder));
    EXPECT_EQ(readFile(path), "content");
    const Descriptor other = openFile(path, Opening::own);
    ASSERT_TRUE(other.isOpen());
    EXPECT_FALSE(tryLock(other));
    EXPECT_EQ(errno, EWOULDBLOCK);
}

TEST(SystemFiles, AHeldFolderTakesFilesAndNoSecondHold) {
    const TemporaryFolder folder;
    {
        const FolderHold hold(folder.path());
        EXPECT_FALSE(hold.isTaken());
        EXPECT_TRUE(FolderHold(folder.path()).isTaken());
        writeFile(folder / "a", "content");
        createFolder(folder / "below");
        EXPECT_EQ(namesIn(folder.path()), (std::set<std::string>{"a", "below"}));
    }
    EXPECT_FALSE(FolderHold(folder.path()).isTaken());
    EXPECT_FALSE(FolderHold(folder / "missing").isTaken());
}

TEST(SystemFiles, FilesAreToldApart) {
    const TemporaryFolder folder;
    const auto a = statusOf(folder.file("a", "content"));
    const auto b = statusOf(folder.file("b", "content"));
    const auto below = statusOf(folder.folder("below"));
    ASSERT_TRUE(a && b && below);
    EXPECT_NE(a->identity, b->identity);
    EXPECT_EQ(a->identity, statusOfItself(folder / "a")->identity);
    EXPECT_EQ(a->kind, FileKind::regular);
    EXPECT_EQ(a->size, 7);
    EXPECT_EQ(a->links, 1U);
    EXPECT_EQ(below->kind, FileKind::folder);
    EXPECT_FALSE(statusOf(folder / "missing"));
    EXPECT_EQ(errno, ENOENT);
}

TEST(SystemFiles, FailuresAreToldInWords) {
    const TemporaryFolder folder;
    try {
        static_cast<void>(readFile(folder / "missing"));
        ADD_FAILURE() << "no failure";
    } catch (const FileError& error) {
        EXPECT_EQ(error.errorNumber(), ENOENT);
        EXPECT_EQ(error.what(), "No such file or directory: " + utf8Of(folder / "missing"));
    }
    EXPECT_THROW(writeFile(folder / "no" / "file", ""), FileError);
    EXPECT_THROW(static_cast<void>(readFile(folder.path())), FileError);
    EXPECT_THROW(createFolder(folder.file("a", "") / "below"), FileError);
}

TEST(SystemFiles, NamesAreFoundInWhateverLetterCase) {
    const TemporaryFolder folder;
    folder.file("Media/Pictures/Car.png", "");
    const auto spelt = [&](const char* name) {
        return utf8Of(hostPath(folder.document(name)).lexically_relative(folder.path()));
    };
    const std::string found =
        utf8Of(fs::path("Media") / "Pictures" / "Car.png"); // with the host's separators
    EXPECT_EQ(spelt("media/PICTURES/car.PNG"), found);
    EXPECT_EQ(spelt("Media/Pictures/Car.png"), found);
    EXPECT_EQ(FileFinder().hostPath(folder.document("MEDIA/pictures/CAR.png")),
              folder.path() / fs::path("Media") / "Pictures" / "Car.png");
}

} // namespace tarvel

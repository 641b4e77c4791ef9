// Recovery files of several runs in one folder: whose they are, when they come and when they go.
#include "files/host_files.h"
#include "files/path_text.h"
#include "skinfile/recovery_store.h"
#include "support/document_support.h"
#include "support/full_document.h"
#include "support/links.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

using Paths = std::vector<fs::path>;

WorkState workNamed(const std::string& name) {
    WorkState work{.document = test::fourBoxes(), .selected = {2}, .leading = 2, .folder = name};
    work.document.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
    return work;
}

std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(utf8Of(entry.path().filename()));
    }
    return names;
}

// What a run leaves that is killed after it has kept its work; `age` seconds old.
fs::path lostRun(const fs::path& folder, const WorkState& work, int age = 0) {
    RecoveryStore store(folder);
    store.keep(work);
    fs::last_write_time(store.file(), fs::file_time_type::clock::now() - std::chrono::seconds(age));
    return store.file();
}

std::string foldersOf(const Paths& files) {
    std::string text;
    for (const fs::path& file : files) {
        text += RecoveryStore::read(file).folder + ' ';
    }
    return text;
}

constexpr const char* otherRun = "keep work";
const bool isKnown = test::OtherProcess::knows(
    otherRun, [](const fs::path& folder, const std::function<void()>& ready) {
        RecoveryStore store(folder);
        store.keep(workNamed("killed"));
        ready();
        test::OtherProcess::waitForItsEnd();
    });

TEST(RecoveryStore, LeavesTheLastStateToTheNextRun) {
    const TemporaryFolder folder;
    const WorkState last{test::fullDocument(), {3, 1}, 3, "/some/skin", 12};
    fs::path file;
    {
        RecoveryStore store(folder / "a/b"); // made with those above
        store.keep(workNamed("first"));
        store.keep(last);
        file = store.file();
    }
    RecoveryStore next(folder / "a/b");
    ASSERT_EQ(next.takeLost(), Paths{file});
    EXPECT_EQ(RecoveryStore::read(file), last);
    EXPECT_NE(next.file(), file);
}

TEST(RecoveryStore, LeavesNothingAfterAProperEnd) {
    const TemporaryFolder folder;
    RecoveryStore idle(folder.path());
    RecoveryStore working(folder.path());
    working.keep(workNamed("a"));
    EXPECT_EQ(namesIn(folder.path()).size(), 3U);
    working.endProperly();
    idle.endProperly();
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{});
    working.keep(workNamed("b")); // too late
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{});
}

TEST(RecoveryStore, NeverTouchesTheFileOfALivingRun) {
    const TemporaryFolder folder;
    RecoveryStore one(folder.path());
    RecoveryStore two(folder.path());
    EXPECT_NE(one.file(), two.file());
    one.keep(workNamed("one"));
    two.keep(workNamed("two"));
    EXPECT_EQ(one.takeLost(), Paths{});
    EXPECT_EQ(two.takeLost(), Paths{});
    two.endProperly();
    EXPECT_EQ(RecoveryStore::read(one.file()), workNamed("one"));
}

TEST(RecoveryStore, OffersWhatAKilledProcessLeft) {
    const TemporaryFolder folder;
    test::OtherProcess other(otherRun, folder.path());
    ASSERT_TRUE(other.isReady());
    RecoveryStore store(folder.path());
    EXPECT_EQ(store.takeLost(), Paths{}); // it lives
    other.kill();
    EXPECT_EQ(foldersOf(store.takeLost()), "killed ");
}

TEST(RecoveryStore, OffersNewestFirst) {
    const TemporaryFolder folder;
    lostRun(folder.path(), workNamed("middle"), 60);
    lostRun(folder.path(), workNamed("newest"), 5);
    lostRun(folder.path(), workNamed("oldest"), 9000);
    RecoveryStore store(folder.path());
    EXPECT_EQ(foldersOf(store.takeLost()), "newest middle oldest ");
    EXPECT_EQ(foldersOf(store.takeLost()), "newest middle oldest "); // and says so again
}

TEST(RecoveryStore, OffersALostRunToOneStoreAlone) {
    const TemporaryFolder folder;
    const fs::path lost = lostRun(folder.path(), workNamed("lost"));
    RecoveryStore first(folder.path());
    EXPECT_EQ(first.takeLost(), Paths{lost});
    RecoveryStore second(folder.path());
    EXPECT_EQ(second.takeLost(), Paths{});
    second.endProperly();
    EXPECT_EQ(RecoveryStore::read(lost), workNamed("lost"));
}

TEST(RecoveryStore, KeepsADeclinedFileUntilAProperEnd) {
    const TemporaryFolder folder;
    const fs::path lost = lostRun(folder.path(), workNamed("lost"));
    {
        RecoveryStore store(folder.path());
        EXPECT_EQ(store.takeLost(), Paths{lost});
    } // this run is killed as well
    RecoveryStore store(folder.path());
    EXPECT_EQ(store.takeLost(), Paths{lost});
    store.endProperly();
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{});
}

TEST(RecoveryStore, ForgetsWhatWasBroughtBack) {
    const TemporaryFolder folder;
    const fs::path lost = lostRun(folder.path(), workNamed("lost"));
    RecoveryStore store(folder.path());
    store.takeLost();
    store.keep(RecoveryStore::read(lost));
    store.forget(lost);
    EXPECT_EQ(store.takeLost(), Paths{});
    EXPECT_EQ(namesIn(folder.path()).size(), 2U); // the store's own
}

TEST(RecoveryStore, SetsAsideWhatCannotBeRead) {
    const TemporaryFolder folder;
    const fs::path lost = lostRun(folder.path(), workNamed("lost"));
    writeFile(lost, "no recovery file");
    RecoveryStore store(folder.path());
    EXPECT_EQ(store.takeLost(), Paths{lost});
    EXPECT_THROW(static_cast<void>(RecoveryStore::read(lost)), SealedBytesError);

    fs::path expected = lost;
    expected.replace_extension(".unreadable");
    folder.file(utf8Of(expected.filename()), "an older one");
    const fs::path aside = store.setAside(lost);
    EXPECT_EQ(aside, folder / (utf8Of(lost.stem()) + "-2.unreadable"));
    EXPECT_EQ(readFile(aside), "no recovery file");
    EXPECT_EQ(readFile(expected), "an older one");
    EXPECT_EQ(store.takeLost(), Paths{});
    store.endProperly();
    EXPECT_EQ(namesIn(folder.path()),
              (std::set<std::string>{utf8Of(aside.filename()), utf8Of(expected.filename())}));
}

TEST(RecoveryStore, LeavesOtherFilesAlone) {
    const TemporaryFolder folder;
    folder.file("notes.recovery", "x");
    folder.file("run-1-1.unreadable", "x");
    folder.folder("run-2-2.recovery");
    std::set<std::string> others = {"notes.recovery", "run-1-1.unreadable", "run-2-2.recovery"};
    if (test::areFileLinksTold()) {
        test::makeLink(folder / "notes.recovery", folder / "run-3-3.recovery");
        others.insert("run-3-3.recovery");
    }
    folder.file("run-4-4.lock", ""); // a run that was killed before it kept anything
    folder.file(".tarvel-4-1", "");  // and while it kept something
    RecoveryStore store(folder.path());
    EXPECT_EQ(store.takeLost(), Paths{});
    store.endProperly();
    EXPECT_EQ(namesIn(folder.path()), others);
}

TEST(RecoveryStore, SaysWhenNothingCanBeKept) {
    const TemporaryFolder folder;
    folder.file("file", "");
    EXPECT_THROW(RecoveryStore(folder / "file"), FileError);
    EXPECT_THROW(RecoveryStore(folder / "file/below"), FileError);

    if (fs::path::preferred_separator == '\\') {
        return; // no folder can be removed in which something is held
    }
    RecoveryStore store(folder / "removed");
    fs::remove_all(folder / "removed");
    EXPECT_THROW(store.keep(workNamed("a")), FileError);
    EXPECT_EQ(store.takeLost(), Paths{});
    store.endProperly();
}

} // namespace
} // namespace tarvel

// Saves onto a disk that fills up, from files that change while they are copied, and into folders
// that go away.
#include "faults/saves.h"
#include "files/host_files.h"
#include "skinfile/recovery_store.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvel::test {

namespace fs = std::filesystem;

namespace {

// Runs the check in a process with mounts of its own; false when the system does not permit that.
// Needs no privilege where user namespaces are open to all.
bool isPermittedToMount() {
    const bool isRoot = ::geteuid() == 0;
    if (::unshare(isRoot ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0) {
        return false;
    }
    if (!isRoot) {
        std::ofstream("/proc/self/uid_map") << "0 " << ::getuid() << " 1";
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountSmallDisk(const fs::path& place, int kilobytes) {
    const std::string options = "size=" + std::to_string(kilobytes) + "k";
    fs::create_directories(place);
    return ::mount("tmpfs", place.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

// What the check says, run in a child that may mount; "not permitted" when it may not.
std::string inOwnMounts(const std::function<std::string()>& check) {
    int result[2]; // NOLINT: for pipe
    if (::pipe(result) != 0) {
        return "no pipe";
    }
    const pid_t child = ::fork();
    if (child == 0) {
        std::string text = "not permitted";
        try {
            text = isPermittedToMount() ? check() : text;
        } catch (const std::exception& error) {
            text = error.what();
        }
        static_cast<void>(::write(result[1], text.data(), text.size()));
        ::_exit(0);
    }
    ::close(result[1]);
    std::string text(4096, '\0');
    const ssize_t size = ::read(result[0], text.data(), text.size());
    text.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    ::close(result[0]);
    ::waitpid(child, nullptr, 0);
    return text;
}

std::string saveOntoDiskOf(const TwoVersions& skins, int kilobytes) {
    if (!mountSmallDisk(skins.out(), kilobytes)) {
        return "not permitted";
    }
    if (const auto first = runChild(skins.save(0)); first.code != 0) {
        return "the first save failed: " + first.err;
    }
    const auto second = runChild(skins.save(1));
    std::string problem = skins.problem(true);
    if (second.code == 0 && problem.empty() && filesIn(skins.out()) != skins.saved(1)) {
        problem = "told of nothing";
    }
    if (second.code != 0 && second.err.find(std::strerror(ENOSPC)) == std::string::npos) {
        problem += " does not tell why: " + second.err;
    }
    ::umount(skins.out().c_str());
    return problem + (second.code != 0 ? "full" : "fits");
}

TEST(DisturbedSaves, LeaveOldFilesWholeWhenTheDiskFillsUp) {
    const TwoVersions skins({.elements = 3, .pictures = 3, .kilobytes = 100});
    int full = 0;
    int fits = 0;
    // 308 KB of files; a file's new version stands beside its old one.
    for (int kilobytes = 312; kilobytes <= 440; kilobytes += isLongRun() ? 1 : 8) {
        const std::string outcome = inOwnMounts([&] { return saveOntoDiskOf(skins, kilobytes); });
        if (outcome == "not permitted") {
            GTEST_SKIP() << "mounting a small disk is not permitted here";
        }
        full += outcome == "full" ? 1 : 0;
        fits += outcome == "fits" ? 1 : 0;
        EXPECT_TRUE(outcome == "full" || outcome == "fits") << kilobytes << " KB: " << outcome;
    }
    EXPECT_GT(full, 5);
    EXPECT_GT(fits, 2);
    std::cout << full << " disks were too small, " << fits << " were not\n";
}

std::string keepOntoSmallDisk(const fs::path& place) {
    if (!mountSmallDisk(place, 64)) {
        return "not permitted";
    }
    RecoveryStore store(place);
    WorkState work;
    for (std::string name(1000, 'x');; name += name) {
        const std::string kept = work.document.settings().skinName;
        work.document.editSettings([&](SkinSettings& settings) { settings.skinName = name; });
        try {
            store.keep(work);
        } catch (const FileError& error) {
            const WorkState older = RecoveryStore::read(store.file());
            return older.document.settings().skinName == kept && !kept.empty() &&
                           error.errorNumber() == ENOSPC
                       ? "full"
                       : std::string("lost: ") + error.what();
        }
    }
}

TEST(DisturbedSaves, LeaveTheOlderRecoveryFileWhenTheDiskFillsUp) {
    const TemporaryFolder folder;
    const std::string outcome = inOwnMounts([&] { return keepOntoSmallDisk(folder / "disk"); });
    if (outcome == "not permitted") {
        GTEST_SKIP() << "mounting a small disk is not permitted here";
    }
    EXPECT_EQ(outcome, "full");
}

struct Change {
    const char* call; ///< the kind of call and its number before which it happens
    const char* how;
    fs::path path;
};

// What `changes` does to the version that is being saved, at each call of a kind.
void expectWholeOrTold(const TwoVersions& skins, const Change& change) {
    fs::remove_all(skins.in(1));
    fs::copy(skins.folder() / "kept", skins.in(1), fs::copy_options::recursive);
    const Files before = filesIn(skins.in(1));
    skins.reset();
    const std::string fault =
        std::string(change.call) + " " + change.how + " " + change.path.string();
    SCOPED_TRACE(fault);
    const ChildResult result = runChild(
        skins.save(1), {.preload = TARVEL_FAIL_CALLS, .environment = {"TARVEL_FAULT=" + fault}});
    EXPECT_EQ(result.signal, 0);
    if (result.code != 0) {
        EXPECT_TRUE(result.err.starts_with("tarvel-skin: ")) << result.err;
        EXPECT_EQ(skins.problem(true), "");
        return;
    }
    // What was saved is a file as it was before the change, or as it is after it.
    Files saved = filesIn(skins.out());
    for (const auto& [name, bytes] : filesIn(skins.in(1))) {
        if (name != "QOR_Skin.xml") {
            EXPECT_TRUE(saved[name] == bytes || saved[name] == before.at(name)) << name;
        }
    }
}

TEST(DisturbedSaves, NeverTakeAChangingFileForAWholeOne) {
    const TwoVersions skins({.elements = 1, .pictures = 2, .kilobytes = 900});
    fs::copy(skins.in(1), skins.folder() / "kept", fs::copy_options::recursive);
    const std::pair<const char*, int> calls[] = {{"read", 14},
                                                 {"write", 12},
                                                 {"open", isLongRun() ? 12 : 0},
                                                 {"stat", isLongRun() ? 60 : 0}};
    for (const char* how : {"shrink", "grow", "vanish"}) {
        for (const auto& [kind, most] : calls) {
            for (int number = 1; number <= most; ++number) {
                const std::string call = std::string(kind) + " " + std::to_string(number);
                expectWholeOrTold(skins, {call.c_str(), how, skins.in(1) / "Media/p0.png"});
            }
        }
    }
}

TEST(DisturbedSaves, TellThatTheFolderIsGone) {
    const TwoVersions skins({.elements = 1, .pictures = 2, .kilobytes = 300});
    int failed = 0;
    for (const char* kind : {"open", "write", "rename", "mkdir"}) {
        for (int number = 1; number <= 8; ++number) {
            skins.reset();
            const std::string fault = std::string(kind) + " " + std::to_string(number) +
                                      " vanish " + skins.out().string();
            SCOPED_TRACE(fault);
            const ChildResult result =
                runChild(skins.save(1),
                         {.preload = TARVEL_FAIL_CALLS, .environment = {"TARVEL_FAULT=" + fault}});
            EXPECT_EQ(result.signal, 0);
            const Files saved = filesIn(skins.out());
            if (result.code == 0) {
                EXPECT_TRUE(saved == skins.saved(1)); // it was made again
            } else {
                EXPECT_TRUE(result.err.starts_with("tarvel-skin: ")) << result.err;
                ++failed;
            }
        }
    }
    EXPECT_GT(failed, 5);
}

} // namespace
} // namespace tarvel::test

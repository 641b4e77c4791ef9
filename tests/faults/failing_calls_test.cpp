// Each call to the system fails in turn, in each way that it can: while a skin is saved, while the
// work is kept, and while it is brought back.
#include "faults/saves.h"
#include "files/host_files.h"
#include "skinfile/recovery_store.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <iostream>
#include <sstream>

namespace tarvel::test {

namespace fs = std::filesystem;

namespace {

constexpr int oneByte = -1; // does only one byte

struct FaultyCall {
    const char* kind;
    std::vector<int> faults;
};

const FaultyCall faultyCalls[] = {
    {"open", {EIO, EACCES, EMFILE, ENOSPC, EINTR}},
    {"read", {EIO, EINTR, oneByte}},
    {"write", {ENOSPC, EIO, EINTR, oneByte}},
    {"fsync", {EIO, ENOSPC, EINTR}},
    {"close", {EIO, EINTR}},
    {"rename", {EIO, EACCES, ENOSPC}},
    {"mkdir", {EIO, EACCES, ENOSPC}},
    {"unlink", {EIO, EACCES}},
    {"fchmod", {EIO, EPERM, EINTR}},
    {"flock", {ENOLCK, EINTR}},
    {"ftruncate", {EIO, ENOSPC, EINTR}},
    {"lseek", {EIO}},
    {"stat", {EIO, EACCES}},
    {"opendir", {EIO, EMFILE}},
    {"copy_file_range", {EIO, ENOSPC, EINTR, oneByte}},
};

bool isHarmless(int fault) {
    return fault == oneByte || fault == EINTR;
}

// Kinds whose failure can never be passed over: what was to be saved would not be there.
bool mustBeTold(std::string_view kind) {
    return kind == "write" || kind == "fsync" || kind == "rename" || kind == "mkdir";
}

struct Fault {
    std::string kind;
    int number = 0;
    int how = 0;

    [[nodiscard]] std::string name() const {
        return kind + " " + std::to_string(number) + " " +
               (how == oneByte ? "short" : std::strerror(how)); // NOLINT: one thread
    }
    [[nodiscard]] ChildOptions options() const {
        return {.preload = TARVEL_FAIL_CALLS,
                .environment = {"TARVEL_FAULT=" + kind + " " + std::to_string(number) + " " +
                                (how == oneByte ? "short" : std::to_string(how))}};
    }
};

// All faults of a command that is run once without any to see what it calls.
std::vector<Fault> faultsOf(const std::vector<std::string>& command) {
    const TemporaryFolder folder;
    const auto counts = folder / "counts";
    const auto result =
        runChild(command, {.preload = TARVEL_FAIL_CALLS,
                           .environment = {"TARVEL_FAULT_COUNTS=" + counts.string()}});
    EXPECT_EQ(result.code, 0) << result.err;
    std::vector<Fault> faults;
    std::istringstream lines(readFile(counts));
    std::string kind;
    for (int count = 0; lines >> kind >> count;) {
        std::cout << kind << ' ' << count << ", ";
        const int step = count > 20 && !isLongRun() ? 4 : 1; // dozens of look-ups
        for (const FaultyCall& call : faultyCalls) {
            for (int number = 1; call.kind == kind && number <= count; number += step) {
                for (const int how : call.faults) {
                    faults.push_back({kind, number, how});
                }
            }
        }
    }
    std::cout << faults.size() << " faults\n";
    return faults;
}

// What every command keeps to: it ends by itself, goes on after what is harmless, and names the
// failure when it fails.
void expectTrueMessage(const Fault& fault, const ChildResult& result) {
    EXPECT_EQ(result.signal, 0);
    if (isHarmless(fault.how)) {
        EXPECT_EQ(result.code, 0) << result.err;
    }
    if (mustBeTold(fault.kind) && !isHarmless(fault.how)) {
        EXPECT_NE(result.code, 0);
    }
    if (result.code != 0 && fault.how != oneByte) {
        EXPECT_NE(result.err.find(std::strerror(fault.how)), std::string::npos) // NOLINT
            << result.err;
    }
}

TEST(FailingCalls, LeaveASkinWholeAndAreTold) {
    const TwoVersions skins({.elements = 1, .pictures = 2, .kilobytes = 300});
    skins.reset();
    int told = 0;
    for (const Fault& fault : faultsOf(skins.save(1))) {
        SCOPED_TRACE(fault.name());
        skins.reset();
        const ChildResult result = runChild(skins.save(1), fault.options());
        expectTrueMessage(fault, result);
        const bool mayStay = fault.kind == "unlink"; // a file that cannot be deleted
        EXPECT_EQ(skins.problem(!mayStay), "");
        if (result.code == 0) {
            EXPECT_TRUE(filesIn(skins.out()) == skins.saved(1));
        } else {
            ++told;
            EXPECT_TRUE(result.err.starts_with("tarvel-skin: ")) << result.err;
        }
    }
    EXPECT_EQ(skins.problemAfterSave(1), "");
    std::cout << told << " were told, the rest did not matter\n";
}

std::vector<fs::path> lostFiles(const fs::path& folder) {
    return RecoveryStore(folder).takeLost();
}

TEST(FailingCalls, LeaveTheRecoveryFileWholeAndAreTold) {
    const TemporaryFolder folder;
    const auto place = folder / "recovery";
    const std::vector<std::string> command = {TARVEL_KEEP_WORK, "keep", place};
    for (const Fault& fault : faultsOf(command)) {
        SCOPED_TRACE(fault.name());
        fs::remove_all(place);
        const ChildResult result = runChild(command, fault.options());
        expectTrueMessage(fault, result);
        const auto lost = lostFiles(place);
        const bool keptOlder = result.err.find("kept older") != std::string::npos;
        if (keptOlder) {
            ASSERT_EQ(lost.size(), 1U);
        }
        for (const fs::path& file : lost) {
            const std::string name = RecoveryStore::read(file).folder;
            EXPECT_TRUE(name == "newer" || (name == "older" && result.code != 0)) << name;
        }
    }
}

TEST(FailingCalls, NeverLoseTheRecoveryFileThatIsTakenUp) {
    const TemporaryFolder folder;
    const auto place = folder / "recovery";
    const auto reset = [&] {
        fs::remove_all(place);
        RecoveryStore(place).keep({.document = {}, .selected = {}, .folder = "lost"});
    };
    const std::vector<std::string> command = {TARVEL_KEEP_WORK, "take", place};
    reset();
    for (const Fault& fault : faultsOf(command)) {
        SCOPED_TRACE(fault.name());
        reset();
        const ChildResult result = runChild(command, fault.options());
        EXPECT_EQ(result.signal, 0);
        if (isHarmless(fault.how)) {
            EXPECT_EQ(result.code, 0) << result.err;
        }
        const auto lost = lostFiles(place);
        ASSERT_GE(lost.size(), 1U) << result.err;
        for (const fs::path& file : lost) {
            EXPECT_EQ(RecoveryStore::read(file).folder, "lost");
        }
    }
}

} // namespace
} // namespace tarvel::test

// Saves that are killed, at random moments and before each call of the system: every file is the
// old one or the new one, and the next save leaves nothing of what the killed one began.
#include "faults/saves.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <random>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarvel::test {
namespace {

TEST(KilledSaves, LeaveWholeFilesAtAnyMoment) {
    const TwoVersions skins({.elements = 10, .pictures = 4, .kilobytes = 1500});
    const int rounds = isLongRun() ? 200 : 40;
    std::mt19937 random(1); // NOLINT: the same moments each time, as far as the machine goes
    const double whole = runChild(skins.save(0)).seconds;
    int killed = 0;
    for (int round = 0; round < rounds; ++round) {
        Child child(skins.save(round % 2));
        std::this_thread::sleep_for(
            std::chrono::duration<double>(std::uniform_real_distribution<>(0, whole)(random)));
        child.kill();
        killed += child.wait().signal == SIGKILL ? 1 : 0;
        ASSERT_EQ(skins.problem(), "") << "round " << round;
        if (round % 20 == 19) {
            ASSERT_EQ(skins.problemAfterSave(round / 20 % 2), "") << "round " << round;
        }
    }
    EXPECT_GT(killed, rounds / 2);
    std::cout << killed << " of " << rounds << " saves were killed\n";
}

bool makesAFile(const __ptrace_syscall_info& call) {
    return call.entry.nr == SYS_openat && (call.entry.args[2] & O_CREAT) != 0;
}

// Runs the command and kills it before it makes its call number `last`. Returns how many calls it
// made, and in `firstFile` the number of the first that makes a file.
int killBeforeCall(const std::vector<std::string>& command, int last, int* firstFile = nullptr) {
    std::vector<const char*> words;
    for (const std::string& word : command) {
        words.push_back(word.c_str());
    }
    words.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr); // NOLINT: variadic
        ::raise(SIGSTOP);
        ::execv(words.front(), const_cast<char* const*>(words.data())); // NOLINT: as exec has it
        ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int calls = 0;
    while (::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0 &&
           ::waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
        __ptrace_syscall_info call{};
        ::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof call, &call);
        if (WSTOPSIG(status) != (SIGTRAP | 0x80) || call.op != PTRACE_SYSCALL_INFO_ENTRY) {
            continue;
        }
        ++calls;
        if (firstFile != nullptr && *firstFile == 0 && makesAFile(call)) {
            *firstFile = calls;
        }
        if (calls == last) {
            ::kill(child, SIGKILL);
        }
    }
    return calls;
}

TEST(KilledSaves, LeaveWholeFilesBeforeEachCall) {
    const TwoVersions skins;
    skins.reset();
    int firstFile = 0;
    const int calls = killBeforeCall(skins.save(1), 0, &firstFile);
    if (calls == 0) {
        GTEST_SKIP() << "tracing a child is not permitted here";
    }
    ASSERT_EQ(filesIn(skins.out()), skins.saved(1));
    ASSERT_GT(firstFile, 0);
    const int first = isLongRun() ? 1 : firstFile; // nothing on the disk changes before it
    const int step = isLongRun() ? 1 : 3;
    for (int call = first; call <= calls; call += step) {
        skins.reset();
        ASSERT_EQ(killBeforeCall(skins.save(1), call), call);
        ASSERT_EQ(skins.problem(), "") << "killed before call " << call;
        ASSERT_EQ(skins.problemAfterSave(1), "") << "killed before call " << call;
    }
    std::cout << (step == 1 ? "killed before each" : "killed before every third")
              << " of the calls " << first << " to " << calls << '\n';
}

} // namespace
} // namespace tarvel::test

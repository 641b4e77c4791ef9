// The editor killed at any moment of its work: what comes back is a state that it went through, at
// most two seconds old. The long run kills it 50 times.
#include "faults/child.h"
#include "faults/restless_editor.h"
#include "faults/saves.h"
#include "skinfile/recovery_store.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <thread>
#include <vector>

namespace tarvel::test {
namespace {

struct State {
    std::int64_t since = 0; // milliseconds of the steady clock
    std::size_t hash = 0;
    bool anything = false;
};

std::vector<State> statesIn(const std::filesystem::path& log) {
    std::ifstream lines(log);
    std::vector<State> states;
    for (State state; lines >> state.since >> state.hash >> state.anything;) {
        states.push_back(state);
    }
    return states;
}

constexpr std::int64_t oldest = 2000; // milliseconds

// When the last of the states with the hash was no longer that of the work; 0 for none.
std::int64_t supersededAt(const std::vector<State>& states, std::size_t hash, std::int64_t end) {
    for (std::size_t i = states.size(); i-- > 0;) {
        if (states[i].hash == hash) {
            return i + 1 == states.size() ? end : states[i + 1].since;
        }
    }
    return 0;
}

// How long before its end the editor had something to lose, and did nothing that took it away.
std::int64_t timeWithWork(const std::vector<State>& states, std::int64_t end) {
    std::int64_t since = end;
    for (std::size_t i = states.size(); i-- > 0 && states[i].anything;) {
        since = states[i].since;
    }
    return end - since;
}

struct Killed {
    std::int64_t age = 0; // of what came back; -1 when nothing had to
};

// Without a display the window is painted into memory.
std::vector<std::string> surroundings() {
    std::vector<std::string> variables = {"QT_LOGGING_RULES=qt.multimedia*=false"};
    if (std::getenv("DISPLAY") == nullptr) {
        variables.emplace_back("QT_QPA_PLATFORM=offscreen");
    }
    return variables;
}

void killAfter(int milliseconds, int seed, Killed& killed) {
    const TemporaryFolder folder;
    const auto kept = folder.path() / "kept";
    const auto log = folder.path() / "log";
    std::int64_t end = 0;
    {
        Child editor({TARVEL_RESTLESS_EDITOR, kept.string(), log.string(), std::to_string(seed)},
                     {.preload = {}, .environment = surroundings(), .seconds = 60});
        for (int wait = 0; statesIn(log).empty() && wait < 3000; ++wait) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        end = steadyMilliseconds();
        editor.kill();
        ASSERT_EQ(editor.wait().signal, 9);
    }
    const std::vector<State> states = statesIn(log);
    ASSERT_FALSE(states.empty());
    RecoveryStore next(kept);
    const auto lost = next.takeLost();
    if (lost.empty()) {
        EXPECT_LE(timeWithWork(states, end), oldest) << "nothing was kept";
        killed.age = -1;
        return;
    }
    ASSERT_EQ(lost.size(), 1U);
    const WorkState back = RecoveryStore::read(lost.front());
    const std::int64_t until = supersededAt(states, hashOf(back.document), end);
    ASSERT_NE(until, 0) << "a state that never was";
    killed.age = end - until;
    EXPECT_LE(killed.age, oldest);
}

TEST(KilledEditor, LeavesAStateOfTheLastTwoSeconds) {
    const int kills = isLongRun() ? 50 : 5;
    constexpr int shortest = 600; // milliseconds
    constexpr int longest = 5000;
    std::mt19937 random(11);
    std::int64_t oldestBack = 0;
    int kept = 0;
    for (int kill = 0; kill < kills; ++kill) {
        Killed killed;
        const int after = shortest + static_cast<int>(random() % (longest - shortest));
        ASSERT_NO_FATAL_FAILURE(killAfter(after, kill + 1, killed)) << "after " << after << " ms";
        oldestBack = std::max(oldestBack, killed.age);
        kept += killed.age >= 0 ? 1 : 0;
    }
    EXPECT_GT(kept, kills / 2);
    std::printf("%d kills, %d came back, at most %lld ms old\n", kills, kept,
                static_cast<long long>(oldestBack));
}

} // namespace
} // namespace tarvel::test

// Who gets a file that only one can hold at a time, and when it is free again.
#include "files/held_file.h"
#include "files/host_files.h"
#include "support/links.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

namespace tarvel {
namespace {

TEST(HeldFile, IsHeldByOneAtATime) {
    const TemporaryFolder folder;
    const auto path = folder / "lock";
    auto first = HeldFile::tryHold(path);
    ASSERT_TRUE(first);
    EXPECT_FALSE(HeldFile::tryHold(path));
    HeldFile moved = std::move(*first);
    first.reset();
    EXPECT_FALSE(HeldFile::tryHold(path));
    moved.remove();
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_TRUE(HeldFile::tryHold(path));
    EXPECT_TRUE(std::filesystem::exists(path)); // it stays when the hold ends
    EXPECT_TRUE(HeldFile::tryHold(path));
}

TEST(HeldFile, IsNeverHeldTwiceWhileHoldersDeleteIt) {
    const TemporaryFolder folder;
    std::atomic<int> holders = 0;
    std::atomic<int> holds = 0;
    std::atomic<bool> together = false;
    // How many tries a hold takes is the scheduler's: what ends the work are the holds.
    constexpr int enough = 500;
    const auto work = [&] {
        while (holds < enough) {
            if (auto held = HeldFile::tryHold(folder / "lock")) {
                together = ++holders != 1 || together;
                ++holds;
                std::this_thread::sleep_for(
                    std::chrono::microseconds(20)); // the others go on meanwhile
                --holders;
                held->remove();
            }
        }
    };
    std::vector<std::thread> others;
    for (int i = 0; i < 3; ++i) {
        others.emplace_back(work);
    }
    work();
    for (std::thread& other : others) {
        other.join();
    }
    EXPECT_FALSE(together);
}

TEST(HeldFile, SaysWhyItCannotBe) {
    const TemporaryFolder folder;
    EXPECT_THROW(static_cast<void>(HeldFile::tryHold(folder / "none/lock")), FileError);
    if (!test::areFileLinksTold()) {
        GTEST_SKIP() << test::linksUntold;
    }
    test::makeLink(folder / "elsewhere", folder / "link");
    EXPECT_THROW(static_cast<void>(HeldFile::tryHold(folder / "link")), FileError);
    EXPECT_FALSE(std::filesystem::exists(folder / "elsewhere"));
}

} // namespace
} // namespace tarvel

// A held file and the programs that are started meanwhile, by POSIX.
#include "files/held_file.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvel {
namespace {

TEST(HeldFile, DoesNotPassToProgramsThatAreStarted) {
    const TemporaryFolder folder;
    auto held = HeldFile::tryHold(folder / "lock");
    const pid_t child = ::fork();
    if (child == 0) {
        ::execlp("sleep", "sleep", "60", nullptr); // NOLINT: variadic by POSIX
        ::_exit(1);
    }
    held.reset();
    // Until it runs sleep, the child is a copy of this process with the same open files.
    bool isFree = false;
    for (int i = 0; i < 500 && !isFree; ++i) {
        isFree = HeldFile::tryHold(folder / "lock").has_value();
        ::usleep(10'000);
    }
    EXPECT_TRUE(isFree);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

} // namespace
} // namespace tarvel

// Links and processes for tests, by POSIX.
#include "support/links.h"
#include "support/other_process.h"
#include "support/wine.h"

#include <array>
#include <csignal>
#include <map>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tarvel::test {

namespace {

std::map<std::string, OtherWork>& works() {
    static std::map<std::string, OtherWork> all;
    return all;
}

} // namespace

void makeLink(const std::filesystem::path& target, const std::filesystem::path& at) {
    std::filesystem::create_symlink(target, at);
}

bool areFileLinksTold() {
    return true;
}

bool isWine() {
    return false;
}

bool OtherProcess::knows(const std::string& name, OtherWork work) {
    return works().emplace(name, work).second;
}

OtherProcess::OtherProcess(const std::string& name, const std::filesystem::path& path) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return;
    }
    process_ = ::fork();
    if (process_ == 0) {
        works().at(name)(path, [&] { static_cast<void>(::write(ends[1], "x", 1) + 0); });
        waitForItsEnd();
    }
    ::close(ends[1]);
    char byte = 0;
    ready_ = ::read(ends[0], &byte, 1) == 1;
    ::close(ends[0]);
}

void OtherProcess::waitForItsEnd() {
    for (;;) {
        ::pause();
    }
}

void OtherProcess::kill() {
    const auto process = static_cast<pid_t>(std::exchange(process_, 0));
    if (process > 0) {
        ::kill(process, SIGKILL);
        ::waitpid(process, nullptr, 0);
    }
}

} // namespace tarvel::test

// Starts, kills and awaits child processes.
#include "faults/child.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tarvel::test {

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentOf(const ChildOptions& options) {
    std::vector<std::string> texts = options.environment;
    if (!options.preload.empty()) {
        texts.push_back("LD_PRELOAD=" + options.preload);
    }
    for (char** each = environ; *each != nullptr; ++each) {
        texts.emplace_back(*each);
    }
    return texts;
}

double secondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

} // namespace

Child::Child(const std::vector<std::string>& command, const ChildOptions& options)
    : secondsLeft_(options.seconds) {
    auto words = command;
    auto environment = environmentOf(options);
    const auto arguments = pointersTo(words);
    const auto variables = pointersTo(environment);
    std::array<int, 2> err{};
    if (::pipe2(err.data(), O_CLOEXEC) != 0 || (pid_ = ::fork()) < 0) {
        throw std::runtime_error("no child");
    }
    if (pid_ == 0) {
        ::dup2(err[1], STDERR_FILENO);
        ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO); // NOLINT: variadic
        ::execve(arguments.front(), arguments.data(), variables.data());
        ::_exit(127);
    }
    ::close(err[1]);
    err_ = err[0];
}

Child::~Child() {
    if (pid_ > 0) {
        kill();
        wait();
    }
    ::close(err_);
}

void Child::kill() const {
    ::kill(pid_, SIGKILL);
}

void Child::drain(ChildResult& result) const {
    const auto end = start_ + std::chrono::seconds(secondsLeft_);
    std::array<char, 4096> block{};
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        pollfd ready{err_, POLLIN, 0};
        if (left.count() <= 0 || ::poll(&ready, 1, static_cast<int>(left.count())) == 0) {
            kill();
            return;
        }
        const ssize_t got = ::read(err_, block.data(), block.size());
        if (got <= 0) {
            return;
        }
        result.err.append(block.data(), static_cast<std::size_t>(got));
    }
}

ChildResult Child::wait() {
    ChildResult result;
    drain(result);
    int status = 0;
    rusage usage{};
    ::wait4(std::exchange(pid_, -1), &status, 0, &usage);
    result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    result.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    result.processorSeconds = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
    result.peakKilobytes = usage.ru_maxrss;
    return result;
}

ChildResult runChild(const std::vector<std::string>& command, const ChildOptions& options) {
    return Child(command, options).wait();
}

} // namespace tarvel::test

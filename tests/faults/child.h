// Programs run as children: what they print to the error stream, how they end, what they take.
#pragma once

#include <chrono>
#include <string>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace tarvel::test {

struct ChildResult {
    int code = -1;  ///< exit code; -1 when a signal ended it
    int signal = 0; ///< that ended it; 0 for none
    std::string err;
    double seconds = 0;
    double processorSeconds = 0;
    long peakKilobytes = 0; ///< resident
};

struct ChildOptions {
    std::string preload;                  ///< a library to load first; "" for none
    std::vector<std::string> environment; ///< more of it, "NAME=value"
    int seconds = 120;                    ///< it is killed then
};

/// A started program. Its standard output goes nowhere, its error stream is kept.
class Child {
  public:
    explicit Child(const std::vector<std::string>& command, const ChildOptions& options = {});
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void kill() const;
    /// Waits for its end.
    ChildResult wait();

  private:
    void drain(ChildResult& result) const;

    pid_t pid_ = -1;
    int err_ = -1;
    int secondsLeft_ = 0;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Runs it to its end.
ChildResult runChild(const std::vector<std::string>& command, const ChildOptions& options = {});

} // namespace tarvel::test

// Another process that does something for a test until it is killed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace tarvel::test {

/// What the process does: it calls the second argument once all is as the test wants it, and is
/// killed some time after that.
using OtherWork = void (*)(const std::filesystem::path& path, const std::function<void()>& ready);

class OtherProcess {
  public:
    /// Names work, so that a process can be told what to do. For the initialisation of a variable
    /// of a test source.
    static bool knows(const std::string& name, OtherWork work);

    /// Begins the work of that name with a path, and waits until it is ready.
    OtherProcess(const std::string& name, const std::filesystem::path& path);
    ~OtherProcess() { kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// For work that is ready.
    [[noreturn]] static void waitForItsEnd();

    /// False when it could not be begun, or ended by itself.
    [[nodiscard]] bool isReady() const { return ready_; }
    /// Kills it, and waits until it is gone.
    void kill();

  private:
    std::intptr_t process_ = 0;
    bool ready_ = false;
};

} // namespace tarvel::test

// Names of files that Windows cannot have, told on every system.
#pragma once

#include <string_view>

namespace tarvel {

/// True when no file or folder of Windows can be called so: for its letters, for what it ends with,
/// or as the name of a device.
[[nodiscard]] bool isNoWindowsName(std::string_view name);

/// The first part of a File text of a skin, with slashes of either kind, that is no name of
/// Windows; "" when there is none. The parts "." and ".." are names.
[[nodiscard]] std::string_view partWithoutWindowsName(std::string_view file);

/// Whether this program runs where files can have names of Windows alone.
[[nodiscard]] bool hasWindowsNamesAlone();

/// Lets it run so, or not, as long as this lives; for tests.
class HostNames {
  public:
    explicit HostNames(bool ofWindowsAlone);
    ~HostNames();
    HostNames(const HostNames&) = delete;
    HostNames& operator=(const HostNames&) = delete;

  private:
    bool before_;
};

} // namespace tarvel

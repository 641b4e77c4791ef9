// The rules for names that Windows has had since its beginnings.
#include "files/windows_names.h"

#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvel {

namespace {

constexpr std::array<std::string_view, 6> devices = {"con", "prn",    "aux",
                                                     "nul", "conin$", "conout$"};
constexpr std::array<std::string_view, 2> numberedDevices = {"com", "lpt"};
// 1 to 9; the raised figures 1, 2 and 3 count as these.
constexpr std::array<std::string_view, 12> deviceNumbers = {
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "\xC2\xB9", "\xC2\xB2", "\xC2\xB3"};

bool isRefused(char letter) {
    constexpr unsigned char firstPrintable = 0x20;
    return static_cast<unsigned char>(letter) < firstPrintable ||
           std::string_view("<>:\"/\\|?*").find(letter) != std::string_view::npos;
}

template <class List> bool holds(const List& list, std::string_view name) {
    return std::any_of(list.begin(), list.end(),
                       [=](std::string_view each) { return equalsIgnoringCase(each, name); });
}

#ifdef _WIN32
bool windowsNamesAlone = true; // NOLINT: changed by tests
#else
bool windowsNamesAlone = false; // NOLINT: changed by tests
#endif

// With whatever extension.
bool isDevice(std::string_view name) {
    name = name.substr(0, name.find('.'));
    name = name.substr(0, name.find_last_not_of(' ') + 1);
    constexpr std::size_t letters = 3;
    return holds(devices, name) || (holds(numberedDevices, name.substr(0, letters)) &&
                                    holds(deviceNumbers, name.substr(letters)));
}

} // namespace

bool isNoWindowsName(std::string_view name) {
    if (name == "." || name == "..") {
        return false;
    }
    return name.empty() || name.ends_with('.') || name.ends_with(' ') ||
           std::any_of(name.begin(), name.end(), isRefused) || isDevice(name);
}

bool hasWindowsNamesAlone() {
    return windowsNamesAlone;
}

HostNames::HostNames(bool ofWindowsAlone)
    : before_(std::exchange(windowsNamesAlone, ofWindowsAlone)) {}

HostNames::~HostNames() {
    windowsNamesAlone = before_;
}

std::string_view partWithoutWindowsName(std::string_view file) {
    while (!file.empty()) {
        const auto end = std::min(file.find_first_of("/\\"), file.size());
        const std::string_view part = file.substr(0, end);
        if (!part.empty() && isNoWindowsName(part)) {
            return part;
        }
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return {};
}

} // namespace tarvel

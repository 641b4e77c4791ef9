// The version that the program tells, and writes into skins.
#pragma once

#include "skinfile/version.h"

#include <string>

namespace tarvel::test {

/// As "5.0".
inline std::string programVersion() {
    return std::to_string(versionMajor) + '.' + std::to_string(versionMinor);
}

} // namespace tarvel::test

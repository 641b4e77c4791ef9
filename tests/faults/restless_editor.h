// What restless_editor writes down, and what reads it.
#pragma once

#include "skinfile/recovery.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string_view>

namespace tarvel::test {

inline std::int64_t steadyMilliseconds() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Of all that a document holds, ids, locks and the shown screen included.
inline std::size_t hashOf(const SkinDocument& document) {
    return std::hash<std::string_view>()(
        recoveryBytes({.document = document, .selected = {}, .leading = 0, .folder = {}}));
}

} // namespace tarvel::test

// Looking up a text in a list of choices.
#pragma once

#include <span>
#include <string_view>

namespace tarvel {

/// Position of the last entry that equals the text without regard to letter case; 0, not -1, when
/// none does, so that a list shows its first entry then.
[[nodiscard]] int getListIndex(std::span<const std::string_view> list, std::string_view text);

} // namespace tarvel

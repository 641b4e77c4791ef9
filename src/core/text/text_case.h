// Letter case of UTF-8 text, for the characters that a skin file can hold as single bytes.
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

/// The text with capitals turned into small letters: ASCII, Latin-1 and the four further capitals
/// of Windows-1252. Other characters stay as they are.
[[nodiscard]] std::string lowerCased(std::string_view text);

namespace detail {
[[nodiscard]] bool sameLengthEqualsIgnoringCase(std::string_view a, std::string_view b);
} // namespace detail

/// True when both texts have the same lower-cased form.
[[nodiscard]] inline bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    // Every small letter is as long as its capital. Most comparisons of a load end before the call.
    if (a.size() != b.size() || a.empty()) {
        return a.size() == b.size();
    }
    const unsigned first = static_cast<unsigned char>(a.front());
    const unsigned other = static_cast<unsigned char>(b.front());
    constexpr unsigned caseBit = 0x20;
    if ((first | other) < 0x80 && ((first ^ other) & ~caseBit) != 0) {
        return false;
    }
    return detail::sameLengthEqualsIgnoringCase(a, b);
}

} // namespace tarvel

// Appending forms of the value encodings, for the writer, which builds each line in place.
#pragma once

#include "text/value_encodings.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarvel {

/// Appends the fewest digits that read back to the same number; never an exponent. Infinities are
/// held at the limits of the type, NaN and negative zero give "0".
template <class Number> void appendNumber(std::string& text, Number value) {
    if constexpr (std::is_floating_point_v<Number>) {
        using Limits = std::numeric_limits<Number>;
        if (std::isnan(value) || value == Number{0}) {
            text += '0';
            return;
        }
        value = value > Limits::max() ? Limits::max() : value;
        value = value < Limits::lowest() ? Limits::lowest() : value;
        std::array<char, 1100> digits{}; // the smallest double has some 1,080 characters
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed);
        text.append(digits.data(), end.ptr);
    } else {
        std::array<char, 24> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        text.append(digits.data(), end.ptr);
    }
}

inline constexpr std::string_view upperHexDigits = "0123456789ABCDEF";

/// Appends six hexadecimal digits RRGGBB.
inline void appendRgbHex(std::string& text, ColorNumber color) {
    for (const unsigned part : {redOf(color), greenOf(color), blueOf(color)}) {
        text += upperHexDigits[part >> 4U];
        text += upperHexDigits[part & 0xFU];
    }
}

/// Appends opacity (percent) as alpha digits: opacity times 255 over 100, halves to even.
inline void appendAlpha(std::string& text, int opacity) {
    const int scaled = (opacity < 0 ? 0 : opacity) * 255;
    int alpha = scaled / 100;
    const int rest = scaled % 100;
    alpha += rest > 50 || (rest == 50 && alpha % 2 != 0) ? 1 : 0;
    std::array<char, 12> digits{};
    std::size_t at = digits.size();
    while (alpha > 0 || digits.size() - at < 2) {
        digits[--at] = upperHexDigits[static_cast<unsigned>(alpha) & 0xFU];
        alpha /= 16;
    }
    text.append(digits.data() + at, digits.size() - at);
}

} // namespace tarvel

// Lower-casing without a locale, so that a skin reads the same on every machine.
#include "text/text_case.h"

namespace tarvel {

namespace {

constexpr bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

constexpr char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// The second byte of a two-byte character whose first byte is `lead`, lower-cased.
// U+00C0..U+00DE (lead C3) map 0x20 upward, U+0152/0160/017D (lead C5) to the next code point.
void lowerPair(std::string& text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const auto trail = static_cast<unsigned char>(text[at + 1]);
    if (lead == 0xC3 && trail >= 0x80 && trail <= 0x9E && trail != 0x97) {
        text[at + 1] = static_cast<char>(trail + 0x20);
    } else if (lead == 0xC5 && (trail == 0x92 || trail == 0xA0 || trail == 0xBD)) {
        text[at + 1] = static_cast<char>(trail + 1);
    } else if (lead == 0xC5 && trail == 0xB8) { // U+0178 has its small form in Latin-1
        text[at] = static_cast<char>(0xC3);
        text[at + 1] = static_cast<char>(0xBF);
    }
}

} // namespace

std::string lowerCased(std::string_view text) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (isAscii(result[i])) {
            result[i] = lowerAscii(result[i]);
        } else if (i + 1 < result.size()) {
            lowerPair(result, i);
        }
    }
    return result;
}

bool detail::sameLengthEqualsIgnoringCase(std::string_view a, std::string_view b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && lowerAscii(a[i]) != lowerAscii(b[i])) {
            return !isAscii(a[i]) && !isAscii(b[i]) && lowerCased(a) == lowerCased(b);
        }
    }
    return true;
}

} // namespace tarvel

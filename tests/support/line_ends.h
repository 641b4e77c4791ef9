// Line ends of texts in tests, which spell them "\n".
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

/// The text with every LF as CR LF.
inline std::string withCrLf(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\n') {
            result += '\r';
        }
        result += c;
    }
    return result;
}

/// The text with every CR LF as LF.
inline std::string withLineFeeds(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') {
            result += text[i];
        }
    }
    return result;
}

} // namespace tarvel

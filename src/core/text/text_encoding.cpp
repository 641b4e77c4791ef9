// Windows-1252, UTF-8 and UTF-16, without a library: the rules decide how a skin's bytes look.
#include "text/text_encoding.h"

#include "text/number_format.h"
#include "text/text_case.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <optional>

namespace tarvel {

namespace {

// 0x80..0x9F of Windows-1252; the five unassigned bytes stand for themselves.
constexpr std::array<char32_t, 32> highControls = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr char32_t replacement = 0xFFFD;

// Characters of a numeric reference after "&#", its semicolon included, with room for leading
// zeros.
constexpr std::size_t longestReference = 16;

std::optional<char> toWindows1252(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    const auto* found = std::find(highControls.begin(), highControls.end(), codePoint);
    if (found == highControls.end()) {
        return std::nullopt;
    }
    return static_cast<char>(0x80 + (found - highControls.begin()));
}

struct Character {
    char32_t codePoint = replacement;
    std::size_t length = 1; // bytes
    bool valid = false;
};

unsigned byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

// The character that starts at `at`; an ill-formed sequence counts as one byte.
Character characterAt(std::string_view text, std::size_t at) {
    const unsigned lead = byteAt(text, at);
    if (lead < 0x80) {
        return {lead, 1, true};
    }
    std::size_t length = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
    }
    if (length == 0 || at + length > text.size()) {
        return {};
    }
    char32_t codePoint = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned trail = byteAt(text, at + i);
        if ((trail & 0xC0U) != 0x80) {
            return {};
        }
        codePoint = codePoint << 6U | (trail & 0x3FU);
    }
    const bool overlong =
        (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000);
    if (overlong || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
        return {};
    }
    return {codePoint, length, true};
}

// First position at or after `from` that holds a byte beyond ASCII.
std::size_t nextBeyondAscii(std::string_view text, std::size_t from) {
    while (from + sizeof(std::uint64_t) <= text.size()) {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, text.data() + from, sizeof chunk);
        if ((chunk & 0x8080808080808080U) != 0) {
            break;
        }
        from += sizeof chunk;
    }
    while (from < text.size() && byteAt(text, from) < 0x80) {
        ++from;
    }
    return from;
}

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t plainEnd = nextBeyondAscii(bytes, at);
        text.append(bytes.substr(at, plainEnd - at));
        at = plainEnd;
        if (at < bytes.size()) {
            const unsigned byte = byteAt(bytes, at++);
            appendUtf8(text, byte < 0xA0 ? highControls[byte - 0x80] : byte);
        }
    }
    return text;
}

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
    std::string text;
    text.reserve(bytes.size());
    const auto unitAt = [&](std::size_t at) -> char32_t {
        const unsigned first = byteAt(bytes, at);
        const unsigned second = byteAt(bytes, at + 1);
        return bigEndian ? first << 8U | second : second << 8U | first;
    };
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t unit = unitAt(at);
        if (unit >= 0xD800 && unit <= 0xDBFF && at + 3 < bytes.size()) {
            const char32_t low = unitAt(at + 2);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                unit = 0x10000 + ((unit - 0xD800) << 10U) + (low - 0xDC00);
                at += 2;
            }
        }
        appendUtf8(text, unit);
    }
    return text;
}

// The encoding named by an XML declaration at the start of the bytes, lower-cased; "" without one.
std::string declaredEncoding(std::string_view bytes) {
    if (!bytes.starts_with("<?xml")) {
        return {};
    }
    const auto declaration = bytes.substr(0, bytes.find("?>"));
    auto at = declaration.find("encoding");
    at = at == std::string_view::npos ? at : declaration.find_first_of("\"'", at);
    if (at == std::string_view::npos) {
        return {};
    }
    const auto end = declaration.find(declaration[at], at + 1);
    return end == std::string_view::npos ? std::string{}
                                         : lowerCased(declaration.substr(at + 1, end - at - 1));
}

bool namesWindows1252(std::string_view encoding) {
    constexpr std::array<std::string_view, 6> names = {"windows-1252", "cp1252",   "iso-8859-1",
                                                       "iso8859-1",    "us-ascii", "latin1"};
    return std::find(names.begin(), names.end(), encoding) != names.end();
}

void appendReference(std::string& bytes, char32_t codePoint) {
    bytes += "&#";
    appendNumber(bytes, static_cast<std::uint32_t>(codePoint));
    bytes += ';';
}

std::string encodeBytes(std::string_view text, bool onlyAscii) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t plainEnd = nextBeyondAscii(text, at);
        bytes.append(text.substr(at, plainEnd - at));
        at = plainEnd;
        if (at == text.size()) {
            break;
        }
        const Character character = characterAt(text, at);
        at += character.length;
        const auto byte = onlyAscii ? std::nullopt : toWindows1252(character.codePoint);
        if (byte) {
            bytes += *byte;
        } else {
            appendReference(bytes, character.codePoint);
        }
    }
    return bytes;
}

// The code point of a reference body such as "228" or "xE4"; nothing when it is malformed.
std::optional<char32_t> referencedCodePoint(std::string_view body) {
    int base = 10;
    if (body.starts_with('x') || body.starts_with('X')) {
        base = 16;
        body.remove_prefix(1);
    }
    std::uint32_t value = 0;
    const auto* end = body.data() + body.size();
    const auto result = std::from_chars(body.data(), end, value, base);
    if (body.empty() || result.ec != std::errc{} || result.ptr != end || value > 0x10FFFF ||
        (value >= 0xD800 && value <= 0xDFFF)) {
        return std::nullopt;
    }
    return value;
}

// A byte order mark, or the letters that have its bytes.
bool hasMark(std::string_view bytes) {
    return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE") ||
           bytes.starts_with("\xFE\xFF");
}

} // namespace

bool isValidUtf8(std::string_view bytes) {
    for (std::size_t at = nextBeyondAscii(bytes, 0); at < bytes.size();) {
        const Character character = characterAt(bytes, at);
        if (!character.valid) {
            return false;
        }
        at = nextBeyondAscii(bytes, at + character.length);
    }
    return true;
}

DecodedText decodeText(std::string bytes) {
    const std::string_view view = bytes;
    if (view.starts_with("\xEF\xBB\xBF")) {
        if (isValidUtf8(view.substr(3))) {
            bytes.erase(0, 3);
            return {std::move(bytes), TextEncoding::utf8};
        }
        return {fromWindows1252(view.substr(3)), TextEncoding::windows1252};
    }
    using namespace std::string_view_literals;
    if (view.starts_with("\xFF\xFE") || view.starts_with("<\0"sv)) {
        const std::size_t mark = view.front() == '<' ? 0 : 2;
        return {fromUtf16(view.substr(mark), false), TextEncoding::utf16LittleEndian};
    }
    if (view.starts_with("\xFE\xFF") || view.starts_with("\0<"sv)) {
        const std::size_t mark = view.front() == '\0' ? 0 : 2;
        return {fromUtf16(view.substr(mark), true), TextEncoding::utf16BigEndian};
    }
    if (namesWindows1252(declaredEncoding(view)) || !isValidUtf8(view)) {
        return {fromWindows1252(view), TextEncoding::windows1252};
    }
    return {std::move(bytes), TextEncoding::utf8};
}

std::string encodeWindows1252(std::string_view text) {
    if (nextBeyondAscii(text, 0) == text.size()) {
        return std::string(text);
    }
    std::string bytes = encodeBytes(text, false);
    if (nextBeyondAscii(bytes, 0) != bytes.size() && (hasMark(bytes) || isValidUtf8(bytes))) {
        bytes = encodeBytes(text, true);
    }
    return bytes;
}

bool fitsWindows1252(std::string_view text) {
    for (std::size_t at = nextBeyondAscii(text, 0); at < text.size();) {
        const Character character = characterAt(text, at);
        if (!toWindows1252(character.codePoint)) {
            return false;
        }
        at = nextBeyondAscii(text, at + character.length);
    }
    return true;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) {
        codePoint = replacement;
    }
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
        return;
    }
    const int trails = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
    const unsigned leadMark = trails == 1 ? 0xC0U : trails == 2 ? 0xE0U : 0xF0U;
    text += static_cast<char>(leadMark | codePoint >> (6U * static_cast<unsigned>(trails)));
    for (int i = trails - 1; i >= 0; --i) {
        text += static_cast<char>(0x80U | (codePoint >> (6U * static_cast<unsigned>(i)) & 0x3FU));
    }
}

void appendWithReferencesDecoded(std::string& text, std::string_view source) {
    for (;;) {
        const auto start = source.find("&#");
        if (start == std::string_view::npos) {
            text.append(source);
            return;
        }
        const auto ahead = source.substr(start + 2, longestReference);
        const auto body = ahead.substr(0, std::min(ahead.find(';'), ahead.size()));
        const auto codePoint =
            body.size() < ahead.size() ? referencedCodePoint(body) : std::nullopt;
        if (codePoint && *codePoint >= 0x80) {
            text.append(source.substr(0, start));
            appendUtf8(text, *codePoint);
            source.remove_prefix(start + 2 + body.size() + 1);
        } else {
            text.append(source.substr(0, start + 2)); // an inner "&#" may still be a reference
            source.remove_prefix(start + 2);
        }
    }
}

} // namespace tarvel

// Bytes of a skin file to UTF-8 text and back. Files are written in Windows-1252.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarvel {

/// What decided how the bytes of a file were read.
enum class TextEncoding { utf8, windows1252, utf16LittleEndian, utf16BigEndian };

struct DecodedText {
    std::string text; ///< UTF-8, without byte order mark
    TextEncoding encoding = TextEncoding::utf8;
};

/// Decodes a file: a byte order mark or an XML declaration decides; without either, valid UTF-8 is
/// UTF-8 and anything else Windows-1252. Never fails: bytes that contradict a declared UTF-8 make
/// the file Windows-1252, unpaired surrogates become U+FFFD.
[[nodiscard]] DecodedText decodeText(std::string bytes);

/// True when the bytes are well-formed UTF-8 (no surrogates, no overlong forms).
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// UTF-8 text as Windows-1252 bytes. A character outside it becomes a decimal character reference;
/// so do all beyond ASCII when the result could be taken for UTF-8 or begins like a byte order
/// mark.
[[nodiscard]] std::string encodeWindows1252(std::string_view text);

/// True when every character of the UTF-8 text has a byte in Windows-1252.
[[nodiscard]] bool fitsWindows1252(std::string_view text);

/// Appends the UTF-8 form of a code point; what is no code point appends U+FFFD.
void appendUtf8(std::string& text, char32_t codePoint);

/// Appends `source` with its numeric character references beyond ASCII replaced by the characters;
/// everything else stays, "&amp;" and "&#38;" included.
void appendWithReferencesDecoded(std::string& text, std::string_view source);

} // namespace tarvel

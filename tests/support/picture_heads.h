// The heads of picture files, as far as they tell a size.
#pragma once

#include <cstdint>
#include <string>

namespace tarvel::test {

/// As many bytes as are asked for, zeros in front.
inline std::string bigEndian(std::uint32_t number, std::size_t bytes) {
    std::string text(bytes, '\0');
    for (auto byte = text.rbegin(); byte != text.rend(); ++byte) {
        *byte = static_cast<char>(number & 0xFFU);
        number >>= 8U;
    }
    return text;
}

inline std::string littleEndian(std::uint32_t number, std::size_t bytes) {
    const std::string text = bigEndian(number, bytes);
    return {text.rbegin(), text.rend()};
}

inline std::string pngHead(std::uint32_t width, std::uint32_t height) {
    return std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16) + bigEndian(width, 4) +
           bigEndian(height, 4) + "\x08\x06";
}

inline std::string bmpHead(std::uint32_t width, std::uint32_t height) {
    return "BM" + littleEndian(0, 12) + littleEndian(40, 4) + littleEndian(width, 4) +
           littleEndian(height, 4);
}

/// A segment of a JPEG file with its length.
inline std::string jpegSegment(std::uint32_t marker, const std::string& content) {
    return "\xFF" + bigEndian(marker, 1) +
           bigEndian(static_cast<std::uint32_t>(content.size()) + 2, 2) + content;
}

/// With `before` between the mark of the format and the frame.
inline std::string jpegHead(std::uint32_t width, std::uint32_t height,
                            const std::string& before = {}, std::uint32_t frame = 0xC0) {
    return "\xFF\xD8" + before +
           jpegSegment(frame, "\x08" + bigEndian(height, 2) + bigEndian(width, 2) + "\x03");
}

} // namespace tarvel::test

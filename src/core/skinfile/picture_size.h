// How large a picture is, out of the head of its file, without decoding it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tarvel {

/// Pixels, each at least 1.
struct PictureSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    bool operator==(const PictureSize&) const = default;
};

/// Bytes that the decoded picture takes on the console: four for each pixel.
[[nodiscard]] constexpr std::uint64_t decodedBytes(PictureSize size) {
    return std::uint64_t{4} * size.width * size.height; // no format tells of more than 2^31 each
}

/// The size that a PNG, JPEG or BMP file tells, whatever its name; nothing for anything else.
[[nodiscard]] std::optional<PictureSize> pictureSize(std::string_view bytes);

/// The same for a file of the host, of which a few small pieces are read. Nothing for what is no
/// ordinary file or cannot be read. Never waits for a file that is a pipe or a device.
[[nodiscard]] std::optional<PictureSize> pictureSizeOfFile(const std::filesystem::path& file);

} // namespace tarvel

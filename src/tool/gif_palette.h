// The colours of a GIF frame.
#pragma once

#include <QRgb>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarvel::tool {

/// Colours, and which of them each pixel has.
struct GifPalette {
    static constexpr std::size_t most = 255;

    std::array<QRgb, most> colors{};
    std::vector<std::uint8_t> indexes; ///< as the pixels

    /// The very colours of the pixels where they are no more than `most`; otherwise those that
    /// leave the least between the pixels and what they become.
    [[nodiscard]] static GifPalette of(const std::vector<QRgb>& pixels);
};

} // namespace tarvel::tool

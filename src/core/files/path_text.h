// Paths of the host and UTF-8 text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvel {

/// The text of a path as the host writes it. Where paths are bytes these come back as they are,
/// Unicode or not. Never throws but for want of memory.
[[nodiscard]] std::string utf8Of(const std::filesystem::path& path);

/// The same with slashes alone where the host has two separators.
[[nodiscard]] std::string slashedUtf8Of(const std::filesystem::path& path);

/// The path that a text names, whichever of the host's separators it has.
[[nodiscard]] std::filesystem::path pathOf(std::string_view utf8);

} // namespace tarvel

// What is worth knowing about a skin before it goes to the console.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarvel {

/// One line for each finding, in the order of the skin: sources that name no resource; resource
/// files that are missing or lie outside; file names used twice; elements off the screen;
/// characters outside Windows-1252; what a save would change. Writes nothing. Throws SkinReadError.
[[nodiscard]] std::vector<std::string> checkSkin(const std::filesystem::path& folder);

} // namespace tarvel

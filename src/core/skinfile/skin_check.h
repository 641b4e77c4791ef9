// What is worth knowing about a skin's folder before it goes to the console.
#pragma once

#include "skinfile/document_check.h"

#include <filesystem>
#include <vector>

namespace tarvel {

/// What checkDocument() finds in the skin, and what a save of it would drop or change, in the order
/// of the skin. Writes nothing. Throws SkinReadError.
[[nodiscard]] std::vector<Finding> checkSkin(const std::filesystem::path& folder);

} // namespace tarvel

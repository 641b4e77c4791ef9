// An element in words, for those who cannot see it.
#pragma once

#include "document/element.h"

#include <string>

namespace tarvel {

/// Kind, place and size in skin pixels: "Box, 260, 200, 120 by 80"; of a line its ends: "Line, 0, 0
/// to 20, 30". A locked element ends with ", locked".
[[nodiscard]] std::string elementWords(const Element& element);

} // namespace tarvel

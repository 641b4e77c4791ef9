// Letter case of UTF-8 text, for the characters that a skin file can hold as single bytes.
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

/// The text with capitals turned into small letters: ASCII, Latin-1 and the four further capitals of
/// Windows-1252. Other characters stay as they are.
[[nodiscard]] std::string lowerCased(std::string_view text);

/// True when both texts have the same lower-cased form.
[[nodiscard]] bool equalsIgnoringCase(std::string_view a, std::string_view b);

} // namespace tarvel

// The fields of the position panel: where the selected element is, as texts that can be edited.
#pragma once

#include "document/element_place.h"
#include "document/skin_document.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvel {

/// The fields by the last letters of their names; as numbers, their places in a Place. Of a line
/// they hold X1, Y1, X2 and Y2.
enum class PositionField : std::uint8_t { L, T, W, H };
inline constexpr std::size_t positionFields = 4;

/// Captions of the fields for a kind of control.
[[nodiscard]] const std::array<std::string_view, positionFields>&
positionCaptions(ControlKind kind);

/// The texts of txtL, txtT, txtW and txtH, by PositionField.
using PositionTexts = std::array<std::string, positionFields>;

[[nodiscard]] PositionTexts positionTexts(const ElementControl& control);

/// Moves or sizes an element by what was typed into one of the fields, read leniently: what is no
/// number counts as 0. Numbers are held at the limits of a single, widths and heights at 0 or more.
/// Returns whether the document was changed; a locked element stays as it is.
bool enterPosition(SkinDocument& document, int elementId, PositionField field,
                   std::string_view text);

} // namespace tarvel

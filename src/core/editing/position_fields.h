// The fields of the position panel: where the selected element is, as texts that can be edited.
#pragma once

#include "document/element_place.h"
#include "document/kinds/panel_form.h"
#include "document/skin_document.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <vector>

namespace tarvel {

/// The fields by the last letters of their names; as numbers, their places in a Place. Of a line
/// they hold X1, Y1, X2 and Y2.
enum class PositionField : std::uint8_t { L, T, W, H };
inline constexpr std::size_t positionFields = std::tuple_size_v<PositionTexts>;

/// Captions of the fields for a kind of control.
[[nodiscard]] const std::array<std::string_view, positionFields>&
positionCaptions(ControlKind kind);

/// The texts of the fields, by PositionField.
[[nodiscard]] PositionTexts positionTexts(const ElementControl& control);

/// Moves or sizes an element by what was typed into one of the fields, read leniently: what is no
/// number counts as 0. Numbers are held at the limits of a single, widths and heights at 0 or more.
/// Returns whether the document was changed; a locked element stays as it is.
bool enterPosition(SkinDocument& document, int elementId, PositionField field,
                   std::string_view text);

/// The same with several elements, the last of which leads: it takes the number, and the difference
/// moves or sizes the others. Of a line a number of its first end moves others, and one of its
/// second end sizes them; lines are moved as a whole, sized by their second end, and follow a line
/// end by end.
bool enterPositions(SkinDocument& document, const std::vector<int>& ids, PositionField field,
                    std::string_view text);

} // namespace tarvel

// Stacking order, deletion and locking on the current screen's list.
//
// Row 0 is at the back. A row of -1 stands for no selection: nothing happens then. The surface
// needs no bringing into order, because it is painted from the rows.
#pragma once

#include "document/skin_document.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvel {

enum class StackingCommand : std::uint8_t { Front, Back, Forward, Backward };

/// The row that the command moves `row` to; `row` itself where it does nothing. Locked rows are
/// never moved, nor passed.
[[nodiscard]] int stackingTarget(const SkinDocument& document, int row, StackingCommand command);

/// Carries out the command and returns the row to be selected afterwards: that of the same element.
int restack(SkinDocument& document, int row, StackingCommand command);

/// Carries out the command for several rows, from the back to the front, which keep their order
/// among each other. Returns whether anything moved.
bool restackRows(SkinDocument& document, const std::vector<int>& rows, StackingCommand command);

/// Brings rows, from the back to the front, before the row that is `before` now; the number of rows
/// stands for the front. Locked rows stay where they are, and what is brought before one of them
/// comes in front of them all. Returns whether anything moved.
bool moveRows(SkinDocument& document, const std::vector<int>& rows, int before);

/// Takes the row's element off the screen and lowers the screen's element count, and for a locked
/// row its lock count too. Returns whether the row was locked, so that the flat picture of the
/// locked rows is out of date.
bool deleteRow(SkinDocument& document, int row);

/// The same with several rows, from the back to the front. Returns whether one of them was locked.
bool deleteRows(SkinDocument& document, const std::vector<int>& rows);

/// What the text of a locked row begins with.
inline constexpr std::string_view lockPrefix = "(L) ";

/// Locks the rows from the back up to and with `row`. Nothing changes on a row that is locked
/// already, so the locked rows are always the ones at the back. Returns whether anything changed.
bool lockRows(SkinDocument& document, int row);

/// Unlocks all rows of the current screen. Returns whether any was locked.
bool unlockRows(SkinDocument& document);

} // namespace tarvel

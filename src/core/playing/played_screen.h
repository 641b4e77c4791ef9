// A screen while it plays: which elements are shown at a time, and what they look like then.
#pragma once

#include "document/conditions.h"
#include "document/skin_document.h"
#include "playing/item_list_play.h"
#include "playing/modifier_play.h"
#include "playing/sample_texts.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvel {

/// What a screen plays with, beside the time.
struct PlayChoices {
    ListPlace list;
    std::size_t itemsShown = 5; ///< of the list at a time
    /// By the rows of conditionRows: whether a condition is to hold whatever the list says; nothing
    /// where the list decides.
    std::array<std::optional<bool>, conditionRows.size()> forced;
    WallClock clock;

    bool operator==(const PlayChoices&) const = default;
};

/// An element at a moment: its record as it is to be painted, and the opacity of the whole, 0 to 1.
struct PlayedElement {
    Element element;
    double opacity = 1;

    bool operator==(const PlayedElement&) const = default;
};

/// The motions of the elements are read once; the document stays as it is meanwhile, and outlives
/// this.
class PlayedScreen {
  public:
    /// `screen` 0 to 5.
    PlayedScreen(const SkinDocument& document, int screen, const ModifierCatalogue& catalogue);

    /// The element of an id of the screen at a time; nothing while it is hidden by its timers or
    /// its condition.
    [[nodiscard]] std::optional<PlayedElement> at(int id, PlayTime time,
                                                  const PlayChoices& choices) const;

    /// Whether a condition holds now, by its text.
    [[nodiscard]] static bool holds(std::string_view condition, const PlayChoices& choices);

    /// The first moment after `time` at which an element comes, goes or begins to look otherwise;
    /// `never` when all stays. What moves all the time does not count: see isMoving().
    [[nodiscard]] PlayTime nextChange(PlayTime time) const;
    /// Whether an element has a modifier by which it looks otherwise at each moment.
    [[nodiscard]] bool isMoving() const { return isMoving_; }

    /// Elements whose modifiers are not shown, by their rows from the back: the type, and the text
    /// of the row.
    struct Still {
        std::string type;
        std::string row;

        bool operator==(const Still&) const = default;
    };
    [[nodiscard]] const std::vector<Still>& still() const { return still_; }

  private:
    const SkinDocument& document_;
    std::vector<int> ids_;
    std::map<int, std::vector<Motion>> motions_; // of the elements that have modifiers, by id
    bool isMoving_ = false;
    std::vector<Still> still_;
};

} // namespace tarvel

// A screen while it plays: which elements are shown at a time, and what they look like then.
#pragma once

#include "document/conditions.h"
#include "document/skin_document.h"
#include "playing/item_list_play.h"
#include "playing/modifier_play.h"
#include "playing/sample_texts.h"

#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarvel {

/// What a screen plays with, beside the time.
struct PlayChoices {
    ListPlace list;             ///< of the menu in front
    std::size_t itemsShown = 5; ///< of that menu at a time
    ListScroll scroll;
    /// By the rows of conditionRows: whether a condition is to hold whatever the list says; nothing
    /// where the list decides.
    std::array<std::optional<bool>, conditionRows.size()> forced;
    WallClock clock; ///< what the clock shows at the time 0

    bool operator==(const PlayChoices&) const = default;
};

/// The list of games in a menu at a moment.
struct PlayedList {
    std::size_t selected = 0;
    double first = 0; ///< the item at the top, with parts of it while the list scrolls
    double glow = 0;  ///< of the selected item, 0 to 1

    bool operator==(const PlayedList&) const = default;
};

/// An element at a moment: its record as it is to be painted, and what of it no record tells.
struct PlayedElement {
    Element element;
    double opacity = 1;                            ///< of the whole, 0 to 1
    double scale = 1;                              ///< about the middle of its place
    std::optional<PlayedList> list = std::nullopt; ///< of a menu

    bool operator==(const PlayedElement&) const = default;
};

/// What an element's looks depend on while its screen plays.
struct PlayedBy {
    int id = 0;
    bool timers = false;
    bool condition = false;
    bool clock = false;    ///< its text goes with the clock
    bool item = false;     ///< its text, or the list itself, goes with what is selected
    bool isMoving = false; ///< a modifier, or the glow of the list, changes it at each moment
    std::vector<Motion> motions;
};

/// The motions of the elements are read once; the document stays as it is meanwhile, and outlives
/// this.
class PlayedScreen {
  public:
    /// `screen` 0 to 5.
    PlayedScreen(const SkinDocument& document, int screen, const ModifierCatalogue& catalogue);

    [[nodiscard]] const SkinDocument& document() const { return document_; }
    [[nodiscard]] int screen() const { return screen_; }

    /// The elements that may look otherwise than at rest, by their rows from the back. All others
    /// look as the document has them, all the time.
    [[nodiscard]] const std::vector<PlayedBy>& live() const { return live_; }

    /// One of live() at a time; nothing while it is hidden by its timers or its condition.
    [[nodiscard]] std::optional<PlayedElement> at(const PlayedBy& live, PlayTime time,
                                                  const PlayChoices& choices) const;
    /// Any element of the screen, by its id.
    [[nodiscard]] std::optional<PlayedElement> at(int id, PlayTime time,
                                                  const PlayChoices& choices) const;

    /// Whether a condition holds now, by its text.
    [[nodiscard]] static bool holds(std::string_view condition, const PlayChoices& choices);

    /// The first moment after `time` at which an element comes, goes or begins to look otherwise;
    /// `never` when all stays. What moves all the time does not count: see isMoving().
    [[nodiscard]] PlayTime nextChange(PlayTime time) const;
    /// Whether an element has a modifier by which it looks otherwise at each moment.
    [[nodiscard]] bool isMoving() const { return isMoving_; }

    /// The menu in front, whose list the conditions go by; nullptr on a screen without one.
    [[nodiscard]] const MenuSettings* menu() const;

    /// Elements whose modifiers show nothing, by their rows from the back: the type, and the text
    /// of the row.
    struct Still {
        std::string type;
        std::string row;

        bool operator==(const Still&) const = default;
    };
    [[nodiscard]] const std::vector<Still>& still() const { return still_; }

  private:
    void read(int row, const ModifierCatalogue& catalogue);
    [[nodiscard]] PlayedList listAt(int id, PlayTime time, const PlayChoices& choices) const;

    const SkinDocument& document_;
    int screen_;
    int menuId_ = 0; // 0 for none
    std::vector<PlayedBy> live_;
    std::unordered_map<int, std::size_t> places_; // in live_, by id
    bool isMoving_ = false;
    std::vector<Still> still_;
};

/// Chooses another item of the screen's list at a time: `step` -1 up, 1 down. The list scrolls
/// there from where it stands.
void moveList(PlayChoices& choices, int step, const MenuSettings* menu, PlayTime time);
/// Chooses an item; the list is there at once.
void selectItem(PlayChoices& choices, std::size_t item);

} // namespace tarvel

// The six fixed screens of a skin: names, look-up, and which of them are marked.
#pragma once

#include "document/skin_document.h"

#include <array>
#include <string_view>

namespace tarvel {

/// One screen: its caption, which is also its name in the file, and the note shown beside it.
struct LayoutScreen {
    std::string_view caption;
    std::string_view note;
};

inline constexpr std::array<LayoutScreen, screenCount> layoutScreens = {
    {{"Title", ""},
     {"Menu", ""},
     {"Load", ""},
     {"Saver", ""},
     {"JukeBox", " (not used yet)"},
     {"FileManager", " (not used yet)"}}};

/// The screen that the editor opens on, and returns to after loading and saving.
inline constexpr int menuScreen = 1;

/// Index of the screen whose lower-cased caption equals name exactly; 0 when none does, so the
/// elements of an unknown screen land on "Title". Callers pass lower-cased names.
[[nodiscard]] int getLayoutNum(std::string_view name);

/// Whether the button of a screen is bold: it holds elements. "FileManager" is never marked.
[[nodiscard]] bool isLayoutBold(const SkinDocument& document, int screen);

/// The behaviours of an element: modifiers, timers, condition.
struct BehaviourMarks {
    bool modifiers = false;
    bool timers = false;
    bool condition = false;

    bool operator==(const BehaviourMarks&) const = default;
};

[[nodiscard]] BehaviourMarks behaviourMarks(const Element& element);

/// True when the condition's text stands for no condition: "" or "none" in any letter case.
[[nodiscard]] bool isNoCondition(std::string_view condition);

} // namespace tarvel

// What steps are called where they can be taken back: "move Box".
#pragma once

#include "document/skin_document.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// What a step does to an element; the name of the element's kind follows.
namespace step {
inline constexpr std::string_view select = "select"; ///< which changes nothing
inline constexpr std::string_view draw = "draw";
inline constexpr std::string_view move = "move";
inline constexpr std::string_view size = "size";
inline constexpr std::string_view moveEnd = "move end of";
inline constexpr std::string_view remove = "delete";
inline constexpr std::string_view front = "bring to front";
inline constexpr std::string_view back = "send to back";
inline constexpr std::string_view forward = "bring forward";
inline constexpr std::string_view backward = "send backward";
inline constexpr std::string_view reorder = "reorder";
inline constexpr std::string_view lock = "lock up to";
inline constexpr std::string_view apply = "apply changes to";
inline constexpr std::string_view place = "position of";
inline constexpr std::string_view cut = "cut";
inline constexpr std::string_view copy = "copy";
inline constexpr std::string_view paste = "paste";
inline constexpr std::string_view duplicate = "duplicate";
inline constexpr std::string_view modifiers = "modifier of";
inline constexpr std::string_view timers = "timers of";
inline constexpr std::string_view condition = "condition of";

// Steps that are not of one element.
inline constexpr std::string_view unlock = "unlock all";
inline constexpr std::string_view loadBackground = "load background";
inline constexpr std::string_view unloadBackground = "unload background";
inline constexpr std::string_view loadSkin = "load skin";
inline constexpr std::string_view nameSkin = "name skin";
inline constexpr std::string_view delays = "change delays";
inline constexpr std::string_view information = "change skin info";
inline constexpr std::string_view colors = "change system colors";
inline constexpr std::string_view audio = "change audio settings";
inline constexpr std::string_view resources = "change resources";
} // namespace step

/// The name of a step with one element of a kind.
[[nodiscard]] std::string stepName(std::string_view what, ElementKind kind);
[[nodiscard]] inline std::string stepName(std::string_view what, const Element& element) {
    return stepName(what, element.elementKind);
}

/// The name of a step with elements of the document: the kind of a single one, else their number.
[[nodiscard]] std::string stepName(std::string_view what, const SkinDocument& document,
                                   const std::vector<int>& ids);

} // namespace tarvel

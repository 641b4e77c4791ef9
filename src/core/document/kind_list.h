// The kinds of elements and the controls that draw them: codes, and the lists of their records.
#pragma once

#include <array>
#include <cstdint>

namespace tarvel {

/// Kind codes as they are kept. A code that no kind has is possible and counts as Menu.
enum class ElementKind : std::int16_t { Box = 1, Line = 2, Image = 3, Text = 4, Menu = 5 };

/// The control that draws an element. Images have three, chosen by the file's last three
/// characters.
enum class ControlKind : std::uint8_t { box, lin, img, png, vid, txt, qor };

/// What is known of a kind, see element_kinds.h.
struct KindRules;
extern const KindRules boxKind;
extern const KindRules lineKind;
extern const KindRules imageKind;
extern const KindRules textKind;
extern const KindRules menuKind;

/// All kinds, by their codes from 1 on.
inline constexpr std::array elementKinds = {&boxKind, &lineKind, &imageKind, &textKind, &menuKind};

/// The kinds that controls draw, by ControlKind.
inline constexpr std::array controlKinds = {&boxKind,   &lineKind, &imageKind, &imageKind,
                                            &imageKind, &textKind, &menuKind};

} // namespace tarvel

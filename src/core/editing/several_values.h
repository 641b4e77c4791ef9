// The property panel over several selected elements: what they have in common, and applying only
// what was changed.
#pragma once

#include "document/skin_document.h"
#include "editing/panel_values.h"

#include <array>
#include <string_view>
#include <vector>

namespace tarvel {

/// What the panel shows in the place of values that differ.
inline constexpr std::string_view variousText = "various";

/// Which parts of the panel differ between elements that have them.
struct VariousParts {
    bool border = false;
    bool fill = false;
    bool opacity = false;
    bool text = false;
    bool font = false;
    bool resource = false;
    /// The settings of item menus, in the order in which MenuFrame has them, without the previews.
    std::array<bool, 12> menu{};

    bool operator==(const VariousParts&) const = default;
};

/// What differs between the elements, the last of which leads; of parts that the leading one does
/// not have, nothing is shown and nothing differs. `leading` are the panel's values of that one.
[[nodiscard]] VariousParts variousParts(const SkinDocument& document, const std::vector<int>& ids,
                                        const PanelValues& leading);

/// The values with those that differ replaced by some that nobody can choose, so that each choice
/// is a change: empty texts and fonts, colours beyond all colours, no resource, check boxes that
/// are neither on nor off, entries before the first.
[[nodiscard]] PanelValues withoutVarious(const PanelValues& values, const VariousParts& various);
/// Whether a colour or font is one of these.
[[nodiscard]] bool isVarious(ColorNumber color);
[[nodiscard]] bool isVarious(const Swatch& swatch);
[[nodiscard]] bool isVarious(const FontChoice& font);
/// Puts the leading element's values back where those of withoutVarious() still stand.
[[nodiscard]] PanelValues withLeading(PanelValues values, const VariousParts& various,
                                      const PanelValues& leading);

/// Gives every element what differs between `before` and `now`, as far as its kind has it; all else
/// stays as it is. Renews the texts of their rows, where the prefix of a locked row stays. Tells of
/// all at once. Returns whether anything changed.
bool applyChanged(SkinDocument& document, const std::vector<int>& ids, const PanelValues& before,
                  const PanelValues& now);

} // namespace tarvel

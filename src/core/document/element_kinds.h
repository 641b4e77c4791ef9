// The kinds of elements: a record for each with everything that the core knows of it, and the ways
// to find a record. What is the same for all kinds stands elsewhere and asks here.
//
// A new kind is its record in a file in kinds/, and its codes and lines in kind_list.h.
#pragma once

#include "document/element.h"
#include "document/element_description.h"
#include "document/element_place.h"
#include "document/kinds/panel_form.h"
#include "document/skin_settings.h"
#include "text/line_forms.h"
#include "text/line_writer.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// What the four numbers of a place are.
enum class PlaceForm : std::uint8_t {
    rectangle, ///< left, top, width and height
    ends       ///< X1, Y1, X2 and Y2
};

/// Where the forms of a kind's lines go.
struct ElementForms {
    LineForms& forms;
    Section layout;  ///< the line that opens the element stands in it
    Section element; ///< what the element holds
};

struct NamedControl {
    ControlKind kind;
    std::string_view name;
};

/// What is known of a kind.
struct KindRules {
    ElementKind kind;
    std::string_view typeName; ///< the Type attribute in a skin file
    /// The controls that draw the kind, the first for a new element.
    std::span<const NamedControl> controls;
    PlaceForm placeForm;
    bool namesResource; ///< its source names a resource of the skin

    /// The text of its row, as a fresh element of its values has it.
    std::string (*label)(const Element&);
    /// The size without a drag, of a line the way from the first to the second end. `natural` is
    /// the size of what the element shows, where it is known.
    SkinSize (*defaultSize)(std::optional<SkinSize> natural);

    // The skin file.
    PlaceNumbers (*readPlace)(const PosTexts&);
    /// Fills control, appearance, label and opacity of a new record. What is missing from the
    /// description, or empty, stays as it is.
    void (*read)(Element&, const ElementDescription&);
    /// The lines from the one that opens the element to its place; conditions, timers and modifiers
    /// are the same for all kinds.
    void (*write)(const Element&, LineWriter&);
    /// The forms of these lines. Literal texts only: they are kept as views.
    void (*addForms)(const ElementForms&);
    /// Fills a new record with what is left of an element's control, appearance, label and opacity
    /// after writing and reading. `kept` is the document that the record is for.
    void (*keep)(Element& record, const Element&, const SkinDocument& kept);

    // The property panel.
    /// The parts for a control, with what they change of the values.
    PanelLayout (*panel)(ControlKind, PanelValues&);
    void (*show)(const Element&, const std::vector<Resource>&, PanelValues&);
    /// Everything that the values tell but the opacity, which all kinds take.
    void (*take)(const PanelValues&, const std::vector<Resource>&, Element&);
    /// The messages that say why the values make no new element; none when they do.
    std::vector<std::string_view> (*faults)(const PanelValues&);
};

/// The rules of a kind. A code that no kind has counts as Menu.
[[nodiscard]] inline const KindRules& rulesOf(ElementKind kind) {
    const auto index = static_cast<std::size_t>(kind) - 1; // of 0 and less beyond the last
    return index < elementKinds.size() ? *elementKinds[index] : menuKind;
}

/// The rules of the kind that the control draws.
[[nodiscard]] inline const KindRules& rulesOf(ControlKind control) {
    return *controlKinds[static_cast<std::size_t>(control)];
}

/// The rules for a Type attribute, in any letter case; nullptr for an unknown type.
[[nodiscard]] const KindRules* kindOfType(std::string_view type);

/// Whether the control's place is two ends rather than a rectangle.
[[nodiscard]] inline bool hasEnds(const ElementControl& control) {
    return rulesOf(control.kind).placeForm == PlaceForm::ends;
}

} // namespace tarvel

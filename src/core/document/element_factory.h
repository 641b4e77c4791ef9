// Turns the description of an element in a skin file into an element of the document.
#pragma once

#include "document/skin_document.h"
#include "text/xml_node.h"

#include <string_view>

namespace tarvel {

/// Caption of a Text element for which the file gives neither a source nor a constant.
inline constexpr std::string_view defaultCaption = "Text element";
inline constexpr ColorNumber white = makeColor(255, 255, 255);

/// The control that shows an image file: by its last three characters.
[[nodiscard]] ControlKind imageControl(std::string_view file);

/// Gives an image's control what a source names: its file, or the program icon for a resource
/// without a file and for program files. A leading "::" of the source is not part of the resource's
/// name.
void attachSource(const SkinDocument& document, std::string_view source, ElementControl& control);

/// The row texts of the kinds.
[[nodiscard]] std::string boxLabel(int opacity);
[[nodiscard]] std::string imageLabel(std::string_view source);
[[nodiscard]] std::string textLabel(std::string_view text);

/// Makes an element on the current screen and returns its id.
///
/// a, b, c, d are left, top, width and height, for a Line X1, Y1, X2 and Y2, in skin pixels.
/// `source` is the element's Source attribute; everything else comes from the children of
/// `description`. A tag that is missing, or holds an empty colour, number or alignment, leaves the
/// default.
int makeElement(SkinDocument& document, double a, double b, double c, double d, ElementKind kind,
                std::string_view source, XmlNode description);

/// The same with the four numbers as text, read leniently.
int makeElement(SkinDocument& document, std::string_view a, std::string_view b, std::string_view c,
                std::string_view d, ElementKind kind, std::string_view source, XmlNode description);

} // namespace tarvel

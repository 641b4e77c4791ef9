// Turns the description of an element in a skin file into an element of the document.
#pragma once

#include "document/skin_document.h"
#include "text/xml_node.h"

#include <string_view>

namespace tarvel {

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

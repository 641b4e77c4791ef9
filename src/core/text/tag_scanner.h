// Finding values in one level of a parsed XML tree, and resources in the document, by name.
//
// Names compare without regard to letter case and are never trimmed. Where several match, the last
// one counts, except in getTag. None of these fails; a node passed in must not be empty.
#pragma once

#include "text/text_case.h"
#include "text/xml_node.h"

#include <algorithm>
#include <string_view>

namespace tarvel {

/// Content of the last child named tag whose first attribute, whatever its name, has the given
/// value;
/// "" when there is none.
[[nodiscard]] std::string_view getContentInTag(XmlNode node, std::string_view value,
                                               std::string_view tag);

/// Value of the node's last attribute of that name; "" when there is none.
[[nodiscard]] std::string_view getAttrib(XmlNode node, std::string_view name);

/// Content of the last child of that tag; "" when there is none.
[[nodiscard]] std::string_view getContent(XmlNode node, std::string_view tag);

/// The first child of that tag. Where there is none it is the node's last child, and for a node
/// without children an empty node: callers look at the tag of what they get.
[[nodiscard]] XmlNode getTag(XmlNode node, std::string_view tag);

/// The first child of that tag, or an empty node.
[[nodiscard]] XmlNode childTagged(XmlNode node, std::string_view tag);

/// The last of the document's resources of that name; nullptr when there is none. This folder knows
/// no document: it is anything whose settings() have resources with a name and a content.
template <class Document>
[[nodiscard]] auto findResource(const Document& document, std::string_view name) {
    const auto& resources = document.settings().resources;
    const auto last =
        std::find_if(resources.rbegin(), resources.rend(), [name](const auto& resource) {
            return equalsIgnoringCase(resource.name, name);
        });
    return last == resources.rend() ? nullptr : &*last;
}

/// Content of the last of the document's resources of that name; "" when there is none.
template <class Document>
[[nodiscard]] std::string_view resF(const Document& document, std::string_view name) {
    const auto* resource = findResource(document, name);
    return resource != nullptr ? std::string_view(resource->content) : std::string_view{};
}

} // namespace tarvel

// Looks for tags and attributes along one level of a tree.
#include "text/tag_scanner.h"

namespace tarvel {

std::string_view getContentInTag(XmlNode node, std::string_view value, std::string_view tag) {
    std::string_view found;
    for (const XmlNode child : node.children()) {
        if (child.attributeCount() > 0 && equalsIgnoringCase(child.tag(), tag) &&
            equalsIgnoringCase(child.attributeValue(0), value)) {
            found = child.content();
        }
    }
    return found;
}

std::string_view getAttrib(XmlNode node, std::string_view name) {
    std::string_view found;
    for (std::size_t i = 0; i < node.attributeCount(); ++i) {
        if (equalsIgnoringCase(node.attributeName(i), name)) {
            found = node.attributeValue(i);
        }
    }
    return found;
}

std::string_view getContent(XmlNode node, std::string_view tag) {
    std::string_view found;
    for (const XmlNode child : node.children()) {
        if (equalsIgnoringCase(child.tag(), tag)) {
            found = child.content();
        }
    }
    return found;
}

XmlNode getTag(XmlNode node, std::string_view tag) {
    XmlNode result;
    for (const XmlNode child : node.children()) {
        result = child;
        if (equalsIgnoringCase(child.tag(), tag)) {
            break;
        }
    }
    return result;
}

XmlNode childTagged(XmlNode node, std::string_view tag) {
    const XmlNode child = getTag(node, tag);
    return child && equalsIgnoringCase(child.tag(), tag) ? child : XmlNode{};
}

} // namespace tarvel

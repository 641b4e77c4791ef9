// XML for tests: trees out of literals, and trees in the messages of failed comparisons.
#pragma once

#include "text/xml_node.h"
#include "text/xml_parse.h"

#include <ostream>
#include <string>

namespace tarvel {

inline void PrintTo(const XmlTree& tree, std::ostream* out) {
    *out << '\n' << tree.fileText();
}

} // namespace tarvel

namespace tarvel::test {

inline XmlTree parse(std::string xml) {
    return parseXml(std::move(xml));
}

/// That many elements "a", one in the other, the text in the last.
inline std::string nestedXml(int levels, const std::string& innermost) {
    std::string xml;
    for (int i = 0; i < levels; ++i) {
        xml += "<a>";
    }
    xml += innermost;
    for (int i = 0; i < levels; ++i) {
        xml += "</a>";
    }
    return xml;
}

/// How many elements stand one in the other below the root, the root included.
inline int depthOf(const XmlTree& tree) {
    int depth = 0;
    for (XmlNode node = tree.root(); node; node = node.firstChild()) {
        ++depth;
    }
    return depth;
}

} // namespace tarvel::test

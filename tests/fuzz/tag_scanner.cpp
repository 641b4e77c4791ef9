// Any XML, and names out of it, for the functions that find values by name. The first line of the
// bytes is the name that is looked for.
#include "text/tag_scanner.h"

#include "text/xml_parse.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

void scan(tarvel::XmlNode node, std::string_view name) {
    using namespace tarvel;
    const XmlNode first = childTagged(node, name);
    if (first && getTag(node, name).tag() != first.tag()) {
        std::abort(); // both find the first
    }
    if (!first && !getContent(node, name).empty()) {
        std::abort(); // a content without a child
    }
    static_cast<void>(getAttrib(node, name));
    static_cast<void>(getContentInTag(node, name, node.tag()));
    static_cast<void>(getContentInTag(node, node.content(), name));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size); // NOLINT
    const auto lineEnd = std::min(text.find('\n'), text.size());
    const auto name = text.substr(0, lineEnd);
    try {
        const tarvel::XmlTree tree =
            tarvel::parseXml(std::string(text.substr(std::min(lineEnd + 1, text.size()))));
        std::vector<tarvel::XmlNode> pending{tree.document()};
        while (!pending.empty()) {
            const tarvel::XmlNode node = pending.back();
            pending.pop_back();
            scan(node, name);
            for (const tarvel::XmlNode child : node.children()) {
                scan(node, child.tag());
                pending.push_back(child);
            }
        }
        if (!(tarvel::XmlTree(tree) == tree)) {
            std::abort();
        }
    } catch (const tarvel::XmlError&) {
        return 0;
    }
    return 0;
}

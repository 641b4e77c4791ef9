// pugixml's tree into ours. White-space-only text is kept because content is never trimmed.
#include "text/xml_parse.h"

#include <pugixml.hpp>

#include <algorithm>

namespace tarvel {

namespace {

constexpr unsigned parseFlags = pugi::parse_default | pugi::parse_ws_pcdata;

bool isText(const pugi::xml_node& node) {
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

// Puts pugixml's strings into a tree. Those that lie in the parsed buffer are named in place.
class Converter {
  public:
    Converter(XmlTree& tree, std::string_view buffer)
        : tree_(tree)
        , buffer_(buffer) {}

    void addElements(XmlTree::Index parent, const pugi::xml_node& above) {
        // A loop instead of recursion: depth is up to the file.
        struct Open {
            XmlTree::Index index;
            pugi::xml_node next;
        };
        std::vector<Open> open{{parent, above.first_child()}};
        while (!open.empty()) {
            const pugi::xml_node node = open.back().next;
            if (!node) {
                open.pop_back();
                continue;
            }
            open.back().next = node.next_sibling();
            if (node.type() == pugi::node_element) {
                open.push_back({addElement(open.back().index, node), node.first_child()});
            }
        }
    }

  private:
    XmlTree::Index addElement(XmlTree::Index parent, const pugi::xml_node& node) {
        const auto tag = span(node.name());
        const auto index = tree_.addChild(parent, tag, content(node));
        for (const pugi::xml_attribute& attribute : node.attributes()) {
            const auto name = span(attribute.name());
            tree_.addAttribute(index, name, span(attribute.value()));
        }
        return index;
    }

    XmlTree::Span content(const pugi::xml_node& node) {
        const char* only = "";
        int pieces = 0;
        for (const pugi::xml_node& child : node.children()) {
            if (isText(child)) {
                only = child.value();
                ++pieces;
            }
        }
        if (pieces <= 1) {
            return span(only);
        }
        std::string joined;
        for (const pugi::xml_node& child : node.children()) {
            if (isText(child)) {
                joined += child.value();
            }
        }
        return tree_.addText(joined);
    }

    XmlTree::Span span(const char* text) {
        const std::string_view view(text);
        if (view.empty()) {
            return {};
        }
        if (view.data() >= buffer_.data() && view.data() < buffer_.data() + buffer_.size()) {
            return {static_cast<std::uint32_t>(view.data() - buffer_.data()),
                    static_cast<std::uint32_t>(view.size())};
        }
        return tree_.addText(view);
    }

    XmlTree& tree_;
    std::string_view buffer_; // empty when nothing lies in place
};

std::string problemOf(const pugi::xml_parse_result& result, std::string_view text) {
    switch (result.status) {
    case pugi::status_no_document_element:
        return "no XML element is in it";
    case pugi::status_end_element_mismatch:
        // The end of the text is told as the place of its last character.
        return static_cast<std::size_t>(result.offset) + 1 >= text.size()
                   ? "it ends before its elements are closed"
                   : "an end tag does not match its start tag";
    case pugi::status_unrecognized_tag:
        return "a \"<\" that begins no tag";
    case pugi::status_out_of_memory:
        return "not enough memory to read it";
    default: {
        std::string description = result.description(); // "Error parsing start element tag"
        return description.starts_with("Error parsing ")
                   ? "a broken " + description.substr(std::string_view("Error parsing ").size())
                   : description;
    }
    }
}

void requireParsed(const pugi::xml_parse_result& result, std::string_view text) {
    if (!result) {
        const auto offset = std::min(static_cast<std::size_t>(result.offset), text.size());
        throw XmlError(problemOf(result, text), lineAt(text, offset));
    }
}

} // namespace

int lineAt(std::string_view text, std::size_t offset) {
    const auto before = text.substr(0, offset);
    return 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
}

XmlTree parseXml(std::string text) {
    const std::string original = text; // for line numbers; parsing in place moves line ends
    if (text.size() > UINT32_MAX / 2) {
        throw XmlError("the file is too large", 1);
    }
    XmlTree tree(std::move(text));
    tree.reserveText(2 * original.size()); // joined contents must not move what pugixml points at
    const std::string_view buffer = tree.text();
    pugi::xml_document document;
    const auto result = document.load_buffer_inplace(tree.textBuffer(), buffer.size(), parseFlags,
                                                     pugi::encoding_utf8);
    requireParsed(result, original);
    Converter(tree, buffer).addElements(XmlTree::top, document);
    return tree;
}

void parseFragmentInto(XmlTree& tree, XmlTree::Index parent, std::string_view fragment) {
    pugi::xml_document document;
    const auto result = document.load_buffer(
        fragment.data(), fragment.size(), parseFlags | pugi::parse_fragment, pugi::encoding_utf8);
    requireParsed(result, fragment);
    Converter(tree, {}).addElements(parent, document);
}

std::string xmlLibraryVersion() {
    constexpr int major = PUGIXML_VERSION / 1000;
    constexpr int minor = PUGIXML_VERSION % 1000 / 10;
    return std::to_string(major) + '.' + std::to_string(minor);
}

} // namespace tarvel

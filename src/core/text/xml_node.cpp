// The compact XML tree: building, copying, comparing, saving.
#include "text/xml_node.h"

#include <algorithm>
#include <stdexcept>

namespace tarvel {

namespace {

// The content without the white space that is but the indentation of child elements.
std::string_view copiedContent(XmlNode source) {
    constexpr std::string_view blanks = " \t\r\n";
    auto content = source.content();
    if (source.firstChild()) {
        content.remove_prefix(std::min(content.find_first_not_of(blanks), content.size()));
        content = content.substr(0, content.find_last_not_of(blanks) + 1);
    }
    return content;
}

} // namespace

std::size_t XmlNode::childCount() const {
    std::size_t count = 0;
    for (XmlNode child = firstChild(); child; child = child.nextSibling()) {
        ++count;
    }
    return count;
}

XmlNode XmlNode::child(std::size_t index) const {
    XmlNode child = firstChild();
    while (child && index-- > 0) {
        child = child.nextSibling();
    }
    return child;
}

XmlTree::XmlTree()
    : nodes_(1) {}

XmlTree::XmlTree(std::string text)
    : text_(std::move(text))
    , nodes_(1) {}

XmlTree::Span XmlTree::addText(std::string_view text) {
    if (text_.size() + text.size() > UINT32_MAX) {
        throw std::length_error("an XML tree of more than 4 GB");
    }
    const Span span{static_cast<std::uint32_t>(text_.size()),
                    static_cast<std::uint32_t>(text.size())};
    text_.append(text);
    return span;
}

XmlTree::Index XmlTree::addChild(Index parent, std::string_view tag, std::string_view content) {
    const Span tagSpan = addText(tag);
    return addChild(parent, tagSpan, addText(content));
}

XmlTree::Index XmlTree::addChild(Index parent, Span tag, Span content) {
    const auto index = static_cast<Index>(nodes_.size());
    nodes_.push_back({.tag = tag, .content = content});
    Node& above = nodes_[parent];
    if (above.lastChild == none) {
        above.firstChild = index;
    } else {
        nodes_[above.lastChild].nextSibling = index;
    }
    above.lastChild = index;
    return index;
}

void XmlTree::addAttribute(Index node, std::string_view name, std::string_view value) {
    const Span nameSpan = addText(name);
    addAttribute(node, nameSpan, addText(value));
}

void XmlTree::addAttribute(Index node, Span name, Span value) {
    Node& owner = nodes_[node];
    if (owner.attributeCount == 0) {
        owner.firstAttribute = static_cast<Index>(attributes_.size());
    } else if (owner.firstAttribute + owner.attributeCount != attributes_.size()) {
        // Another node got attributes in between: a node's attributes stay in one run.
        const auto moved = static_cast<Index>(attributes_.size());
        for (Index i = 0; i < owner.attributeCount; ++i) {
            const Attribute attribute = attributes_[owner.firstAttribute + i];
            attributes_.push_back(attribute);
        }
        owner.firstAttribute = moved;
    }
    attributes_.push_back({name, value});
    ++owner.attributeCount;
}

void XmlTree::reserveElements(std::size_t count) {
    nodes_.reserve(count + 1);
    attributes_.reserve(count);
}

void XmlTree::shrinkToFit() {
    text_.shrink_to_fit();
    nodes_.shrink_to_fit();
    attributes_.shrink_to_fit();
}

void XmlTree::setTag(Index node, std::string_view tag) {
    nodes_[node].tag = addText(tag);
}

void XmlTree::renameTags(std::string_view from, std::string_view to) {
    const Span renamed = addText(to);
    for (Node& node : nodes_) {
        if (view(node.tag) == from) {
            node.tag = renamed;
        }
    }
}

void XmlTree::setContent(Index node, std::string_view content) {
    nodes_[node].content = addText(content);
}

void XmlTree::joinLineEnds() {
    for (Node& node : nodes_) {
        node.content = withLineEndsJoined(node.content);
    }
    for (Attribute& attribute : attributes_) {
        attribute.value = withLineEndsJoined(attribute.value);
    }
}

XmlTree::Span XmlTree::withLineEndsJoined(Span value) {
    const auto text = view(value);
    if (text.find("\r\n") == std::string_view::npos) {
        return value;
    }
    std::string joined;
    for (const char c : text) {
        while (c == '\n' && joined.ends_with('\r')) {
            joined.pop_back();
        }
        joined += c;
    }
    return addText(joined);
}

XmlTree::Mark XmlTree::mark(Index parent) const {
    return {parent, nodes_[parent].lastChild, nodes_.size(), attributes_.size(), text_.size()};
}

void XmlTree::backTo(const Mark& mark) {
    nodes_.resize(mark.nodes);
    attributes_.resize(mark.attributes);
    text_.resize(mark.text);
    Node& parent = nodes_[mark.parent];
    parent.lastChild = mark.lastChild;
    (mark.lastChild == none ? parent.firstChild : nodes_[mark.lastChild].nextSibling) = none;
}

XmlTree::Index XmlTree::addShallowCopy(Index parent, XmlNode source) {
    const Index copy = addChild(parent, source.tag(), copiedContent(source));
    for (std::size_t i = 0; i < source.attributeCount(); ++i) {
        addAttribute(copy, source.attributeName(i), source.attributeValue(i));
    }
    return copy;
}

// Room for exactly one copy.
void XmlTree::reserveFor(XmlNode source) {
    std::size_t nodes = 0;
    std::size_t attributes = 0;
    std::size_t text = 0;
    std::vector<XmlNode> pending{source};
    while (!pending.empty()) {
        const XmlNode node = pending.back();
        pending.pop_back();
        ++nodes;
        attributes += node.attributeCount();
        text += node.tag().size() + copiedContent(node).size();
        for (std::size_t i = 0; i < node.attributeCount(); ++i) {
            text += node.attributeName(i).size() + node.attributeValue(i).size();
        }
        for (const XmlNode child : node.children()) {
            pending.push_back(child);
        }
    }
    nodes_.reserve(nodes_.size() + nodes);
    attributes_.reserve(attributes_.size() + attributes);
    text_.reserve(text_.size() + text);
}

XmlTree::Index XmlTree::addCopy(Index parent, XmlNode source) {
    if (source.tree_ == this) {
        const XmlTree before = *this; // views into our own text would not survive its growth
        return addCopy(parent, XmlNode(&before, source.index_));
    }
    if (empty()) {
        reserveFor(source); // most trees hold one copy and nothing else
    }
    struct Pending {
        Index target;
        XmlNode child;
    };
    const Index copy = addShallowCopy(parent, source);
    std::vector<Pending> pending{{copy, source.firstChild()}};
    while (!pending.empty()) {
        const auto [target, child] = pending.back();
        if (!child) {
            pending.pop_back();
            continue;
        }
        pending.back().child = child.nextSibling();
        const Index added = addShallowCopy(target, child);
        pending.push_back({added, child.firstChild()});
    }
    return copy;
}

namespace {

void appendEscaped(std::string& text, std::string_view raw, bool attribute) {
    for (const char c : raw) {
        switch (c) {
        case '&':
            text += "&amp;";
            break;
        case '<':
            text += "&lt;";
            break;
        case '>':
            text += "&gt;";
            break;
        case '\n':
            text += "&#10;";
            break;
        case '\r':
            text += "&#13;";
            break;
        case '"':
            text += attribute ? "&quot;" : "\"";
            break;
        case '\t':
            text += attribute ? "&#9;" : "\t";
            break;
        default:
            text += c;
        }
    }
}

void appendStartTag(std::string& text, XmlNode node) {
    text.append("<").append(node.tag());
    for (std::size_t i = 0; i < node.attributeCount(); ++i) {
        text.append(" ").append(node.attributeName(i)).append("=\"");
        appendEscaped(text, node.attributeValue(i), true);
        text += '"';
    }
    text += '>';
    appendEscaped(text, node.content(), false);
}

void appendEndTag(std::string& text, XmlNode node) {
    text.append("</").append(node.tag()).append(">\n");
}

bool sameElement(XmlNode a, XmlNode b) {
    if (a.tag() != b.tag() || a.content() != b.content() ||
        a.attributeCount() != b.attributeCount()) {
        return false;
    }
    for (std::size_t i = 0; i < a.attributeCount(); ++i) {
        if (a.attributeName(i) != b.attributeName(i) ||
            a.attributeValue(i) != b.attributeValue(i)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string XmlTree::fileText() const {
    std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    struct Open {
        XmlNode node;
        XmlNode next;
    };
    std::vector<Open> open{{{}, root()}};
    while (!open.empty()) {
        const auto [node, next] = open.back();
        if (!next) { // all children are written
            open.pop_back();
            if (node) {
                text += '\n';
                appendEndTag(text, node);
            }
            continue;
        }
        open.back().next = next.nextSibling();
        appendStartTag(text, next);
        if (next.firstChild()) {
            text += '\n';
            open.push_back({next, next.firstChild()});
        } else {
            appendEndTag(text, next);
        }
    }
    return text;
}

bool operator==(const XmlTree& a, const XmlTree& b) {
    std::vector<std::pair<XmlNode, XmlNode>> pending{{a.root(), b.root()}};
    while (!pending.empty()) {
        auto& [left, right] = pending.back();
        if (!left || !right) {
            if (static_cast<bool>(left) != static_cast<bool>(right)) {
                return false;
            }
            pending.pop_back();
            continue;
        }
        if (!sameElement(left, right)) {
            return false;
        }
        const auto below = std::pair(left.firstChild(), right.firstChild());
        left = left.nextSibling();
        right = right.nextSibling();
        pending.push_back(below);
    }
    return true;
}

} // namespace tarvel

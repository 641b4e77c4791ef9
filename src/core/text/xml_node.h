// The XML tree that skin files, modifiers and the modifier catalogue are read into.
//
// pugixml parses; the result is kept in a compact tree of our own, because a tree has to be a
// regular value that costs a few hundred bytes (every element keeps its modifiers as one), while a
// pugixml document takes a page of 32 KB and cannot be copied.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvel {

class XmlTree;

/// Names an element of an XmlTree. Cheap to copy; valid while the tree lives, unmoved. An empty
/// node (false in a condition) has no tag, content, attributes or children.
///
/// Only elements count as children. The content is all of the element's own text and CDATA pieces
/// joined, white space kept.
class XmlNode {
  public:
    class Children;

    XmlNode() = default;

    explicit operator bool() const { return tree_ != nullptr; }

    [[nodiscard]] std::string_view tag() const;
    [[nodiscard]] std::string_view content() const;

    [[nodiscard]] std::size_t attributeCount() const;
    /// index < attributeCount().
    [[nodiscard]] std::string_view attributeName(std::size_t index) const;
    [[nodiscard]] std::string_view attributeValue(std::size_t index) const;

    [[nodiscard]] std::size_t childCount() const;
    /// The child at index; an empty node beyond the last. Walks: use children() for loops.
    [[nodiscard]] XmlNode child(std::size_t index) const;
    [[nodiscard]] XmlNode firstChild() const;
    [[nodiscard]] XmlNode nextSibling() const;
    [[nodiscard]] Children children() const;

  private:
    friend class XmlTree;
    XmlNode(const XmlTree* tree, std::uint32_t index)
        : tree_(tree)
        , index_(index) {}

    const XmlTree* tree_ = nullptr;
    std::uint32_t index_ = 0;
};

/// The children of a node for a range-based for loop.
class XmlNode::Children {
  public:
    class Iterator {
      public:
        using value_type = XmlNode;
        using difference_type = std::ptrdiff_t;

        explicit Iterator(XmlNode node = {})
            : node_(node) {}
        XmlNode operator*() const { return node_; }
        Iterator& operator++() {
            node_ = node_.nextSibling();
            return *this;
        }
        bool operator==(std::default_sentinel_t /*end*/) const { return !node_; }

      private:
        XmlNode node_;
    };

    explicit Children(XmlNode first)
        : first_(first) {}
    [[nodiscard]] Iterator begin() const { return Iterator(first_); }
    [[nodiscard]] std::default_sentinel_t end() const { return {}; }

  private:
    XmlNode first_;
};

/// An XML tree as a regular value. Holds at most 4 GB of text.
class XmlTree {
  public:
    /// A place in the tree's own text.
    struct Span {
        std::uint32_t position = 0;
        std::uint32_t length = 0;
    };
    using Index = std::uint32_t;

    /// The node above the top-level elements; it has no tag.
    static constexpr Index top = 0;

    XmlTree();
    /// A tree without elements whose text is already there, for addChild with spans of it.
    explicit XmlTree(std::string text);

    [[nodiscard]] XmlNode document() const { return {this, top}; }
    /// The first top-level element; empty in an empty tree.
    [[nodiscard]] XmlNode root() const { return document().firstChild(); }
    [[nodiscard]] bool empty() const { return nodes_.size() == 1; }

    // Building. Parents and nodes are indexes returned by addChild, or `top`.
    Index addChild(Index parent, std::string_view tag, std::string_view content = {});
    Index addChild(Index parent, Span tag, Span content);
    void addAttribute(Index node, std::string_view name, std::string_view value);
    void addAttribute(Index node, Span name, Span value);
    void setTag(Index node, std::string_view tag);
    void setContent(Index node, std::string_view content);
    void setContent(Index node, Span content) { nodes_[node].content = content; }
    /// Gives every element tagged `from` the tag `to`.
    void renameTags(std::string_view from, std::string_view to);
    /// Makes every CR LF in contents and attribute values a line feed.
    void joinLineEnds();
    /// Copies an element (of this or another tree) with all below it under parent. Content of
    /// elements that have children loses the white space around it, which is but their indentation.
    Index addCopy(Index parent, XmlNode source);

    /// What a tree holds before something is added below parent.
    struct Mark {
        Index parent = top;
        Index lastChild = 0;
        std::size_t nodes = 0;
        std::size_t attributes = 0;
        std::size_t text = 0;
    };
    [[nodiscard]] Mark mark(Index parent) const;
    /// Takes away what was added since; all of it has to lie below the mark's parent.
    void backTo(const Mark& mark);

    /// Appends text that spans can name. Views into text() end here.
    Span addText(std::string_view text);
    void reserveText(std::size_t bytes) { text_.reserve(bytes); }
    void reserveElements(std::size_t count);
    /// Gives back memory that was kept for growth.
    void shrinkToFit();
    [[nodiscard]] std::string_view text() const { return text_; }
    /// The text for a parser that works in place; it must not write beyond it.
    [[nodiscard]] char* textBuffer() { return text_.data(); }

    /// The document as the text of an XML file: a declaration, each start tag on a line of its own,
    /// an end tag straight after the text or, after child elements, on a line of its own below an
    /// empty one. No indentation, line feeds only.
    [[nodiscard]] std::string fileText() const;

    /// Equal when the elements, their attributes and contents are the same in the same order.
    friend bool operator==(const XmlTree& a, const XmlTree& b);

  private:
    friend class XmlNode;

    static constexpr Index none = UINT32_MAX;

    struct Node {
        Span tag;
        Span content;
        Index firstChild = none;
        Index lastChild = none;
        Index nextSibling = none;
        Index firstAttribute = 0;
        std::uint32_t attributeCount = 0;
    };
    struct Attribute {
        Span name;
        Span value;
    };

    [[nodiscard]] std::string_view view(Span span) const {
        return {text_.data() + span.position, span.length};
    }
    Span withLineEndsJoined(Span value);
    Index addShallowCopy(Index parent, XmlNode source);
    void reserveFor(XmlNode source);

    std::string text_;
    std::vector<Node> nodes_;
    std::vector<Attribute> attributes_;
};

inline std::string_view XmlNode::tag() const {
    return tree_ != nullptr ? tree_->view(tree_->nodes_[index_].tag) : std::string_view{};
}

inline std::string_view XmlNode::content() const {
    return tree_ != nullptr ? tree_->view(tree_->nodes_[index_].content) : std::string_view{};
}

inline std::size_t XmlNode::attributeCount() const {
    return tree_ != nullptr ? tree_->nodes_[index_].attributeCount : 0;
}

inline std::string_view XmlNode::attributeName(std::size_t index) const {
    return tree_->view(tree_->attributes_[tree_->nodes_[index_].firstAttribute + index].name);
}

inline std::string_view XmlNode::attributeValue(std::size_t index) const {
    return tree_->view(tree_->attributes_[tree_->nodes_[index_].firstAttribute + index].value);
}

inline XmlNode XmlNode::firstChild() const {
    if (tree_ == nullptr || tree_->nodes_[index_].firstChild == XmlTree::none) {
        return {};
    }
    return {tree_, tree_->nodes_[index_].firstChild};
}

inline XmlNode XmlNode::nextSibling() const {
    if (tree_ == nullptr || tree_->nodes_[index_].nextSibling == XmlTree::none) {
        return {};
    }
    return {tree_, tree_->nodes_[index_].nextSibling};
}

inline XmlNode::Children XmlNode::children() const {
    return Children(firstChild());
}

} // namespace tarvel

// One walk, elements from the outside in; nothing is copied but contents that have to be put
// together.
#include "text/plain_xml.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvel {

namespace {

enum CharacterClass : std::uint8_t {
    space = 1,
    nameStart = 2,
    name = 4,
    endsText = 8,      // "<", and what text does not keep as it is
    endsQuotation = 16 // quotes, and what an attribute does not keep as it is
};

constexpr std::array<std::uint8_t, 256> makeClasses() {
    std::array<std::uint8_t, 256> classes{};
    const auto mark = [&classes](std::string_view characters, int bits) {
        for (const char c : characters) {
            auto& entry = classes[static_cast<unsigned char>(c)];
            entry = static_cast<std::uint8_t>(entry | bits);
        }
    };
    mark(" \t\r\n", space);
    mark("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_", nameStart | name);
    mark("0123456789-.:", name);
    mark("<&\r", endsText);
    mark("\"'<&\t\r\n", endsQuotation);
    return classes;
}

constexpr auto classes = makeClasses();

bool is(char c, CharacterClass wanted) {
    return (classes[static_cast<unsigned char>(c)] & wanted) != 0;
}

// The character that an entity at the start of the text stands for, and the entity's length.
std::pair<char, std::size_t> entityAt(std::string_view text) {
    using Entity = std::pair<std::string_view, char>;
    constexpr std::array<Entity, 5> entities = {
        Entity{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    for (const auto& [entity, character] : entities) {
        if (text.starts_with(entity)) {
            return {character, entity.size()};
        }
    }
    return {'&', 1};
}

void appendDecoded(std::string& target, std::string_view raw) {
    while (!raw.empty()) {
        std::size_t stop = 0;
        while (stop < raw.size() && !is(raw[stop], endsText)) {
            ++stop;
        }
        target.append(raw.substr(0, stop));
        raw.remove_prefix(stop);
        if (raw.starts_with('\r')) {
            target += '\n';
            raw.remove_prefix(raw.starts_with("\r\n") ? 2 : 1);
        } else if (!raw.empty()) {
            const auto [character, length] = entityAt(raw);
            target += character;
            raw.remove_prefix(length);
        }
    }
}

class Walk {
    using Open = PlainXmlReader::Open;
    using Piece = PlainXmlReader::Piece;

  public:
    struct Memory {
        std::vector<Open>& open;
        std::vector<Piece>& pieces;
        std::string& joined;
    };
    Walk(XmlTree& tree, XmlTree::Index parent, std::size_t from, std::size_t to, Memory memory)
        : tree_(tree)
        , parent_(parent)
        , from_(from)
        , to_(to)
        , at_(from)
        , open_(memory.open)
        , pieces_(memory.pieces)
        , joined_(memory.joined) {
        open_.clear();
        pieces_.clear();
        lookAgain();
    }

    bool read() {
        while (takeText() && at_ < to_) {
            if (!takeMarkup()) {
                return false;
            }
        }
        return at_ == to_ && open_.empty();
    }

  private:
    // The text moves when the tree's own text grows.
    void lookAgain() { text_ = tree_.text().substr(0, to_); }

    [[nodiscard]] char at(std::size_t position) const {
        return position < to_ ? text_[position] : '\0';
    }
    [[nodiscard]] XmlTree::Span spanFrom(std::size_t start) const {
        return {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(at_ - start)};
    }
    [[nodiscard]] std::string_view view(XmlTree::Span span) const {
        return text_.substr(span.position, span.length);
    }
    void skipSpace() {
        while (at_ < to_ && is(text_[at_], space)) {
            ++at_;
        }
    }
    void skipName() {
        while (at_ < to_ && is(text_[at_], name)) {
            ++at_;
        }
    }
    // Goes to the next character of the class; false when it is a numeric reference.
    bool skipUnless(CharacterClass wanted) {
        while (at_ < to_ && !is(text_[at_], wanted)) {
            ++at_;
        }
        return at(at_) != '&' || at(at_ + 1) != '#';
    }
    bool skipPast(std::string_view end, std::size_t from) {
        const auto found = text_.find(end, from);
        at_ = found == std::string_view::npos ? to_ : found + end.size();
        return found != std::string_view::npos;
    }

    // The text up to the next "<" or the end.
    bool takeText() {
        const auto start = at_;
        if (open_.empty()) {
            skipSpace();
            return at_ == to_ || text_[at_] == '<';
        }
        bool asItIs = true;
        for (;;) {
            if (!skipUnless(endsText)) {
                return false;
            }
            if (at_ == to_ || text_[at_] == '<') {
                break;
            }
            asItIs = false;
            ++at_;
        }
        if (at_ > start) {
            pieces_.push_back({spanFrom(start), asItIs});
        }
        return true;
    }

    bool takeMarkup() {
        switch (at(at_ + 1)) {
        case '/':
            return takeEndTag();
        case '!':
            return text_.substr(at_).starts_with("<!--") && skipPast("-->", at_ + 4);
        case '?':
            return at_ == from_ && text_.substr(at_).starts_with("<?xml ") &&
                   skipPast("?>", at_ + 6);
        default:
            return takeStartTag();
        }
    }

    bool takeStartTag() {
        const auto start = ++at_;
        if (!is(at(at_), nameStart)) {
            return false;
        }
        skipName();
        const auto tag = spanFrom(start);
        const auto node = tree_.addChild(open_.empty() ? parent_ : open_.back().node, tag, {});
        for (;;) {
            const auto end = at_;
            skipSpace();
            if (at(at_) == '>') {
                ++at_;
                open_.push_back({node, tag, pieces_.size()});
                return true;
            }
            if (at(at_) == '/') {
                at_ += 2;
                return at(at_ - 1) == '>';
            }
            if (at_ == end || !takeAttribute(node)) {
                return false;
            }
        }
    }

    bool takeAttribute(XmlTree::Index node) {
        const auto start = at_;
        if (!is(at(at_), nameStart)) {
            return false;
        }
        skipName();
        const auto attribute = spanFrom(start);
        skipSpace();
        if (at(at_) != '=') {
            return false;
        }
        ++at_;
        skipSpace();
        Piece value;
        if (!takeQuotation(value)) {
            return false;
        }
        tree_.addAttribute(node, attribute, value.asItIs ? value.span : decoded(value.span));
        return true;
    }

    bool takeQuotation(Piece& value) {
        const char quote = at(at_);
        if (quote != '"' && quote != '\'') {
            return false;
        }
        const auto start = ++at_;
        while (skipUnless(endsQuotation) && at_ < to_) {
            const char c = text_[at_];
            if (c == quote) {
                value.span = spanFrom(start);
                ++at_;
                return true;
            }
            if (c != '&' && c != '"' && c != '\'') {
                return false;
            }
            value.asItIs = value.asItIs && c != '&';
            ++at_;
        }
        return false;
    }

    bool takeEndTag() {
        if (open_.empty()) {
            return false;
        }
        const Open closed = open_.back();
        at_ += 2;
        if (!text_.substr(at_).starts_with(view(closed.name))) {
            return false;
        }
        at_ += closed.name.length;
        if (is(at(at_), name)) {
            return false;
        }
        skipSpace();
        if (at(at_) != '>') {
            return false;
        }
        ++at_;
        open_.pop_back();
        tree_.setContent(closed.node, contentFrom(closed.firstPiece));
        return true;
    }

    // The content of the element whose own text begins with that piece: all pieces from it on.
    XmlTree::Span contentFrom(std::size_t firstPiece) {
        XmlTree::Span content;
        if (pieces_.size() == firstPiece + 1 && pieces_.back().asItIs) {
            content = pieces_.back().span;
        } else if (pieces_.size() > firstPiece) {
            joined_.clear();
            for (std::size_t i = firstPiece; i < pieces_.size(); ++i) {
                appendDecoded(joined_, view(pieces_[i].span));
            }
            content = addJoined();
        }
        pieces_.resize(firstPiece);
        return content;
    }

    XmlTree::Span decoded(XmlTree::Span raw) {
        joined_.clear();
        appendDecoded(joined_, view(raw));
        return addJoined();
    }

    XmlTree::Span addJoined() {
        const auto span = tree_.addText(joined_);
        lookAgain();
        return span;
    }

    XmlTree& tree_;
    XmlTree::Index parent_;
    std::size_t from_;
    std::size_t to_;
    std::size_t at_;
    std::string_view text_;
    std::vector<Open>& open_;
    std::vector<Piece>& pieces_;
    std::string& joined_;
};

} // namespace

bool PlainXmlReader::parse(XmlTree& tree, XmlTree::Index parent, std::size_t from, std::size_t to) {
    const auto before = tree.mark(parent);
    if (Walk(tree, parent, from, to, {open_, pieces_, joined_}).read()) {
        return true;
    }
    tree.backTo(before);
    return false;
}

} // namespace tarvel

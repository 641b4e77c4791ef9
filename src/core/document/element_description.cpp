// Walks once over the children and the attributes of a description.
#include "document/element_description.h"

#include "text/tag_scanner.h"
#include "text/text_case.h"
#include "text/value_encodings.h"

#include <string>

namespace tarvel {

ElementDescription::ElementDescription(const SkinDocument& skin, std::string_view sourceName,
                                       XmlNode description)
    : document(skin)
    , source(sourceName)
    , node(description) {
    for (const XmlNode child : description.children()) {
        take(child);
    }
}

void ElementDescription::take(XmlNode child) {
    const auto tag = child.tag();
    const auto is = [tag](std::string_view name) { return equalsIgnoringCase(tag, name); };
    switch (tag.size()) { // the cheapest thing in which the names differ
    case 5:
        if (is("Color")) {
            color = child.content();
        } else if (is(timerTag)) {
            timers = true;
        }
        break;
    case 8:
        if (is("Constant")) {
            constant = child.content();
            hasConstant = true;
        } else if (is(modifierTag)) {
            modifiers = true;
        }
        break;
    case 9:
        if (is("TextColor") && childTagged(child, "Color")) {
            textColorNode = textColorNode ? textColorNode : child;
        } else if (is("TextColor")) {
            textColor = child.content();
        } else if (is("Condition")) {
            condition = child.content();
        }
        break;
    case 11:
        if (is("BorderColor")) {
            borderColor = child.content();
        }
        break;
    default:
        break;
    }
}

PosTexts::PosTexts(XmlNode node) {
    for (std::size_t i = 0; i < node.attributeCount(); ++i) {
        if (auto* member = memberNamed(node.attributeName(i))) {
            *member = node.attributeValue(i);
        }
    }
}

std::string_view* PosTexts::memberNamed(std::string_view name) {
    constexpr char caseBit = 0x20;
    const auto letter = static_cast<char>(name.empty() ? 0 : name.front() | caseBit);
    if (name.size() == 1) {
        switch (letter) {
        case 'l':
            return &l;
        case 't':
            return &t;
        case 'w':
            return &w;
        case 'h':
            return &h;
        case 'x':
            return &x;
        case 'y':
            return &y;
        default:
            return nullptr;
        }
    }
    if (name.size() != 2 || (letter != 'x' && letter != 'y')) {
        return nullptr;
    }
    switch (name.back()) {
    case '1':
        return letter == 'x' ? &x1 : &y1;
    case '2':
        return letter == 'x' ? &x2 : &y2;
    default:
        return nullptr;
    }
}

namespace {

double joinedNumber(std::string_view first, std::string_view second) {
    if (first.empty() || second.empty()) {
        return val(first.empty() ? second : first);
    }
    return val(std::string(first).append(second));
}

} // namespace

PlaceNumbers summedPlace(const PosTexts& pos) {
    return {val(pos.x) + val(pos.l), val(pos.y) + val(pos.t), val(pos.w), val(pos.h)};
}

PlaceNumbers joinedPlace(const PosTexts& pos) {
    return {joinedNumber(pos.x, pos.l), joinedNumber(pos.y, pos.t), val(pos.w), val(pos.h)};
}

PlaceNumbers endsPlace(const PosTexts& pos) {
    return {val(pos.x1), val(pos.y1), val(pos.x2), val(pos.y2)};
}

} // namespace tarvel

// Shows an element's first modifier, and stores what the modifier panel shows.
#include "editing/modifier_editor.h"

#include "text/tag_scanner.h"
#include "text/text_case.h"
#include "text/value_encodings.h"

#include <utility>

namespace tarvel {

namespace {

constexpr std::string_view modifierTag = "Modifier";
constexpr std::array<std::string_view, 2> rangeNames = {"X", "Y"};
constexpr std::array<std::string_view, 4> boundsNames = {"L", "T", "R", "B"};

int lastRowOf(const std::vector<std::string>& rows, std::string_view text) {
    int found = 0;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row] == text) {
            found = static_cast<int>(row);
        }
    }
    return found;
}

template <std::size_t count>
void addTexts(XmlTree& tree, XmlTree::Index node, const std::array<std::string_view, count>& names,
              const std::array<std::string, count>& texts) {
    for (std::size_t i = 0; i < count; ++i) {
        tree.addAttribute(node, names[i], texts[i]);
    }
}

void showRange(XmlNode modifier, std::array<std::string, 2>& boxes) {
    const XmlNode range = childTagged(modifier, "Range");
    if (!range) {
        return;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i] = getAttrib(range, rangeNames[i]);
    }
}

// Up to the first channel that the modifier lacks; the others keep what they show.
void showChannels(XmlNode modifier, std::array<ColorChannel, channelCount>& channels) {
    for (std::size_t i = 0; i < channelCount; ++i) {
        const XmlNode node = childTagged(modifier, channelNames[i]);
        if (!node) {
            return;
        }
        channels[i].Enable = reverseBool(getAttrib(node, "Enable"));
        for (const ChannelValue which : channelValues) {
            channels[i].setValue(which, val(getAttrib(node, channelValueName(which))));
        }
    }
}

void addChannels(XmlTree& tree, XmlTree::Index modifier,
                 const std::array<ColorChannel, channelCount>& channels) {
    for (std::size_t i = 0; i < channelCount; ++i) {
        const XmlTree::Index node = tree.addChild(modifier, channelNames[i]);
        tree.addAttribute(node, "Enable", boolText(channels[i].Enable));
        for (const ChannelValue which : channelValues) {
            tree.addAttribute(node, channelValueName(which), numberText(channels[i].value(which)));
        }
    }
}

} // namespace

std::vector<std::string> modifierTypes(const XmlTree& modifiers) {
    std::vector<std::string> types;
    for (XmlNode each = modifiers.root(); each; each = each.nextSibling()) {
        types.emplace_back(getAttrib(each, "Type"));
    }
    return types;
}

void ModifierEditor::open(ModifierCatalogue catalogue, ElementKind kind, const XmlTree& modifiers) {
    catalogue_ = std::move(catalogue);
    kind_ = kind;
    mods_ = catalogue_.typesFor(kind);
    chooseType(0);
    const XmlNode modifier = modifiers.root();
    // Deliberate: a modifier that is nothing but its type and target is not shown.
    if (modifier && modifier.firstChild()) {
        showModifier(modifier);
    }
}

void ModifierEditor::showModifier(XmlNode modifier) {
    const std::string_view type = getAttrib(modifier, "Type");
    chooseType(getModNum(type));
    if (modRow_ == 0) {
        return;
    }
    if (targets_.empty()) {
        throw ModifierShowError("The modifier \"" + std::string(type) + "\" has no targets in " +
                                std::string(catalogueFileName));
    }
    chooseTarget(getTarNum(getAttrib(modifier, "Target")));
    // Deliberate: everything but a range goes through the channels, bounds included. They have no
    // channels, so their boxes keep what they showed.
    if (equalsIgnoringCase(catalogue_.panelName(type), "range")) {
        showRange(modifier, values_.range);
    } else {
        showChannels(modifier, values_.channels);
    }
}

bool ModifierEditor::isOffered(ElementKind kind) const {
    const std::vector<std::string> types = catalogue_.typesFor(kind);
    return std::find(types.begin(), types.end(), mods_.at(static_cast<std::size_t>(modRow_))) !=
           types.end();
}

void ModifierEditor::chooseType(int row) {
    modRow_ = row;
    targets_.clear();
    targetRow_ = -1;
    frame_ = ParameterPanel::none;
    if (row > 0) {
        targets_ = catalogue_.targetsOf(kind_, mods_[static_cast<std::size_t>(row)]);
    }
    if (!targets_.empty()) {
        chooseTarget(0);
    }
}

void ModifierEditor::chooseTarget(int row) {
    targetRow_ = row;
    frame_ = catalogue_.panelOf(mods_[static_cast<std::size_t>(modRow_)]);
}

int ModifierEditor::getModNum(std::string_view name) const {
    return lastRowOf(mods_, name);
}

int ModifierEditor::getTarNum(std::string_view name) const {
    return lastRowOf(targets_, name);
}

XmlTree ModifierEditor::stored(const XmlTree& before) const {
    XmlTree tree;
    if (targetRow_ >= 0) {
        addModifier(tree);
    }
    for (XmlNode other = before.root().nextSibling(); other; other = other.nextSibling()) {
        tree.addCopy(XmlTree::top, other);
    }
    return tree;
}

void ModifierEditor::addModifier(XmlTree& tree) const {
    const XmlTree::Index modifier = tree.addChild(XmlTree::top, modifierTag);
    tree.addAttribute(modifier, "Type", mods_[static_cast<std::size_t>(modRow_)]);
    const std::string& target = targets_[static_cast<std::size_t>(targetRow_)];
    if (!isPlaceholderTarget(target)) {
        tree.addAttribute(modifier, "Target", target);
    }
    switch (frame_) {
    case ParameterPanel::Range:
        addTexts(tree, tree.addChild(modifier, "Range"), rangeNames, values_.range);
        break;
    case ParameterPanel::Bounds:
        addTexts(tree, tree.addChild(modifier, "Bounds"), boundsNames, values_.bounds);
        break;
    case ParameterPanel::Color:
        addChannels(tree, modifier, values_.channels);
        break;
    case ParameterPanel::none:
        break;
    }
}

} // namespace tarvel

// Reads "modifiers.xml" and answers which types, targets and panels it has for a kind of element.
#include "document/modifier_catalogue.h"

#include "files/host_files.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"
#include "text/text_encoding.h"
#include "text/value_encodings.h"
#include "text/xml_parse.h"

#include <array>
#include <system_error>
#include <utility>

namespace tarvel {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::vector<std::string> splitAtCommas(std::string_view text) {
    std::vector<std::string> pieces;
    for (;;) {
        const auto comma = text.find(',');
        pieces.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(comma + 1);
    }
}

std::string_view contentOf(XmlNode section, std::string_view name) {
    return section ? getContent(section, name) : std::string_view{};
}

XmlNode sectionOf(const XmlTree& tree, std::string_view name) {
    const XmlNode root = tree.root();
    return root ? childTagged(root, name) : XmlNode{};
}

} // namespace

std::filesystem::path catalogueFile(const std::filesystem::path& programFolder) {
    auto own = programFolder / catalogueFileName;
    const auto installed = programFolder / TARVEL_CATALOGUE_FROM_BIN / catalogueFileName;
    return !statusOf(own) && statusOf(installed) ? installed : own;
}

std::filesystem::path programsCatalogue() {
    auto users = catalogueFile(programFolder());
    return statusOf(users) ? users : catalogueFile(executableFolder());
}

ModifierCatalogue::ModifierCatalogue(XmlTree tree)
    : tree_(std::move(tree)) {}

ModifierCatalogue ModifierCatalogue::read(const std::filesystem::path& file) {
    try {
        return ModifierCatalogue(parseXml(decodeText(readFile(file)).text));
    } catch (const FileError&) {
        return {};
    } catch (const XmlError&) {
        return {};
    }
}

XmlNode ModifierCatalogue::kindEntry(ElementKind kind) const {
    const XmlNode supports = sectionOf(tree_, "supports");
    for (const XmlNode entry : supports.children()) {
        if (val(getAttrib(entry, "type")) == static_cast<double>(kind)) {
            return entry;
        }
    }
    return supports;
}

std::vector<std::string> ModifierCatalogue::typesFor(ElementKind kind) const {
    std::vector<std::string> types{std::string(noModifier)};
    for (const XmlNode type : kindEntry(kind).children()) {
        types.emplace_back(type.tag());
    }
    return types;
}

std::vector<std::string> ModifierCatalogue::targetsOf(ElementKind kind,
                                                      std::string_view type) const {
    const std::string_view targets = contentOf(kindEntry(kind), type);
    if (targets.find_first_not_of(blanks) == std::string_view::npos) {
        return {};
    }
    return splitAtCommas(targets);
}

std::string_view ModifierCatalogue::panelName(std::string_view type) const {
    return contentOf(sectionOf(tree_, "types"), type);
}

ParameterPanel ModifierCatalogue::panelOf(std::string_view type) const {
    struct Known {
        std::string_view name;
        ParameterPanel panel;
    };
    constexpr std::array<Known, 3> panels = {{{"Range", ParameterPanel::Range},
                                              {"Bounds", ParameterPanel::Bounds},
                                              {"Color", ParameterPanel::Color}}};
    const std::string_view name = panelName(type);
    for (const Known& known : panels) {
        if (known.name == name) {
            return known.panel;
        }
    }
    return ParameterPanel::none;
}

ModifierPreview ModifierCatalogue::previewOf(std::string_view type) const {
    struct Known {
        std::string_view name;
        ParameterPanel needs;
        ModifierPreview preview;
    };
    constexpr std::array<Known, 4> previews = {
        {{"color", ParameterPanel::Color, ModifierPreview::color},
         {"opacity", ParameterPanel::Range, ModifierPreview::opacity},
         {"scale", ParameterPanel::Range, ModifierPreview::scale},
         {"move", ParameterPanel::Bounds, ModifierPreview::move}}};
    const ParameterPanel panel = panelOf(type);
    const XmlNode types = sectionOf(tree_, "types");
    const XmlNode entry = types ? childTagged(types, type) : XmlNode{};
    const std::string_view word = entry ? getAttrib(entry, "preview") : std::string_view{};
    if (word.empty()) {
        return panel == ParameterPanel::Color ? ModifierPreview::color : ModifierPreview::still;
    }
    for (const Known& known : previews) {
        if (known.needs == panel && equalsIgnoringCase(known.name, word)) {
            return known.preview;
        }
    }
    return ModifierPreview::still;
}

bool isPlaceholderTarget(std::string_view target) {
    return target.starts_with('(');
}

} // namespace tarvel

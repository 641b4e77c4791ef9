// Any XML as a modifiers.xml: whatever it lacks, every question to it has an answer.
#include "document/modifier_catalogue.h"
#include "text/xml_parse.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tarvel;
    XmlTree tree;
    try {
        tree = parseXml(std::string(reinterpret_cast<const char*>(data), size)); // NOLINT
    } catch (const XmlError&) {
        return 0;
    }
    const ModifierCatalogue catalogue(std::move(tree));
    for (int kind = 0; kind <= 6; ++kind) {
        const auto types = catalogue.typesFor(static_cast<ElementKind>(kind));
        for (const std::string& type : types) {
            for (const std::string& target :
                 catalogue.targetsOf(static_cast<ElementKind>(kind), type)) {
                static_cast<void>(isPlaceholderTarget(target));
            }
            static_cast<void>(catalogue.panelName(type));
            static_cast<void>(catalogue.panelOf(type));
            static_cast<void>(catalogue.previewOf(type));
        }
    }
    return 0;
}

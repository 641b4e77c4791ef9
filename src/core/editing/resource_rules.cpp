// Decides about names of resources, and makes the fragments of the dashboard's own.
#include "editing/resource_rules.h"

#include "document/image_source.h"

#include <algorithm>

namespace tarvel {

namespace {

bool isTaken(const SkinDocument& document, std::string_view name) {
    const auto& resources = document.settings().resources;
    return std::any_of(resources.begin(), resources.end(),
                       [&](const Resource& resource) { return resource.name == name; });
}

} // namespace

std::string presetContent(std::string_view entry) {
    if (entry.starts_with("Ga")) {
        return makeTag("Entry", "default.xbe");
    }
    if (entry.starts_with("Pr")) {
        return makeTag("EntryNamed", "Media");
    }
    return makeTag("File", entry);
}

std::string presetName(std::string_view entry) {
    std::string name(entry);
    for (auto at = name.find(referenceMark); at != std::string::npos;
         at = name.find(referenceMark, at)) {
        name.erase(at, referenceMark.size());
    }
    return name;
}

std::string suggestedName(std::string_view path) {
    const std::string_view file = trimtofile(path);
    const auto dot = file.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && dot > 0;
    return std::string(hasExtension ? file.substr(0, dot) : file);
}

AddOutcome addCustomResource(SkinDocument& document, std::string_view name, std::string_view path) {
    if (name == reservedName) {
        return AddOutcome::reserved;
    }
    if (isTaken(document, name)) {
        return AddOutcome::taken;
    }
    if (name.empty() || path.empty()) {
        return AddOutcome::incomplete;
    }
    document.addRes(std::string(name), std::string(path));
    return AddOutcome::added;
}

AddOutcome addPresetResource(SkinDocument& document, int preset, std::string_view name) {
    if (isTaken(document, name)) {
        return AddOutcome::taken;
    }
    const auto index = static_cast<std::size_t>(preset); // -1 is too large
    if (index >= presetResources.size()) {
        return AddOutcome::incomplete;
    }
    document.addcRes(presetContent(presetResources[index].entry), std::string(name));
    return AddOutcome::added;
}

} // namespace tarvel

// Finds the resource that a source names, and makes a control show it.
#include "document/image_source.h"

#include "text/list_index.h"
#include "text/tag_scanner.h"
#include "text/text_case.h"

namespace tarvel {

namespace {

bool isProgramFile(std::string_view file) {
    constexpr std::string_view ending = "xbe";
    return file.size() >= ending.size() &&
           equalsIgnoringCase(file.substr(file.size() - ending.size()), ending);
}

PictureContent contentOf(const Resource& resource) {
    if (resource.outside) {
        return PictureContent::barred;
    }
    return isProgramFile(resource.content) ? PictureContent::programIcon : PictureContent::file;
}

} // namespace

std::string_view resourceName(std::string_view source) {
    return isReference(source) ? source.substr(referenceMark.size()) : source;
}

bool refersTo(std::string_view source, std::string_view resource) {
    return isReference(source) && equalsIgnoringCase(resourceName(source), resource);
}

const Resource* resourceOf(const SkinDocument& document, std::string_view source) {
    return findResource(document, resourceName(source));
}

int resourceIndex(const std::vector<Resource>& resources, std::string_view source) {
    if (resources.empty()) {
        return -1;
    }
    std::vector<std::string_view> names;
    names.reserve(resources.size());
    for (const Resource& resource : resources) {
        names.emplace_back(resource.name);
    }
    const int index = getListIndex(names, source);
    const bool found = equalsIgnoringCase(names[static_cast<std::size_t>(index)], source);
    return found ? index : getListIndex(names, resourceName(source));
}

ControlKind imageControl(std::string_view file) {
    if (isVideoFile(file)) {
        return ControlKind::vid;
    }
    return isPngFile(file) ? ControlKind::png : ControlKind::img;
}

void showResource(const Resource& resource, ElementControl& control) {
    if (resource.isFile) {
        control.kind = imageControl(resource.content);
        control.file = resource.content;
        control.picture = contentOf(resource);
    } else if (control.kind != ControlKind::vid) {
        control.kind = ControlKind::img;
        control.file.clear();
        control.picture = PictureContent::programIcon;
    }
}

void attachSource(const SkinDocument& document, std::string_view source, ElementControl& control) {
    if (const Resource* resource = resourceOf(document, source)) {
        showResource(*resource, control);
    } else {
        control.kind = ControlKind::img;
    }
}

} // namespace tarvel

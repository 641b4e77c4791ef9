// The one rule from the source of an image to what is shown for it: which resource the source
// names, and which control with which content shows a resource.
#pragma once

#include "document/skin_document.h"

#include <string_view>
#include <vector>

namespace tarvel {

/// Marks a source, or the text of a preset resource, as a reference.
inline constexpr std::string_view referenceMark = "::";
[[nodiscard]] inline bool isReference(std::string_view text) {
    return text.starts_with(referenceMark);
}

/// The resource's name in an image's source: a leading mark is not part of it.
[[nodiscard]] std::string_view resourceName(std::string_view source);
/// Whether the source is the mark followed by the name, in any letter case.
[[nodiscard]] bool refersTo(std::string_view source, std::string_view resource);

/// The resource that a source names: the last of that name; nullptr when there is none.
[[nodiscard]] const Resource* resourceOf(const SkinDocument& document, std::string_view source);
/// The place of a source's resource in a list to choose from: of the resource that is named like
/// the whole source, mark included, or else of the one without it; the first when there is neither,
/// and -1 in an empty list.
[[nodiscard]] int resourceIndex(const std::vector<Resource>& resources, std::string_view source);

/// The control that shows an image file: by its last three characters.
[[nodiscard]] ControlKind imageControl(std::string_view file);

/// Makes an image's control show a resource: its file, the program icon for a program file or a
/// resource without a file, nothing of a file that is barred. A resource without a file leaves a
/// video its file.
void showResource(const Resource& resource, ElementControl& control);

/// Makes an image's control show what a source names. A source that names nothing leaves a picture
/// without a file.
void attachSource(const SkinDocument& document, std::string_view source, ElementControl& control);

} // namespace tarvel

// What uses the skin's resources, and changes to a resource that its uses follow.
//
// An element uses the resource that its source names: the last of that name, in whatever letter
// case. Resources are given by their place in the skin's list. Everything here takes time as the
// elements and the resources grow, however many uses there are.
#pragma once

#include "document/skin_document.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvel {

/// How many elements, of all screens, use each resource.
[[nodiscard]] std::vector<int> resourceUses(const SkinDocument& document);

/// What an image's source becomes when it shall name the resource: its name, with the mark of a
/// reference where the source has one or the name would lose its own.
[[nodiscard]] std::string sourceOf(const Resource& resource, std::string_view before);

inline constexpr std::string_view emptyNameMessage = "Enter a resource name";

/// Gives a resource another name, which the sources and row texts of its elements follow. Returns
/// the message that says why not, with nothing changed; "" when it was done. Refused are an empty
/// name, the reserved one, and one that another resource has in any letter case: its elements could
/// not be told apart.
std::string_view renameResource(SkinDocument& document, int resource, std::string_view name);

/// Gives a resource another file, by its document path; a fragment of the dashboard's becomes a
/// file. Its elements show the file, each in a control that fits it. Returns false, and does
/// nothing, for an empty path and for the file that the resource has.
bool replaceResourceFile(SkinDocument& document, int resource, std::string_view path);

/// Takes a resource out of the list, and with `elementsToo` every element that uses it off its
/// screen: as many as resourceUses() counts. Returns false, and does nothing, for one in use
/// otherwise. The observers are told once of each screen and of the settings.
bool removeResource(SkinDocument& document, int resource, bool elementsToo);

struct NewFile {
    int resource;     ///< place in the skin's list
    std::string path; ///< document path
};
/// Gives each of these resources its file, as replaceResourceFile() does, all in one walk.
void replaceResourceFiles(SkinDocument& document, const std::vector<NewFile>& files);

} // namespace tarvel

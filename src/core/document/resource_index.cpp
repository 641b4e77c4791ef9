// Keeps resources by their lower-cased names, for look-ups that do not walk the list.
#include "document/resource_index.h"

#include "text/text_case.h"

namespace tarvel {

ResourceIndex::ResourceIndex(const std::vector<Resource>& resources) {
    byName_.reserve(resources.size());
    for (const Resource& resource : resources) {
        byName_.insert_or_assign(lowerCased(resource.name), &resource);
    }
}

const Resource* ResourceIndex::find(std::string_view name) const {
    const auto found = byName_.find(lowerCased(name));
    return found == byName_.end() ? nullptr : found->second;
}

} // namespace tarvel

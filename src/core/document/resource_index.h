// Finding many resources by name: findResource() for more than a few look-ups.
#pragma once

#include "document/skin_settings.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvel {

/// The resources by their names without regard to letter case. Holds pointers into the vector:
/// valid as long as that is neither changed nor gone.
class ResourceIndex {
  public:
    explicit ResourceIndex(const std::vector<Resource>& resources);

    /// The last resource of that name; nullptr when there is none.
    [[nodiscard]] const Resource* find(std::string_view name) const;

  private:
    std::unordered_map<std::string, const Resource*> byName_; // lower-cased
};

} // namespace tarvel

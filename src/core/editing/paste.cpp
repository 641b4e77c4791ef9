// Finds names for what comes along, and makes the elements follow them.
#include "editing/paste.h"

#include "document/element_kinds.h"
#include "document/image_source.h"
#include "document/resource_index.h"
#include "editing/element_update.h"
#include "editing/resource_rules.h"
#include "editing/resource_uses.h"
#include "files/host_paths.h"
#include "text/text_case.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tarvel {

namespace {

// Chooses for each resource of the content the skin's resource that stands for it.
class ResourceMerge {
  public:
    ResourceMerge(const SkinDocument& document, const ClipboardContent& content)
        : own_(document.settings().resources)
        , brought_(content.resources)
        , taken_(own_) {
        for (const Resource& resource : content.resources) {
            names_.insert(lowerCased(resource.name));
        }
    }

    // What the source of an element of the content names from now on; nullptr for what was not
    // brought along. Stays valid as long as the merge.
    const Resource* standIn(std::string_view source) {
        const Resource* resource = brought_.find(resourceName(source));
        if (resource == nullptr) {
            return nullptr;
        }
        const auto [known, isNew] = standIns_.try_emplace(resource);
        if (isNew) {
            known->second = chosenFor(*resource);
        }
        return &known->second;
    }

    // What the skin lacks, in the order in which the elements use it.
    std::vector<Resource> takeAdded() { return std::move(added_); }

  private:
    Resource chosenFor(const Resource& resource) {
        if (const Resource* own = taken_.find(resource.name)) {
            return isSame(*own, resource) ? *own : renamed(resource);
        }
        if (resource.isFile && resource.name == reservedName) {
            return renamed(resource);
        }
        added_.push_back(resource);
        return resource;
    }

    Resource renamed(Resource resource) {
        const std::string stem = resource.name + ' ';
        for (int number = 2;; ++number) {
            resource.name = stem + std::to_string(number);
            const Resource* own = taken_.find(resource.name);
            if (own != nullptr && isSame(*own, resource)) {
                return *own;
            }
            if (own == nullptr && names_.insert(lowerCased(resource.name)).second) {
                added_.push_back(resource);
                return resource;
            }
        }
    }

    bool isSame(const Resource& own, const Resource& other) {
        if (own.isFile != other.isFile) {
            return false;
        }
        return own.content == other.content || (own.isFile && !own.outside && !other.outside &&
                                                files_.isSameFile(own.content, other.content));
    }

    const std::vector<Resource>& own_;
    ResourceIndex brought_;
    ResourceIndex taken_;
    std::unordered_set<std::string> names_; // of what comes along, lower-cased
    std::unordered_map<const Resource*, Resource> standIns_;
    std::vector<Resource> added_;
    FileFinder files_;
};

// Makes an image show the resource that it finds here.
void follow(const Resource* resource, const SkinDocument& document, Element& element) {
    if (resource != nullptr) {
        if (!equalsIgnoringCase(resourceName(element.imageSource), resource->name)) {
            element.imageSource = sourceOf(*resource, element.imageSource);
        }
    } else {
        resource = resourceOf(document, element.imageSource);
    }
    if (resource != nullptr) {
        showResource(*resource, element.elementControl);
    }
}

void shift(ElementControl& control, SkinPoint offset) {
    Place place = placeOf(control);
    place[0] += offset.x;
    place[1] += offset.y;
    if (hasEnds(control)) {
        place[2] += offset.x;
        place[3] += offset.y;
    }
    setPlace(control, place);
}

} // namespace

std::vector<int> pasteElements(SkinDocument& document, const ClipboardContent& content,
                               SkinPoint offset) {
    std::vector<Element> elements = content.elements;
    ResourceMerge merge(document, content);
    for (Element& element : elements) {
        if (rulesOf(element.elementKind).namesResource) {
            follow(merge.standIn(element.imageSource), document, element);
        }
        shift(element.elementControl, offset);
        element.label = freshLabel(element);
    }
    if (std::vector<Resource> added = merge.takeAdded(); !added.empty()) {
        document.editSettings([&](SkinSettings& settings) {
            settings.resources.insert(settings.resources.end(),
                                      std::make_move_iterator(added.begin()),
                                      std::make_move_iterator(added.end()));
        });
    }
    return document.addElements(std::move(elements));
}

} // namespace tarvel

// Finds the elements of resources in one walk over all rows, and changes them in another.
#include "editing/resource_uses.h"

#include "document/element_kinds.h"
#include "document/image_source.h"
#include "editing/element_update.h"
#include "editing/resource_rules.h"
#include "editing/stacking.h"
#include "text/text_case.h"

#include <algorithm>
#include <utility>

namespace tarvel {

namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

struct Use {
    int screen;
    int row;
    int id;
    int resource;
};

template <class Visit> void eachUse(const SkinDocument& document, Visit&& visit) {
    const Resource* first = document.settings().resources.data();
    for (int screen = 0; screen < screenCount; ++screen) {
        for (int row = 0; row < document.rowCount(screen); ++row) {
            const int id = document.itemData(screen, row);
            const Element& element = document.element(id);
            if (!rulesOf(element.elementKind).namesResource) {
                continue;
            }
            if (const Resource* resource = resourceOf(document, element.imageSource)) {
                visit(Use{screen, row, id, static_cast<int>(resource - first)});
            }
        }
    }
}

template <class Wanted> std::vector<Use> usesOf(const SkinDocument& document, Wanted&& wanted) {
    std::vector<Use> uses;
    eachUse(document, [&](const Use& use) {
        if (wanted(use.resource)) {
            uses.push_back(use);
        }
    });
    return uses;
}

std::vector<Use> usesOf(const SkinDocument& document, int resource) {
    return usesOf(document, [resource](int used) { return used == resource; });
}

// As Apply does, where the prefix of a locked row stays.
void renewRowText(SkinDocument& document, const Use& use) {
    std::string text = freshLabel(document.element(use.id));
    if (document.rowText(use.screen, use.row).starts_with(lockPrefix)) {
        text.insert(0, lockPrefix);
    }
    if (text != document.rowText(use.screen, use.row)) {
        document.setRowText(use.screen, use.row, std::move(text));
    }
}

bool isTakenByAnother(const std::vector<Resource>& resources, int resource, std::string_view name) {
    const auto* self = &resources[at(resource)];
    return std::any_of(resources.begin(), resources.end(), [&](const Resource& other) {
        return &other != self && equalsIgnoringCase(other.name, name);
    });
}

// From the front to the back, so that the rows of the others stay.
void deleteElements(SkinDocument& document, const std::vector<Use>& uses) {
    std::for_each(uses.rbegin(), uses.rend(), [&](const Use& use) {
        if (document.currentLayout() != use.screen) {
            document.setCurrentLayout(use.screen);
        }
        deleteRow(document, use.row);
    });
}

} // namespace

std::vector<int> resourceUses(const SkinDocument& document) {
    std::vector<int> counts(document.settings().resources.size());
    eachUse(document, [&](const Use& use) { ++counts[at(use.resource)]; });
    return counts;
}

std::string sourceOf(const Resource& resource, std::string_view before) {
    const bool isMarked = isReference(before) || isReference(resource.name);
    return (isMarked ? std::string(referenceMark) : std::string()).append(resource.name);
}

std::string_view renameResource(SkinDocument& document, int resource, std::string_view name) {
    if (document.settings().resources[at(resource)].name == name) {
        return {};
    }
    if (name.empty()) {
        return emptyNameMessage;
    }
    if (name == reservedName) {
        return reservedNameMessage;
    }
    if (isTakenByAnother(document.settings().resources, resource, name)) {
        return takenNameMessage;
    }
    const std::vector<Use> uses = usesOf(document, resource);
    document.editSettings(
        [&](SkinSettings& settings) { settings.resources[at(resource)].name = name; });
    const Resource renamed = document.settings().resources[at(resource)];
    for (const Use& use : uses) {
        document.editElement(use.id, [&](Element& element) {
            element.imageSource = sourceOf(renamed, element.imageSource);
        });
        renewRowText(document, use);
    }
    return {};
}

bool replaceResourceFile(SkinDocument& document, int resource, std::string_view path) {
    const Resource& before = document.settings().resources[at(resource)];
    const bool isSame = before.isFile && !before.outside && before.content == path;
    if (path.empty() || isSame) {
        return false;
    }
    replaceResourceFiles(document, {{resource, std::string(path)}});
    return true;
}

void replaceResourceFiles(SkinDocument& document, const std::vector<NewFile>& files) {
    if (files.empty()) {
        return;
    }
    std::vector<bool> isReplaced(document.settings().resources.size());
    for (const NewFile& file : files) {
        isReplaced[at(file.resource)] = true;
    }
    const std::vector<Use> uses =
        usesOf(document, [&](int resource) { return isReplaced[at(resource)]; });
    document.editSettings([&](SkinSettings& settings) {
        for (const NewFile& file : files) {
            Resource& resource = settings.resources[at(file.resource)];
            resource.content = file.path;
            resource.isFile = true;
            resource.outside = false;
        }
    });
    for (const Use& use : uses) {
        const Resource& resource = document.settings().resources[at(use.resource)];
        document.editElement(
            use.id, [&](Element& element) { showResource(resource, element.elementControl); });
    }
}

bool removeResource(SkinDocument& document, int resource, bool elementsToo) {
    const std::vector<Use> uses = usesOf(document, resource);
    if (!uses.empty() && !elementsToo) {
        return false;
    }
    // Nobody sees the screens that are gone through.
    SkinDocument next = document;
    deleteElements(next, uses);
    next.editSettings([&](SkinSettings& settings) {
        settings.resources.erase(settings.resources.begin() + resource);
    });
    document.showVersion(next, document.currentLayout());
    return true;
}

} // namespace tarvel

// Decides about names of resources, and makes the fragments of the dashboard's own.
#include "editing/resource_rules.h"

#include "document/image_source.h"
#include "document/resource_index.h"
#include "files/host_paths.h"
#include "text/text_case.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tarvel {

namespace {

bool isTaken(const SkinDocument& document, std::string_view name) {
    const auto& resources = document.settings().resources;
    return std::any_of(resources.begin(), resources.end(),
                       [&](const Resource& resource) { return resource.name == name; });
}

// "Logo" of "Logo 2"; otherwise the whole name.
std::string_view withoutNumber(std::string_view name) {
    const auto digits = name.find_last_not_of("0123456789") + 1;
    const bool isNumbered = digits > 1 && digits < name.size() && name[digits - 1] == ' ';
    return isNumbered ? name.substr(0, digits - 1) : name;
}

// Names files after themselves, beside the resources that there are.
class FileNames {
  public:
    explicit FileNames(const std::vector<Resource>& resources)
        : index_(resources) {
        for (const Resource& resource : resources) {
            take(resource.name, resource.isFile ? resource.content : std::string());
        }
    }

    // Takes a name for the file; "" when the file is there under such a name.
    std::string nameFor(const std::string& path) {
        std::string name = suggestedName(path);
        if (isThere(name, path)) {
            return {};
        }
        if (name == reservedName || taken_.contains(lowerCased(name))) {
            name = numbered(name);
        }
        take(name, path);
        return name;
    }

  private:
    static std::string keyOf(std::string_view name, const std::string& path) {
        return lowerCased(name).append(1, '\0').append(path);
    }

    void take(const std::string& name, const std::string& path) {
        taken_.insert(lowerCased(name));
        files_.insert(keyOf(name, path));
        files_.insert(keyOf(withoutNumber(name), path));
    }

    bool isThere(const std::string& name, const std::string& path) {
        if (files_.contains(keyOf(name, path))) {
            return true;
        }
        const Resource* own = index_.find(name);
        return own != nullptr && own->isFile && !own->outside &&
               finder_.isSameFile(own->content, path);
    }

    std::string numbered(const std::string& name) {
        int& number = numbers_.try_emplace(lowerCased(name), 1).first->second;
        std::string next;
        do {
            next = name + ' ' + std::to_string(++number);
        } while (taken_.contains(lowerCased(next)));
        return next;
    }

    ResourceIndex index_;
    std::unordered_set<std::string> taken_; // names, lower-cased
    std::unordered_set<std::string> files_; // by keyOf()
    std::unordered_map<std::string, int> numbers_;
    FileFinder finder_;
};

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

int addCustomResources(SkinDocument& document, const std::vector<std::string>& paths) {
    FileNames names(document.settings().resources);
    std::vector<Resource> added;
    for (const std::string& path : paths) {
        if (std::string name = names.nameFor(path); !name.empty()) {
            added.push_back({.name = std::move(name), .content = path});
        }
    }
    const int count = static_cast<int>(added.size());
    if (count > 0) {
        document.editSettings([&](SkinSettings& settings) {
            settings.resources.insert(settings.resources.end(),
                                      std::make_move_iterator(added.begin()),
                                      std::make_move_iterator(added.end()));
        });
    }
    return count;
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

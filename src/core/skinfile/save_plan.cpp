// Files are told apart by what they are on the disk, whatever path leads to them.
#include "skinfile/save_plan.h"

#include "files/host_files.h"
#include "files/path_text.h"
#include "skinfile/skin_reader.h"
#include "text/text_case.h"

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

std::optional<FileIdentity> idOf(const fs::path& file) {
    const auto status = statusOf(file);
    return status ? std::optional(status->identity) : std::nullopt;
}

class Planner {
  public:
    Planner(const SkinSettings& settings, const fs::path& folder)
        : settings_(settings)
        , folder_(folder)
        , prefix_(withSlash(documentPath(folder))) {}

    SavePlan run() {
        for (const std::string_view below : {mediaFolder, musicFolder}) {
            refuseFolderOutside(below);
        }
        planAll();
        for (const auto& [target, from] : taken_) {
            const auto kept = sources_.find(target);
            if (kept != sources_.end() && plan_.obstacle.empty()) {
                plan_.obstacle = meetingProblem(kept->second, from);
            }
        }
        return std::move(plan_);
    }

  private:
    // A place that a copy goes to.
    struct Place {
        fs::path path;
        std::optional<FileIdentity> target; // what lies there
        std::optional<FileIdentity> source; // of the first copy that goes there
        bool isShared = false;
    };

    void refuseFolderOutside(std::string_view below) {
        const fs::path path = finder_.hostPath(prefix_ + std::string(below));
        const auto status = statusOf(path);
        if (plan_.obstacle.empty() && status && status->kind == FileKind::folder &&
            !liesWithin(folder_, path)) {
            plan_.obstacle =
                utf8Of(path.parent_path()) + " is a link that leads out of the skin's folder";
        }
    }

    void planAll() {
        for (const Resource& resource : settings_.resources) {
            if (resource.isFile && resource.outside) {
                plan_.leftOut.push_back(outsideName(resource.name, resource.content));
            } else if (resource.isFile) {
                plan(PlannedCopy::What::resource, resource.content, mediaFolder);
            }
        }
        if (settings_.background.loaded) {
            plan(PlannedCopy::What::background, settings_.background.path, mediaFolder);
        }
        for (const int index : settings_.music.rows) {
            plan(PlannedCopy::What::music,
                 settings_.music.musicFiles.at(static_cast<std::size_t>(index)), musicFolder);
        }
    }

    void plan(PlannedCopy::What what, const std::string& source, std::string_view below) {
        const auto name = trimtofile(source);
        PlannedCopy copy{what, std::string(name), finder_.hostPath(source), {}};
        const auto sourceId = idOf(copy.from);
        Place& place = placeOf(below, name, sourceId);
        copy.to = place.path;
        if (sourceId) {
            sources_.try_emplace(*sourceId, copy.from);
            if (place.source != sourceId && !std::exchange(place.isShared, true)) {
                plan_.sharedNames.push_back(copy.name);
            }
        }
        if (source == prefix_ + std::string(below).append(name) ||
            (sourceId && sourceId == place.target)) {
            return; // it lies there already
        }
        if (sourceId && place.target) {
            taken_.emplace_back(*place.target, copy.from);
        }
        plan_.copies.push_back(std::move(copy));
    }

    Place& placeOf(std::string_view below, std::string_view name,
                   const std::optional<FileIdentity>& source) {
        const std::string folder = prefix_ + std::string(below);
        fs::path path = finder_.hostPath(folder + std::string(name));
        const auto target = idOf(path);
        // What does not exist yet is found by the name of the copy that makes it.
        const std::string key = target ? utf8Of(path) : folder + lowerCased(name);
        const auto [place, isFirst] = places_.try_emplace(key);
        if (isFirst) {
            place->second = {target ? writtenPath(folder_, path) : path, target, source};
        }
        if (!place->second.source) {
            place->second.source = source;
        }
        return place->second;
    }

    static std::string meetingProblem(const fs::path& kept, const fs::path& taker) {
        return "two files have one name, " + utf8Of(kept) + " and " + utf8Of(taker) +
               ", and the second would take the place of the first";
    }

    const SkinSettings& settings_;
    const fs::path& folder_;
    std::string prefix_;
    FileFinder finder_;
    std::unordered_map<std::string, Place> places_;
    std::map<FileIdentity, fs::path> sources_; // all that a save reads
    std::vector<std::pair<FileIdentity, fs::path>>
        taken_; // files that lose their place, and to what
    SavePlan plan_;
};

} // namespace

SavePlan planSave(const SkinSettings& settings, const fs::path& folder) {
    try {
        return Planner(settings, folder).run();
    } catch (const FileError& error) { // where things lie cannot be told
        SavePlan plan;
        plan.obstacle = error.what();
        return plan;
    }
}

} // namespace tarvel

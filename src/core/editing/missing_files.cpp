// Asks the disk for every file that a skin names, and fills places with files that were found.
#include "editing/missing_files.h"

#include "editing/resource_uses.h"
#include "files/host_paths.h"
#include "text/text_case.h"

#include <unordered_set>
#include <utility>

namespace tarvel {

namespace {

using What = MissingFile::What;

// Of each music file whether a row lists it.
std::vector<bool> listedMusic(const MusicSettings& music) {
    std::vector<bool> isListed(music.musicFiles.size());
    for (const int row : music.rows) {
        const auto file = static_cast<std::size_t>(row);
        if (file < isListed.size()) {
            isListed[file] = true;
        }
    }
    return isListed;
}

// Whether the skin still has the missing file in its place.
bool isStillThere(const SkinSettings& settings, const MissingFile& missing) {
    const auto index = static_cast<std::size_t>(missing.index);
    switch (missing.what) {
    case What::resource:
        return index < settings.resources.size() && settings.resources[index].isFile &&
               settings.resources[index].content == missing.path;
    case What::background:
        return settings.background.loaded && settings.background.path == missing.path;
    case What::music:
        return index < settings.music.musicFiles.size() &&
               settings.music.musicFiles[index] == missing.path;
    }
    return false;
}

} // namespace

std::vector<MissingFile> missingFiles(const SkinDocument& document) {
    const SkinSettings& settings = document.settings();
    FileFinder files;
    std::vector<MissingFile> missing;
    const auto ask = [&](What what, std::size_t index, const std::string& path) {
        if (!files.FileExists(path)) {
            missing.push_back({what, static_cast<int>(index), path});
        }
    };
    for (std::size_t i = 0; i < settings.resources.size(); ++i) {
        if (settings.resources[i].isFile && !settings.resources[i].outside) {
            ask(What::resource, i, settings.resources[i].content);
        }
    }
    if (settings.background.loaded) {
        ask(What::background, 0, settings.background.path);
    }
    const std::vector<bool> isListed = listedMusic(settings.music);
    for (std::size_t i = 0; i < isListed.size(); ++i) {
        if (isListed[i]) {
            ask(What::music, i, settings.music.musicFiles[i]);
        }
    }
    return missing;
}

LocatedFiles locate(const std::vector<MissingFile>& missing, const std::filesystem::path& folder,
                    std::size_t limit, const SearchStep& step) {
    std::unordered_set<std::string> names;
    for (const MissingFile& file : missing) {
        if (std::string name = lowerCased(trimtofile(file.path)); !name.empty()) {
            names.insert(std::move(name));
        }
    }
    const FileSearch search = searchFiles(folder, names, limit, step);
    LocatedFiles located;
    located.complete = search.complete;
    for (const MissingFile& file : missing) {
        if (const auto found = search.found.find(lowerCased(trimtofile(file.path)));
            found != search.found.end()) {
            located.files.push_back({file, documentPath(found->second)});
        }
    }
    return located;
}

int useLocated(SkinDocument& document, const std::vector<LocatedFile>& files) {
    std::vector<NewFile> resources;
    std::vector<LocatedFile> others;
    for (const LocatedFile& file : files) {
        if (!isStillThere(document.settings(), file.missing)) {
            continue;
        }
        if (file.missing.what == What::resource) {
            resources.push_back({file.missing.index, file.path});
        } else {
            others.push_back(file);
        }
    }
    replaceResourceFiles(document, resources);
    if (!others.empty()) {
        document.editSettings([&](SkinSettings& settings) {
            for (const LocatedFile& file : others) {
                (file.missing.what == What::background
                     ? settings.background.path
                     : settings.music.musicFiles[static_cast<std::size_t>(file.missing.index)]) =
                    file.path;
            }
        });
    }
    return static_cast<int>(resources.size() + others.size());
}

} // namespace tarvel

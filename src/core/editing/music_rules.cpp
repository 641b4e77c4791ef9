// Adds music files and takes rows away, and knows music by the ends of names.
#include "editing/music_rules.h"

#include "text/text_case.h"

#include <algorithm>
#include <utility>

namespace tarvel {

bool isMusicFile(std::string_view name) {
    return std::any_of(musicEndings.begin(), musicEndings.end(), [&](std::string_view ending) {
        return name.size() > ending.size() &&
               equalsIgnoringCase(name.substr(name.size() - ending.size()), ending);
    });
}

void addMusicFile(MusicSettings& music, std::string path) {
    music.rows.push_back(static_cast<int>(music.musicFiles.size()));
    music.musicFiles.push_back(std::move(path));
}

void removeMusicRow(MusicSettings& music, int row) {
    if (row >= 0 && static_cast<std::size_t>(row) < music.rows.size()) {
        music.rows.erase(music.rows.begin() + row);
    }
}

std::string musicPath(const MusicSettings& music, int row) {
    const auto index = static_cast<std::size_t>(row); // a negative one is too large
    if (index >= music.rows.size()) {
        return {};
    }
    const auto file = static_cast<std::size_t>(music.rows[index]);
    return file < music.musicFiles.size() ? music.musicFiles[file] : std::string();
}

} // namespace tarvel

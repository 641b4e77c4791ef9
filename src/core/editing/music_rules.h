// The music files of a skin: every path ever added, and the rows that are listed.
#pragma once

#include "document/skin_settings.h"

#include <array>
#include <string>
#include <string_view>

namespace tarvel {

/// How the names of music files end.
inline constexpr std::array<std::string_view, 9> musicEndings = {
    ".wma", ".mp3", ".wav", ".ogg", ".flac", ".m4a", ".aac", ".ac3", ".aiff"};

/// True when the name ends as those of music files do, in any letter case.
[[nodiscard]] bool isMusicFile(std::string_view name);

/// Adds a document path to the files, and a row for it at the end of the list.
void addMusicFile(MusicSettings& music, std::string path);

/// Takes a row out of the list. Its path stays among the files, so that the other rows keep their
/// indexes. Rows that do not exist are ignored.
void removeMusicRow(MusicSettings& music, int row);

/// The path of a row; empty for a row that does not exist.
[[nodiscard]] std::string musicPath(const MusicSettings& music, int row);

} // namespace tarvel

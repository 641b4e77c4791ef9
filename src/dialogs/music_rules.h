// The music files of a skin: every path ever added, and the rows that are listed.
#pragma once

#include "document/skin_settings.h"

#include <string>

namespace tarvel {

/// Adds a document path to the files, and a row for it at the end of the list.
void addMusicFile(MusicSettings& music, std::string path);

/// Takes a row out of the list. Its path stays among the files, so that the other rows keep their
/// indexes. Rows that do not exist are ignored.
void removeMusicRow(MusicSettings& music, int row);

/// The path of a row; empty for a row that does not exist.
[[nodiscard]] std::string musicPath(const MusicSettings& music, int row);

} // namespace tarvel

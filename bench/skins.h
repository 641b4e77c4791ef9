// Skins of any size for the benchmarks.
#pragma once

#include "document/skin_document.h"
#include "skinfile/skin_writer.h"

#include <filesystem>
#include <string>

namespace tarvel::bench {

/// A document of `count` elements over all screens: boxes, texts, images, lines and an item menu in
/// turn, some with conditions and timers, none with modifiers.
SkinDocument mixedSkin(int count);

/// A folder of its own in the host's temporary folder, removed at the end.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// Saves the skin into the folder and returns the path of its QOR_Skin.xml.
std::filesystem::path saveInto(const std::filesystem::path& folder, SkinDocument& document);

} // namespace tarvel::bench

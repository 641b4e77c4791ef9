// Skins of any size for the benchmarks.
#pragma once

#include "document/skin_document.h"
#include "skinfile/skin_writer.h"

#include <filesystem>
#include <string>

namespace tarvel::bench {

struct SkinKind {
    bool modifiers = false; ///< each element has one, the largest kind in turn with the smaller two
    bool menuOnly = false;  ///< all elements on the "Menu" screen instead of all screens
    bool boxesOnly = false; ///< and no texts, images, lines and item menus
};

/// A document of `count` elements: boxes, texts, images, lines and an item menu in turn, some with
/// conditions and timers.
SkinDocument mixedSkin(int count, const SkinKind& kind = {});

/// A document of `count` images, each with a resource of its own, whose files nobody has made.
SkinDocument imagesSkin(int count);

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

/// The same without the files of its resources.
std::filesystem::path writeInto(const std::filesystem::path& folder, const SkinDocument& document);

} // namespace tarvel::bench

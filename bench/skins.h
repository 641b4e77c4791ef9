// Skins of any size for the benchmarks.
#pragma once

#include "document/skin_document.h"
#include "skinfile/skin_writer.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace tarvel::bench {

enum class Modifiers : std::uint8_t { none, all };
enum class Screens : std::uint8_t { all, menuOnly };

/// A document of `count` elements: boxes, texts, images, lines and an item menu in turn, some with
/// conditions and timers. With Modifiers::all each element has one, the largest kind in turn with
/// the smaller two.
SkinDocument mixedSkin(int count, Modifiers modifiers = Modifiers::none,
                       Screens screens = Screens::all);

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

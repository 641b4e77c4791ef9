// Which files a save copies where, and whether two of them would meet in one place. Writes nothing.
#pragma once

#include "document/skin_settings.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarvel {

inline constexpr std::string_view mediaFolder = "Media\\";
inline constexpr std::string_view musicFolder = "Music\\";

struct PlannedCopy {
    enum class What : std::uint8_t { resource, background, music };
    What what = What::resource;
    std::string name;           ///< of the file, without its folder
    std::filesystem::path from; ///< of the host, as the next
    std::filesystem::path to;
};

struct SavePlan {
    /// In the order of the save: resources, background, music. A file that lies in its place
    /// already is left out.
    std::vector<PlannedCopy> copies;
    /// Names of the resources that lie outside the skin's folder, and are not copied; with the
    /// reason where the host cannot have the name of the file.
    std::vector<std::string> leftOut;
    /// File names that stand for two files, of which the later one is kept.
    std::vector<std::string> sharedNames;
    /// Why nothing must be written, in words for the user that go on after a colon; "" for nothing.
    std::string obstacle;
};

/// The plan for saving into `folder`, an absolute path. Names that differ in letter case alone are
/// one name, unless the folder holds a file of each.
[[nodiscard]] SavePlan planSave(const SkinSettings& settings, const std::filesystem::path& folder);

} // namespace tarvel

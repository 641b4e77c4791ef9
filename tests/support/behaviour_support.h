// What the tests of modifiers share: the catalogue that comes with the program, and folders.
#pragma once

#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace tarvel::test {

inline std::filesystem::path assetsFolder() {
    return TARVEL_ASSETS_DIR;
}

/// An empty folder that goes with all its content at the end of the scope.
class ScratchFolder {
  public:
    [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }

    /// Lays a file in the folder and gives its path.
    [[nodiscard]] std::filesystem::path file(const std::string& name,
                                             std::string_view bytes) const {
        const auto file = path() / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

  private:
    TemporaryFolder folder_;
};

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace tarvel::test

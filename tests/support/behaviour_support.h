// What the tests of modifiers share: the catalogue that comes with the program, and folders.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel::test {

inline std::filesystem::path assetsFolder() {
    return TARVEL_ASSETS_DIR;
}

/// An empty folder that goes with all its content at the end of the scope.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tarvel-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no folder for the test");
        }
        path_ = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Lays a file in the folder and gives its path.
    [[nodiscard]] std::filesystem::path file(const std::string& name,
                                             std::string_view bytes) const {
        const auto file = path_ / name;
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

  private:
    std::filesystem::path path_;
};

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace tarvel::test

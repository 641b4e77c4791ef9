// A folder of its own for a test, with quick files in it.
#pragma once

#include "files/host_files.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tarvel-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
        return path_ / name;
    }
    /// Writes a file, making its folders, and returns its path.
    std::filesystem::path file(std::string_view name, std::string_view content) const {
        const auto path = path_ / name;
        std::filesystem::create_directories(path.parent_path());
        writeFile(path, content);
        return path;
    }
    std::filesystem::path folder(std::string_view name) const {
        std::filesystem::create_directories(path_ / name);
        return path_ / name;
    }
    /// The document's spelling of a path in the folder.
    [[nodiscard]] std::string document(std::string_view name) const {
        return documentPath(path_ / name);
    }

  private:
    std::filesystem::path path_;
};

} // namespace tarvel

// A folder of its own for a test, with quick files in it.
#pragma once

#include "files/host_files.h"
#include "files/path_text.h"
#include "files/system_files.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvel {

/// What has to be done to a folder before it can be removed; nothing for most.
inline void (*beforeRemoval)(const std::filesystem::path& folder) = nullptr; // NOLINT: set once

class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int count = 0;
        const auto above = std::filesystem::temp_directory_path();
        const std::string own = "tarvel-" + std::to_string(processNumber()) + "-";
        do {
            path_ = above / (own + std::to_string(++count));
        } while (!makeFolder(path_) && errno == EEXIST);
        if (!statusOf(path_)) {
            throw std::runtime_error("no temporary folder");
        }
    }
    ~TemporaryFolder() {
        if (beforeRemoval != nullptr) {
            beforeRemoval(path_);
        }
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
        return path_ / pathOf(name);
    }
    /// Writes a file, making its folders, and returns its path.
    std::filesystem::path file(std::string_view name, std::string_view content) const {
        const auto path = path_ / pathOf(name);
        std::filesystem::create_directories(path.parent_path());
        writeFile(path, content);
        return path;
    }
    std::filesystem::path folder(std::string_view name) const {
        std::filesystem::create_directories(path_ / pathOf(name));
        return path_ / pathOf(name);
    }
    /// The document's spelling of a path in the folder.
    [[nodiscard]] std::string document(std::string_view name) const {
        return documentPath(path_ / pathOf(name));
    }

  private:
    std::filesystem::path path_;
};

} // namespace tarvel

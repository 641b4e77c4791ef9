// A file of the host that is open; failures name the file.
#pragma once

#include "files/system_files.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace tarvel {

/// An open file. Everything that fails throws FileError.
class OpenFile {
  public:
    /// `shownAs` is the file that failures name.
    OpenFile(const std::filesystem::path& path, Opening how, std::filesystem::path shownAs);
    OpenFile(const std::filesystem::path& path, Opening how);

    [[nodiscard]] const Descriptor& descriptor() const { return descriptor_; }
    /// Throws for the failure that errno tells of.
    [[noreturn]] void fail() const;

    void write(const char* data, std::size_t size) const;
    /// Over what stands at a place, in bytes from the beginning; write() goes on where it was.
    void writeAt(std::uint64_t place, const char* data, std::size_t size) const;
    /// 0 at the end of the file.
    std::size_t read(char* data, std::size_t size) const;
    /// The same from a place of its own, in bytes from the beginning.
    std::size_t readAt(std::uint64_t place, char* data, std::size_t size) const;
    /// From where the file stands to its end.
    [[nodiscard]] std::string readAll() const;
    [[nodiscard]] FileStatus status() const;
    /// Brings what was written to the disk.
    void flush() const;
    void close();

  private:
    std::filesystem::path path_;
    Descriptor descriptor_;
};

/// Brings it to the disk which files a folder holds. Throws FileError, also for a folder that is
/// gone.
void flushFolder(const std::filesystem::path& folder);

} // namespace tarvel

// Two versions of a skin for saves that are disturbed, and what a folder may hold afterwards.
#pragma once

#include "faults/child.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tarvel::test {

/// True in the long run of these tests: TARVEL_FAULTS=long.
[[nodiscard]] bool isLongRun();

/// Files by their path below a folder.
using Files = std::map<std::string, std::string>;
[[nodiscard]] Files filesIn(const std::filesystem::path& folder);

struct SkinSize {
    int elements = 3; ///< with a modifier each
    int pictures = 2;
    int kilobytes = 300; ///< of a picture
};

/// A skin's folder in two versions, whose files have the same names and nothing else in common, and
/// the program that saves them, in a folder of its own for its temporary file.
class TwoVersions {
  public:
    explicit TwoVersions(const SkinSize& size = {});

    [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }
    [[nodiscard]] std::filesystem::path out() const { return folder_ / "out"; }
    [[nodiscard]] std::filesystem::path in(int version) const {
        return folder_ / (version == 0 ? "in0" : "in1");
    }
    /// The words that save a version into out().
    [[nodiscard]] std::vector<std::string> save(int version) const;
    /// What out() holds after a save of that version.
    [[nodiscard]] const Files& saved(int version) const { return saved_[version]; }
    /// Makes out() what a save of version 0 leaves.
    void reset() const;

    /// What is wrong in out(): a file that is neither version's, or, with `leftoversToo`, a file
    /// that no save leaves. "" for nothing.
    [[nodiscard]] std::string problem(bool leftoversToo = false) const;
    /// Saves `version` undisturbed and says what is wrong then: anything but that version, or files
    /// beside it or beside the program.
    [[nodiscard]] std::string problemAfterSave(int version) const;

  private:
    void makeVersion(int version, const SkinSize& size) const;

    TemporaryFolder folder_;
    Files saved_[2]; // NOLINT
};

} // namespace tarvel::test

// The recovery files of all runs in one folder: each run keeps its own, and finds those of runs
// that ended without taking theirs away.
#pragma once

#include "files/held_file.h"
#include "skinfile/recovery.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace tarvel {

/// A run's part in the folder. While it lives no other store, in whatever process, touches the
/// run's file, nor those of dead runs that it has found. Destroyed without endProperly() it leaves
/// its file to the next run, as a process that is killed does.
///
/// A run's files are "run-TIME-PROCESS" with ".recovery" (the work), ".lock" (held while the run
/// lives) and ".unreadable" (set aside).
class RecoveryStore {
  public:
    /// Makes the folder, with those above it, when it is missing. Throws FileError when nothing can
    /// be kept there.
    explicit RecoveryStore(std::filesystem::path folder);

    /// Replaces what is kept of this run, only when the new file is whole and flushed. Throws
    /// FileError, with the older file as it was.
    void keep(const WorkState& work);
    /// Takes away what is kept of this run: it has nothing to lose. Throws FileError.
    void keepNothing();
    /// Where keep() writes.
    [[nodiscard]] const std::filesystem::path& file() const { return file_; }

    /// The files of dead runs, newest first, each a run's that no other store holds. This store
    /// holds them from now on, so that another one that starts now does not find them.
    std::vector<std::filesystem::path> takeLost();
    /// Throws FileError or SealedBytesError.
    [[nodiscard]] static WorkState read(const std::filesystem::path& lost);
    /// Deletes the file of a dead run, of takeLost(), for good.
    void forget(const std::filesystem::path& lost);
    /// Lets the next store find the file of a dead run, as this one did.
    void leave(const std::filesystem::path& lost);
    /// Renames the file of a dead run, so that it is not found again, and returns its new path.
    /// Throws FileError.
    std::filesystem::path setAside(const std::filesystem::path& lost);

    /// Takes away the files of this run and of all dead runs that takeLost() has found. What cannot
    /// be deleted stays. Nothing can be kept afterwards.
    void endProperly();

  private:
    struct LostRun {
        std::filesystem::path file;
        HeldFile hold;
    };

    void letGo(const std::filesystem::path& lost);
    void findLostRun(const std::filesystem::path& stem);

    std::filesystem::path folder_;
    std::filesystem::path file_;
    std::optional<HeldFile> own_; ///< until endProperly()
    std::vector<LostRun> lost_;
    std::string buffer_; ///< of keep(), several times a minute
};

} // namespace tarvel

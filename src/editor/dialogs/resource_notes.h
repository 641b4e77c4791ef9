// What the resources dialog knows of each resource besides its name.
#pragma once

#include "document/skin_document.h"
#include "editing/missing_files.h"

#include <QString>

#include <vector>

namespace tarvel {

/// How many elements use each of the document's resources, and which files of the skin are missing,
/// as of the last look. The document is not owned and outlives the notes. Rows are places in the
/// skin's list; for those that the last look did not see nothing is said.
class ResourceNotes {
  public:
    explicit ResourceNotes(const SkinDocument& document)
        : document_(document) {}

    /// Looks at the elements.
    void countUses();
    /// Asks the disk for every file of the skin. Returns those that are missing.
    std::vector<MissingFile> lookForFiles();
    /// Asks the disk for the files of the rows from `first` on alone, those before stay as they
    /// are.
    void lookForFilesFrom(int first);
    /// Asks the disk for the file of one row alone.
    void lookForFile(int row);
    /// Moves the rows behind one that was taken out.
    void removeRow(int row);

    [[nodiscard]] int uses(int row) const;
    [[nodiscard]] bool isMissing(int row) const;
    /// Whether any file of the skin is missing, those of music and background included.
    [[nodiscard]] bool isAnyMissing() const;

    /// "3 uses" in words.
    [[nodiscard]] QString usesText(int row) const;
    /// What a resource is, for its tooltip: a path of this computer or a fragment.
    [[nodiscard]] QString contentText(int row) const;
    /// Name and notes in one, for screen readers.
    [[nodiscard]] QString spokenText(int row) const;

  private:
    [[nodiscard]] const Resource* resource(int row) const;

    const SkinDocument& document_;
    std::vector<int> uses_;
    std::vector<bool> isMissing_;
    int missing_ = 0;      // of isMissing_
    int otherMissing_ = 0; // background and music
};

} // namespace tarvel

// Level by level, each folder in alphabetical order, so that a search finds the same every time.
#include "files/file_search.h"

#include "files/host_files.h"
#include "files/path_text.h"
#include "text/text_case.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarvel {

namespace fs = std::filesystem;

namespace {

class Searcher {
  public:
    Searcher(const fs::path& folder, const std::unordered_set<std::string>& names,
             std::size_t limit, const SearchStep& step)
        : root_(folder)
        , names_(names)
        , limit_(limit)
        , step_(step) {}

    FileSearch run() {
        std::vector<fs::path> level{root_};
        while (!level.empty() && !isDone()) {
            std::vector<fs::path> below;
            for (const fs::path& folder : level) {
                if (isDone()) {
                    break;
                }
                look(folder, below);
            }
            level = std::move(below);
        }
        return std::move(search_);
    }

  private:
    [[nodiscard]] bool isDone() const {
        return !search_.complete || search_.found.size() == names_.size();
    }

    // Adds the folders in it to those below.
    void look(const fs::path& folder, std::vector<fs::path>& below) {
        std::vector<FolderEntry> files;
        const auto firstBelow = static_cast<std::ptrdiff_t>(below.size());
        eachEntryOf(folder, [&](const FolderEntry& entry) {
            if (!count()) {
                return false;
            }
            if (entry.kind == FileKind::folder) {
                below.push_back(entry.path);
            } else if (names_.contains(lowerCased(utf8Of(entry.path.filename())))) {
                files.push_back(entry);
            }
            return true;
        });
        std::sort(below.begin() + firstBelow, below.end());
        std::sort(files.begin(), files.end(),
                  [](const FolderEntry& a, const FolderEntry& b) { return a.path < b.path; });
        for (const FolderEntry& file : files) {
            if (isUsable(file)) {
                search_.found.try_emplace(lowerCased(utf8Of(file.path.filename())), file.path);
            }
        }
    }

    bool count() {
        constexpr std::size_t between = 1000;
        if (++entries_ > limit_ || (step_ && entries_ % between == 0 && !step_(entries_))) {
            search_.complete = false;
        }
        return search_.complete;
    }

    [[nodiscard]] bool isUsable(const FolderEntry& file) const {
        const auto status = statusOf(file.path);
        if (!status || status->kind != FileKind::regular || !fileProblem(file.path).empty()) {
            return false;
        }
        try {
            return file.kind != FileKind::link || liesWithin(root_, file.path);
        } catch (const FileError&) {
            return false;
        }
    }

    const fs::path& root_;
    const std::unordered_set<std::string>& names_;
    std::size_t limit_;
    const SearchStep& step_;
    std::size_t entries_ = 0;
    FileSearch search_;
};

} // namespace

FileSearch searchFiles(const fs::path& folder, const std::unordered_set<std::string>& names,
                       std::size_t limit, const SearchStep& step) {
    return names.empty() ? FileSearch{} : Searcher(folder, names, limit, step).run();
}

} // namespace tarvel

// Level by level, each folder in alphabetical order, so that a search finds the same every time.
#include "files/file_search.h"

#include "files/host_files.h"
#include "text/text_case.h"

#include <algorithm>
#include <system_error>
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
        std::vector<fs::directory_entry> files;
        const auto firstBelow = static_cast<std::ptrdiff_t>(below.size());
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            if (!count()) {
                break;
            }
            std::error_code ignored;
            if (entry->symlink_status(ignored).type() == fs::file_type::directory) {
                below.push_back(entry->path());
            } else if (names_.contains(lowerCased(entry->path().filename().native()))) {
                files.push_back(*entry);
            }
        }
        std::sort(below.begin() + firstBelow, below.end());
        std::sort(files.begin(), files.end());
        for (const fs::directory_entry& file : files) {
            if (isUsable(file)) {
                search_.found.try_emplace(lowerCased(file.path().filename().native()), file.path());
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

    [[nodiscard]] bool isUsable(const fs::directory_entry& file) const {
        std::error_code error;
        if (!file.is_regular_file(error) || !fileProblem(file.path()).empty()) {
            return false;
        }
        try {
            return !file.is_symlink(error) || liesWithin(root_, file.path());
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

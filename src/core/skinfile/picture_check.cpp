// Compares the size of each picture with the largest place that shows it.
#include "skinfile/picture_check.h"

#include "document/element_kinds.h"
#include "document/image_source.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarvel {

namespace {

// Where a resource is shown.
struct Shown {
    float width = 0; // of the widest place
    float height = 0;
    float largest = 0; // in square pixels
    int screen = 0;    // of the largest place
    int row = 0;
};

std::vector<Shown> shownPlaces(const SkinDocument& document) {
    const std::vector<Resource>& resources = document.settings().resources;
    std::vector<Shown> places(resources.size());
    for (int screen = 0; screen < screenCount; ++screen) {
        for (int row = 0; row < document.rowCount(screen); ++row) {
            const Element& element = document.element(document.itemData(screen, row));
            const auto& [width, height] =
                SkinSize{element.elementControl.width, element.elementControl.height};
            if (!rulesOf(element.elementKind).namesResource || !(width > 0 && height > 0)) {
                continue;
            }
            if (const Resource* resource = resourceOf(document, element.imageSource)) {
                Shown& shown = places[static_cast<std::size_t>(resource - resources.data())];
                shown.width = std::max(shown.width, width);
                shown.height = std::max(shown.height, height);
                if (width * height > shown.largest) {
                    shown.largest = width * height;
                    shown.screen = screen;
                    shown.row = row;
                }
            }
        }
    }
    return places;
}

bool isMuchLarger(PictureSize size, const Shown& shown) {
    constexpr double factor = 2;
    return shown.largest > 0 && size.width > factor * shown.width &&
           size.height > factor * shown.height;
}

// The sizes of files, each looked at once, and what they come to.
class Sizes {
  public:
    explicit Sizes(FileFinder& files)
        : files_(files) {}

    std::optional<PictureSize> of(std::string_view path) {
        const auto [known, isNew] = sizes_.try_emplace(path);
        if (isNew) {
            known->second = pictureSizeOfFile(files_.hostPath(path));
            const std::uint64_t bytes = known->second ? tarvel::decodedBytes(*known->second) : 0;
            const auto room = std::numeric_limits<std::uint64_t>::max() - sum_;
            sum_ += std::min(bytes, room);
        }
        return known->second;
    }

    [[nodiscard]] std::uint64_t sum() const { return sum_; }

  private:
    FileFinder& files_;
    std::unordered_map<std::string_view, std::optional<PictureSize>> sizes_;
    std::uint64_t sum_ = 0;
};

} // namespace

PictureReport checkPictures(const SkinDocument& document, FileFinder& files) {
    const SkinSettings& settings = document.settings();
    const std::vector<Shown> places = shownPlaces(document);
    PictureReport report;
    Sizes sizes(files);
    for (std::size_t i = 0; i < settings.resources.size(); ++i) {
        const Resource& resource = settings.resources[i];
        if (!resource.isFile || resource.outside) {
            continue;
        }
        const std::optional<PictureSize> size = sizes.of(resource.content);
        if (size && isMuchLarger(*size, places[i])) {
            report.large.push_back({static_cast<int>(i), *size, places[i].screen, places[i].row});
        }
    }
    if (settings.background.loaded) {
        static_cast<void>(sizes.of(settings.background.path));
    }
    report.decodedBytes = sizes.sum();
    return report;
}

} // namespace tarvel

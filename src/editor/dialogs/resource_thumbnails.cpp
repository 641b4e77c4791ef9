// Makes thumbnails a few at a time, those of the rows in sight first.
#include "dialogs/resource_thumbnails.h"

#include "panels/resource_looks.h"

#include <QElapsedTimer>
#include <QListWidget>

#include <algorithm>

namespace tarvel {

ResourceThumbnails::ResourceThumbnails(const SkinDocument& document, PictureCache& pictures,
                                       QListWidget& list, QObject* parent)
    : QObject(parent)
    , document_(document)
    , pictures_(pictures)
    , list_(list) {
    list_.setIconSize(size);
    connect(&slices_, &QTimer::timeout, this, &ResourceThumbnails::slice);
}

void ResourceThumbnails::restart() {
    made_.clear();
    addRows();
}

void ResourceThumbnails::addRows() {
    const auto count = static_cast<std::size_t>(list_.count());
    const QIcon empty(QPixmap::fromImage(emptyThumbnail(size, list_.devicePixelRatioF())));
    for (std::size_t row = made_.size(); row < count; ++row) {
        list_.item(static_cast<int>(row))->setIcon(empty);
    }
    made_.resize(count, false);
    slices_.start(0);
}

void ResourceThumbnails::slice() {
    constexpr qint64 sliceTime = 8; // milliseconds, but for a picture that takes longer
    QElapsedTimer clock;
    clock.start();
    const auto& resources = document_.settings().resources;
    while (clock.elapsed() < sliceTime) {
        const int row = nextRow();
        if (row < 0) {
            slices_.stop();
            return;
        }
        const auto index = static_cast<std::size_t>(row);
        made_[index] = true;
        if (index < resources.size() && row < list_.count()) {
            const QImage image =
                thumbnailOf(resources[index], pictures_, size, list_.devicePixelRatioF());
            list_.item(row)->setIcon(QIcon(QPixmap::fromImage(image)));
        }
    }
}

// The first visible row without a thumbnail, otherwise the first one at all; -1 when all are made.
int ResourceThumbnails::nextRow() const {
    const auto firstMissing = [this](std::size_t from, std::size_t to) {
        const auto begin = made_.begin();
        const auto end = begin + static_cast<std::ptrdiff_t>(std::min(to, made_.size()));
        const auto found =
            std::find(std::min(begin + static_cast<std::ptrdiff_t>(from), end), end, false);
        return found == end ? -1 : static_cast<int>(found - begin);
    };
    const QListWidgetItem* top = list_.itemAt(QPoint(1, 1));
    const QListWidgetItem* bottom = list_.itemAt(QPoint(1, list_.viewport()->height() - 1));
    const int first = top == nullptr ? 0 : list_.row(top);
    const int last = bottom == nullptr ? list_.count() - 1 : list_.row(bottom);
    const int visible =
        firstMissing(static_cast<std::size_t>(first), static_cast<std::size_t>(last) + 1);
    return visible >= 0 ? visible : firstMissing(0, made_.size());
}

} // namespace tarvel

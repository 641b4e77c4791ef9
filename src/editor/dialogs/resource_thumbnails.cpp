// Makes thumbnails a few at a time, those of the rows in sight first.
#include "dialogs/resource_thumbnails.h"

#include "dialogs/resource_notes.h"
#include "panels/resource_looks.h"

#include <QElapsedTimer>
#include <QListWidget>
#include <QScrollBar>

#include <algorithm>

namespace tarvel {

ResourceThumbnails::ResourceThumbnails(const SkinDocument& document, const ResourceNotes& notes,
                                       PictureCache& pictures, QListWidget& list, QObject* parent)
    : QObject(parent)
    , document_(document)
    , notes_(notes)
    , pictures_(pictures)
    , list_(list) {
    list_.setIconSize(size);
    connect(&slices_, &QTimer::timeout, this, &ResourceThumbnails::slice);
    const QScrollBar* bar = list_.verticalScrollBar(); // tells of other rows in sight
    connect(bar, &QScrollBar::valueChanged, this, &ResourceThumbnails::goOn);
    connect(bar, &QScrollBar::rangeChanged, this, &ResourceThumbnails::goOn);
}

void ResourceThumbnails::restart() {
    empty_ = QIcon(QPixmap::fromImage(emptyThumbnail(size, list_.devicePixelRatioF())));
    icons_.clear();
    made_ = 0;
    isStopped_ = false;
    addRows();
}

void ResourceThumbnails::addRows() {
    icons_.resize(static_cast<std::size_t>(list_.count()));
    goOn();
}

const QIcon& ResourceThumbnails::icon(int row) const {
    const auto index = static_cast<std::size_t>(row); // -1 is too large
    return index < icons_.size() && isMade(row) ? icons_[index] : empty_;
}

void ResourceThumbnails::renewRow(int row) {
    if (isMade(row)) {
        set(row, {});
        goOn();
    }
}

void ResourceThumbnails::removeRow(int row) {
    set(row, {});
    icons_.erase(icons_.begin() + row);
    goOn();
}

void ResourceThumbnails::stop() {
    isStopped_ = true;
    slices_.stop();
}

void ResourceThumbnails::goOn() {
    if (!isStopped_) {
        slices_.start(0);
    }
}

void ResourceThumbnails::slice() {
    constexpr qint64 sliceTime = 8; // milliseconds, but for a picture that takes longer
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < sliceTime) {
        const int row = nextRow();
        if (row < 0) {
            slices_.stop();
            return;
        }
        make(row);
    }
}

void ResourceThumbnails::make(int row) {
    set(row, thumbnail(row));
    list_.viewport()->update(list_.visualItemRect(list_.item(row)));
    if (made_ > most) {
        giveUpFarRows();
    }
}

QIcon ResourceThumbnails::thumbnail(int row) const {
    const auto& resources = document_.settings().resources;
    const auto index = static_cast<std::size_t>(row);
    if (index >= resources.size()) {
        return empty_;
    }
    Resource shown = resources[index];
    if (notes_.isMissing(row) && lookOf(shown) == ResourceLook::picture) {
        shown.outside = true; // crossed just so, without reading its folder again
    }
    const QImage image = thumbnailOf(shown, pictures_, size, list_.devicePixelRatioF());
    return {QPixmap::fromImage(image)};
}

void ResourceThumbnails::set(int row, const QIcon& icon) {
    made_ += static_cast<int>(!icon.isNull()) - static_cast<int>(isMade(row));
    icons_[static_cast<std::size_t>(row)] = icon;
}

void ResourceThumbnails::giveUpFarRows() {
    const Span kept = rowsNear();
    for (int row = 0; row < static_cast<int>(icons_.size()); ++row) {
        if (isMade(row) && (row < kept.first || row > kept.last)) {
            set(row, {});
        }
    }
}

ResourceThumbnails::Span ResourceThumbnails::rowsInSight() const {
    const QListWidgetItem* top = list_.itemAt(QPoint(1, 1));
    const QListWidgetItem* bottom = list_.itemAt(QPoint(1, list_.viewport()->height() - 1));
    const int first = top == nullptr ? 0 : list_.row(top);
    return {first, bottom == nullptr ? list_.count() - 1 : list_.row(bottom)};
}

ResourceThumbnails::Span ResourceThumbnails::rowsNear() const {
    const auto [first, last] = rowsInSight();
    return {first - near, last + near};
}

// The first row of them without a thumbnail; -1 for none.
int ResourceThumbnails::firstMissing(Span rows) const {
    const int count = std::min(static_cast<int>(icons_.size()), list_.count());
    for (int row = std::max(rows.first, 0); row <= std::min(rows.last, count - 1); ++row) {
        if (!isMade(row)) {
            return row;
        }
    }
    return -1;
}

int ResourceThumbnails::nextRow() const {
    const int visible = firstMissing(rowsInSight());
    return visible >= 0 ? visible : firstMissing(rowsNear());
}

} // namespace tarvel

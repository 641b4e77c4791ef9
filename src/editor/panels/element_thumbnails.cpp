// Makes thumbnails a few at a time.
#include "panels/element_thumbnails.h"

#include "panels/resource_looks.h"

#include <QElapsedTimer>

#include <algorithm>

namespace tarvel {

namespace {

Resource resourceOf(const ElementControl& control) {
    return {.name = {},
            .content = control.file,
            .isFile = control.picture != PictureContent::programIcon,
            .outside = control.picture == PictureContent::barred};
}

QByteArray keyOf(const ElementControl& control, double ratio) {
    return QByteArray::number(static_cast<int>(control.picture)) + '|' + QByteArray::number(ratio) +
           '|' + QByteArray::fromStdString(control.file);
}

} // namespace

ElementThumbnails::ElementThumbnails(PictureCache& pictures, QObject* parent)
    : QObject(parent)
    , pictures_(pictures) {
    connect(&slices_, &QTimer::timeout, this, &ElementThumbnails::slice);
}

QImage ElementThumbnails::thumbnail(const ElementControl& control, double ratio) {
    const QByteArray key = keyOf(control, ratio);
    if (const QImage* image = made_.object(key)) {
        return *image;
    }
    const auto isKnown = [&](const Wanted& wanted) { return wanted.key == key; };
    if (std::none_of(wanted_.begin(), wanted_.end(), isKnown)) {
        constexpr int mostWanted = 100; // rows passed by scrolling are of no interest any more
        wanted_.prepend({key, control, ratio});
        wanted_.resize(std::min<qsizetype>(wanted_.size(), mostWanted));
        slices_.start(0);
    }
    return emptyThumbnail(size, ratio);
}

void ElementThumbnails::forget() {
    made_.clear();
    emit made();
}

void ElementThumbnails::slice() {
    constexpr qint64 sliceTime = 8; // milliseconds, but for a picture that takes longer
    QElapsedTimer clock;
    clock.start();
    while (!wanted_.isEmpty() && clock.elapsed() < sliceTime) {
        const Wanted next = wanted_.takeFirst();
        made_.insert(next.key, new QImage(thumbnailOf(resourceOf(next.control), pictures_, size,
                                                      next.ratio)));
    }
    if (wanted_.isEmpty()) {
        slices_.stop();
    }
    emit made();
}

} // namespace tarvel

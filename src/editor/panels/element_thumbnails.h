// Small pictures for the rows of image elements.
#pragma once

#include "document/element.h"

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>
#include <QTimer>

namespace tarvel {

class PictureCache;

/// Asked for one that it does not have, it gives an empty frame, makes the picture between events
/// and tells when it is there. Keeps the `most` used last. The cache is not owned and outlives it.
class ElementThumbnails : public QObject {
    Q_OBJECT

  public:
    static constexpr int most = 256;
    static constexpr QSize size{20, 16}; ///< pixels

    explicit ElementThumbnails(PictureCache& pictures, QObject* parent = nullptr);

    /// The thumbnail of an image's control, in pixels of a display of that ratio. Reads no file.
    [[nodiscard]] QImage thumbnail(const ElementControl& control, double ratio);
    /// Files may have other content.
    void forget();
    [[nodiscard]] int count() const { return static_cast<int>(made_.count()); }

  signals:
    /// More of those that were asked for are there.
    void made();

  private:
    struct Wanted {
        QByteArray key;
        ElementControl control;
        double ratio = 1;
    };
    void slice();

    PictureCache& pictures_;
    QCache<QByteArray, QImage> made_{most};
    QList<Wanted> wanted_; // what was asked for last comes first
    QTimer slices_;
};

} // namespace tarvel

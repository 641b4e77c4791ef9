// Thumbnails for the rows of the resource list, made bit by bit.
#pragma once

#include "document/skin_document.h"

#include <QObject>
#include <QSize>
#include <QTimer>

#include <vector>

class QListWidget;

namespace tarvel {

class PictureCache;

/// Gives each row of the list the icon of the document's resource of the same position. A few are
/// made at a time, rows that can be seen first; events run in between. List, document and pictures
/// are not owned and outlive it.
class ResourceThumbnails : public QObject {
    Q_OBJECT

  public:
    static constexpr QSize size{40, 30}; ///< pixels

    ResourceThumbnails(const SkinDocument& document, PictureCache& pictures, QListWidget& list,
                       QObject* parent = nullptr);

    /// Begins anew with all rows.
    void restart();
    /// Sees to the rows that have been added at the end.
    void addRows();
    /// Makes no more until restart().
    void stop() { slices_.stop(); }
    [[nodiscard]] bool isDone() const { return !slices_.isActive(); }

  private:
    void slice();
    [[nodiscard]] int nextRow() const;

    const SkinDocument& document_;
    PictureCache& pictures_;
    QListWidget& list_;
    std::vector<bool> made_; // by row
    QTimer slices_;
};

} // namespace tarvel

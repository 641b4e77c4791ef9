// How the rows of the element lists look.
#pragma once

#include "document/skin_document.h"
#include "panels/element_thumbnails.h"

#include <QStyledItemDelegate>

namespace tarvel {

/// Paints a row's kind as an icon, then its colour as a swatch or its picture as a thumbnail, its
/// text, and a lock at the end of a locked one. All rows are of one height. Rows are those of an
/// ElementListModel; the document is not owned and outlives the delegate.
class ElementRowDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    /// What stands where in a row.
    struct Places {
        QRect kind;
        QRect look; ///< swatch or thumbnail
        QRect text;
        QRect lock;
    };

    ElementRowDelegate(const SkinDocument& document, PictureCache& pictures, QObject* parent);

    [[nodiscard]] static Places placesIn(const QRect& row, bool isLocked);
    [[nodiscard]] ElementThumbnails& thumbnails() { return thumbnails_; }
    /// Marks the row of the element that the pointer is over; 0 for none.
    void setMarked(int elementId) { marked_ = elementId; }
    [[nodiscard]] int marked() const { return marked_; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

  private:
    void paintLook(QPainter& painter, const QRect& place, const Element& element,
                   const QColor& edge) const;

    const SkinDocument& document_;
    mutable ElementThumbnails thumbnails_; // filled by what is painted
    int marked_ = 0;
};

} // namespace tarvel

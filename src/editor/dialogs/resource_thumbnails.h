// Thumbnails for the rows of the resource list, made bit by bit.
#pragma once

#include "document/skin_document.h"

#include <QIcon>
#include <QObject>
#include <QSize>
#include <QTimer>

#include <vector>

class QListWidget;

namespace tarvel {

class PictureCache;
class ResourceNotes;

/// The icons of the rows of the list, each of the document's resource of the same position: of
/// those that can be seen, then of those near them. A few are made at a time; events run in
/// between. In a long list those far from what can be seen are given up, so that memory stays
/// bounded. Pictures that the notes call missing are not looked for. Nothing is owned, all of it
/// outlives the thumbnails.
///
/// The rows ask for their icons. Given to them, each would make the list lay out all its rows
/// again.
class ResourceThumbnails : public QObject {
    Q_OBJECT

  public:
    static constexpr QSize size{40, 30}; ///< pixels
    static constexpr int near = 250;     ///< rows before and behind those in sight
    static constexpr int most = 2000;    ///< rows that have thumbnails at any time, about

    ResourceThumbnails(const SkinDocument& document, const ResourceNotes& notes,
                       PictureCache& pictures, QListWidget& list, QObject* parent = nullptr);

    /// Begins anew with all rows.
    void restart();
    /// Sees to the rows that have been added at the end.
    void addRows();
    /// A stand-in where there is none yet.
    [[nodiscard]] const QIcon& icon(int row) const;
    /// Sees to a row anew, because its resource has other content.
    void renewRow(int row);
    /// Forgets a row that was taken out of the list.
    void removeRow(int row);
    /// Makes no more until restart().
    void stop();
    /// Whether all rows in sight and near them have theirs.
    [[nodiscard]] bool isDone() const { return !slices_.isActive(); }

  private:
    struct Span {
        int first;
        int last; // included
    };

    void goOn();
    void slice();
    void make(int row);
    void giveUpFarRows();
    [[nodiscard]] Span rowsInSight() const;
    [[nodiscard]] Span rowsNear() const;
    [[nodiscard]] bool isMade(int row) const {
        return !icons_[static_cast<std::size_t>(row)].isNull();
    }
    void set(int row, const QIcon& icon);
    [[nodiscard]] int firstMissing(Span rows) const;
    [[nodiscard]] int nextRow() const;

    [[nodiscard]] QIcon thumbnail(int row) const;

    const SkinDocument& document_;
    const ResourceNotes& notes_;
    PictureCache& pictures_;
    QListWidget& list_;
    QIcon empty_;
    std::vector<QIcon> icons_; // by row; null for those to be made
    int made_ = 0;
    bool isStopped_ = true;
    QTimer slices_;
};

} // namespace tarvel

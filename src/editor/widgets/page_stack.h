// Pages on top of each other, as high as the highest of them or as the one that is shown.
#pragma once

#include <QStackedLayout>

#include <map>

namespace tarvel {

/// Where there is room, it is as high as its highest page, so that nothing around it moves when
/// another page is shown; where there is little, no page takes more than it needs. All pages count
/// for its width.
class PageStack : public QStackedLayout {
    Q_OBJECT

  public:
    PageStack();

    /// Whether room is kept for the highest page; at first it is.
    void keepRoom(bool keep);
    /// How high it is at this width with room for the highest page.
    [[nodiscard]] int highest(int width) const;

    void invalidate() override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  private:
    bool keepsRoom_ = true;
    mutable std::map<int, int> heights_; // of the highest page, by width, until something changes
};

} // namespace tarvel

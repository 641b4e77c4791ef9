// Two parts of a window side by side, or below each other where that is too narrow.
#pragma once

#include <QBoxLayout>

namespace tarvel {

/// A layout of two items. The second one takes the room that is left, in both directions.
class TurningLayout : public QBoxLayout {
    Q_OBJECT

  public:
    /// Takes both in.
    TurningLayout(QWidget* first, QWidget* second);

    /// Side by side.
    [[nodiscard]] QSize sizeHint() const override;
    /// Below each other.
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] int minimumHeightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

  private:
    [[nodiscard]] bool isBeside(int width) const;
};

} // namespace tarvel
